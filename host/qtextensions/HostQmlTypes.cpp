#include "HostQmlTypes.h"

#include "CommandExecutionMonitor.h"
#include "CommandListModel.h"
#include "MessageBoxTracker.h"
#include "ViewInputArea.h"

#include <QQmlEngine>

namespace Orvo::UI::QtExtensions {

void RegisterHostQmlTypes()
{
    qmlRegisterType<ViewInputArea>(c_hostQmlModule, 1, 0, "ViewInputArea");
    qmlRegisterType<MessageBoxTracker>(c_hostQmlModule, 1, 0, "MessageBoxTracker");
    qmlRegisterType<CommandListModel>(c_hostQmlModule, 1, 0, "CommandListModel");
    qmlRegisterType<CommandExecutionMonitor>(c_hostQmlModule, 1, 0, "CommandExecutionMonitor");
}

} // namespace Orvo::UI::QtExtensions
