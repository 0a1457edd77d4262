#pragma once

#include <QString>
#include <QVariant>
#include <map>
#include <string>
#include <vector>

namespace Orvo::Kernel::Tables {

// Values a user confirmed in a table at once: row -> column id -> value. Rows at or past the
// table's row count are new rows, in the order of their row numbers. Values are what the table
// model collected: texts as typed (numbers in the user's number format), list choices by their
// text, booleans, colours by name.
using TableDataUpdate = std::map<int, std::map<std::wstring, QVariant>>;

// A cell the table did not take, and why, in the user's language.
struct TableCellRejection
{
    int row = -1;
    std::wstring columnId; // empty: the whole row (a new row the model refused)
    QString reason;
};

struct TableUpdateResult
{
    int changedCells = 0;
    int addedRows = 0;
    int removedRows = 0;
    std::vector<TableCellRejection> rejections;

    bool Changed() const { return changedCells + addedRows + removedRows > 0; }
};

} // namespace Orvo::Kernel::Tables
