#pragma once

#include "HostKitExport.h"
#include "PropertyValue.h"
#include "model/ModelMessage.h"
#include "model/Structure.h"

#include <QString>
#include <QStringList>
#include <functional>
#include <optional>
#include <vector>

namespace Orvo::Kernel::Framework {

// A named value a user may pick instead of typing one, such as a steel grade's yield strength.
struct NamedParameter
{
    QString nameId;
    PropertyValue value;
};

// Describes one property of an object type: its value type, where the panel files it, which
// values it accepts, and how it reads and writes the object's record in the structure. Texts are
// identifiers of the components' string table.
//
// Built by chaining on a temporary:
//     PropertyDefinition("node.x", PropertyType::Real, "UI_PROP_X").WithCategory(...).WithUnits("m", 3)
class HOSTKIT_EXPORT PropertyDefinition
{
public:
    // How the property reads and writes the record at an index of its kind's table. A writer
    // returns why it cannot take the value (a text that does not parse), or an empty message.
    using Reader = std::function<PropertyValue(const Model::Structure&, std::size_t)>;
    using Writer = std::function<Model::ModelMessage(Model::Structure&, std::size_t, const PropertyValue&)>;
    using Condition = std::function<bool(const Model::Structure&, std::size_t)>;
    using IllustrationChooser = std::function<QString(const Model::Structure&, std::size_t)>;

    PropertyDefinition(QString key, PropertyType type, QString nameId);

    PropertyDefinition& WithCategory(QString categoryId, QStringList subcategoryIds = {});
    PropertyDefinition& WithDefault(PropertyValue value);
    PropertyDefinition& WithRange(std::optional<double> minimum, std::optional<double> maximum);
    PropertyDefinition& WithUnits(QString units, int decimals);
    PropertyDefinition& WithChoices(QStringList choiceIds);
    PropertyDefinition& WithParameter(QString nameId, PropertyValue value);
    PropertyDefinition& WithIllustration(QString relativePath);
    PropertyDefinition& WithRichTextName();
    PropertyDefinition& AsAdvanced();
    PropertyDefinition& AsReadOnly();
    // A new object needs a value of its own for it (a member's nodes): tables ask for it.
    PropertyDefinition& AsRequired();
    PropertyDefinition& HiddenWhenValuesDiffer();
    // Without a writer the property is computed and read-only.
    PropertyDefinition& Bind(Reader reader, Writer writer = {});
    // The property exists on an object only while the condition holds (a flange thickness only
    // on I-sections).
    PropertyDefinition& AppliesWhen(Condition condition);
    PropertyDefinition& WithIllustrationFor(IllustrationChooser chooser);

    // Why value cannot be stored in this property, or an empty message when it can.
    Model::ModelMessage Check(const PropertyValue& value) const;
    bool AppliesTo(const Model::Structure& structure, std::size_t index) const;
    QString IllustrationFor(const Model::Structure& structure, std::size_t index) const;
    // The named parameter whose value the value is, or -1.
    int ParameterIndexOf(const PropertyValue& value) const;
    // Whether a user has moved the value away from its default (read-only values are the host's).
    bool DiffersFromDefault(const PropertyValue& value) const;
    // A readable message for logs.
    QString Describe(const Model::ModelMessage& message) const;

    QString key; // stable identifier, shared by object types that have the same property
    QString uuid; // derived from key, so it survives restarts
    PropertyType type;
    QString nameId;
    bool richTextName = false;
    QString categoryId;
    QStringList subcategoryIds; // nesting path below the category, outermost first
    PropertyValue defaultValue;
    bool hasDefault = false; // a reset to defaults leaves properties without one alone
    bool basic = true;
    bool readOnly = false;
    bool required = false;
    bool visibleWhenValuesDiffer = true;
    std::optional<double> minimum;
    std::optional<double> maximum;
    QString units;
    int decimals = 3;
    QStringList choiceIds;
    std::vector<NamedParameter> parameters;
    QString illustration; // image or QML drawing, relative to the application directory
    Reader read;
    Writer write;
    Condition applies;
    IllustrationChooser illustrationChooser;
};

} // namespace Orvo::Kernel::Framework
