#include "TableContentDelivery.h"

#include "TableColorPalette.h"

#include <stdexcept>

namespace Orvo::UI::UIComponents {

std::vector<int> TableContentDelivery::ResolveColumns(const std::vector<TableColumnContent>& contents,
                                                      const TableColumnLayout& layout)
{
    std::vector<int> columns;
    for (const TableColumnContent& content : contents) {
        if (content.cells.size() != contents.front().cells.size())
            throw std::runtime_error("Expected same size of all column contents");
        const int column = layout.FindById(content.columnId);
        if (column < 0)
            throw std::runtime_error("Expected existing column id");
        columns.push_back(column);
    }
    return columns;
}

void TableContentDelivery::NameColours(TableValueType columnType, std::vector<TableCellContent>& cells,
                                       const QHash<QString, QString>& colorNames)
{
    if (columnType != TableValueType::Color && columnType != TableValueType::Unknown)
        return;
    for (TableCellContent& cell : cells) {
        const TableValueType type = columnType == TableValueType::Unknown ? cell.valueType : columnType;
        if (type != TableValueType::Color || !cell.text.isEmpty())
            continue;
        cell.text = colorNames.value(
            TableColorPalette::GetKey(TableColorPalette::FindHex(cell.content.toString())));
    }
}

std::vector<int> TableContentDelivery::ColumnsNeedingNamedStates(const TableContentGrid& grid,
                                                                 TableColumnLayout& layout, int firstRow,
                                                                 int count)
{
    std::vector<int> columns;
    for (int column = 0; column < layout.Count(); ++column) {
        if (layout.At(column).type != TableValueType::Bool || layout.IsMinimumWidthDecided(column))
            continue;
        for (int row = firstRow; row < firstRow + count; ++row) {
            const GridContentIndex index = GridContentIndex::FromRow(row);
            if (!grid.IsFilled(index, column) || !grid.GetCell(index, column).content.isValid())
                continue;
            layout.SetMinimumWidthDecided(column);
            if (!grid.GetCell(index, column).parametersNames.isEmpty())
                columns.push_back(column);
            break;
        }
    }
    return columns;
}

} // namespace Orvo::UI::UIComponents
