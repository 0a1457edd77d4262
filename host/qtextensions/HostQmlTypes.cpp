#include "HostQmlTypes.h"

#include "CommandExecutionMonitor.h"
#include "CommandHistoryModel.h"
#include "CommandListModel.h"
#include "KeySequences.h"
#include "MessageBoxTracker.h"
#include "QmlModuleInfo.h"
#include "ViewInputArea.h"
#include "basiccomponents/FieldExpression.h"
#include "basiccomponents/NumberFormat.h"

#include <QCoreApplication>
#include <QQmlEngine>

namespace Orvo::UI::QtExtensions {

void RegisterHostQmlTypes()
{
    static bool registered = false;
    if (registered)
        return;
    registered = true;
    qmlRegisterType<ViewInputArea>(c_hostQmlModule, 1, 0, "ViewInputArea");
    qmlRegisterType<MessageBoxTracker>(c_hostQmlModule, 1, 0, "MessageBoxTracker");
    qmlRegisterType<CommandListModel>(c_hostQmlModule, 1, 0, "CommandListModel");
    qmlRegisterType<CommandExecutionMonitor>(c_hostQmlModule, 1, 0, "CommandExecutionMonitor");
    qmlRegisterType<CommandHistoryModel>(c_hostQmlModule, 1, 0, "CommandHistoryModel");
    qmlRegisterType<BasicComponents::FieldExpression>(c_hostQmlModule, 1, 0, "FieldExpression");
    qmlRegisterSingletonType<BasicComponents::NumberFormat>(
        c_hostQmlModule, 1, 0, "NumberFormat", [](QQmlEngine*, QJSEngine*) -> QObject* {
            return new BasicComponents::NumberFormat(); // owned by the engine
        });
    qmlRegisterSingletonType<KeySequences>(
        c_hostQmlModule, 1, 0, "KeySequences",
        [](QQmlEngine*, QJSEngine*) -> QObject* { return new KeySequences(); });
    qmlRegisterSingletonType<QmlModuleInfo>(c_hostQmlModule, 1, 0, "QmlModuleInfo", &QmlModuleInfo::create);
}

// The component library's documents import the host's module, so it exists in every application
// that links the kit, from the moment the application object does, whether or not the host
// started its services yet.
Q_COREAPP_STARTUP_FUNCTION(RegisterHostQmlTypes)

} // namespace Orvo::UI::QtExtensions
