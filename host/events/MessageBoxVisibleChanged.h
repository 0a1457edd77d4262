#pragma once

namespace Orvo::UI::Events {

// The application started showing a message box (visible) or closed the last one it showed.
// While one is visible the user has to answer it first: components that act on keys or
// pointer gestures elsewhere in the application hold still.
class MessageBoxVisibleChanged
{
public:
    explicit MessageBoxVisibleChanged(bool visible)
        : m_visible(visible)
    { }

    bool GetVisible() const { return m_visible; }

private:
    bool m_visible;
};

} // namespace Orvo::UI::Events
