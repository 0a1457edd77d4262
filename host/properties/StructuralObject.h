#pragma once

#include "HostKitExport.h"
#include "ObjectType.h"
#include "PropertyValue.h"

#include <QHash>
#include <memory>

namespace Orvo::Kernel::Framework {

// One object of the structural model. Properties it was never given hold their defaults.
class HOSTKIT_EXPORT StructuralObject
{
public:
    enum class SetResult
    {
        Changed,
        Unchanged,
        Rejected,
    };

    StructuralObject(ObjectId id, std::shared_ptr<const ObjectType> type);

    ObjectId Id() const { return m_id; }
    const ObjectType& Type() const { return *m_type; }
    std::shared_ptr<const ObjectType> SharedType() const { return m_type; }

    bool HasProperty(const QString& key) const;
    // Throws std::invalid_argument for a key the type does not have.
    PropertyValue Value(const QString& key) const;
    // Rejects (and explains in rejection, when given) a key the type does not have and a value
    // the property does not accept; read-only properties are the host's to write.
    SetResult SetValue(const QString& key, const PropertyValue& value, QString* rejection = nullptr);

private:
    ObjectId m_id;
    std::shared_ptr<const ObjectType> m_type;
    QHash<QString, PropertyValue> m_values;
};

} // namespace Orvo::Kernel::Framework
