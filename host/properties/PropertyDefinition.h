#pragma once

#include "HostKitExport.h"
#include "PropertyValue.h"

#include <QString>
#include <QStringList>
#include <optional>
#include <vector>

namespace Orvo::Kernel::Framework {

// A named value a user may pick instead of typing one, such as a steel grade's yield strength.
struct NamedParameter
{
    QString nameId;
    PropertyValue value;
};

// Describes one property of an object type: its value type, where the panel files it, and
// which values it accepts. Texts are identifiers of the components' string table.
//
// Built by chaining on a temporary:
//     PropertyDefinition("node.x", PropertyType::Real, "UI_PROP_X").WithCategory(...).WithUnits("m", 3)
class HOSTKIT_EXPORT PropertyDefinition
{
public:
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
    PropertyDefinition& HiddenWhenValuesDiffer();

    // Why value cannot be stored in this property, or an empty string when it can.
    QString Check(const PropertyValue& value) const;

    QString key; // stable identifier, shared by object types that have the same property
    QString uuid; // derived from key, so it survives restarts
    PropertyType type;
    QString nameId;
    bool richTextName = false;
    QString categoryId;
    QStringList subcategoryIds; // nesting path below the category, outermost first
    PropertyValue defaultValue;
    bool basic = true;
    bool readOnly = false;
    bool visibleWhenValuesDiffer = true;
    std::optional<double> minimum;
    std::optional<double> maximum;
    QString units;
    int decimals = 3;
    QStringList choiceIds;
    std::vector<NamedParameter> parameters;
    QString illustration; // image or QML drawing, relative to the application directory
};

} // namespace Orvo::Kernel::Framework
