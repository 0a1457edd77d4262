#pragma once

#include "HostKitExport.h"
#include "PropertyDefinition.h"

#include <QString>
#include <functional>
#include <vector>

namespace Orvo::Kernel::Framework {

// Something a user can do to objects of a type from the properties panel. apply changes the
// record at an index of the kind's table; the model checks the result and keeps it or not.
struct ObjectAction
{
    QString key;
    QString nameId;
    std::function<void(Model::Structure&, std::size_t)> apply;
    // The property whose table cell carries the action's button; empty: offered in panels only.
    QString cellPropertyKey;
};

// A kind of object in the structural model (node, member, load case) as users see it: its
// properties in display order and the actions it offers.
class HOSTKIT_EXPORT ObjectType
{
public:
    ObjectType(Model::ObjectKind kind, QString key);

    // Throws std::invalid_argument when the key is taken or the default does not fit.
    ObjectType& AddProperty(PropertyDefinition definition);
    ObjectType& AddAction(ObjectAction action);

    Model::ObjectKind Kind() const { return m_kind; }
    const QString& Key() const { return m_key; }
    const QString& NameId() const { return m_nameId; }
    const QString& PluralNameId() const { return m_pluralNameId; }
    const std::vector<PropertyDefinition>& Properties() const { return m_properties; }
    const std::vector<ObjectAction>& Actions() const { return m_actions; }
    const PropertyDefinition* FindProperty(const QString& key) const;
    const ObjectAction* FindAction(const QString& key) const;

private:
    Model::ObjectKind m_kind;
    QString m_key;
    QString m_nameId;
    QString m_pluralNameId;
    std::vector<PropertyDefinition> m_properties;
    std::vector<ObjectAction> m_actions;
};

} // namespace Orvo::Kernel::Framework
