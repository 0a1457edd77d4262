#include "FieldExpression.h"

#include "framework/CalculatorReading.h"

#include <cmath>
#include <limits>

namespace Orvo::UI::BasicComponents {

FieldExpression::FieldExpression(QObject* parent)
    : QObject(parent)
    , m_value(std::numeric_limits<double>::quiet_NaN())
{ }

void FieldExpression::setExpression(const QString& expression)
{
    if (m_expression == expression)
        return;
    m_expression = expression;
    emit expressionChanged();
    Evaluate();
}

void FieldExpression::setUnit(const QString& unit)
{
    if (m_unit == unit)
        return;
    m_unit = unit;
    emit unitChanged();
    Evaluate();
}

void FieldExpression::Evaluate()
{
    Kernel::Framework::CalculatorReading reading;
    if (!m_expression.trimmed().isEmpty())
        reading = Kernel::Framework::CalculatorReading::Evaluate(m_expression.toStdWString(),
                                                                 m_unit.toStdWString());
    const QString message = QString::fromStdWString(reading.message);
    // NaN never equals itself: compare what a reader sees.
    const bool sameValue = m_value == reading.value || (std::isnan(m_value) && std::isnan(reading.value));
    if (m_valid == reading.valid && sameValue && m_message == message)
        return;
    m_valid = reading.valid;
    m_value = reading.value;
    m_message = message;
    emit resultChanged();
}

} // namespace Orvo::UI::BasicComponents
