#include "FilterColumnFold.h"

#include "FilterCellText.h"
#include "FilterComparison.h"
#include "UnicodeStripped.h"

#include <QVariant>
#include <algorithm>
#include <string>

namespace Orvo::UI::UIComponents {

namespace {

FilterFoldedBulk::Kind KindOf(TableValueType type)
{
    switch (type) {
    case TableValueType::Bool:
        return FilterFoldedBulk::Kind::Bool;
    case TableValueType::Integer:
    case TableValueType::Real:
        return FilterFoldedBulk::Kind::Number;
    case TableValueType::Color:
        return FilterFoldedBulk::Kind::Color;
    default:
        return FilterFoldedBulk::Kind::Text;
    }
}

// Searching compares case-folded texts: folding both sides once gives what a case-insensitive
// search gives, without folding every cell again for every filter text.
QString SearchForm(const QString& text)
{
    return text.toCaseFolded();
}

} // namespace

void FilterColumnFold::Resize(int bulkCount)
{
    m_bulks.resize(static_cast<std::size_t>(std::max(0, bulkCount)));
}

const FilterFoldedBulk& FilterColumnFold::Refresh(const TableContentGrid& grid, int bulk, int column,
                                                  int rows, unsigned parts)
{
    FilterFoldedBulk& folded = m_bulks.at(static_cast<std::size_t>(bulk));
    const std::uint64_t revision = grid.Revision(bulk, column);
    if (folded.rows != rows) {
        folded.rows = rows;
        folded.textsRevision = 0;
        folded.numbersRevision = 0;
    }
    if ((parts & TextsPart) && (!folded.texts || folded.textsRevision != revision)) {
        folded.texts = FoldTexts(grid, bulk, column, rows);
        folded.textsRevision = revision;
    }
    if ((parts & NumbersPart) && (!folded.numbers || folded.numbersRevision != revision)) {
        folded.numbers = FoldNumbers(grid, bulk, column, rows);
        folded.numbersRevision = revision;
    }
    return folded;
}

std::unique_ptr<FilterFoldedBulk::Texts> FilterColumnFold::FoldTexts(const TableContentGrid& grid, int bulk,
                                                                     int column, int rows)
{
    auto texts = std::make_unique<FilterFoldedBulk::Texts>();
    std::array<QString, FilterFoldedBulk::c_rows> folded;
    std::size_t length = 0;
    for (int offset = 0; offset < rows; ++offset) {
        const TableCellContent& cell = grid.GetCell({ bulk, offset }, column);
        const std::size_t row = static_cast<std::size_t>(offset);
        const FilterFoldedBulk::Kind kind = KindOf(cell.valueType);
        texts->ofKind[static_cast<std::size_t>(kind)].set(row);
        QString shown;
        if (kind == FilterFoldedBulk::Kind::Color) {
            texts->named.set(row, !cell.text.isNull());
            if (!cell.text.isNull())
                shown = UnicodeStripped(cell.text);
        } else {
            shown = FilterCellText::ComparisonText(cell);
        }
        folded[row] = SearchForm(shown);
        texts->caseFolded.set(row, folded[row] != shown);
        if (kind == FilterFoldedBulk::Kind::Bool) {
            const QVariant& value = FilterCellText::CurrentValue(cell);
            texts->checked.set(row, value == QVariant(true));
            texts->unchecked.set(row, value == QVariant(false));
        }
        if (const QString* listText = FilterCellText::CurrentListText(cell)) {
            if (texts->listTexts.empty())
                texts->listTexts.resize(FilterFoldedBulk::c_rows);
            texts->listed.set(row);
            texts->listTexts[row] = SearchForm(UnicodeStripped(*listText));
        }
        length += static_cast<std::size_t>(folded[row].size());
        texts->latin1 = texts->latin1 && std::all_of(folded[row].cbegin(), folded[row].cend(), [](QChar c) {
                            return c.unicode() < 0x100;
                        });
    }

    std::uint32_t position = 0;
    if (texts->latin1)
        texts->latin1Text.reserve(length);
    else
        texts->utf16Text.reserve(length);
    for (int offset = 0; offset < rows; ++offset) {
        const QString& text = folded[static_cast<std::size_t>(offset)];
        texts->offsets[static_cast<std::size_t>(offset)] = position;
        for (QChar c : text) {
            if (texts->latin1)
                texts->latin1Text.push_back(static_cast<std::uint8_t>(c.unicode()));
            else
                texts->utf16Text.push_back(c.unicode());
        }
        position += static_cast<std::uint32_t>(text.size());
    }
    for (int offset = rows; offset <= FilterFoldedBulk::c_rows; ++offset)
        texts->offsets[static_cast<std::size_t>(offset)] = position;
    return texts;
}

std::unique_ptr<FilterFoldedBulk::Numbers> FilterColumnFold::FoldNumbers(const TableContentGrid& grid,
                                                                         int bulk, int column, int rows)
{
    auto numbers = std::make_unique<FilterFoldedBulk::Numbers>();
    std::wstring text;
    for (int offset = 0; offset < rows; ++offset) {
        const TableCellContent& cell = grid.GetCell({ bulk, offset }, column);
        const std::size_t row = static_cast<std::size_t>(offset);
        // Read from the very text a comparison reads, so that the number is the shown one, rounded
        // to the cell's decimals exactly as that text rounds it.
        FilterCellText::WriteComparisonText(cell, text);
        numbers->precision[row] = static_cast<std::int16_t>(FilterCellText::Precision(cell));
        if (const std::optional<double> strict = FilterComparison::ReadNumber(text, false)) {
            numbers->strict[row] = *strict;
            numbers->hasStrict.set(row);
        } else if (const std::optional<double> lenient = FilterComparison::ReadLeniently(text)) {
            numbers->lenient[row] = *lenient;
            numbers->hasLenient.set(row);
        }
    }
    return numbers;
}

} // namespace Orvo::UI::UIComponents
