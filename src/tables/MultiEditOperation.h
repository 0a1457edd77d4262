#pragma once

#include "MultiEditAction.h"
#include "TableValueType.h"

#include <QString>
#include <QStringList>
#include <QVariant>
#include <optional>

namespace Orvo::UI::UIComponents {

// What one multi-edit operator (numbered as MultiEditAction::Action) does to one cell's value.
class MultiEditOperation
{
public:
    struct Cell
    {
        QVariant value; // what the cell shows now: a pending edit or the cached content
        TableValueType type = TableValueType::Unknown;
        QStringList parametersNames; // names a list or parameter cell can take
        QStringList allValues; // choices of a list cell
        bool usesParameter = false; // the cell shows one of its parameter names
        QString unit; // of the column's numbers: "+5cm" adds 0.05 to a column in metres
    };

    // The new value of the cell, or nullopt when the operator leaves it as it is.
    static std::optional<QVariant> Apply(int action, const Cell& cell, const QString& operand);

private:
    static std::optional<QVariant> ApplyArithmetic(int action, const Cell& cell, const QString& operand);
    static std::optional<QVariant> ApplyReplace(const Cell& cell, const QString& operand);
    static std::optional<QVariant> NamedValue(const QStringList& names, double value);
};

} // namespace Orvo::UI::UIComponents
