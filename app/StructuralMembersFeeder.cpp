#include "StructuralMembersFeeder.h"

#include "plugin/QtComponentsText.h"
#include "tables/NaturalTextOrder.h"
#include "tables/TableColorPalette.h"
#include "tables/TableNumberText.h"

#include <QtGlobal>
#include <algorithm>
#include <numeric>

using namespace Orvo::UI::UIComponents;

namespace {

const QStringList c_types { "Beam", "Column", "Brace", "Rafter" };
const QStringList c_sections {
    "IPE 200", "IPE 300", "HEA 240", "HEB 300", "RHS 120x80", "CHS 168", "UB 406"
};
const QStringList c_materials { "S235", "S355", "S460", "C30/37", "GL24h" };
const QStringList c_yesNo { "Yes", "No" };

int g_generatedMemberCount = StructuralMembersFeeder::c_defaultMemberCount;

// A cheap, repeatable pseudo-random number per member and column.
quint32 Hash(int member, int salt)
{
    quint32 value = static_cast<quint32>(member) * 2654435761u ^ static_cast<quint32>(salt) * 40503u;
    value ^= value >> 15;
    value *= 2246822519u;
    value ^= value >> 13;
    return value;
}

TableColumn Column(const char* id, const char* labelId, TableValueType type, int width, bool required = false,
                   bool editable = true, const char* unit = "")
{
    TableColumn column;
    column.unit = QString::fromUtf8(unit);
    column.id = QString::fromLatin1(id);
    column.label = GetText(QString::fromLatin1(labelId));
    column.type = type;
    column.width = width;
    column.required = required;
    column.editable = editable;
    column.sortable = true;
    return column;
}

TableCellContent Named(const QStringList& names, int index)
{
    TableCellContent cell;
    cell.content = names.value(index);
    cell.parametersNames = names;
    for (int i = 0; i < names.size(); ++i)
        cell.parametersValues.append(i);
    cell.parameterIndex = index;
    return cell;
}

} // namespace

void StructuralMembersFeeder::SetGeneratedMemberCount(int count)
{
    g_generatedMemberCount = std::max(1, count);
}

StructuralMembersFeeder::StructuralMembersFeeder(QObject* parent)
    : QObject(parent)
    , m_generatedMembers(g_generatedMemberCount)
{
    m_definitions = {
        { Column("name", "UI_DEMO_MEMBER_NAME", TableValueType::String, 96, true), true },
        { Column("type", "UI_DEMO_MEMBER_TYPE", TableValueType::List, 96), true },
        { Column("section", "UI_DEMO_MEMBER_SECTION", TableValueType::String, 128), true },
        { Column("material", "UI_DEMO_MEMBER_MATERIAL", TableValueType::List, 96, true), true },
        { Column("length", "UI_DEMO_MEMBER_LENGTH", TableValueType::Real, 96, false, true, "m"), true },
        { Column("count", "UI_DEMO_MEMBER_COUNT", TableValueType::Integer, 64), true },
        { Column("rotation", "UI_DEMO_MEMBER_ROTATION", TableValueType::Real, 96, false, true, "\u00B0"),
          true },
        { Column("fixed", "UI_DEMO_MEMBER_FIXED", TableValueType::Bool, 64), true },
        { Column("colour", "UI_DEMO_MEMBER_COLOUR", TableValueType::Color, 128), true },
        { Column("utilisation", "UI_DEMO_MEMBER_UTILISATION", TableValueType::Real, 96, false, false), true },
        { Column("comment", "UI_DEMO_MEMBER_COMMENT", TableValueType::String, 192), false },
    };
    connect(&m_model, &TableContentModel::addColumnsRequest, this,
            &StructuralMembersFeeder::OnAddColumnsRequest);
    connect(&m_model, &TableContentModel::refillContentRequest, this,
            &StructuralMembersFeeder::OnRefillContentRequest);
    connect(&m_model, &TableContentModel::setRowsRequest, this, &StructuralMembersFeeder::OnSetRowsRequest);
    connect(&m_model, &TableContentModel::updateDataRequest, this,
            &StructuralMembersFeeder::OnUpdateDataRequest);
    connect(&m_model, &TableContentModel::executeActionRequest, this,
            &StructuralMembersFeeder::OnExecuteActionRequest);

    QHash<QString, QString> colorNames;
    for (int i = 0; i < TableColorPalette::GetCount(); ++i)
        colorNames.insert(TableColorPalette::GetKey(i), GetText(TableColorPalette::GetKey(i)));
    m_model.SetColorNames(std::move(colorNames));
    m_model.setAllowEdit(true);
    m_model.setAllowAddNew(true);
    std::vector<TableColumnModelItem> items;
    for (const ColumnDefinition& definition : m_definitions)
        items.push_back({ definition.column.id, definition.column.label, definition.visible,
                          definition.column.required });
    m_model.SetAllColumns(std::move(items)); // the model asks for the visible columns
}

void StructuralMembersFeeder::OnAddColumnsRequest(const std::vector<QString>& ids)
{
    std::vector<TableColumn> columns;
    for (const QString& id : ids) {
        const auto it
            = std::find_if(m_definitions.begin(), m_definitions.end(),
                           [&](const ColumnDefinition& definition) { return definition.column.id == id; });
        if (it != m_definitions.end())
            columns.push_back(it->column);
    }
    m_model.AddColumns(std::move(columns));
}

void StructuralMembersFeeder::OnRefillContentRequest()
{
    // The layout tells the sort order: remember it for the next time the columns are built.
    for (const TableColumn& column : m_model.GetColumns()) {
        for (ColumnDefinition& definition : m_definitions) {
            if (definition.column.id == column.id) {
                definition.column.sortOrder = column.sortOrder;
                definition.column.width = column.width;
            }
        }
    }
    SortMembers();
    m_model.SetRowCount(MemberCount());
}

void StructuralMembersFeeder::SortMembers()
{
    m_memberOfRow.resize(static_cast<std::size_t>(MemberCount()));
    std::iota(m_memberOfRow.begin(), m_memberOfRow.end(), 0);
    const auto sorted
        = std::find_if(m_definitions.begin(), m_definitions.end(),
                       [](const ColumnDefinition& definition) { return definition.column.sortOrder != 0; });
    if (sorted == m_definitions.end())
        return;
    const QString id = sorted->column.id;
    const bool numeric
        = sorted->column.type == TableValueType::Real || sorted->column.type == TableValueType::Integer;
    std::vector<QVariant> keys(m_memberOfRow.size());
    for (std::size_t member = 0; member < keys.size(); ++member)
        keys[member] = CellOf(static_cast<int>(member), id).content;
    // Texts sort the way the table's filters compare them: B5 before B1000, case ignored.
    std::vector<std::wstring> texts;
    if (!numeric) {
        texts.reserve(keys.size());
        for (const QVariant& key : keys)
            texts.push_back(key.toString().toStdWString());
    }
    auto less = [&](int a, int b) {
        const auto index = [](int member) { return static_cast<std::size_t>(member); };
        if (numeric)
            return keys[index(a)].toDouble() < keys[index(b)].toDouble();
        return NaturalTextOrder::Before(texts[index(a)], texts[index(b)]);
    };
    if (sorted->column.sortOrder == TableContentModel::Ascending)
        std::stable_sort(m_memberOfRow.begin(), m_memberOfRow.end(), less);
    else
        std::stable_sort(m_memberOfRow.begin(), m_memberOfRow.end(),
                         [&](int a, int b) { return less(b, a); });
}

void StructuralMembersFeeder::OnSetRowsRequest(int index, int count, const std::vector<QString>& ids)
{
    if (m_memberOfRow.size() != static_cast<std::size_t>(MemberCount()))
        SortMembers();
    std::vector<TableColumnContent> contents;
    for (const QString& id : ids) {
        TableColumnContent content { id, {} };
        content.cells.reserve(static_cast<std::size_t>(count));
        for (int row = index; row < index + count; ++row)
            content.cells.push_back(CellOf(m_memberOfRow[static_cast<std::size_t>(row)], id));
        contents.push_back(std::move(content));
    }
    try {
        m_model.SetColumnsContent(index, std::move(contents));
    } catch (const std::exception& error) {
        qWarning("StructuralMembersFeeder: %s", error.what());
    }
}

TableCellContent StructuralMembersFeeder::CellOf(int member, const QString& columnId) const
{
    TableCellContent cell = GeneratedCell(member, columnId);
    const auto edits = m_edits.find(member);
    if (edits == m_edits.end() || !edits->second.contains(columnId))
        return cell;
    const QVariant value = edits->second.value(columnId);
    const int parameter = static_cast<int>(cell.parametersNames.indexOf(value.toString()));
    if (parameter >= 0) {
        cell.parameterIndex = parameter;
        cell.content = cell.parametersNames[parameter];
        if (cell.valueType == TableValueType::Bool)
            cell.content = parameter == 0;
    } else if (cell.valueType == TableValueType::Real || cell.valueType == TableValueType::Integer) {
        // The table sends numbers as the user wrote them (decimal comma, expression): read
        // them the way the table itself does.
        cell.content = TableNumberText::Parse(value.toString()).value_or(0.0);
    } else if (cell.valueType == TableValueType::Bool) {
        cell.content = value.toString() != QLatin1String("0");
    } else {
        cell.content = value;
    }
    cell.highlightState = TableCellContent::UserDefined;
    return cell;
}

TableCellContent StructuralMembersFeeder::GeneratedCell(int member, const QString& columnId) const
{
    const bool added = member >= m_generatedMembers;
    TableCellContent cell;
    cell.editable = true;
    if (columnId == QLatin1String("name")) {
        cell.content
            = QStringLiteral("%1%2").arg(QChar(QLatin1Char("BCDR"[Hash(member, 1) % 4]))).arg(member + 1);
        cell.valueType = TableValueType::String;
    } else if (columnId == QLatin1String("type")) {
        cell = Named(c_types, static_cast<int>(Hash(member, 1) % 4));
        cell.editable = true;
        cell.valueType = TableValueType::List;
    } else if (columnId == QLatin1String("section")) {
        cell.content = added ? QString() : c_sections[static_cast<int>(Hash(member, 2) % c_sections.size())];
        cell.valueType = TableValueType::String;
    } else if (columnId == QLatin1String("material")) {
        cell = Named(c_materials, static_cast<int>(Hash(member, 3) % c_materials.size()));
        cell.editable = true;
        cell.valueType = TableValueType::List;
    } else if (columnId == QLatin1String("length")) {
        cell.content = added ? 0.0 : 1.0 + (Hash(member, 4) % 12000) / 1000.0;
        cell.valueType = TableValueType::Real;
        cell.decimals = 3;
    } else if (columnId == QLatin1String("count")) {
        cell.content = added ? 1 : 1 + static_cast<int>(Hash(member, 5) % 8);
        cell.valueType = TableValueType::Integer;
    } else if (columnId == QLatin1String("rotation")) {
        cell.content = added ? 0.0 : static_cast<double>(Hash(member, 6) % 8) * 45.0;
        cell.valueType = TableValueType::Real;
        cell.decimals = 1;
    } else if (columnId == QLatin1String("fixed")) {
        const bool fixed = Hash(member, 7) % 3 == 0;
        cell.content = fixed;
        cell.parametersNames = c_yesNo;
        cell.parameterIndex = fixed ? 0 : 1;
        cell.valueType = TableValueType::Bool;
    } else if (columnId == QLatin1String("colour")) {
        cell.content = TableColorPalette::GetHex(static_cast<int>(Hash(member, 8) % 8));
        cell.valueType = TableValueType::Color;
    } else if (columnId == QLatin1String("utilisation")) {
        const double utilisation = added ? 0.0 : (Hash(member, 9) % 1150) / 1000.0;
        cell.content = utilisation;
        cell.valueType = TableValueType::Real;
        cell.decimals = 2;
        cell.editable = false;
        cell.bold = utilisation > 0.9;
        cell.highlightState = utilisation > 1.0 ? TableCellContent::Error : TableCellContent::Default;
    } else if (columnId == QLatin1String("comment")) {
        cell.content = Hash(member, 10) % 17 == 0 ? QStringLiteral("Check connection") : QString();
        cell.valueType = TableValueType::String;
    }
    return cell;
}

void StructuralMembersFeeder::OnUpdateDataRequest(const TableContentUpdate& update)
{
    const auto& columns = m_model.GetColumns();
    for (const auto& [row, values] : update.GetRows()) {
        int member = 0;
        if (row < static_cast<int>(m_memberOfRow.size()) && row < m_model.rowCountSubmitted()) {
            member = m_memberOfRow[static_cast<std::size_t>(row)];
        } else {
            member = MemberCount();
            ++m_addedMembers;
            m_memberOfRow.push_back(member);
        }
        for (const auto& [column, value] : values) {
            if (column >= 0 && column < static_cast<int>(columns.size()))
                m_edits[member].insert(columns[static_cast<std::size_t>(column)].id, value);
        }
    }
    // Refill as the host does after applying an update; the view keeps its place.
    m_model.SetRowCount(MemberCount());
}

void StructuralMembersFeeder::OnExecuteActionRequest(int row, int column)
{
    qInfo("Action requested for row %d, column %d", row, column);
}
