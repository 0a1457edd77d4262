#pragma once

#include "Camera.h"
#include "DisplayOptions.h"
#include "FramePlan.h"
#include "HostKitExport.h"
#include "model/ObjectIds.h"

#include <optional>

namespace Orvo::Graphic {

class StructureScene;

// Plans a frame: culls the scene's cells against the camera's view, chooses lines or solids
// for each by how large its members' sections appear, and gathers the lines and symbols that
// depend on the view.
class HOSTKIT_EXPORT FrameComposer
{
public:
    struct Input
    {
        const StructureScene* scene = nullptr;
        const Camera* camera = nullptr;
        DisplayOptions options;
        bool complete = true;
        // The object under the pointer, drawn in the hover colour; 0 for none.
        Kernel::Model::ObjectId hovered = 0;
        // Lines of the results (deformed shape, diagrams), in the scene's space.
        const std::vector<LineVertex>* resultLines = nullptr;
    };

    // A section drawn smaller than this many pixels across is drawn as a line.
    static constexpr float c_minimumSolidPixels = 3.0f;

    static FramePlan Compose(const Input& input);

    // The load case whose loads a view shows: the chosen one if the scene has it, otherwise the
    // scene's first; 0 when the scene has none.
    static Kernel::Model::Number ShownLoadCase(const StructureScene& scene, Kernel::Model::Number chosen);

private:
    static void CullCells(const Input& input, FramePlan& plan);
    static void AddGrid(const StructureScene& scene, FramePlan& plan);
    static void AddEmphasis(const Input& input, FramePlan& plan);
};

} // namespace Orvo::Graphic
