#pragma once

#include "HostKitExport.h"

#include <QString>
#include <array>
#include <vector>

namespace Orvo::Kernel::Results {

// The tables of results, one row per object and load case or combination.
enum class ResultsTable : std::int32_t
{
    NodeDisplacements = 0,
    SupportReactions,
    MemberEndForces,
    MemberStationForces,
};
inline constexpr std::array<ResultsTable, 4> c_allResultsTables { ResultsTable::NodeDisplacements,
                                                                  ResultsTable::SupportReactions,
                                                                  ResultsTable::MemberEndForces,
                                                                  ResultsTable::MemberStationForces };

struct ResultsColumn
{
    enum class Kind
    {
        ResultSet, // the position of the load case or combination
        Number, // an object's number, or an end (0 start, 1 end)
        End,
        Value,
    };
    QString name; // the column in the database, and the table column's id
    QString labelId;
    Kind kind = Kind::Value;
    QString unit;
    int decimals = 3;
};

// How results are laid out in the database: a table per kind of result whose rows are numbered
// from 0 in the order a results table shows them unsorted (by load case or combination, then
// object), so that a run of rows is a range of the row number, read at once wherever it lies.
// Displacements are in mm and mrad, forces in kN, moments in kNm.
class HOSTKIT_EXPORT ResultsSchema
{
public:
    static QString TableName(ResultsTable table);
    static QString LabelId(ResultsTable table);
    static const std::vector<ResultsColumn>& Columns(ResultsTable table);
    static QString CreateStatement(ResultsTable table);

    // Stations along each member for the station forces, ends included.
    static constexpr int c_stations = 5;
};

} // namespace Orvo::Kernel::Results
