#include "SnapListModel.h"

#include "StatusLogging.h"
#include "datamodel/SettingChangedEvent.h"
#include "datamodel/Settings.h"
#include "framework/EventBus.h"
#include "framework/ServiceCatalog.h"
#include "plugin/QtComponentsText.h"

namespace Orvo::UI::UIComponents {

using DataModel::Settings;

const std::vector<SnapListModel::Snap>& SnapListModel::Snaps()
{
    // Alt and a digit: free in every panel, and the order of the bar's buttons.
    static const std::vector<Snap> snaps {
        { QStringLiteral("nodes"), Settings::c_snapToNodes, QStringLiteral("UI_SNAP_NODES"),
          QStringLiteral("UI_SNAP_NODES_DESCRIPTION"), QStringLiteral("Alt+1"), true },
        { QStringLiteral("midpoints"), Settings::c_snapToMidpoints, QStringLiteral("UI_SNAP_MIDPOINTS"),
          QStringLiteral("UI_SNAP_MIDPOINTS_DESCRIPTION"), QStringLiteral("Alt+2"), false },
        { QStringLiteral("members"), Settings::c_snapToMembers, QStringLiteral("UI_SNAP_MEMBERS"),
          QStringLiteral("UI_SNAP_MEMBERS_DESCRIPTION"), QStringLiteral("Alt+3"), true },
        { QStringLiteral("grid"), Settings::c_snapToGrid, QStringLiteral("UI_SNAP_GRID"),
          QStringLiteral("UI_SNAP_GRID_DESCRIPTION"), QStringLiteral("Alt+4"), false },
    };
    return snaps;
}

SnapListModel::SnapListModel(QObject* parent)
    : QAbstractListModel(parent)
{
    for (const Snap& snap : Snaps())
        m_enabled.push_back(snap.enabledByDefault);
    const auto catalog = Kernel::Framework::ServiceCatalog::Global();
    if (!catalog)
        return;
    m_settings = catalog->Get<Settings>();
    if (const auto eventbus = catalog->Get<Kernel::Framework::EventBus>())
        m_settingConnection = eventbus->Subscribe<DataModel::SettingChangedEvent>(
            [this](const DataModel::SettingChangedEvent& event) { OnSettingChanged(event.key); });
}

SnapListModel::~SnapListModel() = default;

int SnapListModel::rowCount(const QModelIndex& parent) const
{
    if (parent.isValid())
        return 0;
    return int(Snaps().size());
}

QVariant SnapListModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || !checkIndex(index, CheckIndexOption::ParentIsInvalid))
        return {};
    const Snap& snap = Snaps()[std::size_t(index.row())];
    switch (role) {
    case SnapIdRole:
        return snap.id;
    case Qt::DisplayRole:
    case NameRole:
        return GetText(snap.nameId);
    case DescriptionRole:
        return GetText(snap.descriptionId);
    case Qt::CheckStateRole:
        return IsEnabled(index.row()) ? Qt::Checked : Qt::Unchecked;
    case EnabledRole:
        return IsEnabled(index.row());
    case ShortcutRole:
        return snap.shortcut;
    default:
        return {};
    }
}

bool SnapListModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    if (!index.isValid() || !checkIndex(index, CheckIndexOption::ParentIsInvalid))
        return false;
    if (role == EnabledRole)
        return SetEnabled(index.row(), value.toBool());
    if (role == Qt::CheckStateRole)
        return SetEnabled(index.row(), value.toInt() == Qt::Checked);
    return false;
}

Qt::ItemFlags SnapListModel::flags(const QModelIndex& index) const
{
    if (!index.isValid() || !checkIndex(index, CheckIndexOption::ParentIsInvalid))
        return Qt::NoItemFlags;
    return Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable;
}

QHash<int, QByteArray> SnapListModel::roleNames() const
{
    return { { SnapIdRole, "snapId" },
             { NameRole, "name" },
             { DescriptionRole, "description" },
             { EnabledRole, "enabled" },
             { ShortcutRole, "shortcut" } };
}

bool SnapListModel::IsEnabled(int row) const
{
    if (row < 0 || row >= rowCount())
        return false;
    const Snap& snap = Snaps()[std::size_t(row)];
    if (m_settings) {
        const QVariant stored = m_settings->Value(snap.settingKey);
        return stored.isValid() ? stored.toBool() : snap.enabledByDefault;
    }
    return m_enabled[std::size_t(row)];
}

bool SnapListModel::SetEnabled(int row, bool enabled)
{
    if (row < 0 || row >= rowCount()) {
        qCWarning(lcStatus) << "SetEnabled: there is no snap" << row;
        return false;
    }
    if (IsEnabled(row) == enabled)
        return true;
    if (m_settings)
        // The setting's announcement reports the change, to every status bar at once.
        return m_settings->SetValue(Snaps()[std::size_t(row)].settingKey, enabled);
    m_enabled[std::size_t(row)] = enabled;
    emit dataChanged(index(row), index(row), { EnabledRole, Qt::CheckStateRole });
    return true;
}

int SnapListModel::FindRow(const QString& snapId) const
{
    const auto& snaps = Snaps();
    for (std::size_t row = 0; row < snaps.size(); ++row) {
        if (snaps[row].id == snapId)
            return int(row);
    }
    return -1;
}

void SnapListModel::OnSettingChanged(const QString& key)
{
    const auto& snaps = Snaps();
    for (std::size_t row = 0; row < snaps.size(); ++row) {
        if (snaps[row].settingKey == key)
            emit dataChanged(index(int(row)), index(int(row)), { EnabledRole, Qt::CheckStateRole });
    }
}

} // namespace Orvo::UI::UIComponents
