#include "FilterConditionFactory.h"

#include "ExpressionFilterCondition.h"
#include "IntervalFilterCondition.h"
#include "ValueTextFilterCondition.h"

#include <QStringList>
#include <array>
#include <optional>
#include <utility>

namespace Orvo::UI::UIComponents {

namespace {

struct BoundBrackets
{
    QStringView inclusive;
    QStringView exclusive;

    // Whether the bracket makes the bound inclusive; nothing when it is no bracket of this side.
    std::optional<bool> Inclusive(QChar bracket) const
    {
        if (inclusive.contains(bracket))
            return true;
        if (exclusive.contains(bracket))
            return false;
        return std::nullopt;
    }
};

// Both the mathematical ("[1;5)") and the continental ("<1;5>", "]1;5[") styles, also mixed.
constexpr BoundBrackets c_lowerBrackets { u"<[", u"(]" };
constexpr BoundBrackets c_upperBrackets { u">]", u")[" };

// "," is a decimal mark, so only ";" separates the bounds.
constexpr QChar c_boundSeparator = u';';

using Comparer = ExpressionFilterCondition::Comparer;

// Two-character operators come first, so that "<=5" is not read as "<" with the operand "=5".
constexpr std::array<std::pair<QStringView, Comparer>, 6> c_operators { {
    { u"<=", Comparer::LessOrEqual },
    { u"<>", Comparer::NotEqual },
    { u">=", Comparer::GreaterOrEqual },
    { u"<", Comparer::Less },
    { u"=", Comparer::Equal },
    { u">", Comparer::Greater },
} };

std::unique_ptr<FilterConditionBase> CreateInterval(QString const& text)
{
    if (text.size() < 2)
        return nullptr;
    const std::optional<bool> lowerInclusive = c_lowerBrackets.Inclusive(text.front());
    const std::optional<bool> upperInclusive = c_upperBrackets.Inclusive(text.back());
    if (!lowerInclusive || !upperInclusive)
        return nullptr;

    // The bounds are taken as typed, blanks included.
    const QStringList bounds
        = text.mid(1, text.size() - 2).split(c_boundSeparator, Qt::SkipEmptyParts, Qt::CaseSensitive);
    if (bounds.size() != 2)
        return nullptr;
    return std::make_unique<IntervalFilterCondition>(
        IntervalFilterCondition::ValueLimit { bounds[0], *lowerInclusive },
        IntervalFilterCondition::ValueLimit { bounds[1], *upperInclusive });
}

std::unique_ptr<FilterConditionBase> CreateExpression(QString const& text)
{
    for (const auto& [operatorText, comparer] : c_operators) {
        if (!text.startsWith(operatorText, Qt::CaseSensitive))
            continue;
        // The operand keeps its blanks: "> 5" compares with " 5", which still reads as 5.
        const QString operand = text.mid(operatorText.size());
        if (operand.isEmpty())
            return nullptr;
        return std::make_unique<ExpressionFilterCondition>(operand, comparer);
    }
    return nullptr;
}

} // namespace

std::unique_ptr<FilterConditionBase> FilterConditionFactory::CreateFilterCondition(QString const& text)
{
    const QString trimmed = text.trimmed();
    if (trimmed.isEmpty())
        return nullptr;
    // An interval is tried first: "<1;5>" is the range from 1 to 5, not "less than 1;5>".
    if (auto interval = CreateInterval(trimmed))
        return interval;
    if (auto expression = CreateExpression(trimmed))
        return expression;
    // Whatever is malformed as an interval or a comparison is looked for as typed.
    return std::make_unique<ValueTextFilterCondition>(text);
}

bool FilterConditionFactory::IsMalformed(QString const& text)
{
    static const QString operatorCharacters = QStringLiteral("<>=[]()");
    const QString trimmed = text.trimmed();
    if (trimmed.isEmpty() || !operatorCharacters.contains(trimmed.front()) || CreateInterval(trimmed))
        return false;
    for (const auto& [operatorText, comparer] : c_operators) {
        if (!trimmed.startsWith(operatorText, Qt::CaseSensitive))
            continue;
        const QString operand = trimmed.mid(operatorText.size()).trimmed();
        return operand.isEmpty() || operatorCharacters.contains(operand.front());
    }
    return true;
}

} // namespace Orvo::UI::UIComponents
