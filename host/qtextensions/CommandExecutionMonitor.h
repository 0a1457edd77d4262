#pragma once

#include "HostKitExport.h"
#include "framework/EventConnection.h"
#include "framework/INeedEventbus.h"

#include <QObject>
#include <QtQml/qqmlregistration.h>

namespace Orvo::UI::Events {
class CommandExecuted;
}

namespace Orvo::UI::QtExtensions {

// Reports to QML every command the application runs (the UI command processor's
// CommandExecuted), for command logs, status lines and usage views.
class HOSTKIT_EXPORT CommandExecutionMonitor : public QObject, public Kernel::Framework::INeedEventbus
{
    Q_OBJECT
    QML_NAMED_ELEMENT(CommandExecutionMonitor)
    Q_PROPERTY(int executedCount READ executedCount NOTIFY commandExecuted)

public:
    explicit CommandExecutionMonitor(QObject* parent = nullptr);

    int executedCount() const;

    void SetEventbus(std::shared_ptr<Kernel::Framework::EventBus> eventbus) override;
    std::shared_ptr<Kernel::Framework::EventBus> GetEventbus() const override;

signals:
    // origin names the component that asked for the command ("HotkeyHandler", ...).
    void commandExecuted(const QString& commandUuid, const QString& parameterString, const QString& origin);

private:
    void OnCommandExecuted(const Events::CommandExecuted& event);

    Kernel::Framework::EventConnection m_connection;
    std::shared_ptr<Kernel::Framework::EventBus> m_eventbus;
    int m_executedCount = 0;
};

} // namespace Orvo::UI::QtExtensions
