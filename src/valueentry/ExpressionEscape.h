#pragma once

#include <QString>
#include <QValidator>

#include <optional>

namespace Orvo::UI::UIComponents {

// The validators' way of letting an expression through to the inline calculator: when allowed,
// a text starting with "=" is Intermediate while it is only "=", and Acceptable as soon as anything
// follows (the calculator judges the expression, not the validator). No verdict otherwise.
std::optional<QValidator::State> ValidateExpressionEscape(bool expressionAllowed, const QString& input);

} // namespace Orvo::UI::UIComponents
