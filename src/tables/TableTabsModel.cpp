#include "TableTabsModel.h"

#include "TablesLogging.h"
#include "qtextensions/File.h"
#include "tables/ITableData.h"
#include "tables/TableResultsTabInfo.h"

#include <algorithm>

namespace Orvo::UI::UIComponents {

namespace {

// Tab icons are shipped beside the application, one image per icon name.
QString IconPath(const std::wstring& iconName)
{
    if (iconName.empty())
        return {};
    return QtExtensions::File::createQmlFilePathFromApplicationPath(L"Images/Tables/" + iconName + L".svg");
}

} // namespace

TableTabsModel::TableTabsModel(QObject* parent)
    : QAbstractListModel(parent)
{ }

int TableTabsModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_items.size());
}

QVariant TableTabsModel::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid))
        return {};
    const TableTabsModelItem& item = m_items[static_cast<std::size_t>(index.row())];
    switch (role) {
    case IdRole:
        return item.id;
    case IconRole:
        return item.icon;
    case Qt::DisplayRole:
    case LabelRole:
        return item.label;
    case EnabledRole:
        return m_tablesIndexes.contains(item.id);
    case EnabledIndexRole:
        return m_tablesIndexes.value(item.id, -1);
    case AlertedRole:
        return item.alerted;
    default:
        return {};
    }
}

bool TableTabsModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid))
        return false;
    TableTabsModelItem& item = m_items[static_cast<std::size_t>(index.row())];
    switch (role) {
    case EnabledRole:
        if (!SetEnabledState(item.id, value.toBool()))
            return false;
        emit dataChanged(index, index, { EnabledRole, EnabledIndexRole });
        return true;
    case AlertedRole:
        if (item.alerted != value.toBool()) {
            item.alerted = value.toBool();
            emit dataChanged(index, index, { AlertedRole });
        }
        return true;
    default:
        return false;
    }
}

QHash<int, QByteArray> TableTabsModel::roleNames() const
{
    return { { IdRole, "id" },
             { IconRole, "icon" },
             { LabelRole, "label" },
             { EnabledRole, "enabled" },
             { EnabledIndexRole, "enabledIndex" },
             { AlertedRole, "alerted" } };
}

void TableTabsModel::setSelectedIndex(int index)
{
    if (m_selectedIndex == index)
        return;
    m_selectedIndex = index;
    emit selectedIndexChanged();
}

template<typename Change> void TableTabsModel::ChangeLayout(Change&& change)
{
    if (m_suppressLayoutChanged) {
        change();
        return;
    }
    emit layoutAboutToBeChanged();
    change();
    emit layoutChanged();
}

bool TableTabsModel::SetEnabledState(const QString& id, bool enabled)
{
    if (enabled == m_tablesIndexes.contains(id))
        return false;
    // The indexes are rebuilt inside the change, so that a view re-sorting on layoutChanged
    // already reads the new places.
    ChangeLayout([&]() {
        if (enabled)
            m_enabled.append(id); // a newly opened tab goes last
        else
            m_enabled.removeAll(id);
        RebuildTablesIndexes();
    });
    if (!enabled && m_selectedIndex >= 0 && m_selectedIndex < rowCount()
        && m_items[static_cast<std::size_t>(m_selectedIndex)].id == id)
        setSelectedIndex(-1);
    emit enabledStateChanged(id, enabled);
    return true;
}

void TableTabsModel::RebuildTablesIndexes()
{
    m_tablesIndexes.clear();
    for (int position = 0; position < m_enabled.size(); ++position)
        m_tablesIndexes.insert(m_enabled.at(position), position);
}

void TableTabsModel::EmitEnabledRolesChanged()
{
    if (!m_items.empty())
        emit dataChanged(index(0), index(rowCount() - 1), { EnabledRole, EnabledIndexRole });
}

void TableTabsModel::showAll()
{
    m_suppressLayoutChanged = true;
    emit layoutAboutToBeChanged();
    for (const TableTabsModelItem& item : m_items)
        SetEnabledState(item.id, true);
    emit layoutChanged();
    EmitEnabledRolesChanged();
}

void TableTabsModel::hideAll()
{
    ChangeLayout([this]() {
        m_enabled.clear();
        RebuildTablesIndexes();
    });
    EmitEnabledRolesChanged();
}

int TableTabsModel::getFirstEnabledIndex() const
{
    const auto it = std::find_if(m_items.begin(), m_items.end(), [this](const TableTabsModelItem& item) {
        return m_tablesIndexes.contains(item.id);
    });
    return it == m_items.end() ? -1 : static_cast<int>(it - m_items.begin());
}

void TableTabsModel::Add(std::vector<TableTabsModelItem>&& items)
{
    if (items.empty())
        return;
    const int first = rowCount();
    beginInsertRows(QModelIndex(), first, first + static_cast<int>(items.size()) - 1);
    std::move(items.begin(), items.end(), std::back_inserter(m_items));
    endInsertRows();
}

void TableTabsModel::Clear()
{
    if (!m_items.empty()) {
        beginRemoveRows(QModelIndex(), 0, rowCount() - 1);
        m_items.clear();
        endRemoveRows();
    }
    m_enabled.clear();
    RebuildTablesIndexes();
}

void TableTabsModel::SetActiveTables(const std::vector<std::wstring>& ids)
{
    ChangeLayout([&]() {
        m_enabled.clear();
        for (const std::wstring& id : ids) {
            const QString tableId = QString::fromStdWString(id);
            if (!m_enabled.contains(tableId))
                m_enabled.append(tableId);
        }
        RebuildTablesIndexes();
    });
    EmitEnabledRolesChanged();
}

std::vector<std::wstring> TableTabsModel::GetActiveTables() const
{
    std::vector<std::wstring> ids;
    ids.reserve(static_cast<std::size_t>(m_enabled.size()));
    for (const QString& id : m_enabled)
        ids.push_back(id.toStdWString());
    return ids;
}

bool TableTabsModel::Move(int src, int dst)
{
    const int count = static_cast<int>(m_enabled.size());
    if (src < 0 || dst < 0 || src >= count || dst > count || src == dst) {
        if (src != dst)
            qCWarning(lcTables) << "Move: no tab move from" << src << "to" << dst << "of" << count;
        return false;
    }
    // dst is the place before which the tab is dropped; the tab itself leaves a gap first.
    const int target = dst > src ? dst - 1 : dst;
    if (target == src)
        return true; // dropped just behind itself: already in place
    emit layoutAboutToBeChanged();
    m_enabled.move(src, target);
    RebuildTablesIndexes();
    emit layoutChanged();
    EmitEnabledRolesChanged();
    return true;
}

int TableTabsModel::FindIndexById(const QString& id) const
{
    const auto it = std::find_if(m_items.begin(), m_items.end(),
                                 [&id](const TableTabsModelItem& item) { return item.id == id; });
    return it == m_items.end() ? -1 : static_cast<int>(it - m_items.begin());
}

int TableTabsModel::FindIndexById(const std::wstring& id) const
{
    return FindIndexById(QString::fromStdWString(id));
}

int TableTabsModel::GetIndexOfFirstEnabled() const
{
    return m_enabled.isEmpty() ? -1 : FindIndexById(m_enabled.constFirst());
}

TableTabsModelItem TableTabsModel::CreateModelItem(const Kernel::Tables::ITableData& table)
{
    return { QString::fromStdWString(table.GetId()), IconPath(table.GetIconName()),
             QString::fromStdWString(table.GetLabel()), false };
}

TableTabsModelItem TableTabsModel::CreateModelItem(const Kernel::Tables::TableResultsTabInfo& info,
                                                   const QString& label)
{
    return { QString::fromStdWString(info.id), IconPath(info.iconName),
             label.isEmpty() ? QString::fromStdWString(info.label) : label, false };
}

} // namespace Orvo::UI::UIComponents
