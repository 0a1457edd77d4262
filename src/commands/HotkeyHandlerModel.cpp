#include "HotkeyHandlerModel.h"

#include "CommandsLogging.h"
#include "commands/ICommandRepository.h"
#include "commands/IUICommandProcessor.h"
#include "events/CommandShortcutChange.h"
#include "events/MessageBoxVisibleChanged.h"
#include "framework/Debug.h"
#include "framework/EventBus.h"

#include <exception>
#include <functional>

namespace Orvo::UI::UIComponents {

using namespace Kernel::Framework;
using std::placeholders::_1;

HotkeyHandlerModel::HotkeyHandlerModel(QObject* parent, std::shared_ptr<EventBus> eventbus)
    : QAbstractListModel(parent)
{
    SetEventbus(std::move(eventbus));
}

HotkeyHandlerModel::~HotkeyHandlerModel()
{
    // No host event may reach a model that is half gone.
    m_shortcutChangeConnection.Disconnect();
    m_messageBoxConnection.Disconnect();
}

int HotkeyHandlerModel::rowCount(const QModelIndex& parent) const
{
    if (parent.isValid())
        return 0;
    const int entries = static_cast<int>(m_shortcuts.size());
    return m_extraIndex == -1 ? entries : entries + 1;
}

QVariant HotkeyHandlerModel::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid))
        return {};
    const bool extraRow = IsExtraRow(index.row());
    const ShortcutEntry& entry = m_shortcuts[static_cast<std::size_t>(extraRow ? m_extraIndex : index.row())];
    switch (role) {
    case CmdUuidRole:
        return QString::fromStdWString(entry.commandUuid);
    case CmdShortcutRole:
        return QString::fromStdWString(extraRow ? std::wstring(c_returnShortcut) : entry.shortcut);
    case CmdParameterStringRole:
        return QString::fromStdWString(entry.parameterString);
    default:
        return {};
    }
}

QHash<int, QByteArray> HotkeyHandlerModel::roleNames() const
{
    return {
        { CmdUuidRole, "cmdUuid" },
        { CmdShortcutRole, "cmdShortcut" },
        { CmdParameterStringRole, "cmdParameterString" },
    };
}

bool HotkeyHandlerModel::shortcutsEnabled() const
{
    return m_shortcutsEnabled;
}

void HotkeyHandlerModel::commandSelected(const QString& cmdUuid, const QString& cmdParameterString)
{
    if (!m_commandProcessor) {
        DebugOutput(
            QStringLiteral("No command processor: the hotkey for command %1 runs nothing").arg(cmdUuid));
        return;
    }
    try {
        m_commandProcessor->ExecuteCommand(cmdUuid.toStdWString(), cmdParameterString.toStdWString(),
                                           c_origin);
    } catch (const std::exception& error) {
        DebugOutput(QStringLiteral("Command %1 of a hotkey failed: %2")
                        .arg(cmdUuid, QString::fromUtf8(error.what())));
    }
}

void HotkeyHandlerModel::logDebugMessage(const QString& message)
{
    DebugOutputText(message + QLatin1Char('\n'));
}

void HotkeyHandlerModel::SetEventbus(std::shared_ptr<EventBus> eventbus)
{
    // The catalog hands the bus again to a model that was created with it: keep the subscriptions.
    if (eventbus == m_eventbus)
        return;
    m_shortcutChangeConnection = {};
    m_messageBoxConnection = {};
    m_eventbus = std::move(eventbus);
    if (!m_eventbus)
        return;
    m_shortcutChangeConnection = m_eventbus->Subscribe<Events::CommandShortcutChange>(
        std::bind(&HotkeyHandlerModel::OnCommandShortcutChange, this, _1));
    m_messageBoxConnection = m_eventbus->Subscribe<Events::MessageBoxVisibleChanged>(
        std::bind(&HotkeyHandlerModel::OnMessageBoxVisibleChanged, this, _1));
}

std::shared_ptr<EventBus> HotkeyHandlerModel::GetEventbus() const
{
    return m_eventbus;
}

void HotkeyHandlerModel::SetServiceCatalog(std::shared_ptr<ServiceCatalog> catalog)
{
    m_catalog = std::move(catalog);
}

void HotkeyHandlerModel::SetUICommandProcessor(std::shared_ptr<IUICommandProcessor> processor)
{
    m_commandProcessor = std::move(processor);
}

std::shared_ptr<IUICommandProcessor> HotkeyHandlerModel::GetUICommandProcessor() const
{
    return m_commandProcessor;
}

void HotkeyHandlerModel::SetCommandRepository(std::shared_ptr<ICommandRepository> repository)
{
    m_commandRepository = std::move(repository);
    // The repository announced its shortcuts when it was loaded, before this model existed:
    // read them now, or no shortcut would work until the first change.
    Refresh();
}

std::shared_ptr<ICommandRepository> HotkeyHandlerModel::GetCommandRepository() const
{
    return m_commandRepository;
}

void HotkeyHandlerModel::OnCommandShortcutChange(const Events::CommandShortcutChange&)
{
    Refresh();
}

void HotkeyHandlerModel::OnMessageBoxVisibleChanged(const Events::MessageBoxVisibleChanged& event)
{
    const bool enabled = !event.GetVisible();
    if (enabled == m_shortcutsEnabled)
        return;
    m_shortcutsEnabled = enabled;
    qCDebug(lcCommands) << (enabled ? "Shortcuts on: the last message box closed"
                                    : "Shortcuts off while a message box is shown");
    emit shortcutsEnabledChanged();
}

void HotkeyHandlerModel::Refresh()
{
    // Any binding may have changed, been added or removed, and the extra row may move with
    // it: a reset is the honest description.
    beginResetModel();
    m_shortcuts.clear();
    m_extraIndex = -1;
    if (m_commandRepository) {
        try {
            for (ShortcutEntry& entry : m_commandRepository->GetShortcuts()) {
                m_shortcuts.push_back(std::move(entry));
                const std::wstring& shortcut = m_shortcuts.back().shortcut;
                if (shortcut == c_enterShortcut || shortcut == c_returnShortcut)
                    m_extraIndex = static_cast<int>(m_shortcuts.size()) - 1;
            }
        } catch (const std::exception& error) {
            DebugOutput(
                QStringLiteral("The shortcut list cannot be read: %1").arg(QString::fromUtf8(error.what())));
            m_shortcuts.clear();
            m_extraIndex = -1;
        }
    }
    endResetModel();
    qCDebug(lcCommands) << "Shortcut list read:" << m_shortcuts.size() << "bindings";
}

bool HotkeyHandlerModel::IsExtraRow(int row) const
{
    return m_extraIndex != -1 && row == rowCount() - 1;
}

} // namespace Orvo::UI::UIComponents
