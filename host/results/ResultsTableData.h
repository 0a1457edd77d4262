#pragma once

#include "HostKitExport.h"
#include "ResultsSchema.h"
#include "basiccomponents/DisplayUnits.h"
#include "tables/ITableData.h"
#include "tables/TableResultsTabInfo.h"

#include <memory>

namespace Orvo::Kernel::Framework {
class IStringLoader;
}

namespace Orvo::Kernel::Results {

class ResultsDatabase;

// A results table for the table panels, read-only, read from the results database a run of rows
// at a time. Without results it has its columns and no rows.
class HOSTKIT_EXPORT ResultsTableData : public Tables::ITableData
{
public:
    // With units, forces, moments and displacements are shown in the units the user chose.
    ResultsTableData(ResultsTable table, std::shared_ptr<const Framework::IStringLoader> strings,
                     std::shared_ptr<const UI::BasicComponents::DisplayUnits> units = nullptr);

    ResultsTable Table() const { return m_table; }
    // The results to show; null for none. The table's sort order carries over.
    void SetDatabase(std::shared_ptr<ResultsDatabase> database);
    Tables::TableResultsTabInfo GetTabInfo() const;

    std::wstring GetId() const override;
    std::wstring GetLabel() const override;
    std::wstring GetIconName() const override;
    bool IsReadOnly() const override { return true; }
    std::vector<Tables::TableDataColumn> GetColumns() const override;
    int GetRowCount() const override;
    std::vector<Tables::TableDataColumnContent>
    GetCells(int first, int count, const std::vector<std::wstring>& columnIds) const override;
    bool Sort(const std::wstring& columnId, Tables::TableSortOrder order) override;
    std::wstring GetSortColumn() const override { return m_sortColumn; }
    Tables::TableSortOrder GetSortOrder() const override { return m_sortOrder; }

private:
    QString Text(const QString& id) const;
    UI::BasicComponents::DisplayUnits::Shown Shown(const ResultsColumn& column) const;
    QString SetLabel(int position) const;

    ResultsTable m_table;
    std::shared_ptr<const Framework::IStringLoader> m_strings;
    std::shared_ptr<const UI::BasicComponents::DisplayUnits> m_units;
    std::shared_ptr<ResultsDatabase> m_database;
    std::wstring m_sortColumn;
    Tables::TableSortOrder m_sortOrder = Tables::TableSortOrder::Unsorted;
};

} // namespace Orvo::Kernel::Results
