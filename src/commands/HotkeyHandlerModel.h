#pragma once

#include "commands/CommandDefinition.h"
#include "commands/INeedCommandRepository.h"
#include "commands/INeedUICommandProcessor.h"
#include "framework/EventConnection.h"
#include "framework/INeedEventbus.h"
#include "framework/INeedServiceCatalog.h"

#include <QAbstractListModel>
#include <QtQml/qqmlregistration.h>
#include <vector>

namespace Orvo::UI::Events {
class CommandShortcutChange;
class MessageBoxVisibleChanged;
} // namespace Orvo::UI::Events

namespace Orvo::UI::UIComponents {

// The host's keyboard shortcuts, one row per binding in the command repository's order, for
// the application-wide Shortcut items of the hotkey handler's document. A command bound to
// Enter (the keypad key) or Return gets one more row at the end, bound to "Return", so that
// both keys run it. Shortcuts are off while the host shows a message box.
class HotkeyHandlerModel : public QAbstractListModel,
                           public Kernel::Framework::INeedEventbus,
                           public Kernel::Framework::INeedServiceCatalog,
                           public Kernel::Framework::INeedUICommandProcessor,
                           public Kernel::Framework::INeedCommandRepository
{
    Q_OBJECT
    // Described for QML tools (the documents that bind to it); never registered by name.
    QML_ANONYMOUS
    Q_PROPERTY(bool shortcutsEnabled READ shortcutsEnabled NOTIFY shortcutsEnabledChanged)

public:
    enum Roles
    {
        CmdUuidRole = Qt::UserRole + 1,
        CmdShortcutRole,
        CmdParameterStringRole,
    };

    explicit HotkeyHandlerModel(QObject* parent = nullptr,
                                std::shared_ptr<Kernel::Framework::EventBus> eventbus = nullptr);
    ~HotkeyHandlerModel() override;

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QHash<int, QByteArray> roleNames() const override;

    bool shortcutsEnabled() const;

    Q_INVOKABLE void commandSelected(const QString& cmdUuid, const QString& cmdParameterString);
    Q_INVOKABLE void logDebugMessage(const QString& message);

    void SetEventbus(std::shared_ptr<Kernel::Framework::EventBus> eventbus) override;
    std::shared_ptr<Kernel::Framework::EventBus> GetEventbus() const override;
    void SetServiceCatalog(std::shared_ptr<Kernel::Framework::ServiceCatalog> catalog) override;
    void SetUICommandProcessor(std::shared_ptr<Kernel::Framework::IUICommandProcessor> processor) override;
    std::shared_ptr<Kernel::Framework::IUICommandProcessor> GetUICommandProcessor() const override;
    void SetCommandRepository(std::shared_ptr<Kernel::Framework::ICommandRepository> repository) override;
    std::shared_ptr<Kernel::Framework::ICommandRepository> GetCommandRepository() const override;

    // The sequence of the extra row, and the bindings that get one.
    static constexpr const wchar_t* c_returnShortcut = L"Return";
    static constexpr const wchar_t* c_enterShortcut = L"Enter";
    // Names the hotkey handler to the command processor as the component that ran a command.
    static constexpr const wchar_t* c_origin = L"HotkeyHandler";

signals:
    void shortcutsEnabledChanged();

private:
    void OnCommandShortcutChange(const Events::CommandShortcutChange& event);
    void OnMessageBoxVisibleChanged(const Events::MessageBoxVisibleChanged& event);
    void Refresh();
    bool IsExtraRow(int row) const;

    Kernel::Framework::EventConnection m_shortcutChangeConnection;
    Kernel::Framework::EventConnection m_messageBoxConnection;
    std::shared_ptr<Kernel::Framework::EventBus> m_eventbus;
    bool m_shortcutsEnabled = true;
    std::vector<Kernel::Framework::ShortcutEntry> m_shortcuts;
    int m_extraIndex = -1;

    std::shared_ptr<Kernel::Framework::ServiceCatalog> m_catalog;
    std::shared_ptr<Kernel::Framework::IUICommandProcessor> m_commandProcessor;
    std::shared_ptr<Kernel::Framework::ICommandRepository> m_commandRepository;
};

} // namespace Orvo::UI::UIComponents
