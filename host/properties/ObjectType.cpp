#include "ObjectType.h"

#include <algorithm>
#include <stdexcept>

namespace Orvo::Kernel::Framework {

ObjectType::ObjectType(Model::ObjectKind kind, QString key)
    : m_kind(kind)
    , m_key(std::move(key))
    , m_nameId(Model::ModelMessage::KindNameId(kind))
    , m_pluralNameId(Model::ModelMessage::KindPluralNameId(kind))
{ }

ObjectType& ObjectType::AddProperty(PropertyDefinition definition)
{
    if (FindProperty(definition.key))
        throw std::invalid_argument("An object type has two properties with one key");
    if (definition.hasDefault && !definition.Check(definition.defaultValue).IsEmpty())
        throw std::invalid_argument("A property's default value does not fit the property");
    if (!definition.read)
        throw std::invalid_argument("A property needs a reader");
    m_properties.push_back(std::move(definition));
    return *this;
}

ObjectType& ObjectType::AddAction(ObjectAction action)
{
    if (!action.apply || FindAction(action.key))
        throw std::invalid_argument("An object action needs a unique key and a function");
    m_actions.push_back(std::move(action));
    return *this;
}

const PropertyDefinition* ObjectType::FindProperty(const QString& key) const
{
    auto it = std::find_if(m_properties.begin(), m_properties.end(),
                           [&key](const PropertyDefinition& definition) { return definition.key == key; });
    return it == m_properties.end() ? nullptr : &*it;
}

const ObjectAction* ObjectType::FindAction(const QString& key) const
{
    auto it = std::find_if(m_actions.begin(), m_actions.end(),
                           [&key](const ObjectAction& action) { return action.key == key; });
    return it == m_actions.end() ? nullptr : &*it;
}

} // namespace Orvo::Kernel::Framework
