#include "TableNumberText.h"

#include "framework/Calculator.h"

namespace Orvo::UI::UIComponents {

std::optional<double> TableNumberText::Parse(const QString& text)
{
    if (text.trimmed().isEmpty())
        return std::nullopt;
    double value = 0.0;
    if (!Kernel::Framework::Calculator::Evaluate(text.toStdWString(), value))
        return std::nullopt;
    return value;
}

} // namespace Orvo::UI::UIComponents
