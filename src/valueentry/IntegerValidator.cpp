#include "IntegerValidator.h"

#include "ExpressionEscape.h"

namespace Orvo::UI::UIComponents {

IntegerValidator::IntegerValidator(QObject* parent)
    : QIntValidator(parent)
{ }

void IntegerValidator::setExpressionAllowed(bool expressionAllowed)
{
    if (m_expressionAllowed == expressionAllowed)
        return;
    m_expressionAllowed = expressionAllowed;
    emit expressionAllowedChanged();
}

QValidator::State IntegerValidator::validate(QString& input, int& pos) const
{
    if (const auto escaped = ValidateExpressionEscape(m_expressionAllowed, input))
        return *escaped;
    return QIntValidator::validate(input, pos);
}

bool IntegerValidator::acceptable(QString input) const
{
    int pos = 0;
    return validate(input, pos) == Acceptable;
}

} // namespace Orvo::UI::UIComponents
