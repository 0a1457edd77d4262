#include "TableRoleData.h"

#include "TableCellText.h"
#include "TableColorPalette.h"
#include "TableContentFilterModel.h"
#include "TableContentModel.h"

#include <QColor>

namespace Orvo::UI::UIComponents {

QHash<int, QByteArray> TableRoleData::Names()
{
    // Only the table's own roles: QML delegates take what they need by these names.
    return {
        { TableContentModel::ContentRole, "content" },
        { TableContentModel::AllValuesRole, "allValues" },
        { TableContentModel::ParameterIndexRole, "parameterIndex" },
        { TableContentModel::ParametersNamesRole, "parametersNames" },
        { TableContentModel::ParametersValuesRole, "parametersValues" },
        { TableContentModel::ContentTypeRole, "contentType" },
        { TableContentModel::DecimalsRole, "decimals" },
        { TableContentModel::ColumnIdRole, "columnId" },
        { TableContentModel::ColumnLabelRole, "columnLabel" },
        { TableContentModel::ColumnMinWidthRole, "columnMinWidth" },
        { TableContentModel::EditableRole, "editable" },
        { TableContentModel::RequiredRole, "required" },
        { TableContentModel::SortableRole, "sortable" },
        { TableContentModel::SortOrderRole, "sortOrder" },
        { TableContentModel::HasActionRole, "hasAction" },
        { TableContentModel::SelectableRole, "selectable" },
        { TableContentModel::SelectedRole, "selected" },
        { TableContentModel::SelectedActiveRole, "selectedActive" },
        { TableContentModel::SelectedInRowRole, "selectedInRow" },
        { TableContentModel::SelectedInRowExtraRole, "selectedInRowExtra" },
        { TableContentModel::BoldRole, "isBold" },
        { TableContentModel::HighlightStateRole, "highlightState" },
    };
}

bool TableRoleData::IsRecordRole(int role)
{
    switch (role) {
    case TableContentFilterModel::DisplayTextRole:
    case TableContentFilterModel::SwatchColorRole:
    case TableContentFilterModel::EditTextRole:
    case TableContentModel::ContentRole:
    case TableContentModel::AllValuesRole:
    case TableContentModel::ParameterIndexRole:
    case TableContentModel::ParametersNamesRole:
    case TableContentModel::ParametersValuesRole:
    case TableContentModel::ContentTypeRole:
    case TableContentModel::DecimalsRole:
    case TableContentModel::EditableRole:
    case TableContentModel::HasActionRole:
    case TableContentModel::BoldRole:
    case TableContentModel::HighlightStateRole:
        return true;
    default:
        return false;
    }
}

QVariant TableRoleData::RecordData(const TableCellContent& cell, const TableColumn& column,
                                   TableValueType type, const QVariant& pending, int role)
{
    const QVariant& value = pending.isValid() ? pending : cell.content;
    switch (role) {
    case TableContentFilterModel::DisplayTextRole:
        return TableCellText::DisplayText(cell, type, TableNumberText(), pending);
    case TableContentFilterModel::EditTextRole:
        return TableCellText::EditText(cell, type, TableNumberText(), pending);
    case TableContentFilterModel::SwatchColorRole:
        // The swatch of a colour cell; other cells have none.
        return type == TableValueType::Color ? QColor::fromString(value.toString()) : QColor(Qt::transparent);
    case TableContentModel::ContentRole:
        return value;
    case TableContentModel::AllValuesRole:
        if (type == TableValueType::Color)
            return TableColorPalette::GetHexValues();
        return QVariant(QVariantList(cell.allValues.begin(), cell.allValues.end()));
    case TableContentModel::ParameterIndexRole: {
        const int parameter
            = pending.isValid() ? TableCellText::FindParameter(cell.parametersNames, pending) : -1;
        return parameter >= 0 ? parameter : cell.parameterIndex;
    }
    case TableContentModel::ParametersNamesRole:
        return cell.parametersNames;
    case TableContentModel::ParametersValuesRole:
        return cell.parametersValues;
    case TableContentModel::ContentTypeRole:
        return static_cast<int>(type);
    case TableContentModel::DecimalsRole:
        return cell.decimals ? QVariant(static_cast<int>(*cell.decimals)) : QVariant();
    case TableContentModel::EditableRole:
        return column.editable && cell.editable;
    case TableContentModel::HasActionRole:
        return cell.hasAction;
    case TableContentModel::BoldRole:
        return cell.bold;
    case TableContentModel::HighlightStateRole:
        return cell.highlightState;
    default:
        return {};
    }
}

QVariant TableRoleData::NewRowData(const TableColumn& column, const QString& value, int role)
{
    switch (role) {
    case TableContentFilterModel::DisplayTextRole:
    case TableContentFilterModel::EditTextRole:
    case TableContentModel::ContentRole:
        return value;
    case TableContentFilterModel::SwatchColorRole:
        return QColor(Qt::transparent);
    case TableContentModel::AllValuesRole:
        return column.type == TableValueType::Color ? QVariant(TableColorPalette::GetHexValues())
                                                    : QVariant();
    case TableContentModel::ContentTypeRole:
        // Whatever the column holds, the new row takes text that the feeder reads.
        return static_cast<int>(TableValueType::String);
    case TableContentModel::EditableRole:
        return column.editable;
    case TableContentModel::RequiredRole:
        return column.required;
    case TableContentModel::SelectableRole:
        return true;
    default:
        return {};
    }
}

QVariant TableRoleData::HeaderData(const TableColumn& column, int role)
{
    switch (role) {
    case Qt::DisplayRole:
    case TableContentModel::ColumnLabelRole:
        return column.label;
    case TableContentModel::ColumnIdRole:
        return column.id;
    case TableContentModel::ColumnMinWidthRole:
        return column.minWidth;
    case TableContentModel::RequiredRole:
        return column.required;
    case TableContentModel::SortableRole:
        return column.sortable;
    case TableContentModel::SortOrderRole:
        return column.sortOrder;
    case TableContentModel::SelectableRole:
        return true;
    default:
        return {};
    }
}

} // namespace Orvo::UI::UIComponents
