#include "TableResult.h"

#include "results/ResultsTableData.h"
#include "tables/TableDataCatalog.h"

#include <algorithm>

namespace Orvo::UI::UIComponents {

using namespace Kernel::Tables;

TableResult::TableResult(QQuickItem* parent)
    : TablePanel(parent)
{
    TableContentModel& model = *contentModel();
    model.setAllowEdit(false);
    model.setAllowAddNew(false);
    model.setAllowDelete(false);
    FillWorkstations();
}

TableResult::~TableResult() = default;

bool TableResult::OffersWorkstation(const TableWorkstation& workstation) const
{
    return workstation.id == TableDataCatalog::c_resultsWorkstation;
}

TableTabsModelItem TableResult::CreateTabItem(const ITableData& table) const
{
    if (const auto* results = dynamic_cast<const Kernel::Results::ResultsTableData*>(&table))
        return TableTabsModel::CreateModelItem(results->GetTabInfo(), {});
    return TablePanel::CreateTabItem(table);
}

void TableResult::DeliverRows(int index, int count, const std::vector<std::wstring>& columnIds)
{
    // Runs of rows in order: each run is delivered before the next is read, so the memory of a
    // read never holds more than one run of the database's rows.
    for (int first = index; first < index + count; first += c_rowsPerRead) {
        const int run = std::min(c_rowsPerRead, index + count - first);
        auto cells = Table()->GetCells(first, run, columnIds);
        if (cells.empty() || cells.front().cells.empty())
            break;
        SetColumnsContent(first, std::move(cells));
    }
}

} // namespace Orvo::UI::UIComponents
