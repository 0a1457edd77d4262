#pragma once

#include "HostKitExport.h"

#include <memory>

namespace Orvo::Kernel::Framework {
class EventBus;
}

namespace Orvo::UI::QtExtensions {

// Knows whether the application shows a message box. Every message box reports itself when
// it appears and when it goes; boxes may stack (a box opened from another one), so the service
// counts them and posts MessageBoxVisibleChanged only when the first one appears and when the
// last one goes.
class HOSTKIT_EXPORT MessageBoxService
{
public:
    explicit MessageBoxService(std::weak_ptr<Kernel::Framework::EventBus> eventbus);

    void MessageBoxShown();
    // A report without a matching MessageBoxShown is ignored with a message.
    void MessageBoxHidden();

    bool IsMessageBoxVisible() const;
    int VisibleCount() const;

private:
    void Announce(bool visible) const;

    std::weak_ptr<Kernel::Framework::EventBus> m_eventbus;
    int m_visibleCount = 0;
};

} // namespace Orvo::UI::QtExtensions
