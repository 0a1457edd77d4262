#include "PropertyDefinition.h"

#include <QUuid>
#include <algorithm>
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
    hasDefault = true;
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

PropertyDefinition& PropertyDefinition::AsRequired()
{
    required = true;
    return *this;
}

PropertyDefinition& PropertyDefinition::HiddenWhenValuesDiffer()
{
    visibleWhenValuesDiffer = false;
    return *this;
}

PropertyDefinition& PropertyDefinition::Bind(Reader reader, Writer writer)
{
    read = std::move(reader);
    write = std::move(writer);
    if (!write)
        readOnly = true;
    return *this;
}

PropertyDefinition& PropertyDefinition::AppliesWhen(Condition condition)
{
    applies = std::move(condition);
    return *this;
}

PropertyDefinition& PropertyDefinition::WithIllustrationFor(IllustrationChooser chooser)
{
    illustrationChooser = std::move(chooser);
    return *this;
}

bool PropertyDefinition::AppliesTo(const Model::Structure& structure, std::size_t index) const
{
    return !applies || applies(structure, index);
}

QString PropertyDefinition::IllustrationFor(const Model::Structure& structure, std::size_t index) const
{
    return illustrationChooser ? illustrationChooser(structure, index) : illustration;
}

int PropertyDefinition::ParameterIndexOf(const PropertyValue& value) const
{
    auto it = std::find_if(parameters.begin(), parameters.end(),
                           [&value](const NamedParameter& parameter) { return parameter.value == value; });
    return it == parameters.end() ? -1 : int(it - parameters.begin());
}

bool PropertyDefinition::DiffersFromDefault(const PropertyValue& value) const
{
    return !readOnly && hasDefault && value != defaultValue;
}

QString PropertyDefinition::Describe(const Model::ModelMessage& message) const
{
    return QStringLiteral("%1: %2").arg(key, message.ToText(nullptr));
}

Model::ModelMessage PropertyDefinition::Check(const PropertyValue& value) const
{
    using Model::ModelMessage;
    if (value.index() != ValueIndexOf(type))
        return ModelMessage(QStringLiteral("UI_MODEL_ERROR_WRONG_TYPE"), { DescribeValue(value) });

    const auto outOfRange = [this](double number) -> ModelMessage {
        if (minimum && number < *minimum)
            return ModelMessage(QStringLiteral("UI_MODEL_ERROR_BELOW_MINIMUM"), { number, *minimum });
        if (maximum && number > *maximum)
            return ModelMessage(QStringLiteral("UI_MODEL_ERROR_ABOVE_MAXIMUM"), { number, *maximum });
        return {};
    };
    switch (type) {
    case PropertyType::Integer:
        return outOfRange(std::get<std::int32_t>(value));
    case PropertyType::Real: {
        const double number = std::get<double>(value);
        if (!std::isfinite(number))
            return ModelMessage(QStringLiteral("UI_MODEL_ERROR_NOT_A_NUMBER"));
        return outOfRange(number);
    }
    case PropertyType::List: {
        const auto choice = std::get<std::int32_t>(value);
        if (choice < 0 || choice >= choiceIds.size())
            return ModelMessage(QStringLiteral("UI_MODEL_ERROR_NO_CHOICE"), { QString::number(choice) });
        return {};
    }
    case PropertyType::Color:
        return std::get<QColor>(value).isValid()
            ? ModelMessage()
            : ModelMessage(QStringLiteral("UI_MODEL_ERROR_NOT_A_COLOUR"));
    case PropertyType::Bool:
    case PropertyType::String:
        return {};
    }
    return {};
}

} // namespace Orvo::Kernel::Framework
