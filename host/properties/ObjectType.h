#pragma once

#include "HostKitExport.h"
#include "PropertyDefinition.h"

#include <QString>
#include <functional>
#include <vector>

namespace Orvo::Kernel::Framework {

class StructuralObject;

// Something a user can do to objects of a type from the properties panel. apply changes one
// object and tells whether it changed anything.
struct ObjectAction
{
    QString key;
    QString nameId;
    std::function<bool(StructuralObject&)> apply;
};

// A kind of object in the structural model (node, member, load case): its properties in
// display order and the actions it offers.
class HOSTKIT_EXPORT ObjectType
{
public:
    ObjectType(QString key, QString nameId, QString pluralNameId);

    // Throws std::invalid_argument when the key is taken or the default does not fit.
    ObjectType& AddProperty(PropertyDefinition definition);
    ObjectType& AddAction(ObjectAction action);

    const QString& Key() const { return m_key; }
    const QString& NameId() const { return m_nameId; }
    const QString& PluralNameId() const { return m_pluralNameId; }
    const std::vector<PropertyDefinition>& Properties() const { return m_properties; }
    const std::vector<ObjectAction>& Actions() const { return m_actions; }
    const PropertyDefinition* FindProperty(const QString& key) const;
    const ObjectAction* FindAction(const QString& key) const;

private:
    QString m_key;
    QString m_nameId;
    QString m_pluralNameId;
    std::vector<PropertyDefinition> m_properties;
    std::vector<ObjectAction> m_actions;
};

} // namespace Orvo::Kernel::Framework
