#include "CommandHistory.h"

#include "events/CommandExecuted.h"
#include "framework/EventBus.h"

namespace Orvo::Kernel::Framework {

CommandHistory::CommandHistory(const std::shared_ptr<EventBus>& eventbus)
{
    if (!eventbus)
        return;
    m_connection
        = eventbus->Subscribe<UI::Events::CommandExecuted>([this](const UI::Events::CommandExecuted& event) {
              if (m_records.size() >= c_capacity) {
                  emit oldestAboutToBeDropped();
                  m_records.pop_front();
                  emit oldestDropped();
              }
              emit recordAboutToBeAdded();
              m_records.push_back({ event.GetCommandUuid(), event.GetParameterString(), event.GetOrigin(),
                                    QDateTime::currentDateTime() });
              emit recordAdded();
          });
}

} // namespace Orvo::Kernel::Framework
