#include "UiJobs.h"

#include <QMetaObject>
#include <QObject>

namespace Orvo::UI::UIComponents {

UiJobs::UiJobs(QObject* context)
    : m_context(context)
{ }

void UiJobs::RequestPerform()
{
    // Qt drops the call when context dies first; the token covers this queue dying first.
    std::weak_ptr<void> lifetime = LifetimeToken();
    QMetaObject::invokeMethod(
        m_context,
        [this, lifetime]() {
            if (!lifetime.expired())
                Perform();
        },
        Qt::QueuedConnection);
}

} // namespace Orvo::UI::UIComponents
