#pragma once

#include "basiccomponents/NumberHelper.h"

#include <QString>
#include <optional>

namespace Orvo::UI::UIComponents {

// Numbers as a user types and reads them in table cells: typed text is an expression for the host
// calculator ("2*500mm", "1,5"), shown text is the host number helper's edit form. One instance
// serves a whole operation (a copy of many cells) with the number settings of its start.
class TableNumberText
{
public:
    enum class Precision
    {
        EditDecimals, // what a person edits: the helper's decimals, trailing zeros removed
        Exact, // every digit the double needs to read back the same (the clipboard's form)
    };

    static constexpr int c_maximumDecimals = 15;

    explicit TableNumberText(Precision precision = Precision::EditDecimals);

    // The value of a typed number or expression; nullopt when the text is not one.
    static std::optional<double> Parse(const QString& text);
    // The same for a column whose values are in unit: an expression naming units is converted
    // into it, one naming a unit of another quantity is refused with the reason, as a numeric
    // input of that unit does. Without a unit, Parse.
    struct Reading
    {
        std::optional<double> number;
        QString message; // why there is no number, when the calculator can say
    };
    static Reading Parse(const QString& text, const QString& unit);
    QString ToEditText(double value) const;
    // The value with exactly that many decimals, as a cell with a fixed precision shows it.
    QString ToFixedText(double value, int decimals) const;

private:
    BasicComponents::NumberHelper m_helper;
    Precision m_precision;
};

} // namespace Orvo::UI::UIComponents
