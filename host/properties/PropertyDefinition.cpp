#include "PropertyDefinition.h"

#include <QUuid>
#include <cmath>
#include <stdexcept>

namespace Orvo::Kernel::Framework {

namespace {

// Namespace of the name-based property UUIDs; fixed so that a key always gives the same UUID.
const QUuid c_propertyUuidNamespace(QStringLiteral("{6f1c2b4e-9a57-4c1e-8d3b-2f0a7e5c9b11}"));

} // namespace

PropertyDefinition::PropertyDefinition(QString key_, PropertyType type_, QString nameId_)
    : key(std::move(key_))
    , uuid(QUuid::createUuidV5(c_propertyUuidNamespace, key).toString(QUuid::WithoutBraces))
    , type(type_)
    , nameId(std::move(nameId_))
    , defaultValue(DefaultValueOf(type_))
{
    if (key.isEmpty())
        throw std::invalid_argument("A property needs a key");
    if (ValueIndexOf(type) == std::variant_npos)
        throw std::invalid_argument("Unknown property type");
}

PropertyDefinition& PropertyDefinition::WithCategory(QString categoryId_, QStringList subcategoryIds_)
{
    categoryId = std::move(categoryId_);
    subcategoryIds = std::move(subcategoryIds_);
    return *this;
}

PropertyDefinition& PropertyDefinition::WithDefault(PropertyValue value)
{
    defaultValue = std::move(value);
    return *this;
}

PropertyDefinition& PropertyDefinition::WithRange(std::optional<double> minimum_,
                                                  std::optional<double> maximum_)
{
    if (minimum_ && maximum_ && *minimum_ > *maximum_)
        throw std::invalid_argument("A property's minimum is above its maximum");
    minimum = minimum_;
    maximum = maximum_;
    return *this;
}

PropertyDefinition& PropertyDefinition::WithUnits(QString units_, int decimals_)
{
    units = std::move(units_);
    decimals = decimals_;
    return *this;
}

PropertyDefinition& PropertyDefinition::WithChoices(QStringList choiceIds_)
{
    choiceIds = std::move(choiceIds_);
    return *this;
}

PropertyDefinition& PropertyDefinition::WithParameter(QString nameId_, PropertyValue value)
{
    parameters.push_back({ std::move(nameId_), std::move(value) });
    return *this;
}

PropertyDefinition& PropertyDefinition::WithIllustration(QString relativePath)
{
    illustration = std::move(relativePath);
    return *this;
}

PropertyDefinition& PropertyDefinition::WithRichTextName()
{
    richTextName = true;
    return *this;
}

PropertyDefinition& PropertyDefinition::AsAdvanced()
{
    basic = false;
    return *this;
}

PropertyDefinition& PropertyDefinition::AsReadOnly()
{
    readOnly = true;
    return *this;
}

PropertyDefinition& PropertyDefinition::HiddenWhenValuesDiffer()
{
    visibleWhenValuesDiffer = false;
    return *this;
}

QString PropertyDefinition::Check(const PropertyValue& value) const
{
    if (value.index() != ValueIndexOf(type))
        return QStringLiteral("%1 takes a %2 value, not %3").arg(key, TypeName(type), DescribeValue(value));

    const auto outOfRange = [this](double number) -> QString {
        if (minimum && number < *minimum)
            return QStringLiteral("%1: %2 is below the minimum %3").arg(key).arg(number).arg(*minimum);
        if (maximum && number > *maximum)
            return QStringLiteral("%1: %2 is above the maximum %3").arg(key).arg(number).arg(*maximum);
        return {};
    };
    switch (type) {
    case PropertyType::Integer:
        return outOfRange(std::get<std::int32_t>(value));
    case PropertyType::Real: {
        const double number = std::get<double>(value);
        if (!std::isfinite(number))
            return QStringLiteral("%1: %2 is not a finite number").arg(key, DescribeValue(value));
        return outOfRange(number);
    }
    case PropertyType::List: {
        const auto choice = std::get<std::int32_t>(value);
        if (choice < 0 || choice >= choiceIds.size())
            return QStringLiteral("%1: choice %2 does not exist").arg(key).arg(choice);
        return {};
    }
    case PropertyType::Color:
        return std::get<QColor>(value).isValid() ? QString() : QStringLiteral("%1: invalid colour").arg(key);
    case PropertyType::Bool:
    case PropertyType::String:
        return {};
    }
    return {};
}

} // namespace Orvo::Kernel::Framework
