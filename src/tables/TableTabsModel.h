#pragma once

#include "TableTabsModelItem.h"

#include <QAbstractListModel>
#include <QHash>
#include <QStringList>
#include <QtQml/qqmlregistration.h>
#include <string>
#include <vector>

namespace Orvo::Kernel::Tables {
class ITableData;
struct TableResultsTabInfo;
} // namespace Orvo::Kernel::Tables

namespace Orvo::UI::UIComponents {

// The tables of a panel's current workstation, and which of them the user has opened, in the
// order of the open tabs on screen. The items keep the host's order; the open tabs are a list of
// ids of their own, so reordering tabs never moves items (TableTabsFilterModel shows the open
// ones in their screen order).
class TableTabsModel : public QAbstractListModel
{
    Q_OBJECT
    QML_NAMED_ELEMENT(TableTabsModel)
    Q_PROPERTY(int selectedIndex READ selectedIndex WRITE setSelectedIndex NOTIFY selectedIndexChanged)

public:
    enum Roles
    {
        IdRole = Qt::UserRole + 1,
        IconRole,
        LabelRole,
        EnabledRole, // the tab is open
        EnabledIndexRole, // its place among the open tabs, -1 when closed
        AlertedRole,
        Count,
    };
    Q_ENUM(Roles)

    explicit TableTabsModel(QObject* parent = nullptr);

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role = Qt::EditRole) override;
    QHash<int, QByteArray> roleNames() const override;

    int selectedIndex() const { return m_selectedIndex; }
    void setSelectedIndex(int index);

    Q_INVOKABLE void showAll();
    Q_INVOKABLE void hideAll();
    // The first open tab in item order (not in screen order), -1 when none is open.
    Q_INVOKABLE int getFirstEnabledIndex() const;

    void Add(std::vector<TableTabsModelItem>&& items);
    void Clear();
    const std::vector<TableTabsModelItem>& Items() const { return m_items; }
    // Opens exactly these tabs, in this order (ids of no item are kept: the table may come back).
    void SetActiveTables(const std::vector<std::wstring>& ids);
    std::vector<std::wstring> GetActiveTables() const;
    // Moves the open tab at src so that it stands before the one at dst (dst == count: last).
    bool Move(int src, int dst);
    int FindIndexById(const std::wstring& id) const;
    int FindIndexById(const QString& id) const;
    // The item of the leftmost open tab, -1 when none is open.
    int GetIndexOfFirstEnabled() const;

    static TableTabsModelItem CreateModelItem(const Kernel::Tables::ITableData& table);
    // A results tab; label, when not empty, names it instead of the table's own label.
    static TableTabsModelItem CreateModelItem(const Kernel::Tables::TableResultsTabInfo& info,
                                              const QString& label);

signals:
    void selectedIndexChanged();
    void enabledStateChanged(QString tableId, bool enabled);

private:
    bool SetEnabledState(const QString& id, bool enabled);
    void RebuildTablesIndexes();
    void EmitEnabledRolesChanged();
    // Brackets a change of the open tabs that views must re-sort for.
    template<typename Change> void ChangeLayout(Change&& change);

    int m_selectedIndex = -1;
    std::vector<TableTabsModelItem> m_items;
    QHash<QString, int> m_tablesIndexes; // id -> place among the open tabs
    QStringList m_enabled; // ids of the open tabs, in screen order
    // Set once every tab was opened at once: from then on the views follow single changes
    // through dataChanged alone.
    bool m_suppressLayoutChanged = false;
};

} // namespace Orvo::UI::UIComponents
