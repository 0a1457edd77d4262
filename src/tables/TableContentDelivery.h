#pragma once

#include "TableColumn.h"
#include "TableColumnLayout.h"
#include "TableContentGrid.h"

#include <QHash>
#include <QString>
#include <vector>

namespace Orvo::UI::UIComponents {

// The checks and preparations of content that a feeder delivers, before and after the content
// model stores it.
class TableContentDelivery
{
public:
    // The visible column of each delivered content; throws std::runtime_error when the contents
    // differ in length or name a column that is not shown.
    static std::vector<int> ResolveColumns(const std::vector<TableColumnContent>& contents,
                                           const TableColumnLayout& layout);

    // Colour cells are found and shown by their colour's name: each gets its localised name.
    static void NameColours(TableValueType columnType, std::vector<TableCellContent>& cells,
                            const QHash<QString, QString>& colorNames);

    // The check-box columns whose first delivered value among the rows has named states (Yes/No),
    // which need room for the names. A column is decided by its first value and not looked at again.
    static std::vector<int> ColumnsNeedingNamedStates(const TableContentGrid& grid, TableColumnLayout& layout,
                                                      int firstRow, int count);
};

} // namespace Orvo::UI::UIComponents
