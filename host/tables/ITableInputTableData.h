#pragma once

#include "ITableData.h"
#include "TableDataUpdate.h"
#include "model/ObjectIds.h"

namespace Orvo::Kernel::Tables {

// A table whose rows are objects of the host's model, edited in place. Every call that changes
// the model is one step of the host's undo stack.
class ITableInputTableData : public ITableData
{
public:
    // Checks every value and stores those the model accepts; rows at or past the row count
    // become new objects. Whatever it refuses is listed with the reason.
    virtual TableUpdateResult Update(const TableDataUpdate& update) = 0;
    // All or nothing: refused when another object still refers to one of them.
    virtual TableUpdateResult RemoveRows(const std::vector<int>& rows) = 0;
    // Runs the action of a cell that has one; false when it has none or changed nothing.
    virtual bool ExecuteAction(int row, const std::wstring& columnId) = 0;

    // The object shown in a row, 0 outside the table; and back, -1 when it is not in the table.
    virtual Model::ObjectId GetObjectAt(int row) const = 0;
    virtual int FindRow(Model::ObjectId id) const = 0;
};

} // namespace Orvo::Kernel::Tables
