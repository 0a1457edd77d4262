#pragma once

#include "HostKitExport.h"
#include "ResultsSchema.h"
#include "tables/ITableData.h"

#include <QString>
#include <QVariant>
#include <array>
#include <memory>
#include <vector>

namespace Orvo::Kernel::Results {

// One load case or combination of the results, with what the summary tells of it.
struct ResultSetSummary
{
    std::int32_t position = 0;
    bool combination = false;
    std::int32_t number = 0;
    QString name;
    double maxDisplacement = 0.0; // mm, the largest translation of a node
    std::int32_t maxDisplacementNode = 0;
    std::array<double, 3> reactions {}; // kN, summed over the supports
    double maxMoment = 0.0; // kNm, the largest bending moment at a station
    std::int32_t maxMomentMember = 0;
};

// Reads a results file written by ResultsWriter, a run of rows at a time: only what is asked for
// is read, so a table of millions of rows costs no more than the rows on screen. Sorting a table
// by a column indexes that column once and keeps the order in a temporary table, so that a run
// of sorted rows is read by position too. Lives on the thread that made it (the GUI thread).
class HOSTKIT_EXPORT ResultsDatabase
{
public:
    explicit ResultsDatabase(const QString& path);
    ~ResultsDatabase();
    ResultsDatabase(const ResultsDatabase&) = delete;
    ResultsDatabase& operator=(const ResultsDatabase&) = delete;

    bool IsOpen() const;
    const QString& Path() const { return m_path; }
    std::int32_t DegreesOfFreedom() const { return m_dofs; }
    const std::vector<ResultSetSummary>& Sets() const { return m_sets; }

    int RowCount(ResultsTable table) const;
    // Rows [first, first + count) in the table's current order, each with every column of the
    // table in ResultsSchema's order; fewer past the end.
    std::vector<std::vector<QVariant>> ReadRows(ResultsTable table, int first, int count) const;
    // Orders the table by a column of it, or back to its own order. False for an unknown column.
    bool Sort(ResultsTable table, const QString& column, Tables::TableSortOrder order);

private:
    struct Private;
    std::unique_ptr<Private> d;
    QString m_path;
    std::int32_t m_dofs = 0;
    std::vector<ResultSetSummary> m_sets;
    std::array<int, 4> m_rowCounts {};
};

} // namespace Orvo::Kernel::Results
