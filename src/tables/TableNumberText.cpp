#include "TableNumberText.h"

#include "framework/Calculator.h"
#include "framework/CalculatorReading.h"

#include <algorithm>
#include <cmath>

namespace Orvo::UI::UIComponents {

TableNumberText::TableNumberText(Precision precision)
    : m_precision(precision)
{ }

QString TableNumberText::ToEditText(double value) const
{
    if (m_precision == Precision::EditDecimals || !std::isfinite(value))
        return m_helper.toEditValue(value);
    // Fixed notation, since the calculator that reads pasted text takes "e" for Euler's number.
    QLocale locale = m_helper.locale();
    locale.setNumberOptions(QLocale::OmitGroupSeparator);
    const QString text = locale.toString(value, 'f', QLocale::FloatingPointShortest);
    return value == 0.0 ? QStringLiteral("0") : text;
}

QString TableNumberText::ToFixedText(double value, int decimals) const
{
    if (!std::isfinite(value))
        return m_helper.toEditValue(value);
    QLocale locale = m_helper.locale();
    locale.setNumberOptions(QLocale::OmitGroupSeparator);
    // "-0.00" says nothing a "0.00" does not.
    const QString text = locale.toString(value, 'f', std::clamp(decimals, 0, c_maximumDecimals));
    const QString zero = locale.toString(0.0, 'f', std::clamp(decimals, 0, c_maximumDecimals));
    return text == locale.negativeSign() + zero ? zero : text;
}

std::optional<double> TableNumberText::Parse(const QString& text)
{
    if (text.trimmed().isEmpty())
        return std::nullopt;
    double value = 0.0;
    if (!Kernel::Framework::Calculator::Evaluate(text.toStdWString(), value))
        return std::nullopt;
    return value;
}

TableNumberText::Reading TableNumberText::Parse(const QString& text, const QString& unit)
{
    if (unit.isEmpty())
        return { Parse(text), {} };
    if (text.trimmed().isEmpty())
        return {};
    const auto reading
        = Kernel::Framework::CalculatorReading::Evaluate(text.toStdWString(), unit.toStdWString());
    if (!reading.valid)
        return { std::nullopt, QString::fromStdWString(reading.message) };
    return { reading.value, {} };
}

} // namespace Orvo::UI::UIComponents
