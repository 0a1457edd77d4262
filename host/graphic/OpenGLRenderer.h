#pragma once

#include "HostKitExport.h"
#include "SceneRenderer.h"

#include <QSize>
#include <cstdint>
#include <memory>
#include <vector>

class QOpenGLContext;
class QOpenGLExtraFunctions;
class QSurface;

namespace Orvo::Graphic {

class GLPrograms;
class GLSceneBuffers;

// Renders frames with OpenGL into a texture of its own framebuffer, which the window shows as
// it is. It works in an OpenGL context of its own that shares objects with the context current
// when it is initialised (the window's), so that neither disturbs the other's state; the
// window's context is current again when it returns. The model's members live on the graphics
// card, drawn one run per cell in sight; solids are one instanced draw per section and cell.
class HOSTKIT_EXPORT OpenGLRenderer : public SceneRenderer
{
public:
    OpenGLRenderer(bool shareCurrentContext, int samples);
    ~OpenGLRenderer() override;

    bool Initialize() override;
    void Render(const FramePlan& plan, const StructureScene& scene, RenderView& view) override;
    void Release() override;

private:
    bool MakeCurrent();
    void RestoreCurrent();
    void ResizeFramebuffer(const QSize& size);
    void DeleteFramebuffer();
    void DrawBackground();
    void DrawMembers(const FramePlan& plan, const StructureScene& scene);
    void DrawSolids(const FramePlan& plan, const StructureScene& scene);
    void DrawOverlay(const FramePlan& plan);

    bool m_shareCurrentContext;
    int m_samples;
    std::unique_ptr<QOpenGLContext> m_context;
    QSurface* m_surface = nullptr;
    QOpenGLContext* m_previousContext = nullptr;
    QSurface* m_previousSurface = nullptr;
    QOpenGLExtraFunctions* m_gl = nullptr;
    std::unique_ptr<GLPrograms> m_programs;
    std::unique_ptr<GLSceneBuffers> m_buffers;

    QSize m_size;
    std::uint32_t m_framebuffer = 0;
    std::uint32_t m_colorTexture = 0;
    std::uint32_t m_depthBuffer = 0;
    // With multisampling: drawn here, then resolved into the texture.
    std::uint32_t m_multisampleFramebuffer = 0;
    std::uint32_t m_multisampleColor = 0;
    std::uint32_t m_multisampleDepth = 0;
    std::uint32_t m_vertexArray = 0;
};

} // namespace Orvo::Graphic
