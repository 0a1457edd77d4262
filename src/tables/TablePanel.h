#pragma once

#include "ColumnDataAdapter.h"
#include "TableContentModel.h"
#include "TablePanelConfiguration.h"
#include "TableTabsFilterModel.h"
#include "TableTabsModel.h"
#include "TableWorkstationsModel.h"
#include "framework/EventConnection.h"
#include "qtextensions/UIComponent.h"

#include <QString>
#include <QtQml/qqmlregistration.h>
#include <memory>
#include <vector>

namespace Orvo::Kernel::Tables {
class ITableData;
class TableDataCatalog;
struct TableDataChangedEvent;
struct TableWorkstation;
} // namespace Orvo::Kernel::Tables

namespace Orvo::UI::UIComponents {

// What the input and the results table panels share: the workstations they offer, the tabs of
// the shown workstation (open, closed, their order, the selected one, alerted ones), the shown
// table fed into the content model as the view scrolls, and the user's layout of each table kept
// in the panel's configuration. The host's tables are read through their table-data interface;
// the panels differ in which workstations they offer and in what they do with edits.
class TablePanel : public Orvo::UI::QtExtensions::UIComponent
{
    Q_OBJECT
    QML_ANONYMOUS
    Q_PROPERTY(QString tableId READ tableId WRITE setTableId NOTIFY tableIdChanged)
    Q_PROPERTY(QString label READ label NOTIFY tableIdChanged)
    Q_PROPERTY(Orvo::UI::UIComponents::TableContentModel* contentModel READ contentModel CONSTANT)
    Q_PROPERTY(Orvo::UI::UIComponents::TableTabsModel* tabsModel READ tabsModel CONSTANT)
    // The open tabs in their order on screen: the tab bar's model.
    Q_PROPERTY(Orvo::UI::UIComponents::TableTabsFilterModel* tabsFilterModel READ tabsFilterModel CONSTANT)
    Q_PROPERTY(
        Orvo::UI::UIComponents::TableWorkstationsModel* workstationsModel READ workstationsModel CONSTANT)

public:
    explicit TablePanel(QQuickItem* parent = nullptr);
    ~TablePanel() override;

    QString tableId() const { return m_tableId; }
    // Shows a table: its workstation becomes the shown one and its tab opens and is selected.
    void setTableId(const QString& id);
    QString label() const;
    TableContentModel* contentModel() { return &m_model; }
    TableTabsModel* tabsModel() { return &m_tabs; }
    TableTabsFilterModel* tabsFilterModel() { return &m_openTabs; }
    TableWorkstationsModel* workstationsModel() { return &m_workstations; }

    // Opens the tab of a table of the shown workstation (last on the bar) and selects it.
    Q_INVOKABLE void openTable(const QString& id);
    // Closes the tab at a place of the tab bar; the neighbour on its left (or right) is selected.
    Q_INVOKABLE void closeTab(int place);
    // Selects the tab steps places away on the bar, stopping at either end (Ctrl+PageUp/PageDown).
    Q_INVOKABLE void selectNeighbourTab(int steps);

    void loadConfiguration(const QString& userConfiguration) override;
    QString saveConfiguration() override;
    bool isPersistent() const override { return true; }

signals:
    void tableIdChanged();

protected:
    // The workstations this panel offers.
    virtual bool OffersWorkstation(const Kernel::Tables::TableWorkstation& workstation) const = 0;
    // The table of an id, as this panel may show it; null (with a warning) otherwise.
    virtual std::shared_ptr<Kernel::Tables::ITableData> FindTable(const QString& id) const;
    // The tab of a table of a workstation.
    virtual TableTabsModelItem CreateTabItem(const Kernel::Tables::ITableData& table) const
    {
        return TableTabsModel::CreateModelItem(table);
    }
    // The table shown changed (null: none).
    virtual void OnTableShown(const std::shared_ptr<Kernel::Tables::ITableData>&) { }
    // Rows asked for by the content model; by default read at once from the table.
    virtual void DeliverRows(int index, int count, const std::vector<std::wstring>& columnIds);
    // The host's content of the table changed: read it again.
    void Refill();
    void SetColumnsContent(int index, std::vector<Kernel::Tables::TableDataColumnContent>&& data);

    // Lists the workstations the panel offers and shows the first; derived constructors call it.
    void FillWorkstations();
    std::shared_ptr<Kernel::Tables::TableDataCatalog> Catalog() const;
    // True while the rows are read anew or another table comes: selection changes are not the user's.
    bool IsRefilling() const { return m_refilling; }
    const std::shared_ptr<Kernel::Tables::ITableData>& Table() const { return m_table; }
    const ColumnDataAdapter* FindAdapter(const QString& columnId) const;

private:
    void ShowWorkstation();
    void FollowSelectedTab();
    void FollowOpenedTab(const QString& id, bool opened);
    void ShowTable(const QString& id);
    // The columns' titles and decimals carry the units the user chose: the shown table is taken
    // down and shown again, keeping its layout.
    void ReloadTable();
    void RememberWorkstation();
    void RememberLayout();
    void UpdateAlerts(const std::vector<std::wstring>& tableIds);
    void OnTableDataChanged(const Kernel::Tables::TableDataChangedEvent& event);
    void OnAddColumnsRequest(const std::vector<QString>& ids);
    void OnSetRowsRequest(int index, int count, const std::vector<QString>& ids);

    TableContentModel m_model;
    TableTabsModel m_tabs;
    TableTabsFilterModel m_openTabs;
    TableWorkstationsModel m_workstations;
    TablePanelConfiguration m_configuration;
    QString m_tableId;
    QString m_workstationId; // the workstation whose tabs the tabs model holds
    bool m_switchingWorkstation = false;
    bool m_refilling = false;
    std::shared_ptr<Kernel::Tables::ITableData> m_table;
    std::vector<std::unique_ptr<ColumnDataAdapter>> m_adapters;
    Kernel::Framework::EventConnection m_changedConnection;
    Kernel::Framework::EventConnection m_unitsConnection;
};

} // namespace Orvo::UI::UIComponents
