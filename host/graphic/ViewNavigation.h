#pragma once

#include "GraphicTypes.h"
#include "HostKitExport.h"
#include "model/ObjectIds.h"

#include <QPointF>
#include <QVector3D>
#include <array>
#include <optional>
#include <vector>

namespace Orvo::Graphic {

class InteractiveViewport;

// What the pointer does in a view:
// - primary button: a click picks (Shift adds, Control toggles, a click on nothing clears), a
//   drag selects by rectangle (to the right: what lies wholly inside; to the left: whatever it
//   touches); with Alt held, a drag turns the camera;
// - middle button: a drag turns the camera about the centre of rotation; with Shift it pans,
//   with Control it zooms;
// - wheel: zooms towards the pointer (or along the line of sight, as the strategy says);
// - double click: frames the model;
// - the secondary button is not the view's: its press is left to others (the marking menu).
class HOSTKIT_EXPORT ViewNavigation
{
public:
    // Pixels the pointer must move with the button down before a click becomes a drag.
    static constexpr double c_dragThreshold = 4.0;
    // Wheel delta of one notch, in eighths of a degree.
    static constexpr double c_wheelNotch = 120.0;
    // How much a pixel of a zoom drag changes the distance.
    static constexpr double c_zoomDragPerPixel = 0.005;

    explicit ViewNavigation(InteractiveViewport& viewport);

    bool Press(const MouseEvent& event);
    bool Move(const MouseEvent& event);
    bool Release(const MouseEvent& event);
    bool DoubleClick(const MouseEvent& event);
    bool Wheel(const MouseEvent& event);
    // Ends whatever gesture is under way without acting on it (the view lost its target).
    void Cancel();

    bool IsSelectingByRect() const { return m_gesture == Gesture::RectangleSelection; }
    std::array<double, 4> SelectingRect() const;
    Kernel::Model::ObjectId Hovered() const { return m_hovered; }
    std::optional<QVector3D> PointerPosition() const { return m_pointer; }

private:
    enum class Gesture
    {
        None,
        PendingClick,
        RectangleSelection,
        Orbit,
        Pan,
        Zoom,
    };

    static QPointF Position(const MouseEvent& event) { return { event.position.x, event.position.y }; }
    void StartCameraGesture(Gesture gesture, const MouseEvent& event);
    void UpdateHover(const QPointF& position);
    void SelectAt(const QPointF& position, std::uint8_t modifiers);
    void SelectInRectangle(std::uint8_t modifiers);
    void ApplySelection(const std::vector<Kernel::Model::ObjectId>& picked, std::uint8_t modifiers);

    InteractiveViewport& m_viewport;
    Gesture m_gesture = Gesture::None;
    std::uint8_t m_button = MouseButton::None;
    QPointF m_pressPosition;
    QPointF m_lastPosition;
    QVector3D m_pivot;
    Kernel::Model::ObjectId m_hovered = 0;
    std::optional<QVector3D> m_pointer;
};

} // namespace Orvo::Graphic
