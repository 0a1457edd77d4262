#include "MessageBoxService.h"

#include "events/MessageBoxVisibleChanged.h"
#include "framework/Debug.h"
#include "framework/EventBus.h"

namespace Orvo::UI::QtExtensions {

MessageBoxService::MessageBoxService(std::weak_ptr<Kernel::Framework::EventBus> eventbus)
    : m_eventbus(std::move(eventbus))
{ }

void MessageBoxService::MessageBoxShown()
{
    if (++m_visibleCount == 1)
        Announce(true);
}

void MessageBoxService::MessageBoxHidden()
{
    if (m_visibleCount == 0) {
        Kernel::Framework::DebugOutput("A message box reported closing, but none is shown");
        return;
    }
    if (--m_visibleCount == 0)
        Announce(false);
}

bool MessageBoxService::IsMessageBoxVisible() const
{
    return m_visibleCount > 0;
}

int MessageBoxService::VisibleCount() const
{
    return m_visibleCount;
}

void MessageBoxService::Announce(bool visible) const
{
    if (auto eventbus = m_eventbus.lock())
        eventbus->Post(Events::MessageBoxVisibleChanged(visible));
}

} // namespace Orvo::UI::QtExtensions
