#include "PropertyRowsBuilder.h"

#include "PropertiesRoles.h"
#include "plugin/QtComponentsText.h"

#include <memory>

namespace Orvo::UI::UIComponents {

using Kernel::Framework::PropertyDefinition;

namespace {

struct Group
{
    QString id;
    std::vector<const PropertyDefinition*> properties;
    std::vector<std::unique_ptr<Group>> children;

    Group& Child(const QString& childId)
    {
        for (auto& child : children) {
            if (child->id == childId)
                return *child;
        }
        children.push_back(std::make_unique<Group>());
        children.back()->id = childId;
        return *children.back();
    }
};

PropertyItem PropertyRow(const PropertyDefinition& definition, const QString& category)
{
    PropertyItem item;
    item.type = static_cast<int>(definition.type);
    item.name = GetText(definition.nameId);
    item.category = category;
    item.definition = &definition;
    return item;
}

void Flatten(const Group& group, const QString& category, int level, std::vector<PropertyItem>& rows)
{
    for (const PropertyDefinition* definition : group.properties)
        rows.push_back(PropertyRow(*definition, category));
    for (const auto& child : group.children) {
        PropertyItem header;
        header.type = PropertiesRoles::c_subcategoryType;
        header.name = GetText(child->id);
        header.category = category;
        header.level = level + 1;
        rows.push_back(std::move(header));
        Flatten(*child, category, level + 1, rows);
    }
}

} // namespace

std::vector<PropertyItem>
PropertyRowsBuilder::Build(const std::vector<const PropertyDefinition*>& definitions)
{
    Group root; // children are the categories
    for (const PropertyDefinition* definition : definitions) {
        if (definition->categoryId.isEmpty()) {
            root.properties.push_back(definition);
            continue;
        }
        Group* group = &root.Child(definition->categoryId);
        for (const QString& subcategory : definition->subcategoryIds)
            group = &group->Child(subcategory);
        group->properties.push_back(definition);
    }

    std::vector<PropertyItem> rows;
    for (const PropertyDefinition* definition : root.properties)
        rows.push_back(PropertyRow(*definition, QString()));
    for (const auto& category : root.children) {
        PropertyItem header;
        header.type = PropertiesRoles::c_categoryType;
        header.name = GetText(category->id);
        header.category = category->id;
        rows.push_back(std::move(header));
        Flatten(*category, category->id, 0, rows);
    }
    return rows;
}

} // namespace Orvo::UI::UIComponents
