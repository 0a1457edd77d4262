#include "ExpressionEscape.h"

namespace Orvo::UI::UIComponents {

std::optional<QValidator::State> ValidateExpressionEscape(bool expressionAllowed, const QString& input)
{
    if (!expressionAllowed || input.isEmpty() || input.front() != QLatin1Char('='))
        return std::nullopt;
    return input.size() == 1 ? QValidator::Intermediate : QValidator::Acceptable;
}

} // namespace Orvo::UI::UIComponents
