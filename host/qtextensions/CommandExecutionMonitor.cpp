#include "CommandExecutionMonitor.h"

#include "events/CommandExecuted.h"
#include "framework/EventBus.h"
#include "framework/ServiceCatalog.h"

namespace Orvo::UI::QtExtensions {

CommandExecutionMonitor::CommandExecutionMonitor(QObject* parent)
    : QObject(parent)
{
    Kernel::Framework::ServiceCatalog::Global()->Inject(*this);
}

int CommandExecutionMonitor::executedCount() const
{
    return m_executedCount;
}

void CommandExecutionMonitor::SetEventbus(std::shared_ptr<Kernel::Framework::EventBus> eventbus)
{
    if (eventbus == m_eventbus)
        return;
    m_eventbus = std::move(eventbus);
    m_connection = {};
    if (m_eventbus) {
        m_connection = m_eventbus->Subscribe<Events::CommandExecuted>(
            [this](const Events::CommandExecuted& event) { OnCommandExecuted(event); });
    }
}

std::shared_ptr<Kernel::Framework::EventBus> CommandExecutionMonitor::GetEventbus() const
{
    return m_eventbus;
}

void CommandExecutionMonitor::OnCommandExecuted(const Events::CommandExecuted& event)
{
    ++m_executedCount;
    emit commandExecuted(QString::fromStdWString(event.GetCommandUuid()),
                         QString::fromStdWString(event.GetParameterString()),
                         QString::fromStdWString(event.GetOrigin()));
}

} // namespace Orvo::UI::QtExtensions
