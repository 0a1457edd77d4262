#include "TablePanel.h"

#include "TablesLogging.h"
#include "events/DisplayUnitsChanged.h"
#include "framework/EventBus.h"
#include "framework/ServiceCatalog.h"
#include "qtextensions/File.h"
#include "tables/TableDataCatalog.h"
#include "tables/TableDataEvents.h"

#include <QScopedValueRollback>
#include <algorithm>

namespace Orvo::UI::UIComponents {

using namespace Kernel::Tables;
using Kernel::Framework::EventBus;
using Kernel::Framework::ServiceCatalog;

namespace {

QString ToQString(const std::wstring& text)
{
    return QString::fromStdWString(text);
}

bool Holds(const TableWorkstation& workstation, const std::wstring& tableId)
{
    return std::any_of(workstation.tables.begin(), workstation.tables.end(),
                       [&tableId](const auto& table) { return table->GetId() == tableId; });
}

} // namespace

TablePanel::TablePanel(QQuickItem* parent)
    : UIComponent(parent)
{
    m_openTabs.setSourceModel(&m_tabs);
    connect(&m_model, &TableContentModel::addColumnsRequest, this, &TablePanel::OnAddColumnsRequest);
    connect(&m_model, &TableContentModel::refillContentRequest, this, &TablePanel::Refill);
    connect(&m_model, &TableContentModel::setRowsRequest, this, &TablePanel::OnSetRowsRequest);
    // Every change of the columns' order, widths or visibility ends in this signal.
    connect(&m_model, &TableContentModel::columnsLayoutChanged, this, &TablePanel::RememberLayout);
    connect(&m_tabs, &TableTabsModel::selectedIndexChanged, this, &TablePanel::FollowSelectedTab);
    connect(&m_tabs, &TableTabsModel::enabledStateChanged, this, &TablePanel::FollowOpenedTab);
    connect(&m_workstations, &TableWorkstationsModel::selectedIndexChanged, this,
            &TablePanel::ShowWorkstation);

    const auto catalog = ServiceCatalog::Global();
    if (const auto eventBus = catalog ? catalog->Get<EventBus>() : nullptr)
        m_changedConnection = eventBus->Subscribe<TableDataChangedEvent>(
            [this](const TableDataChangedEvent& event) { OnTableDataChanged(event); });
    if (const auto eventBus = catalog ? catalog->Get<EventBus>() : nullptr)
        m_unitsConnection = eventBus->Subscribe<Events::DisplayUnitsChanged>(
            [this](const Events::DisplayUnitsChanged&) { ReloadTable(); });
}

void TablePanel::ReloadTable()
{
    if (!m_table)
        return;
    const QString id = m_tableId;
    RememberLayout();
    m_table.reset();
    ShowTable(id);
}

TablePanel::~TablePanel() = default;

std::shared_ptr<TableDataCatalog> TablePanel::Catalog() const
{
    const auto catalog = ServiceCatalog::Global();
    return catalog ? catalog->Get<TableDataCatalog>() : nullptr;
}

std::shared_ptr<ITableData> TablePanel::FindTable(const QString& id) const
{
    const auto catalog = Catalog();
    auto table = catalog ? catalog->FindTable(id.toStdWString()) : nullptr;
    if (!table)
        qCWarning(lcTables).noquote() << metaObject()->className() << ": the host has no table" << id;
    return table;
}

QString TablePanel::label() const
{
    return m_table ? ToQString(m_table->GetLabel()) : QString();
}

// ---- Workstations and tabs ----------------------------------------------------------------------------

void TablePanel::FillWorkstations()
{
    std::vector<TableWorkstationItem> items;
    if (const auto catalog = Catalog()) {
        for (const TableWorkstation& workstation : catalog->Workstations()) {
            if (!OffersWorkstation(workstation))
                continue;
            const QString icon = workstation.iconName.empty()
                ? QString()
                : QtExtensions::File::createQmlFilePathFromApplicationPath(L"Images/Tables/"
                                                                           + workstation.iconName + L".svg");
            items.push_back({ ToQString(workstation.id), icon, ToQString(workstation.label) });
        }
    }
    m_workstations.Set(std::move(items));
    if (m_workstations.selectedIndex() < 0 && m_workstations.rowCount() > 0)
        m_workstations.setSelectedIndex(0);
}

void TablePanel::ShowWorkstation()
{
    const QString id = m_workstations.SelectedId();
    if (id == m_workstationId)
        return;
    RememberWorkstation();
    m_workstationId = id;
    m_configuration.currentWorkstation = id;
    const auto catalog = Catalog();
    const TableWorkstation* workstation = catalog ? catalog->FindWorkstation(id.toStdWString()) : nullptr;

    // The old tabs go, and the new ones come, without choosing a table of their own.
    m_switchingWorkstation = true;
    m_tabs.setSelectedIndex(-1);
    m_tabs.Clear();
    std::vector<TableTabsModelItem> items;
    if (workstation) {
        for (const auto& table : workstation->tables) {
            TableTabsModelItem item = CreateTabItem(*table);
            item.alerted = table->HasErrors();
            items.push_back(std::move(item));
        }
    }
    const TablePanelConfiguration::Workstation* saved = m_configuration.FindWorkstation(id);
    std::vector<std::wstring> open;
    if (saved) {
        for (const QString& table : saved->openTables)
            open.push_back(table.toStdWString());
    } else if (!items.empty()) {
        open.push_back(items.front().id.toStdWString()); // a first visit: the first table
    }
    m_tabs.Add(std::move(items));
    m_tabs.SetActiveTables(open);
    int selected = saved && saved->openTables.contains(saved->selectedTable)
        ? m_tabs.FindIndexById(saved->selectedTable)
        : -1;
    if (selected < 0)
        selected = m_tabs.GetIndexOfFirstEnabled();
    m_switchingWorkstation = false;
    m_tabs.setSelectedIndex(selected);
    if (selected < 0)
        ShowTable({});
}

void TablePanel::FollowSelectedTab()
{
    const int selected = m_tabs.selectedIndex();
    if (selected < 0 || m_switchingWorkstation)
        return; // a closed tab's successor is chosen where it was closed
    ShowTable(m_tabs.index(selected).data(TableTabsModel::IdRole).toString());
}

void TablePanel::FollowOpenedTab(const QString& id, bool opened)
{
    if (m_switchingWorkstation)
        return;
    if (opened) {
        m_tabs.setSelectedIndex(m_tabs.FindIndexById(id)); // a table opened is a table to see
        return;
    }
    if (m_tabs.selectedIndex() >= 0)
        return;
    const int first = m_tabs.GetIndexOfFirstEnabled();
    if (first >= 0)
        m_tabs.setSelectedIndex(first);
    else
        ShowTable({});
}

void TablePanel::openTable(const QString& id)
{
    const int index = m_tabs.FindIndexById(id);
    if (index < 0) {
        setTableId(id); // a table of another workstation
        return;
    }
    m_tabs.setData(m_tabs.index(index), true, TableTabsModel::EnabledRole);
    m_tabs.setSelectedIndex(index);
}

void TablePanel::closeTab(int place)
{
    const int index = m_openTabs.mapToSource(m_openTabs.index(place, 0)).row();
    if (index < 0) {
        qCWarning(lcTables) << "closeTab: there is no open tab at" << place;
        return;
    }
    const bool wasSelected = index == m_tabs.selectedIndex();
    const int remaining = m_openTabs.rowCount() - 1;
    if (wasSelected && remaining > 0) {
        // The neighbour takes over before the tab goes, so the view switches only once.
        m_openTabs.setSelectedIndex(place > 0 ? place - 1 : 1);
    }
    m_tabs.setData(m_tabs.index(index), false, TableTabsModel::EnabledRole);
}

void TablePanel::selectNeighbourTab(int steps)
{
    const int place = m_openTabs.selectedIndex();
    if (place < 0 || m_openTabs.rowCount() == 0)
        return;
    m_openTabs.setSelectedIndex(std::clamp(place + steps, 0, m_openTabs.rowCount() - 1));
}

void TablePanel::setTableId(const QString& id)
{
    if (id == m_tableId)
        return;
    if (id.isEmpty()) {
        m_tabs.setSelectedIndex(-1);
        ShowTable({});
        return;
    }
    if (const auto catalog = Catalog()) {
        for (const TableWorkstation& workstation : catalog->Workstations()) {
            if (!OffersWorkstation(workstation) || !Holds(workstation, id.toStdWString()))
                continue;
            m_workstations.setSelectedIndex(m_workstations.FindIndexById(ToQString(workstation.id)));
            openTable(id);
            return;
        }
    }
    m_tabs.setSelectedIndex(-1);
    ShowTable(id);
}

void TablePanel::UpdateAlerts(const std::vector<std::wstring>& tableIds)
{
    const auto catalog = Catalog();
    if (!catalog)
        return;
    for (const std::wstring& id : tableIds) {
        const int index = m_tabs.FindIndexById(id);
        const auto table = index < 0 ? nullptr : catalog->FindTable(id);
        if (table)
            m_tabs.setData(m_tabs.index(index), table->HasErrors(), TableTabsModel::AlertedRole);
    }
}

// ---- The shown table ----------------------------------------------------------------------------------

void TablePanel::ShowTable(const QString& id)
{
    if (id == m_tableId && (m_table || id.isEmpty()))
        return;
    const QScopedValueRollback refilling(m_refilling, true);
    RememberLayout();
    // Forgotten first, so that taking the old columns down is not taken for the user's layout.
    m_tableId.clear();
    m_table.reset();
    m_model.Clear();
    m_adapters.clear();

    m_tableId = id;
    m_table = id.isEmpty() ? nullptr : FindTable(id);
    std::vector<TableColumnModelItem> items;
    if (m_table) {
        for (TableDataColumn& column : m_table->GetColumns()) {
            if (column.type == TableDataType::Group)
                continue;
            items.push_back({ ToQString(column.id), ToQString(column.label), true, column.required });
            m_adapters.push_back(ColumnDataAdapter::Create(std::move(column)));
        }
    }
    if (const TablePanelConfiguration::TableLayout* layout = m_configuration.FindLayout(id))
        TablePanelConfiguration::Arrange(items, *layout);
    OnTableShown(m_table);
    // The model asks for the visible columns, then for the rows.
    m_model.SetAllColumns(std::move(items));
    emit tableIdChanged();
}

const ColumnDataAdapter* TablePanel::FindAdapter(const QString& columnId) const
{
    const std::wstring id = columnId.toStdWString();
    const auto it = std::find_if(m_adapters.begin(), m_adapters.end(),
                                 [&id](const auto& adapter) { return adapter->GetId() == id; });
    return it == m_adapters.end() ? nullptr : it->get();
}

void TablePanel::OnTableDataChanged(const TableDataChangedEvent& event)
{
    UpdateAlerts(event.tableIds);
    if (m_table
        && std::find(event.tableIds.begin(), event.tableIds.end(), m_table->GetId()) != event.tableIds.end())
        Refill();
}

void TablePanel::OnAddColumnsRequest(const std::vector<QString>& ids)
{
    if (!m_table)
        return;
    const TablePanelConfiguration::TableLayout* layout = m_configuration.FindLayout(m_tableId);
    std::vector<TableColumn> columns;
    for (const QString& id : ids) {
        const ColumnDataAdapter* adapter = FindAdapter(id);
        if (!adapter)
            continue;
        TableColumn column = adapter->CreateTableColumn(layout ? layout->widths.value(id, 0) : 0);
        if (adapter->GetId() == m_table->GetSortColumn())
            column.sortOrder = static_cast<std::int32_t>(m_table->GetSortOrder());
        columns.push_back(std::move(column));
    }
    m_model.AddColumns(std::move(columns));
}

void TablePanel::Refill()
{
    if (!m_table)
        return;
    const QScopedValueRollback refilling(m_refilling, true);
    // The sort order is the layout's: the user clicked a title. The host is asked only when it
    // changed, as ordering a big table anew is not free.
    const auto& columns = m_model.GetColumns();
    const auto sorted = std::find_if(columns.begin(), columns.end(),
                                     [](const TableColumn& column) { return column.sortOrder != 0; });
    const std::wstring sortColumn = sorted == columns.end() ? std::wstring() : sorted->id.toStdWString();
    const auto sortOrder
        = sorted == columns.end() ? TableSortOrder::Unsorted : static_cast<TableSortOrder>(sorted->sortOrder);
    if (sortOrder != m_table->GetSortOrder()
        || (sortOrder != TableSortOrder::Unsorted && sortColumn != m_table->GetSortColumn()))
        m_table->Sort(sortOrder == TableSortOrder::Unsorted ? m_table->GetSortColumn() : sortColumn,
                      sortOrder);
    CatchAtBoundary("TablePanel::Refill", [&]() { m_model.SetRowCount(m_table->GetRowCount()); });
}

void TablePanel::OnSetRowsRequest(int index, int count, const std::vector<QString>& ids)
{
    if (!m_table)
        return;
    std::vector<std::wstring> columnIds;
    columnIds.reserve(ids.size());
    for (const QString& id : ids)
        columnIds.push_back(id.toStdWString());
    DeliverRows(index, count, columnIds);
}

void TablePanel::DeliverRows(int index, int count, const std::vector<std::wstring>& columnIds)
{
    SetColumnsContent(index, m_table->GetCells(index, count, columnIds));
}

void TablePanel::SetColumnsContent(int index, std::vector<TableDataColumnContent>&& data)
{
    std::vector<TableColumnContent> contents;
    contents.reserve(data.size());
    for (TableDataColumnContent& column : data) {
        const QString id = ToQString(column.columnId);
        const ColumnDataAdapter* adapter = FindAdapter(id);
        if (!adapter)
            continue;
        TableColumnContent content { id, {} };
        content.cells.reserve(column.cells.size());
        for (const TableDataCell& cell : column.cells)
            content.cells.push_back(adapter->CreateCellContent(cell));
        contents.push_back(std::move(content));
    }
    CatchAtBoundary("TablePanel::SetColumnsContent",
                    [&]() { m_model.SetColumnsContent(index, std::move(contents)); });
}

// ---- Configuration ------------------------------------------------------------------------------------

void TablePanel::RememberWorkstation()
{
    if (m_workstationId.isEmpty())
        return;
    TablePanelConfiguration::Workstation workstation;
    for (const std::wstring& id : m_tabs.GetActiveTables())
        workstation.openTables << ToQString(id);
    const int selected = m_tabs.selectedIndex();
    if (selected >= 0)
        workstation.selectedTable = m_tabs.index(selected).data(TableTabsModel::IdRole).toString();
    m_configuration.SetWorkstation(m_workstationId, std::move(workstation));
}

void TablePanel::RememberLayout()
{
    if (m_tableId.isEmpty() || !m_table)
        return;
    const TablePanelConfiguration::TableLayout* previous = m_configuration.FindLayout(m_tableId);
    TablePanelConfiguration::TableLayout layout;
    if (previous)
        layout.widths = previous->widths; // hidden columns keep theirs
    for (const TableColumnModelItem& item : m_model.columnsModel()->GetItems()) {
        layout.order << item.id;
        if (!item.visible)
            layout.hidden << item.id;
    }
    for (const TableColumn& column : m_model.GetColumns())
        layout.widths.insert(column.id, column.width);
    m_configuration.SetLayout(m_tableId, std::move(layout));
}

void TablePanel::loadConfiguration(const QString& userConfiguration)
{
    // Nothing stored yet: the panel stays as it was built (and as QML set it up).
    if (userConfiguration.trimmed().isEmpty()) {
        if (m_workstations.rowCount() == 0)
            FillWorkstations();
        return;
    }
    m_configuration = TablePanelConfiguration::FromString(userConfiguration);
    // What is shown now is not the user's choice: forget it before the stored state takes over.
    m_workstationId.clear();
    m_tableId.clear();
    m_table.reset();
    m_model.Clear();
    if (m_workstations.rowCount() == 0)
        FillWorkstations();
    const int stored = m_workstations.FindIndexById(m_configuration.currentWorkstation);
    if (stored >= 0)
        m_workstations.setSelectedIndex(stored);
    ShowWorkstation();
}

QString TablePanel::saveConfiguration()
{
    RememberWorkstation();
    RememberLayout();
    return m_configuration.ToString();
}

} // namespace Orvo::UI::UIComponents
