#pragma once

namespace Orvo::Graphic {

class RenderView;
class StructureScene;
struct FramePlan;

// Draws planned frames of a scene into a render view. Created, used and released on the
// thread that renders (the scene graph's render thread in a Qt Quick window).
class SceneRenderer
{
public:
    virtual ~SceneRenderer() = default;

    // False when the renderer cannot work here (no graphics context to share); it then draws
    // nothing.
    virtual bool Initialize() = 0;
    virtual void Render(const FramePlan& plan, const StructureScene& scene, RenderView& view) = 0;
    // Gives back what the renderer holds of a graphics system; Initialize may follow.
    virtual void Release() = 0;
};

} // namespace Orvo::Graphic
