#include "ValueTextFilterCondition.h"

#include "FilterCellText.h"
#include "FilterComparison.h"
#include "TableCellContent.h"
#include "UnicodeStripped.h"

#include <QVariant>
#include <algorithm>
#include <string>

namespace Orvo::UI::UIComponents {

namespace {

// The number is looked for as "%g" would print it, so "2.50" finds cells showing 2.5.
constexpr int c_significantDigits = 6;

std::optional<double> ReadWholeNumber(QString const& text)
{
    return FilterComparison::ReadNumber(text.toStdWString(), false);
}

} // namespace

ValueTextFilterCondition::ValueTextFilterCondition(QString const& text)
    : m_text(UnicodeStripped(text.trimmed()))
    , m_number(ReadWholeNumber(m_text))
{
    if (m_number) {
        m_boolean = *m_number != 0.0;
        m_numberText = QString::number(*m_number, 'g', c_significantDigits);
        m_numberSearch = FilterSearchText(m_numberText);
        m_numberSearchFolds
            = std::none_of(m_numberText.cbegin(), m_numberText.cend(), [](QChar c) { return c.isLetter(); });
    }
    m_foldedText = m_text.toCaseFolded();
    m_search = FilterSearchText(m_foldedText);
}

BulkRows ValueTextFilterCondition::Narrow(const FilterFoldedBulk& bulk, BulkRows candidates,
                                          BulkRows& unjudged) const
{
    using Kind = FilterFoldedBulk::Kind;
    const FilterFoldedBulk::Texts& texts = *bulk.texts;
    BulkRows accepted;
    if (const BulkRows listed = candidates & texts.listed; listed.any()) {
        for (std::size_t row = 0; row < listed.size(); ++row) {
            if (listed.test(row) && texts.listTexts[row].contains(m_foldedText, Qt::CaseSensitive))
                accepted.set(row);
        }
    }
    const BulkRows rest = candidates & ~accepted;

    BulkRows searched = rest & (texts.OfKind(Kind::Text) | (texts.OfKind(Kind::Color) & texts.named));
    if (!m_number)
        searched |= rest & texts.OfKind(Kind::Number);
    accepted |= FilterTextScan::Containing(texts, bulk.rows, m_search, searched);

    if (m_boolean)
        accepted |= rest & texts.OfKind(Kind::Bool) & (*m_boolean ? texts.checked : texts.unchecked);

    if (m_number) {
        const BulkRows numbers = rest & texts.OfKind(Kind::Number);
        if (m_numberSearchFolds) {
            accepted
                |= FilterTextScan::Containing(texts, bulk.rows, m_numberSearch, numbers & ~texts.caseFolded);
            unjudged |= numbers & texts.caseFolded;
        } else {
            unjudged |= numbers;
        }
    }
    return accepted;
}

// Rows found by a longer text are found by its beginning too; a text that is a number also finds
// check boxes and numbers by value, which a longer text does not narrow.
bool ValueTextFilterCondition::IsNarrowerThan(const FilterConditionBase& previous) const
{
    const auto* before = dynamic_cast<const ValueTextFilterCondition*>(&previous);
    return before && !m_number && !before->m_number && m_foldedText.contains(before->m_foldedText);
}

bool ValueTextFilterCondition::Evaluate(TableCellContent const& cell) const
{
    // The list item text is folded like every other text a filter compares with, so that
    // accented choices are found by their plain spelling.
    if (const QString* listText = FilterCellText::CurrentListText(cell);
        listText && UnicodeStripped(*listText).contains(m_text, Qt::CaseInsensitive)) {
        return true;
    }

    switch (cell.valueType) {
    case TableValueType::Bool:
        return EvaluateBoolean(cell);
    case TableValueType::Integer:
    case TableValueType::Real:
        return m_number ? EvaluateNumber(cell) : EvaluateText(cell);
    case TableValueType::Color:
        return EvaluateColor(cell);
    default:
        return EvaluateText(cell);
    }
}

bool ValueTextFilterCondition::EvaluateBoolean(TableCellContent const& cell) const
{
    return m_boolean && FilterCellText::CurrentValue(cell) == QVariant(*m_boolean);
}

bool ValueTextFilterCondition::EvaluateNumber(TableCellContent const& cell) const
{
    return FilterCellText::ComparisonText(cell).contains(m_numberText, Qt::CaseSensitive);
}

// A colour cell is found by its colour's name, never by its value.
bool ValueTextFilterCondition::EvaluateColor(TableCellContent const& cell) const
{
    if (cell.text.isNull())
        return false;
    return UnicodeStripped(cell.text).contains(m_text, Qt::CaseInsensitive);
}

bool ValueTextFilterCondition::EvaluateText(TableCellContent const& cell) const
{
    return FilterCellText::ComparisonText(cell).contains(m_text, Qt::CaseInsensitive);
}

} // namespace Orvo::UI::UIComponents
