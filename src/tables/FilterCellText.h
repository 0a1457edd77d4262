#pragma once

#include <QString>
#include <QVariant>
#include <string>

namespace Orvo::UI::UIComponents {

struct TableCellContent;

// What the filter conditions read of a cell.
class FilterCellText
{
public:
    // The value the cell shows: its current list item's value, or else its own value.
    static const QVariant& CurrentValue(TableCellContent const& cell);

    // The list item text the cell shows, or null when it is not a list cell.
    static const QString* CurrentListText(TableCellContent const& cell);

    // The cell's number of decimals, or -1 when it has none that is usable.
    static int Precision(TableCellContent const& cell);

    // The text a condition compares: a real value printed with the cell's decimals, so that it
    // compares as shown; any other value as its text folded by UnicodeStripped.
    static QString ComparisonText(TableCellContent const& cell);

    // The comparison text as a wide string, written into `text` so that a caller filtering many
    // cells can keep reusing one buffer.
    static void WriteComparisonText(TableCellContent const& cell, std::wstring& text);
};

} // namespace Orvo::UI::UIComponents
