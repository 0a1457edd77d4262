#pragma once

namespace Orvo::UI::Events {

// A view asks for the marking menu (show, centred on x, y in screen coordinates) or withdraws
// the request (the secondary button was released).
class ShowMarkingMenuEvent
{
public:
    ShowMarkingMenuEvent(bool show, double x, double y)
        : m_show(show)
        , m_x(x)
        , m_y(y)
    { }

    bool GetShow() const { return m_show; }
    double GetX() const { return m_x; }
    double GetY() const { return m_y; }

private:
    bool m_show;
    double m_x;
    double m_y;
};

} // namespace Orvo::UI::Events
