#include "PropertyValueConversion.h"

#include "framework/IStringLoader.h"
#include "framework/ServiceCatalog.h"
#include "properties/PropertyVariant.h"

#include <QColor>

namespace Orvo::UI::UIComponents::PropertyValueConversion {

using Kernel::Framework::IStringLoader;
using Kernel::Framework::PropertyType;
using Kernel::Framework::PropertyVariant;
using Kernel::Framework::ServiceCatalog;

namespace {

std::shared_ptr<const IStringLoader> Strings()
{
    return ServiceCatalog::Global()->Get<IStringLoader>();
}

std::shared_ptr<const BasicComponents::DisplayUnits> Units()
{
    return ServiceCatalog::Global()->Get<BasicComponents::DisplayUnits>();
}

QString ColorName(const QColor& color)
{
    return color.name(color.alpha() == 255 ? QColor::HexRgb : QColor::HexArgb);
}

} // namespace

BasicComponents::DisplayUnits::Shown Shown(const PropertyDefinition& definition)
{
    if (const auto units = Units())
        return units->ForStoredUnit(definition.units, definition.decimals);
    return { definition.units, 1.0, definition.decimals };
}

QVariant ToVariant(const PropertyValue& value, const PropertyDefinition& definition)
{
    return PropertyVariant::ToVariant(value, definition, Strings().get(), Units().get());
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
                return PropertyVariant::ChoiceText(v, definition, Strings().get());
            return MixedValues::Integer { v };
        }
        MixedValues::Value operator()(double v) const { return Shown(definition).ToShown(v); }
        MixedValues::Value operator()(const QString& v) const { return v; }
        MixedValues::Value operator()(const QColor& v) const { return ColorName(v); }
    };
    return std::visit(Converter { definition }, value);
}

std::optional<PropertyValue> FromVariant(const QVariant& value, const PropertyDefinition& definition)
{
    return PropertyVariant::FromVariant(value, definition, Strings().get(), Units().get());
}

} // namespace Orvo::UI::UIComponents::PropertyValueConversion
