#pragma once

#include "TableCellContent.h"
#include "TableNumberText.h"
#include "TableValueType.h"

#include <QHash>
#include <QString>
#include <QStringList>
#include <QVariant>

namespace Orvo::UI::UIComponents {

// The one way between a cell's value and text: what a cell shows, what a copy carries and what
// a typed or pasted text stands for. Numbers follow the host's number settings through
// TableNumberText, so the decimal mark is decided there and nowhere else.
class TableCellText
{
public:
    // The text a copy of the value carries: Real in the edit form, Bool as "1" or "0".
    static QString ToString(const QVariant& value, TableValueType type, const TableNumberText& numbers);

    // What a cell shows, for its content or for a pending value when one is given: the parameter
    // name it uses, the colour's name, a real number with the cell's decimals; for a check box
    // only the name of its state, if it has named states.
    static QString DisplayText(const TableCellContent& cell, TableValueType type,
                               const TableNumberText& numbers, const QVariant& pendingValue = QVariant());
    // The text an editor of the cell starts from: every digit the edit form keeps, the parameter
    // name in use, the colour's value.
    static QString EditText(const TableCellContent& cell, TableValueType type, const TableNumberText& numbers,
                            const QVariant& pendingValue = QVariant());
    // The state of a check box holding value (a pending edit may be a text "1" or "0").
    static bool IsChecked(const QVariant& value);

    // The value a typed or pasted text stands for in a cell of that type, or why it stands for
    // none. Numbers may be expressions with units, led by "=" or not; in a column with a unit
    // they are read in it, and a unit of another quantity is refused as a numeric input refuses
    // it. A whole-number cell refuses fractions rather than rounding them.
    struct Reading
    {
        QString value; // null when the text is no value of the cell
        QString reason; // why, in the user's language
    };
    static Reading ReadTyped(const QString& text, TableValueType type, const QStringList& parametersNames,
                             const TableNumberText& numbers, const QString& unit = QString());
    // The value of ReadTyped alone.
    static QString CreateContentUpdateValue(const QString& text, TableValueType type,
                                            const QStringList& parametersNames,
                                            const TableNumberText& numbers, const QString& unit = QString())
    {
        return ReadTyped(text, type, parametersNames, numbers, unit).value;
    }

    // Whether value is what the cell holds already (so an edit to it withdraws a pending one).
    static bool IsCachedValue(const TableCellContent& cell, const QVariant& value, TableValueType type);
    // Whether number, rounded, is an integer the host can hold (NaN is not).
    static bool FitsHostInteger(double number);
    // The parameter name a value stands for, matched case-insensitively; -1 when none.
    static int FindParameter(const QStringList& parametersNames, const QVariant& value);

private:
    static constexpr double c_wholeTolerance = 1e-9;
};

} // namespace Orvo::UI::UIComponents
