#include "MultiEditOperation.h"

#include "TableCellText.h"
#include "TableContentModel.h"
#include "TableNumberText.h"
#include "TablesLogging.h"

#include <cmath>

namespace Orvo::UI::UIComponents {

std::optional<QVariant> MultiEditOperation::Apply(int action, const Cell& cell, const QString& operand)
{
    switch (action) {
    case MultiEditAction::Add:
    case MultiEditAction::Subtract:
    case MultiEditAction::Multiply:
    case MultiEditAction::Divide:
    case MultiEditAction::Round:
        return ApplyArithmetic(action, cell, operand);
    case MultiEditAction::Replace:
        return ApplyReplace(cell, operand);
    default:
        return std::nullopt;
    }
}

std::optional<QVariant> MultiEditOperation::ApplyArithmetic(int action, const Cell& cell,
                                                            const QString& operand)
{
    if (cell.type != TableValueType::Integer && cell.type != TableValueType::Real)
        return std::nullopt;
    const auto by = TableNumberText::Parse(operand, cell.unit).number;
    bool ok = false;
    const double value = cell.value.toString().isEmpty() ? 0.0 : cell.value.toDouble(&ok);
    if (!by || (!ok && !cell.value.toString().isEmpty()))
        return std::nullopt;

    double result = value;
    switch (action) {
    case MultiEditAction::Add:
        result = value + *by;
        break;
    case MultiEditAction::Subtract:
        result = value - *by;
        break;
    case MultiEditAction::Multiply:
        result = value * *by;
        break;
    case MultiEditAction::Divide:
        if (*by == 0.0)
            return std::nullopt;
        result = value / *by;
        break;
    case MultiEditAction::Round:
        // To the nearest multiple of the operand; a zero step has no multiples to round to.
        if (*by == 0.0)
            return std::nullopt;
        result = std::round(value / *by) * *by;
        break;
    default:
        return std::nullopt;
    }
    if (!std::isfinite(result))
        return std::nullopt;
    if (cell.type == TableValueType::Integer) {
        // A result the host cannot hold leaves the cell as it is, as typing it would be refused.
        if (!TableCellText::FitsHostInteger(result)) {
            qCWarning(lcTables).noquote()
                << QStringLiteral("%1 is outside the integer range; the cell keeps %2")
                       .arg(result)
                       .arg(cell.value.toString());
            return std::nullopt;
        }
        result = std::round(result);
    }
    // A cell driven by a list of named values takes only the list's values: the result goes in as
    // the name that reads as it, and a result that no name reads as leaves the cell as it is.
    if (cell.usesParameter || !cell.parametersNames.isEmpty())
        return NamedValue(cell.parametersNames, result);
    if (cell.type == TableValueType::Integer)
        return QVariant::fromValue(static_cast<qlonglong>(result));
    return result;
}

std::optional<QVariant> MultiEditOperation::NamedValue(const QStringList& names, double value)
{
    for (const QString& name : names) {
        if (TableNumberText::Parse(name) == value)
            return name;
    }
    return std::nullopt;
}

std::optional<QVariant> MultiEditOperation::ApplyReplace(const Cell& cell, const QString& operand)
{
    const QStringList& names = !cell.parametersNames.isEmpty() ? cell.parametersNames : cell.allValues;
    if (cell.type == TableValueType::List || cell.usesParameter || !cell.parametersNames.isEmpty()) {
        for (const QString& name : names) {
            if (name.compare(operand.trimmed(), Qt::CaseInsensitive) == 0)
                return name;
        }
        if (cell.type == TableValueType::List || cell.usesParameter)
            return std::nullopt;
    }
    const QString value = TableCellText::CreateContentUpdateValue(operand, cell.type, cell.parametersNames,
                                                                  TableNumberText(), cell.unit);
    if (value.isNull())
        return std::nullopt;
    return value;
}

} // namespace Orvo::UI::UIComponents
