#include "TableCellText.h"

#include "TableColorPalette.h"
#include "TablesLogging.h"
#include "plugin/QtComponentsText.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>

namespace Orvo::UI::UIComponents {

namespace {

// Digits with an optional sign, decimal mark ("." or ",") and exponent: text the host reads as it
// stands. Checked by hand because a paste of 100,000 cells cannot afford a locale round trip each.
bool IsPlainNumber(QStringView text, bool allowFraction)
{
    const QStringView trimmed = text.trimmed();
    qsizetype i = 0;
    const qsizetype size = trimmed.size();
    auto digits = [&]() {
        const qsizetype start = i;
        while (i < size && trimmed[i] >= QLatin1Char('0') && trimmed[i] <= QLatin1Char('9'))
            ++i;
        return i - start;
    };
    if (i < size && (trimmed[i] == QLatin1Char('-') || trimmed[i] == QLatin1Char('+')))
        ++i;
    qsizetype count = digits();
    if (allowFraction && i < size && (trimmed[i] == QLatin1Char('.') || trimmed[i] == QLatin1Char(','))) {
        ++i;
        count += digits();
    }
    if (count == 0)
        return false;
    if (allowFraction && i < size && (trimmed[i] == QLatin1Char('e') || trimmed[i] == QLatin1Char('E'))) {
        ++i;
        if (i < size && (trimmed[i] == QLatin1Char('-') || trimmed[i] == QLatin1Char('+')))
            ++i;
        if (digits() == 0)
            return false;
    }
    return i == size;
}

bool IsNumeric(TableValueType type)
{
    return type == TableValueType::Bool || type == TableValueType::Integer || type == TableValueType::Real;
}

// A plain number goes to the host as typed; an expression as the number it stands for. Null when the
// host could not hold the number.
QString IntegerText(const QString& text, double number)
{
    if (!TableCellText::FitsHostInteger(number)) {
        qCWarning(lcTables).noquote() << QStringLiteral("\"%1\" is outside the integer range %2 to %3")
                                             .arg(text.trimmed())
                                             .arg(std::numeric_limits<std::int32_t>::min())
                                             .arg(std::numeric_limits<std::int32_t>::max());
        return QString();
    }
    return IsPlainNumber(text, false) ? text.trimmed()
                                      : QString::number(static_cast<std::int32_t>(std::round(number)));
}

} // namespace

QString TableCellText::ToString(const QVariant& value, TableValueType type, const TableNumberText& numbers)
{
    switch (type) {
    case TableValueType::Real: {
        bool ok = false;
        const double number = value.toDouble(&ok);
        return ok ? numbers.ToEditText(number) : value.toString();
    }
    case TableValueType::Bool:
        return value.toBool() ? QStringLiteral("1") : QStringLiteral("0");
    default:
        return value.toString();
    }
}

QString TableCellText::DisplayText(const TableCellContent& cell, TableValueType type,
                                   const TableNumberText& numbers, const QVariant& pendingValue)
{
    const bool pending = pendingValue.isValid();
    const QVariant& value = pending ? pendingValue : cell.content;
    int parameter = pending ? FindParameter(cell.parametersNames, value) : cell.parameterIndex;
    if (parameter >= cell.parametersNames.size())
        parameter = -1;
    if (parameter >= 0)
        return cell.parametersNames[parameter];
    if (type == TableValueType::Bool) {
        // The check box shows the state; named states (Yes/No) are written beside it.
        if (cell.parametersNames.isEmpty())
            return QString();
        return cell.parametersNames.value(IsChecked(value) ? 0 : 1);
    }
    if (!value.isValid() || value.isNull())
        return QString();
    switch (type) {
    case TableValueType::Real: {
        bool ok = false;
        const double number = value.toDouble(&ok);
        if (!ok)
            return value.toString();
        return cell.decimals ? numbers.ToFixedText(number, *cell.decimals) : numbers.ToEditText(number);
    }
    case TableValueType::Color:
        // A colour is shown by its name; one the palette does not know, by its value.
        if (!cell.text.isEmpty() && value == cell.content)
            return cell.text;
        return value.toString();
    default:
        return value.toString();
    }
}

QString TableCellText::EditText(const TableCellContent& cell, TableValueType type,
                                const TableNumberText& numbers, const QVariant& pendingValue)
{
    const bool pending = pendingValue.isValid();
    const int parameter = pending ? FindParameter(cell.parametersNames, pendingValue) : cell.parameterIndex;
    if (parameter >= 0 && parameter < cell.parametersNames.size())
        return cell.parametersNames[parameter];
    const QVariant& value = pending ? pendingValue : cell.content;
    if (!value.isValid() || value.isNull())
        return QString();
    // A pending text is shown as the user wrote it.
    return pending && value.typeId() == QMetaType::QString ? value.toString()
                                                           : ToString(value, type, numbers);
}

bool TableCellText::IsChecked(const QVariant& value)
{
    if (value.typeId() == QMetaType::QString) {
        bool ok = false;
        const double number = value.toString().toDouble(&ok);
        return ok ? number != 0.0 : !value.toString().isEmpty();
    }
    return value.toBool();
}

bool TableCellText::IsCachedValue(const TableCellContent& cell, const QVariant& value, TableValueType type)
{
    const bool usesParameter = cell.parameterIndex >= 0 && cell.parameterIndex < cell.parametersNames.size();
    const QVariant cached
        = usesParameter ? QVariant(cell.parametersNames[cell.parameterIndex]) : cell.content;
    if (value == cached)
        return true;
    if (value.typeId() != QMetaType::QString)
        return false;
    if (usesParameter)
        return FindParameter(cell.parametersNames, value) == cell.parameterIndex;
    if (type == TableValueType::Real || type == TableValueType::Integer) {
        // "4,5" and "4.5" are the same number, whichever mark the user typed it with.
        bool isNumber = false;
        const double held = cached.toDouble(&isNumber);
        const auto typed = TableNumberText::Parse(value.toString());
        if (isNumber && typed)
            return *typed == held;
    }
    return ToString(cached, type, TableNumberText()) == value.toString();
}

bool TableCellText::FitsHostInteger(double number)
{
    // The host keeps integer properties as 32-bit numbers: anything wider would arrive wrapped.
    constexpr double lowest = std::numeric_limits<std::int32_t>::min();
    constexpr double highest = std::numeric_limits<std::int32_t>::max();
    const double rounded = std::round(number);
    return rounded >= lowest && rounded <= highest;
}

int TableCellText::FindParameter(const QStringList& parametersNames, const QVariant& value)
{
    if (parametersNames.isEmpty() || value.typeId() != QMetaType::QString)
        return -1;
    const QString text = value.toString().trimmed();
    for (int i = 0; i < parametersNames.size(); ++i) {
        if (parametersNames[i].compare(text, Qt::CaseInsensitive) == 0)
            return i;
    }
    return -1;
}

TableCellText::Reading TableCellText::ReadTyped(const QString& text, TableValueType type,
                                                const QStringList& parametersNames,
                                                const TableNumberText& numbers, const QString& unit)
{
    if (!IsNumeric(type))
        return { text, {} };
    // A parameter name is taken as the user wrote it; the host matches names without case.
    if (FindParameter(parametersNames, text) >= 0)
        return { text, {} };
    QStringView expression = QStringView(text).trimmed();
    const bool ledByEquals = expression.startsWith(QLatin1Char('='));
    if (ledByEquals)
        expression = expression.mid(1);
    if (expression.trimmed().isEmpty())
        return {};
    // A plain number is the column's number as it stands; an expression is read as a numeric
    // input of the column's unit reads it.
    const QString typed = expression.toString();
    const TableNumberText::Reading reading = IsPlainNumber(typed, true)
        ? TableNumberText::Reading { TableNumberText::Parse(typed), {} }
        : TableNumberText::Parse(typed, unit);
    if (!reading.number) {
        // Text that was not meant as an expression is simply no number; the calculator's own
        // verdict is kept for expressions and for what it can say more about (a unit that does
        // not fit the column).
        const bool generic
            = reading.message.isEmpty() || reading.message == GetText(QStringLiteral("UI_INLINE_CALC_ERROR"));
        if (ledByEquals)
            return { QString(), generic ? GetText(QStringLiteral("UI_INLINE_CALC_ERROR")) : reading.message };
        return { QString(),
                 generic ? GetText(QStringLiteral("UI_NUMERIC_INPUT_NOT_A_NUMBER")).arg(text.trimmed())
                         : reading.message };
    }
    const double number = *reading.number;
    switch (type) {
    case TableValueType::Bool:
        if (!parametersNames.isEmpty())
            return { number != 0.0 ? parametersNames.value(0)
                                   : parametersNames.value(1, parametersNames.value(0)),
                     {} };
        return { number != 0.0 ? QStringLiteral("1") : QStringLiteral("0"), {} };
    case TableValueType::Integer: {
        // A whole number is never made of a fraction: "2.5" is refused, not rounded to 3.
        if (std::abs(number - std::round(number)) > c_wholeTolerance * std::max(1.0, std::abs(number)))
            return { QString(),
                     GetText(QStringLiteral("UI_NUMERIC_INPUT_NOT_WHOLE")).arg(numbers.ToEditText(number)) };
        const QString value = IntegerText(text, number);
        if (value.isNull())
            return { QString(),
                     GetText(QStringLiteral("UI_NUMERIC_INPUT_OUT_OF_RANGE"))
                         .arg(text.trimmed())
                         .arg(std::numeric_limits<std::int32_t>::min())
                         .arg(std::numeric_limits<std::int32_t>::max()) };
        return { value, {} };
    }
    default:
        return { IsPlainNumber(text, true) ? text.trimmed() : numbers.ToEditText(number), {} };
    }
}

} // namespace Orvo::UI::UIComponents
