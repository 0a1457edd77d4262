#include "InlineCalculator.h"

#include "basiccomponents/NumberHelper.h"
#include "framework/Calculator.h"

#include <algorithm>
#include <limits>

namespace Orvo::UI::UIComponents {

namespace {

constexpr double c_nan = std::numeric_limits<double>::quiet_NaN();
// Whatever separators are configured, values are split here.
const QString c_internalSeparator = QStringLiteral(";");
// What starting a parse costs, in characters of expression that take as long to read.
constexpr std::size_t c_costOfAParse = 16;

} // namespace

InlineCalculator::InlineCalculator(QObject* parent)
    : QObject(parent)
    , m_result(c_nan)
{
    connect(this, &InlineCalculator::expressionChanged, this, &InlineCalculator::onExpressionChanged);
    connect(this, &InlineCalculator::separatorsChanged, this, &InlineCalculator::onSeparatorsChanged);
}

void InlineCalculator::setMultipleEnabled(bool multipleEnabled)
{
    if (m_multipleEnabled == multipleEnabled)
        return;
    m_multipleEnabled = multipleEnabled;
    emit multipleEnabledChanged();
}

void InlineCalculator::setSeparators(const QStringList& separators)
{
    if (m_separators == separators)
        return;
    m_separators = separators;
    emit separatorsChanged();
}

void InlineCalculator::setExpression(const QString& expression)
{
    if (m_expression == expression)
        return;
    m_expression = expression;
    emit expressionChanged();
}

void InlineCalculator::setValid(bool valid)
{
    if (m_valid == valid)
        return;
    m_valid = valid;
    emit validChanged();
}

void InlineCalculator::setResult(double result)
{
    if (m_result == result)
        return;
    m_result = result;
    emit resultChanged();
}

void InlineCalculator::setMultipleValids(const QList<bool>& multipleValids)
{
    if (m_multipleValids == multipleValids)
        return;
    m_multipleValids = multipleValids;
    emit multipleValidsChanged();
}

void InlineCalculator::setMultipleResults(const QList<double>& multipleResults)
{
    // Unlike result, a repeated [NaN] does not re-emit: QList<double>'s == compares the bits.
    if (m_multipleResults == multipleResults)
        return;
    m_multipleResults = multipleResults;
    emit multipleResultsChanged();
}

QString InlineCalculator::formatValue(double value) const
{
    return BasicComponents::NumberHelper().toEditValue(value);
}

void InlineCalculator::EvaluateSingle()
{
    bool ok = false;
    double value = c_nan;
    if (!m_expression.isEmpty())
        ok = Kernel::Framework::Calculator::Evaluate(m_expression.toStdWString(), value);

    setValid(ok);
    setMultipleValids({ ok });
    setResult(value);
    setMultipleResults({ value });
}

void InlineCalculator::EvaluateMultiple()
{
    QList<bool> valids;
    QList<double> results;
    if (!m_expression.isEmpty()) {
        QString text = m_expression.simplified();
        for (const QString& separator : std::as_const(m_separators)) {
            // An empty separator would otherwise split the text between every two characters.
            if (!separator.isEmpty())
                text.replace(separator, c_internalSeparator, Qt::CaseSensitive);
        }
        // Evaluation runs on every keystroke, so what one text may cost is bounded: each part
        // evaluated is charged its length and the fixed cost of a parse, and once the length the
        // calculator reads in one expression is spent, further parts are counted but not evaluated
        // (and so not valid). A long paste then costs about what the longest single value does.
        std::size_t budget = Kernel::Framework::Calculator::c_maximumExpressionLength + c_costOfAParse;
        const QStringView all(text);
        for (qsizetype start = 0; start < all.size();) {
            qsizetype end = all.indexOf(c_internalSeparator, start);
            if (end < 0)
                end = all.size();
            const QStringView part = all.mid(start, end - start);
            start = end + 1;
            if (part.isEmpty())
                continue;
            const std::size_t cost = static_cast<std::size_t>(part.size()) + c_costOfAParse;
            const bool evaluated = cost <= budget;
            budget = evaluated ? budget - cost : 0;
            double value = c_nan;
            valids.append(evaluated
                          && Kernel::Framework::Calculator::Evaluate(part.toString().toStdWString(), value));
            results.append(value);
        }
    }

    const bool valid = !valids.isEmpty() && !valids.contains(false);
    setValid(valid);
    setMultipleValids(valids);
    setResult(results.isEmpty() ? c_nan : results.first());
    setMultipleResults(results);
}

void InlineCalculator::onExpressionChanged()
{
    if (m_multipleEnabled)
        EvaluateMultiple();
    else
        EvaluateSingle();
}

void InlineCalculator::onSeparatorsChanged()
{
    if (m_multipleEnabled)
        EvaluateMultiple();
}

} // namespace Orvo::UI::UIComponents
