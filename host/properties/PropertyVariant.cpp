#include "PropertyVariant.h"

#include "basiccomponents/DisplayUnits.h"

#include "basiccomponents/NumberHelper.h"

#include <QColor>
#include <cmath>
#include <limits>

namespace Orvo::Kernel::Framework {

namespace {

QString Text(const QString& id, const IStringLoader* strings)
{
    return Model::ModelMessage(id).ToText(strings);
}

bool IsNumber(const QVariant& value)
{
    switch (value.typeId()) {
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
    case QMetaType::Long:
    case QMetaType::ULong:
    case QMetaType::Short:
    case QMetaType::UShort:
    case QMetaType::Double:
    case QMetaType::Float:
        return true;
    default:
        return false;
    }
}

std::optional<double> ReadNumber(const QVariant& value)
{
    if (IsNumber(value))
        return value.toDouble();
    if (value.typeId() == QMetaType::QString) {
        bool ok = false;
        const double number = UI::BasicComponents::NumberHelper().fromEditValue(value.toString(), &ok);
        if (ok)
            return number;
    }
    return std::nullopt;
}

std::optional<PropertyValue> ReadBool(const QVariant& value)
{
    if (value.typeId() == QMetaType::Bool)
        return value.toBool();
    if (const auto number = ReadNumber(value))
        return *number != 0.0;
    const QString text = value.toString().trimmed().toLower();
    if (text == QLatin1String("true"))
        return true;
    if (text == QLatin1String("false"))
        return false;
    return std::nullopt;
}

std::optional<PropertyValue> ReadInteger(const QVariant& value)
{
    const auto number = ReadNumber(value);
    if (!number || std::trunc(*number) != *number || *number < std::numeric_limits<std::int32_t>::min()
        || *number > std::numeric_limits<std::int32_t>::max())
        return std::nullopt;
    return static_cast<std::int32_t>(*number);
}

std::optional<PropertyValue> ReadChoice(const QVariant& value, const PropertyDefinition& definition,
                                        const IStringLoader* strings)
{
    if (IsNumber(value)) {
        const double index = value.toDouble();
        if (std::trunc(index) != index || index < 0 || index >= definition.choiceIds.size())
            return std::nullopt;
        return static_cast<std::int32_t>(index);
    }
    const QString text = value.toString().trimmed();
    for (int index = 0; index < definition.choiceIds.size(); ++index) {
        const QString& id = definition.choiceIds.at(index);
        if (id == text || Text(id, strings).compare(text, Qt::CaseInsensitive) == 0)
            return static_cast<std::int32_t>(index);
    }
    return std::nullopt;
}

std::optional<PropertyValue> ReadColor(const QVariant& value)
{
    QColor color
        = value.typeId() == QMetaType::QColor ? value.value<QColor>() : QColor::fromString(value.toString());
    if (!color.isValid())
        return std::nullopt;
    return color;
}

} // namespace

QString PropertyVariant::ChoiceText(std::int32_t index, const PropertyDefinition& definition,
                                    const IStringLoader* strings)
{
    if (index < 0 || index >= definition.choiceIds.size())
        return {};
    return Text(definition.choiceIds.at(index), strings);
}

QVariant PropertyVariant::ToVariant(const PropertyValue& value, const PropertyDefinition& definition,
                                    const IStringLoader* strings,
                                    const UI::BasicComponents::DisplayUnits* units)
{
    if (definition.type == PropertyType::List && std::holds_alternative<std::int32_t>(value))
        return ChoiceText(std::get<std::int32_t>(value), definition, strings);
    if (const auto* number = std::get_if<double>(&value); number && units)
        return units->ForStoredUnit(definition.units, definition.decimals).ToShown(*number);
    return std::visit([](const auto& alternative) { return QVariant::fromValue(alternative); }, value);
}

std::optional<PropertyValue> PropertyVariant::FromVariant(const QVariant& value,
                                                          const PropertyDefinition& definition,
                                                          const IStringLoader* strings,
                                                          const UI::BasicComponents::DisplayUnits* units)
{
    if (!value.isValid() || value.isNull())
        return std::nullopt;
    switch (definition.type) {
    case PropertyType::Bool:
        return ReadBool(value);
    case PropertyType::Integer:
        return ReadInteger(value);
    case PropertyType::Real:
        if (auto number = ReadNumber(value))
            return units ? units->ForStoredUnit(definition.units, definition.decimals).FromShown(*number)
                         : *number;
        return std::nullopt;
    case PropertyType::String:
        if (!value.canConvert<QString>())
            return std::nullopt;
        return value.toString();
    case PropertyType::List:
        return ReadChoice(value, definition, strings);
    case PropertyType::Color:
        return ReadColor(value);
    }
    return std::nullopt;
}

} // namespace Orvo::Kernel::Framework
