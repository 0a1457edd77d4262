#pragma once

#include "FilterComparison.h"
#include "TableContentGrid.h"

#include <QString>
#include <array>
#include <bitset>
#include <cstdint>
#include <memory>
#include <vector>

namespace Orvo::UI::UIComponents {

// One bit per row of a bulk.
using BulkRows = std::bitset<GridContentIndex::c_rowsCountBulk>;

// What the filter conditions read of one bulk of a column, derived from its cells once and kept
// until the cells change: the texts folded for searching, and the numbers the cells show.
struct FilterFoldedBulk
{
    static constexpr int c_rows = GridContentIndex::c_rowsCountBulk;

    // How a row is matched by a searched text; follows the cell's value type.
    enum class Kind : std::uint8_t
    {
        Text,
        Bool,
        Number,
        Color,
    };

    struct Texts
    {
        const BulkRows& OfKind(Kind kind) const { return ofKind[static_cast<std::size_t>(kind)]; }

        // The comparison texts (a colour cell's colour name) folded by UnicodeStripped and case
        // folding, one after the other; Latin-1 when every character fits, UTF-16 otherwise.
        bool latin1 = true;
        std::vector<std::uint8_t> latin1Text;
        std::vector<char16_t> utf16Text;
        std::array<std::uint32_t, c_rows + 1> offsets {};
        std::array<BulkRows, 4> ofKind; // the rows of each kind
        BulkRows checked; // a check box showing true
        BulkRows unchecked; // a check box showing false
        BulkRows named; // a colour cell that has a colour name
        BulkRows caseFolded; // case folding changed the text
        BulkRows listed; // shows a list item; its folded text is in listTexts
        std::vector<QString> listTexts; // by row offset, empty for rows without a list item
    };

    struct Numbers
    {
        // The number the comparison text reads as in full, and else from its first digit on.
        std::array<double, c_rows> strict {};
        std::array<double, c_rows> lenient {};
        BulkRows hasStrict;
        BulkRows hasLenient;
        std::array<std::int16_t, c_rows> precision {};

        // The first rows whose strict number passes test(number, tolerance), with the tolerance
        // of each row's decimals, looked up only when they change: one tight loop per bulk.
        template<class Test> BulkRows Passing(int rows, Test&& test) const
        {
            BulkRows passing;
            int decimals = precision[0];
            double tolerance = FilterComparison::Tolerance(decimals);
            for (std::size_t row = 0; row < static_cast<std::size_t>(rows); ++row) {
                if (precision[row] != decimals) {
                    decimals = precision[row];
                    tolerance = FilterComparison::Tolerance(decimals);
                }
                passing.set(row, test(strict[row], tolerance));
            }
            return passing;
        }

        FoldedSide Side(std::size_t row) const
        {
            return { hasStrict.test(row) ? std::optional<double>(strict[row]) : std::nullopt,
                     hasLenient.test(row) ? std::optional<double>(lenient[row]) : std::nullopt };
        }
    };

    std::uint64_t textsRevision = 0;
    std::uint64_t numbersRevision = 0;
    int rows = 0;
    std::unique_ptr<Texts> texts;
    std::unique_ptr<Numbers> numbers;
};

// The folded form of one column, bulk by bulk. A bulk is folded the first time a filter needs it
// and folded again only after its cells changed (a delivery or an edit confirmed by the feeder).
class FilterColumnFold
{
public:
    enum Part : unsigned
    {
        NoPart = 0,
        TextsPart = 1,
        NumbersPart = 2,
    };

    // Follows the table's number of bulks.
    void Resize(int bulkCount);
    // Brings the parts of the bulk up to date with the grid; the bulk must be filled.
    // Safe to call for different bulks from different threads.
    const FilterFoldedBulk& Refresh(const TableContentGrid& grid, int bulk, int column, int rows,
                                    unsigned parts);

    // The parts of one bulk made from its cells (for tests and for Refresh).
    static std::unique_ptr<FilterFoldedBulk::Texts> FoldTexts(const TableContentGrid& grid, int bulk,
                                                              int column, int rows);
    static std::unique_ptr<FilterFoldedBulk::Numbers> FoldNumbers(const TableContentGrid& grid, int bulk,
                                                                  int column, int rows);

    // Remembers that every cell of the column was in the grid at the grid's revision, so that the
    // question is not answered bulk by bulk again while nothing changed.
    void SetDelivered(std::uint64_t gridRevision, int column)
    {
        m_deliveredAt = gridRevision;
        m_deliveredColumn = column;
    }
    bool IsKnownDelivered(std::uint64_t gridRevision, int column) const
    {
        return m_deliveredAt != 0 && m_deliveredAt == gridRevision && m_deliveredColumn == column;
    }

private:
    std::vector<FilterFoldedBulk> m_bulks;
    std::uint64_t m_deliveredAt = 0;
    int m_deliveredColumn = -1;
};

} // namespace Orvo::UI::UIComponents
