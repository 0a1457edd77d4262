#pragma once

#include "commands/CommandDefinition.h"
#include "commands/INeedCommandRepository.h"
#include "commands/INeedUICommandProcessor.h"
#include "framework/EventConnection.h"
#include "framework/INeedEventbus.h"

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>
#include <optional>

namespace Orvo::UI::UIComponents {

// Lets a menu in QML show and run the host's commands by identifier. The host fills in its
// services when the helper is built; until it has them, every command reads as absent.
class CommandMenuHelper : public QObject,
                          public Kernel::Framework::INeedEventbus,
                          public Kernel::Framework::INeedCommandRepository,
                          public Kernel::Framework::INeedUICommandProcessor
{
    Q_OBJECT
    QML_NAMED_ELEMENT(CommandMenuHelper)
    // Tells the host which component ran a command (for usage statistics).
    Q_PROPERTY(QString componentTrackingID READ componentTrackingID WRITE setComponentTrackingID NOTIFY
                   componentTrackingIDChanged)

public:
    explicit CommandMenuHelper(QObject* parent = nullptr);

    QString componentTrackingID() const;
    void setComponentTrackingID(const QString& componentTrackingID);

    // Runs the command with its own parameter string; false when the host refused it.
    Q_INVOKABLE bool executeCommand(const QString& commandUuid);
    // An unknown or empty identifier is neither enabled nor visible and has no icon or name.
    Q_INVOKABLE bool isItemEnabled(const QString& commandUuid) const;
    Q_INVOKABLE bool isItemVisible(const QString& commandUuid) const;
    // In image-source form, resolved against the application directory.
    Q_INVOKABLE QString getCommandIcon(const QString& commandUuid) const;
    Q_INVOKABLE QString getCommandName(const QString& commandUuid) const;

    void SetEventbus(std::shared_ptr<Kernel::Framework::EventBus> eventbus) override;
    std::shared_ptr<Kernel::Framework::EventBus> GetEventbus() const override;
    void SetCommandRepository(std::shared_ptr<Kernel::Framework::ICommandRepository> repository) override;
    std::shared_ptr<Kernel::Framework::ICommandRepository> GetCommandRepository() const override;
    void SetUICommandProcessor(std::shared_ptr<Kernel::Framework::IUICommandProcessor> processor) override;
    std::shared_ptr<Kernel::Framework::IUICommandProcessor> GetUICommandProcessor() const override;

signals:
    void componentTrackingIDChanged();
    // Some command was enabled, disabled, shown or hidden: menus re-read what they show.
    void commandStateChanged();

private:
    std::optional<Kernel::Framework::CommandDefinition> FindCommand(const QString& commandUuid) const;

    QString m_componentTrackingID;
    std::shared_ptr<Kernel::Framework::EventBus> m_eventbus;
    std::shared_ptr<Kernel::Framework::ICommandRepository> m_repository;
    std::shared_ptr<Kernel::Framework::IUICommandProcessor> m_processor;
    Kernel::Framework::EventConnection m_stateConnection;
};

} // namespace Orvo::UI::UIComponents
