#pragma once

#include <QImage>
#include <QSize>

namespace Orvo::Graphic {
class GraphicsService;
class InteractiveViewport;
} // namespace Orvo::Graphic

namespace Orvo::UI::UIComponents {

// The picture of the model a report shows: drawn offscreen by the graphics engine's software
// renderer, so that it needs no window, no graphics context and no render thread. Seen the way
// the user looks at the model in a view (its direction, projection and what it shows) and framed
// to the whole model; without a view, from the isometric direction with the views' defaults.
class ReportViewPicture
{
public:
    // Drawn at twice the size and scaled down: smooth lines on paper.
    static constexpr int c_supersampling = 2;

    // A null image when the model has nothing to draw or the size is empty.
    static QImage Render(Graphic::GraphicsService& graphics, const Graphic::InteractiveViewport* view,
                         const QSize& size);
};

} // namespace Orvo::UI::UIComponents
