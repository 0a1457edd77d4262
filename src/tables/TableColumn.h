#pragma once

#include "TableCellContent.h"
#include "TableValueType.h"

#include <QString>
#include <cstdint>
#include <vector>

namespace Orvo::UI::UIComponents {

// One visible column of a table, as the feeder describes it.
struct TableColumn
{
    QString id;
    QString label;
    TableValueType type = TableValueType::Unknown; // Unknown: the type varies per cell
    QString unit; // of a number column's values ("mm", "kN"); typed units convert into it
    bool required = false;
    bool editable = true;
    QString parentId; // the group column this one belongs to
    std::int32_t width = 64;
    std::int32_t minWidth = 64;
    bool sortable = false;
    std::int32_t sortOrder = 0;
};

// A contiguous run of one column's cells, delivered by the feeder.
struct TableColumnContent
{
    QString columnId;
    std::vector<TableCellContent> cells;
};

} // namespace Orvo::UI::UIComponents
