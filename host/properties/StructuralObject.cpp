#include "StructuralObject.h"

#include <stdexcept>

namespace Orvo::Kernel::Framework {

StructuralObject::StructuralObject(ObjectId id, std::shared_ptr<const ObjectType> type)
    : m_id(id)
    , m_type(std::move(type))
{
    if (!m_type)
        throw std::invalid_argument("An object needs a type");
}

bool StructuralObject::HasProperty(const QString& key) const
{
    return m_type->FindProperty(key) != nullptr;
}

PropertyValue StructuralObject::Value(const QString& key) const
{
    const PropertyDefinition* definition = m_type->FindProperty(key);
    if (!definition)
        throw std::invalid_argument("The object's type has no such property");
    auto it = m_values.constFind(key);
    return it == m_values.constEnd() ? definition->defaultValue : *it;
}

StructuralObject::SetResult StructuralObject::SetValue(const QString& key, const PropertyValue& value,
                                                       QString* rejection)
{
    const PropertyDefinition* definition = m_type->FindProperty(key);
    QString problem = definition ? definition->Check(value)
                                 : QStringLiteral("%1 has no property %2").arg(m_type->Key(), key);
    if (!problem.isEmpty()) {
        if (rejection)
            *rejection = problem;
        return SetResult::Rejected;
    }
    if (Value(key) == value)
        return SetResult::Unchanged;
    m_values.insert(key, value);
    return SetResult::Changed;
}

} // namespace Orvo::Kernel::Framework
