#pragma once

#include "TableDataColumn.h"

#include <QString>
#include <QStringList>
#include <QVariant>
#include <QVariantList>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace Orvo::Kernel::Tables {

enum class TableCellHighlight : std::int32_t
{
    Default = 0,
    DefaultModified = 1, // a user changed a value that has a default
    UserDefined = 2,
    Error = 3, // the value breaks a rule of its property
};

// One cell of a host table: the record a column data adapter turns into the table model's cell.
// Content is a bool, an integer, a double or a text; a list cell holds its choice's text and a
// colour cell its "#rrggbb" name.
struct TableDataCell
{
    QVariant content;
    QString text; // display text when it differs from the content
    QStringList allValues; // choices of a list cell
    std::int32_t parameterIndex = -1; // the named parameter the content is, or -1
    QStringList parametersNames;
    QVariantList parametersValues;
    TableDataType valueType = TableDataType::Group;
    std::optional<std::int16_t> decimals;
    bool editable = false;
    bool hasAction = false;
    bool bold = false;
    TableCellHighlight highlight = TableCellHighlight::Default;
};

// A run of one column's cells, in row order.
struct TableDataColumnContent
{
    std::wstring columnId;
    std::vector<TableDataCell> cells;
};

} // namespace Orvo::Kernel::Tables
