#pragma once

#include "TableCellContent.h"

#include <QString>
#include <QStringView>
#include <QVariant>
#include <bitset>
#include <cstdint>
#include <memory>
#include <utility>
#include <vector>

namespace Orvo::UI::UIComponents {

// The cells of one column in one bulk of rows, kept by kind rather than as a record per cell. A
// record costs a variant, a string and three lists even when the cell is a plain number; a table of
// a million rows holds tens of millions of them. Here the values lie in typed arrays (numbers,
// bits for check boxes, texts one after the other in one UTF-16 buffer), and the rest of a record
// (choices, named values, decimals, flags, highlight), which seldom differs between the cells of a
// column, is kept once per distinct set with a one-byte index per cell only where it does differ.
// A cell's record is put together again whenever it is asked for.
class TableCompactCells
{
public:
    static constexpr int c_rows = 100;
    using Rows = std::bitset<c_rows>;

    bool IsFilled(int offset) const { return m_filled.test(static_cast<std::size_t>(offset)); }
    const Rows& Filled() const { return m_filled; }
    // One past the last offset ever stored: the cells below it that were never stored read as
    // default cells, the ones past it do not exist.
    int Size() const { return m_size; }

    // The record of the cell at offset as it was stored; a default record for a cell not stored.
    TableCellContent Cell(int offset) const;
    // Stores the record at offset, replacing what was there.
    void Store(int offset, TableCellContent&& cell);
    // Gives back what growing the buffers left unused; called once a run of cells is stored.
    void Squeeze();

    // Changes whenever the cells change; set by the grid, which keeps it unique.
    std::uint64_t revision = 0;

private:
    // How a cell's value is kept.
    enum class ValueKind : std::uint8_t
    {
        Invalid,
        Bool,
        Int,
        LongLong,
        Double,
        String,
        Other, // any other variant, kept as it is
    };

    // Texts of the rows one after the other; a null text takes no room and reads back as null.
    class TextRun
    {
    public:
        bool IsNull(int offset) const { return !m_present.test(static_cast<std::size_t>(offset)); }
        QStringView View(int offset) const;
        QString Text(int offset) const;
        void Set(int offset, const QString& text);
        void Squeeze();

    private:
        std::vector<char16_t> m_characters;
        std::vector<std::uint32_t> m_starts; // c_rows + 1 entries once a text is set
        Rows m_present;
    };

    // Everything of a record but its value and display text.
    struct Attributes
    {
        QStringList allValues;
        std::int32_t parameterIndex = -1;
        QStringList parametersNames;
        QVariantList parametersValues;
        TableValueType valueType = TableValueType::Unknown;
        std::int32_t adapterWord1 = 0;
        std::int32_t adapterWord2 = 0;
        std::optional<std::int16_t> decimals;
        bool editable = false;
        bool hasAction = false;
        bool bold = false;
        std::int32_t highlightState = TableCellContent::Default;

        bool operator==(const Attributes& other) const;
    };

    void StoreValue(int offset, QVariant&& value);
    void StoreAttributes(int offset, Attributes&& attributes);
    void DropUnusedAttributes();
    template<typename Number> static void Put(std::vector<Number>& values, int offset, Number value);

    Rows m_filled;
    int m_size = 0;
    ValueKind m_kinds[c_rows] {};
    Rows m_bools;
    std::vector<std::int64_t> m_integers; // c_rows entries once an integer is stored
    std::vector<double> m_doubles; // c_rows entries once a double is stored
    TextRun m_strings;
    std::vector<std::pair<int, QVariant>> m_others; // by offset, in no order
    std::unique_ptr<TextRun> m_displayTexts; // once a cell has a display text
    std::vector<Attributes> m_attributes; // the distinct sets
    std::vector<std::uint8_t> m_attributesOf; // c_rows entries once there is more than one set
};

} // namespace Orvo::UI::UIComponents
