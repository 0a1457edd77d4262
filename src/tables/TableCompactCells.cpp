#include "TableCompactCells.h"

#include <algorithm>
#include <limits>

namespace Orvo::UI::UIComponents {

namespace {

// A bulk holds at most c_rows distinct sets that are in use; replacing cells leaves unused ones
// behind, which are dropped before the one-byte index would run out.
constexpr std::size_t c_maxAttributeSets = std::numeric_limits<std::uint8_t>::max();

// Growing a buffer doubles it; giving back what is left over costs a copy, worth it only when
// more than an eighth is unused.
template<typename Vector> void ShrinkIfLoose(Vector& vector)
{
    if (vector.capacity() - vector.size() > vector.size() / 8)
        vector.shrink_to_fit();
}

} // namespace

// ---- Texts ----------------------------------------------------------------------------------------------

QStringView TableCompactCells::TextRun::View(int offset) const
{
    if (IsNull(offset))
        return {};
    const std::size_t row = static_cast<std::size_t>(offset);
    return QStringView(m_characters.data() + m_starts[row], m_starts[row + 1] - m_starts[row]);
}

QString TableCompactCells::TextRun::Text(int offset) const
{
    if (IsNull(offset))
        return QString();
    // An empty text that is not null must stay not null: a colour without a name differs from
    // a colour whose name is empty.
    const QStringView view = View(offset);
    return view.isEmpty() ? QString(QLatin1String("")) : view.toString();
}

void TableCompactCells::TextRun::Set(int offset, const QString& text)
{
    const std::size_t row = static_cast<std::size_t>(offset);
    if (m_starts.empty()) {
        if (text.isNull())
            return;
        m_starts.assign(c_rows + 1, 0);
    }
    const std::uint32_t start = m_starts[row];
    const std::uint32_t oldLength = m_starts[row + 1] - start;
    const std::uint32_t newLength = static_cast<std::uint32_t>(text.size());
    const auto at = m_characters.begin() + start;
    if (newLength > oldLength)
        m_characters.insert(at + oldLength, newLength - oldLength, u'\0');
    else if (newLength < oldLength)
        m_characters.erase(at + newLength, at + oldLength);
    // Through a view: QString::utf16() would turn a null text into an empty one.
    const QStringView characters(text);
    std::copy(characters.utf16(), characters.utf16() + newLength, m_characters.begin() + start);
    if (newLength != oldLength) {
        for (std::size_t next = row + 1; next < m_starts.size(); ++next)
            m_starts[next] = m_starts[next] + newLength - oldLength;
    }
    m_present.set(row, !text.isNull());
}

void TableCompactCells::TextRun::Squeeze()
{
    ShrinkIfLoose(m_characters);
}

// ---- Attributes -----------------------------------------------------------------------------------------

bool TableCompactCells::Attributes::operator==(const Attributes& other) const
{
    // Lists handed out by one column share their data, which makes comparing them cheap.
    return parameterIndex == other.parameterIndex && valueType == other.valueType
        && adapterWord1 == other.adapterWord1 && adapterWord2 == other.adapterWord2
        && decimals == other.decimals && editable == other.editable && hasAction == other.hasAction
        && bold == other.bold && highlightState == other.highlightState && allValues == other.allValues
        && parametersNames == other.parametersNames && parametersValues == other.parametersValues;
}

// ---- Cells ----------------------------------------------------------------------------------------------

TableCellContent TableCompactCells::Cell(int offset) const
{
    TableCellContent cell;
    if (!IsFilled(offset))
        return cell;
    const std::size_t row = static_cast<std::size_t>(offset);
    switch (m_kinds[row]) {
    case ValueKind::Invalid:
        break;
    case ValueKind::Bool:
        cell.content = QVariant(m_bools.test(row));
        break;
    case ValueKind::Int:
        cell.content = QVariant(static_cast<int>(m_integers[row]));
        break;
    case ValueKind::LongLong:
        cell.content = QVariant(static_cast<qlonglong>(m_integers[row]));
        break;
    case ValueKind::Double:
        cell.content = QVariant(m_doubles[row]);
        break;
    case ValueKind::String:
        cell.content = QVariant(m_strings.Text(offset));
        break;
    case ValueKind::Other:
        for (const auto& [at, value] : m_others) {
            if (at == offset)
                cell.content = value;
        }
        break;
    }
    if (m_displayTexts)
        cell.text = m_displayTexts->Text(offset);

    const Attributes& attributes = m_attributes[m_attributesOf.empty() ? 0 : m_attributesOf[row]];
    cell.allValues = attributes.allValues;
    cell.parameterIndex = attributes.parameterIndex;
    cell.parametersNames = attributes.parametersNames;
    cell.parametersValues = attributes.parametersValues;
    cell.valueType = attributes.valueType;
    cell.adapterWord1 = attributes.adapterWord1;
    cell.adapterWord2 = attributes.adapterWord2;
    cell.decimals = attributes.decimals;
    cell.editable = attributes.editable;
    cell.hasAction = attributes.hasAction;
    cell.bold = attributes.bold;
    cell.highlightState = attributes.highlightState;
    return cell;
}

void TableCompactCells::Store(int offset, TableCellContent&& cell)
{
    StoreValue(offset, std::move(cell.content));
    if (m_displayTexts || !cell.text.isNull()) {
        if (!m_displayTexts)
            m_displayTexts = std::make_unique<TextRun>();
        m_displayTexts->Set(offset, cell.text);
    }
    StoreAttributes(offset,
                    Attributes { std::move(cell.allValues), cell.parameterIndex,
                                 std::move(cell.parametersNames), std::move(cell.parametersValues),
                                 cell.valueType, cell.adapterWord1, cell.adapterWord2, cell.decimals,
                                 cell.editable, cell.hasAction, cell.bold, cell.highlightState });
    m_filled.set(static_cast<std::size_t>(offset));
    m_size = std::max(m_size, offset + 1);
}

template<typename Number> void TableCompactCells::Put(std::vector<Number>& values, int offset, Number value)
{
    if (values.empty())
        values.assign(c_rows, Number {});
    values[static_cast<std::size_t>(offset)] = value;
}

void TableCompactCells::StoreValue(int offset, QVariant&& value)
{
    const std::size_t row = static_cast<std::size_t>(offset);
    // What the cell held before gives back its room.
    if (m_kinds[row] == ValueKind::String)
        m_strings.Set(offset, QString());
    if (m_kinds[row] == ValueKind::Other) {
        m_others.erase(std::remove_if(m_others.begin(), m_others.end(),
                                      [offset](const auto& other) { return other.first == offset; }),
                       m_others.end());
    }

    ValueKind kind = ValueKind::Other;
    switch (value.typeId()) {
    case QMetaType::UnknownType:
        kind = ValueKind::Invalid;
        break;
    case QMetaType::Bool:
        kind = ValueKind::Bool;
        m_bools.set(row, value.toBool());
        break;
    case QMetaType::Int:
        kind = ValueKind::Int;
        Put<std::int64_t>(m_integers, offset, value.toInt());
        break;
    case QMetaType::LongLong:
        kind = ValueKind::LongLong;
        Put<std::int64_t>(m_integers, offset, value.toLongLong());
        break;
    case QMetaType::Double:
        kind = ValueKind::Double;
        Put<double>(m_doubles, offset, value.toDouble());
        break;
    case QMetaType::QString:
        kind = ValueKind::String;
        m_strings.Set(offset, value.toString());
        break;
    default:
        m_others.emplace_back(offset, std::move(value));
        break;
    }
    m_kinds[row] = kind;
}

void TableCompactCells::StoreAttributes(int offset, Attributes&& attributes)
{
    auto found = std::find(m_attributes.begin(), m_attributes.end(), attributes);
    if (found == m_attributes.end()) {
        if (m_attributes.size() >= c_maxAttributeSets) {
            DropUnusedAttributes();
            found = std::find(m_attributes.begin(), m_attributes.end(), attributes);
        }
    }
    if (found == m_attributes.end()) {
        // Cells stored so far keep set 0 when the index comes in.
        if (!m_attributes.empty() && m_attributesOf.empty())
            m_attributesOf.assign(c_rows, 0);
        m_attributes.push_back(std::move(attributes));
        found = m_attributes.end() - 1;
    }
    if (!m_attributesOf.empty())
        m_attributesOf[static_cast<std::size_t>(offset)]
            = static_cast<std::uint8_t>(found - m_attributes.begin());
}

void TableCompactCells::DropUnusedAttributes()
{
    std::vector<Attributes> used;
    std::vector<int> renumbered(m_attributes.size(), -1);
    for (std::size_t row = 0; row < static_cast<std::size_t>(c_rows); ++row) {
        if (!m_filled.test(row))
            continue;
        const std::uint8_t set = m_attributesOf[row];
        if (renumbered[set] < 0) {
            renumbered[set] = static_cast<int>(used.size());
            used.push_back(std::move(m_attributes[set]));
        }
        m_attributesOf[row] = static_cast<std::uint8_t>(renumbered[set]);
    }
    m_attributes = std::move(used);
}

void TableCompactCells::Squeeze()
{
    m_strings.Squeeze();
    if (m_displayTexts)
        m_displayTexts->Squeeze();
    ShrinkIfLoose(m_others);
    ShrinkIfLoose(m_attributes);
}

} // namespace Orvo::UI::UIComponents
