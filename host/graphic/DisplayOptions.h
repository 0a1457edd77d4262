#pragma once

#include "ResultsSource.h"
#include "model/ObjectIds.h"

namespace Orvo::Graphic {

// What a view shows. Each view has its own; the view bar switches them.
struct DisplayOptions
{
    // Members as solids of their cross-section rather than as lines (where large enough on
    // screen to tell).
    bool extrudedSections = false;
    bool nodes = true;
    bool supports = true;
    bool loads = true;
    // The load case whose loads are shown; 0 for the model's first.
    Kernel::Model::Number loadCase = 0;
    bool grid = true;
    bool axes = true;
    // Results, when the results source has them for resultCase (a load case or combination).
    bool deformedShape = false;
    // Model metres drawn per metre of displacement; 0 chooses a scale that makes the largest
    // displacement a tenth of the model's size.
    double deformationScale = 0.0;
    ForceComponent diagram = ForceComponent::None;
    Kernel::Model::ObjectId resultCase = 0;

    friend bool operator==(const DisplayOptions& a, const DisplayOptions& b)
    {
        return a.extrudedSections == b.extrudedSections && a.nodes == b.nodes && a.supports == b.supports
            && a.loads == b.loads && a.loadCase == b.loadCase && a.grid == b.grid && a.axes == b.axes
            && a.deformedShape == b.deformedShape && a.deformationScale == b.deformationScale
            && a.diagram == b.diagram && a.resultCase == b.resultCase;
    }
    friend bool operator!=(const DisplayOptions& a, const DisplayOptions& b) { return !(a == b); }
};

} // namespace Orvo::Graphic
