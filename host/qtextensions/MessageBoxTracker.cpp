#include "MessageBoxTracker.h"

#include "MessageBoxService.h"
#include "framework/Debug.h"
#include "framework/ServiceCatalog.h"

namespace Orvo::UI::QtExtensions {

MessageBoxTracker::MessageBoxTracker(QObject* parent)
    : QObject(parent)
    // Kept for the tracker's lifetime: a box closing during shutdown still reaches the service.
    , m_service(Kernel::Framework::ServiceCatalog::Global()->Get<MessageBoxService>())
{
    if (!m_service)
        Kernel::Framework::DebugOutput("The host has no message-box service; message boxes go unreported");
}

MessageBoxTracker::~MessageBoxTracker()
{
    if (m_shown && m_service)
        m_service->MessageBoxHidden();
}

bool MessageBoxTracker::shown() const
{
    return m_shown;
}

void MessageBoxTracker::setShown(bool shown)
{
    if (m_shown == shown)
        return;
    m_shown = shown;
    if (m_service) {
        if (shown)
            m_service->MessageBoxShown();
        else
            m_service->MessageBoxHidden();
    }
    emit shownChanged();
}

} // namespace Orvo::UI::QtExtensions
