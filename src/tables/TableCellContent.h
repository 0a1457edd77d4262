#pragma once

#include "TableValueType.h"

#include <QString>
#include <QStringList>
#include <QVariant>
#include <QVariantList>
#include <cstdint>
#include <optional>

namespace Orvo::UI::UIComponents {

// One table cell as the host delivers it: a plain value record, copied freely.
struct TableCellContent
{
    enum HighlightState : std::int32_t
    {
        Default = 0,
        DefaultModified = 1,
        UserDefined = 2,
        Error = 3,
    };

    QVariant content;
    QString text; // display text when it differs from the value; a colour cell's colour name
    QStringList allValues; // choices of a list cell
    std::int32_t parameterIndex = -1; // when set, the cell shows parametersNames[parameterIndex]
    QStringList parametersNames;
    QVariantList parametersValues;
    TableValueType valueType = TableValueType::Unknown; // used when the column has no type of its own
    std::int32_t adapterWord1 = 0; // owned by the column data adapter; the model does not read it
    std::int32_t adapterWord2 = 0;
    std::optional<std::int16_t> decimals;
    bool editable = false;
    bool hasAction = false;
    bool bold = false;
    std::int32_t highlightState = Default;
};

} // namespace Orvo::UI::UIComponents
