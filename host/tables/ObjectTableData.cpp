#include "ObjectTableData.h"

#include "ObjectTableOrder.h"
#include "basiccomponents/DisplayUnits.h"
#include "framework/Debug.h"
#include "properties/PropertyVariant.h"
#include "properties/StructuralModel.h"

#include <algorithm>
#include <set>

namespace Orvo::Kernel::Tables {

using namespace Framework;
using Model::ModelMessage;
using Model::ObjectId;

namespace {

QString Text(const StructuralModel& model, const QString& id,
             std::vector<ModelMessage::Argument> arguments = {})
{
    return model.Text(ModelMessage(id, std::move(arguments)));
}

// What every cell of one column shares, worked out once per run of rows.
struct ColumnReading
{
    const PropertyDefinition& definition;
    const UI::BasicComponents::DisplayUnits* units;
    UI::BasicComponents::DisplayUnits::Shown shown;
    QStringList choices;
    QStringList parameterNames;
    QVariantList parameterValues;
    bool hasAction = false;

    ColumnReading(const StructuralModel& model, const PropertyDefinition& property,
                  const UI::BasicComponents::DisplayUnits* displayUnits)
        : definition(property)
        , units(displayUnits)
        , shown { property.units, 1.0, property.decimals }
    {
        if (units)
            shown = units->ForStoredUnit(definition.units, definition.decimals);
        for (const QString& choiceId : definition.choiceIds)
            choices << model.PlainText(choiceId);
        for (const NamedParameter& parameter : definition.parameters) {
            parameterNames << model.PlainText(parameter.nameId);
            parameterValues << PropertyVariant::ToVariant(parameter.value, definition, model.Strings(),
                                                          units);
        }
    }

    QVariant Content(const PropertyValue& value) const
    {
        if (const auto* choice = std::get_if<std::int32_t>(&value);
            choice && definition.type == PropertyType::List)
            return choices.value(*choice);
        if (const auto* color = std::get_if<QColor>(&value))
            return color->name();
        if (const auto* number = std::get_if<double>(&value))
            return shown.ToShown(*number);
        return std::visit([](const auto& alternative) { return QVariant::fromValue(alternative); }, value);
    }

    TableDataCell Cell(const Model::Structure& structure, std::size_t record) const
    {
        TableDataCell cell;
        cell.valueType = TableDataType(definition.type);
        if (definition.type == PropertyType::Real)
            cell.decimals = std::int16_t(shown.decimals);
        cell.allValues = choices;
        if (!definition.AppliesTo(structure, record))
            return cell;
        const PropertyValue value = definition.read(structure, record);
        cell.content = Content(value);
        cell.editable = !definition.readOnly;
        cell.hasAction = hasAction;
        cell.parametersNames = parameterNames;
        cell.parametersValues = parameterValues;
        cell.parameterIndex = definition.ParameterIndexOf(value);
        if (!definition.Check(value).IsEmpty())
            cell.highlight = TableCellHighlight::Error;
        else if (definition.DiffersFromDefault(value))
            cell.highlight = TableCellHighlight::DefaultModified;
        return cell;
    }

    // A parameter may be given by its name (a picked "S355" stands for its strength).
    QVariant Resolve(const QVariant& value) const
    {
        if (value.typeId() != QMetaType::QString)
            return value;
        for (int index = 0; index < parameterNames.size(); ++index) {
            if (parameterNames.at(index).compare(value.toString().trimmed(), Qt::CaseInsensitive) == 0)
                return parameterValues.at(index);
        }
        return value;
    }
};

} // namespace

ObjectTableData::ObjectTableData(std::shared_ptr<StructuralModel> model, Model::ObjectKind kind,
                                 std::shared_ptr<const UI::BasicComponents::DisplayUnits> units)
    : m_model(std::move(model))
    , m_kind(kind)
    , m_units(std::move(units))
{ }

const ObjectType& ObjectTableData::Type() const
{
    return m_model->Type(m_kind);
}

const PropertyDefinition* ObjectTableData::Property(const std::wstring& columnId) const
{
    return Type().FindProperty(QString::fromStdWString(columnId));
}

std::wstring ObjectTableData::GetId() const
{
    return Type().Key().toStdWString();
}

std::wstring ObjectTableData::GetLabel() const
{
    return m_model->PlainText(ModelMessage::KindPluralNameId(m_kind)).toStdWString();
}

std::wstring ObjectTableData::GetIconName() const
{
    return L"table-" + GetId();
}

std::vector<TableDataColumn> ObjectTableData::GetColumns() const
{
    std::vector<TableDataColumn> columns;
    for (const PropertyDefinition& definition : Type().Properties()) {
        const ColumnReading reading(*m_model, definition, m_units.get());
        TableDataColumn column;
        column.id = definition.key.toStdWString();
        column.label = m_model->PlainText(definition.nameId).toStdWString();
        column.type = TableDataType(definition.type);
        column.unit = reading.shown.unit;
        column.decimals = definition.type == PropertyType::Real ? reading.shown.decimals : -1;
        column.required = definition.required;
        column.readOnly = definition.readOnly;
        column.listValues = reading.choices;
        for (int index = 0; index < reading.parameterNames.size(); ++index)
            column.parameters.push_back(
                { reading.parameterNames.at(index), reading.parameterValues.at(index) });
        column.groupId = definition.categoryId.toStdWString();
        column.groupLabel = m_model->PlainText(definition.categoryId).toStdWString();
        columns.push_back(std::move(column));
    }
    return columns;
}

bool ObjectTableData::HasErrors() const
{
    const Model::Structure& structure = m_model->Structure();
    const std::size_t count = structure.Count(m_kind);
    for (const PropertyDefinition& definition : Type().Properties()) {
        if (!definition.read)
            continue;
        for (std::size_t record = 0; record < count; ++record) {
            if (definition.AppliesTo(structure, record)
                && !definition.Check(definition.read(structure, record)).IsEmpty())
                return true;
        }
    }
    return false;
}

int ObjectTableData::GetRowCount() const
{
    return int(m_model->Structure().Count(m_kind));
}

std::vector<TableDataColumnContent>
ObjectTableData::GetCells(int first, int count, const std::vector<std::wstring>& columnIds) const
{
    first = std::max(0, first);
    const int last = std::max(first, std::min(GetRowCount(), first + std::max(0, count)));
    std::vector<TableDataColumnContent> contents;
    contents.reserve(columnIds.size());
    for (const std::wstring& columnId : columnIds) {
        TableDataColumnContent content { columnId, {} };
        const PropertyDefinition* definition = Property(columnId);
        if (!definition) {
            DebugOutput(QStringLiteral("Table %1 has no column %2")
                            .arg(QString::fromStdWString(GetId()), QString::fromStdWString(columnId)));
            content.cells.resize(std::size_t(last - first));
            contents.push_back(std::move(content));
            continue;
        }
        ColumnReading reading(*m_model, *definition, m_units.get());
        const auto& actions = Type().Actions();
        reading.hasAction
            = std::any_of(actions.begin(), actions.end(), [definition](const ObjectAction& action) {
                  return action.cellPropertyKey == definition->key;
              });
        content.cells.reserve(std::size_t(last - first));
        for (int row = first; row < last; ++row)
            content.cells.push_back(reading.Cell(m_model->Structure(), RecordAt(row)));
        contents.push_back(std::move(content));
    }
    return contents;
}

bool ObjectTableData::Sort(const std::wstring& columnId, TableSortOrder order)
{
    if (order == TableSortOrder::Unsorted) {
        m_sortColumn.clear();
        m_sortOrder = order;
        m_order.clear();
        return true;
    }
    if (!Property(columnId))
        return false;
    m_sortColumn = columnId;
    m_sortOrder = order;
    m_orderStale = true;
    return true;
}

const std::vector<std::int32_t>& ObjectTableData::Order() const
{
    if (m_orderStale && m_sortOrder != TableSortOrder::Unsorted) {
        m_order = ObjectTableOrder::Sorted(*m_model, m_kind, *Property(m_sortColumn),
                                           m_sortOrder == TableSortOrder::Descending);
        m_orderStale = false;
    }
    return m_order;
}

std::size_t ObjectTableData::RecordAt(int row) const
{
    if (m_sortOrder == TableSortOrder::Unsorted)
        return std::size_t(row);
    return std::size_t(Order()[std::size_t(row)]);
}

ObjectId ObjectTableData::GetObjectAt(int row) const
{
    if (row < 0 || row >= GetRowCount())
        return 0;
    const std::size_t record = RecordAt(row);
    const Model::Number number = Model::VisitKind(m_kind, [this, record](auto tag) {
        return m_model->Structure().Table<typename decltype(tag)::Type>().At(record).number;
    });
    return Model::MakeObjectId(m_kind, number);
}

int ObjectTableData::FindRow(ObjectId id) const
{
    if (!Model::IsKnownKind(id) || Model::KindOf(id) != m_kind)
        return -1;
    const auto record = m_model->IndexOf(id);
    if (!record)
        return -1;
    if (m_sortOrder == TableSortOrder::Unsorted)
        return int(*record);
    const auto& order = Order();
    const auto it = std::find(order.begin(), order.end(), std::int32_t(*record));
    return it == order.end() ? -1 : int(it - order.begin());
}

TableUpdateResult ObjectTableData::Update(const TableDataUpdate& update)
{
    TableUpdateResult result;
    if (update.empty())
        return result;
    const int rowCount = GetRowCount();
    // Rows name objects in the order of now; the first change may sort them anew.
    std::map<int, ObjectId> objects;
    for (const auto& [row, values] : update) {
        if (row >= 0 && row < rowCount)
            objects[row] = GetObjectAt(row);
    }
    StructuralModel::ChangeScope scope(*m_model, UpdateName(update, rowCount));
    for (const auto& [row, values] : update) {
        if (row < 0)
            DebugOutput(QStringLiteral("Table update of row %1 ignored").arg(row));
        else if (row < rowCount)
            UpdateRow(objects[row], row, values, result);
        else
            AddRow(row, values, result);
    }
    return result;
}

std::optional<PropertyValue> ObjectTableData::ParseCell(const PropertyDefinition& definition, int row,
                                                        const std::wstring& columnId, const QVariant& value,
                                                        TableUpdateResult& result) const
{
    const ColumnReading reading(*m_model, definition, m_units.get());
    auto parsed
        = PropertyVariant::FromVariant(reading.Resolve(value), definition, m_model->Strings(), m_units.get());
    if (!parsed)
        result.rejections.push_back(
            { row, columnId,
              Text(*m_model, QStringLiteral("UI_MODEL_ERROR_WRONG_TYPE"), { value.toString() }) });
    return parsed;
}

void ObjectTableData::UpdateRow(ObjectId id, int row, const std::map<std::wstring, QVariant>& values,
                                TableUpdateResult& result)
{
    for (const auto& [columnId, value] : values) {
        const PropertyDefinition* definition = Property(columnId);
        if (!definition) {
            result.rejections.push_back({ row, columnId,
                                          Text(*m_model, QStringLiteral("UI_TABLE_ERROR_NO_COLUMN"),
                                               { QString::fromStdWString(columnId) }) });
            continue;
        }
        const auto parsed = ParseCell(*definition, row, columnId, value, result);
        if (!parsed)
            continue;
        const auto edit = m_model->SetValue({ id }, definition->key, *parsed);
        if (edit.rejected > 0)
            result.rejections.push_back({ row, columnId, m_model->Text(edit.firstRejection) });
        result.changedCells += edit.changed;
    }
}

void ObjectTableData::AddRow(int row, const std::map<std::wstring, QVariant>& values,
                             TableUpdateResult& result)
{
    std::vector<std::pair<QString, PropertyValue>> properties;
    for (const auto& [columnId, value] : values) {
        const PropertyDefinition* definition = Property(columnId);
        if (!definition || definition->readOnly || value.toString().trimmed().isEmpty())
            continue;
        const auto parsed = ParseCell(*definition, row, columnId, value, result);
        // Half an object is worse than none: the row waits for a value that fits.
        if (!parsed)
            return;
        properties.emplace_back(definition->key, *parsed);
    }
    ModelMessage why;
    if (m_model->AddObject(m_kind, properties, &why) == 0)
        result.rejections.push_back({ row, {}, m_model->Text(why) });
    else
        ++result.addedRows;
}

QString ObjectTableData::UpdateName(const TableDataUpdate& update, int rowCount) const
{
    int cells = 0;
    int newRows = 0;
    std::set<std::wstring> columns;
    std::vector<ObjectId> objects;
    for (const auto& [row, values] : update) {
        cells += int(values.size());
        newRows += row >= rowCount ? 1 : 0;
        for (const auto& [columnId, value] : values)
            columns.insert(columnId);
        if (const ObjectId id = row < rowCount ? GetObjectAt(row) : 0)
            objects.push_back(id);
    }
    const QString label = QString::fromStdWString(GetLabel());
    // One property of existing objects (a cell, a column pasted or edited at once) is named as
    // the properties panel names it, so the two read alike in the undo history.
    const PropertyDefinition* definition = columns.size() == 1 ? Property(*columns.begin()) : nullptr;
    if (newRows == 0 && definition && !objects.empty())
        return Text(*m_model, QStringLiteral("UI_UNDO_SET_PROPERTY"),
                    { m_model->PlainText(definition->nameId), m_model->ObjectsPhrase(objects) });
    if (newRows == int(update.size()))
        return newRows == 1
            ? Text(*m_model, QStringLiteral("UI_UNDO_TABLE_ROW"), { label })
            : Text(*m_model, QStringLiteral("UI_UNDO_TABLE_ROWS"), { QString::number(newRows), label });
    return Text(*m_model, QStringLiteral("UI_UNDO_TABLE_CELLS"), { QString::number(cells), label });
}

TableUpdateResult ObjectTableData::RemoveRows(const std::vector<int>& rows)
{
    TableUpdateResult result;
    std::vector<ObjectId> ids;
    for (int row : rows) {
        if (const ObjectId id = GetObjectAt(row))
            ids.push_back(id);
    }
    if (ids.empty())
        return result;
    const auto removal = m_model->RemoveObjects(ids);
    if (removal.rejected > 0)
        result.rejections.push_back({ -1, {}, m_model->Text(removal.firstRejection) });
    result.removedRows = removal.changed;
    return result;
}

bool ObjectTableData::ExecuteAction(int row, const std::wstring& columnId)
{
    const ObjectId id = GetObjectAt(row);
    const QString key = QString::fromStdWString(columnId);
    const auto& actions = Type().Actions();
    const auto action = std::find_if(actions.begin(), actions.end(), [&key](const ObjectAction& candidate) {
        return candidate.cellPropertyKey == key;
    });
    if (!id || action == actions.end())
        return false;
    return m_model->RunAction({ id }, action->key) > 0;
}

} // namespace Orvo::Kernel::Tables
