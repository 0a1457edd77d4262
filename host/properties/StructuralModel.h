#pragma once

#include "HostKitExport.h"
#include "ObjectType.h"
#include "PropertyValue.h"
#include "StructuralObject.h"

#include <functional>
#include <map>
#include <memory>
#include <vector>

namespace Orvo::Kernel::Framework {

class EventBus;

// The host's structural model as the UI sees it: objects with typed properties, and the
// current selection. Every change is announced on the event bus (StructuralModelEvents.h).
// Lives on the GUI thread.
class HOSTKIT_EXPORT StructuralModel
{
public:
    struct EditResult
    {
        int changed = 0;
        int unchanged = 0;
        int rejected = 0;
    };

    struct ActionInfo
    {
        QString key;
        QString nameId;
    };

    // Offered for every object: puts every editable property back to its default.
    static inline const QString c_resetToDefaultsAction = QStringLiteral("object.resetToDefaults");
    // When a type has this property, an object's number is written into it on creation.
    static inline const QString c_numberProperty = QStringLiteral("general.number");

    explicit StructuralModel(std::shared_ptr<EventBus> eventBus = nullptr);
    StructuralModel(const StructuralModel&) = delete;
    StructuralModel& operator=(const StructuralModel&) = delete;

    // Throws std::invalid_argument when a type of that key exists.
    const ObjectType& RegisterType(ObjectType type);
    const ObjectType* FindType(const QString& key) const;

    // Throws std::invalid_argument for an unknown type.
    ObjectId AddObject(const QString& typeKey);
    bool RemoveObject(ObjectId id);
    void Clear();
    const StructuralObject* FindObject(ObjectId id) const;
    std::vector<const StructuralObject*> Objects() const;

    // Unknown ids and repetitions are dropped; the order of first appearance is kept.
    void Select(const std::vector<ObjectId>& ids);
    const std::vector<ObjectId>& Selection() const { return m_selection; }

    // A user's edit: refuses read-only properties and values the property does not accept,
    // skips objects that do not have the property.
    EditResult SetValue(const std::vector<ObjectId>& ids, const QString& key, const PropertyValue& value);
    EditResult ResetToDefault(const std::vector<ObjectId>& ids, const QString& key);
    // The host's own write (loading, computed values): read-only properties included.
    bool Assign(ObjectId id, const QString& key, const PropertyValue& value);

    // The actions every one of the objects offers, the reset first.
    std::vector<ActionInfo> ActionsFor(const std::vector<ObjectId>& ids) const;
    // Returns how many objects the action changed.
    int RunAction(const std::vector<ObjectId>& ids, const QString& actionKey);

private:
    using ValueFor = std::function<const PropertyValue&(const PropertyDefinition&)>;

    EditResult Edit(const std::vector<ObjectId>& ids, const QString& key, const ValueFor& valueFor);
    StructuralObject* Find(ObjectId id);
    bool ResetAllToDefaults(StructuralObject& object);
    void NotifyValuesChanged(std::vector<ObjectId> ids, const QString& key);
    void NotifySelectionChanged();
    void NotifyStructureChanged();

    std::shared_ptr<EventBus> m_eventBus;
    std::map<QString, std::shared_ptr<const ObjectType>> m_types;
    std::map<ObjectId, std::unique_ptr<StructuralObject>> m_objects;
    std::vector<ObjectId> m_selection;
    ObjectId m_nextId = 1;
};

} // namespace Orvo::Kernel::Framework
