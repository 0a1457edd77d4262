#include "PropertyValueConversion.h"

#include "basiccomponents/NumberHelper.h"
#include "plugin/QtComponentsText.h"

#include <QColor>
#include <cmath>
#include <limits>

namespace Orvo::UI::UIComponents::PropertyValueConversion {

using Kernel::Framework::PropertyType;

namespace {

QString ChoiceText(std::int32_t index, const PropertyDefinition& definition)
{
    if (index < 0 || index >= definition.choiceIds.size())
        return {};
    return GetText(definition.choiceIds.at(index));
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
        const double number = BasicComponents::NumberHelper().fromEditValue(value.toString(), &ok);
        if (ok)
            return number;
    }
    return std::nullopt;
}

std::optional<PropertyValue> ReadBool(const QVariant& value)
{
    if (value.typeId() == QMetaType::Bool)
        return value.toBool();
    if (IsNumber(value))
        return value.toDouble() != 0.0;
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

std::optional<PropertyValue> ReadChoice(const QVariant& value, const PropertyDefinition& definition)
{
    if (IsNumber(value)) {
        const double index = value.toDouble();
        if (std::trunc(index) != index || index < 0 || index >= definition.choiceIds.size())
            return std::nullopt;
        return static_cast<std::int32_t>(index);
    }
    const QString text = value.toString();
    for (int index = 0; index < definition.choiceIds.size(); ++index) {
        if (GetText(definition.choiceIds.at(index)) == text || definition.choiceIds.at(index) == text)
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

QString ColorName(const QColor& color)
{
    return color.name(color.alpha() == 255 ? QColor::HexRgb : QColor::HexArgb);
}

} // namespace

QVariant ToVariant(const PropertyValue& value, const PropertyDefinition& definition)
{
    if (definition.type == PropertyType::List && std::holds_alternative<std::int32_t>(value))
        return ChoiceText(std::get<std::int32_t>(value), definition);
    return std::visit([](const auto& alternative) { return QVariant::fromValue(alternative); }, value);
}

MixedValues::Value ToMixedValue(const PropertyValue& value, const PropertyDefinition& definition)
{
    struct Converter
    {
        const PropertyDefinition& definition;
        MixedValues::Value operator()(bool v) const { return v; }
        MixedValues::Value operator()(std::int32_t v) const
        {
            if (definition.type == PropertyType::List)
                return ChoiceText(v, definition);
            return MixedValues::Integer { v };
        }
        MixedValues::Value operator()(double v) const { return v; }
        MixedValues::Value operator()(const QString& v) const { return v; }
        MixedValues::Value operator()(const QColor& v) const { return ColorName(v); }
    };
    return std::visit(Converter { definition }, value);
}

std::optional<PropertyValue> FromVariant(const QVariant& value, const PropertyDefinition& definition)
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
            return *number;
        return std::nullopt;
    case PropertyType::String:
        if (!value.canConvert<QString>())
            return std::nullopt;
        return value.toString();
    case PropertyType::List:
        return ReadChoice(value, definition);
    case PropertyType::Color:
        return ReadColor(value);
    }
    return std::nullopt;
}

} // namespace Orvo::UI::UIComponents::PropertyValueConversion
