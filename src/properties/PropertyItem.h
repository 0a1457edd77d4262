#pragma once

#include "properties/PropertyDefinition.h"
#include "valueentry/MixedValues.h"

#include <QString>
#include <vector>

namespace Orvo::UI::UIComponents {

// What the shown objects hold for one property.
struct PropertyItemValues
{
    enum HighlightState : int
    {
        Default = 0, // every object holds the default
        DefaultModified = 1, // at least one object holds another value (editable properties only)
        Error = 3, // at least one value lies outside what the property accepts
    };

    MixedValues distinct; // the distinct values, in the order of the objects
    std::size_t distinctCount = 0; // distinct holds offered actions after the values
    Kernel::Framework::PropertyValue first = false;
    std::vector<int> parameterIndices; // per distinct value: its named parameter, or -1
    int highlight = Default;

    bool SameAs(const PropertyItemValues& other) const
    {
        return distinct.GetVariantList() == other.distinct.GetVariantList() && first == other.first
            && highlight == other.highlight;
    }
};

// One row of the properties list: a category header, a subcategory header or a property.
struct PropertyItem
{
    int type = 0; // PropertiesRoles::c_categoryType, c_subcategoryType or a PropertyType
    QString name; // display text
    QString category; // identifier of the category the row belongs to
    int level = 0; // subcategory depth, 1 directly below the category
    const Kernel::Framework::PropertyDefinition* definition = nullptr; // property rows only
    PropertyItemValues values;
    bool collapsed = false;

    bool IsProperty() const { return definition != nullptr; }
};

} // namespace Orvo::UI::UIComponents
