#include "StructuralModel.h"

#include "StructuralModelEvents.h"
#include "framework/Debug.h"
#include "framework/EventBus.h"

#include <algorithm>
#include <stdexcept>
#include <unordered_set>

namespace Orvo::Kernel::Framework {

StructuralModel::StructuralModel(std::shared_ptr<EventBus> eventBus)
    : m_eventBus(std::move(eventBus))
{ }

const ObjectType& StructuralModel::RegisterType(ObjectType type)
{
    if (m_types.count(type.Key()))
        throw std::invalid_argument("An object type of that key is registered already");
    auto shared = std::make_shared<const ObjectType>(std::move(type));
    m_types.emplace(shared->Key(), shared);
    return *shared;
}

const ObjectType* StructuralModel::FindType(const QString& key) const
{
    auto it = m_types.find(key);
    return it == m_types.end() ? nullptr : it->second.get();
}

ObjectId StructuralModel::AddObject(const QString& typeKey)
{
    auto type = m_types.find(typeKey);
    if (type == m_types.end())
        throw std::invalid_argument("No object type of that key is registered");
    const ObjectId id = m_nextId++;
    auto object = std::make_unique<StructuralObject>(id, type->second);
    if (object->HasProperty(c_numberProperty))
        object->SetValue(c_numberProperty, PropertyValue { std::int32_t { id } });
    m_objects.emplace(id, std::move(object));
    NotifyStructureChanged();
    return id;
}

bool StructuralModel::RemoveObject(ObjectId id)
{
    if (m_objects.erase(id) == 0)
        return false;
    auto selected = std::find(m_selection.begin(), m_selection.end(), id);
    if (selected != m_selection.end()) {
        m_selection.erase(selected);
        NotifySelectionChanged();
    }
    NotifyStructureChanged();
    return true;
}

void StructuralModel::Clear()
{
    m_objects.clear();
    if (!m_selection.empty()) {
        m_selection.clear();
        NotifySelectionChanged();
    }
    NotifyStructureChanged();
}

const StructuralObject* StructuralModel::FindObject(ObjectId id) const
{
    auto it = m_objects.find(id);
    return it == m_objects.end() ? nullptr : it->second.get();
}

StructuralObject* StructuralModel::Find(ObjectId id)
{
    auto it = m_objects.find(id);
    return it == m_objects.end() ? nullptr : it->second.get();
}

std::vector<const StructuralObject*> StructuralModel::Objects() const
{
    std::vector<const StructuralObject*> objects;
    objects.reserve(m_objects.size());
    for (const auto& [id, object] : m_objects)
        objects.push_back(object.get());
    return objects;
}

void StructuralModel::Select(const std::vector<ObjectId>& ids)
{
    std::vector<ObjectId> selection;
    std::unordered_set<ObjectId> seen;
    for (ObjectId id : ids) {
        if (!m_objects.count(id)) {
            DebugOutput(QStringLiteral("Selection: object %1 does not exist and is left out").arg(id));
            continue;
        }
        if (seen.insert(id).second)
            selection.push_back(id);
    }
    if (selection == m_selection)
        return;
    m_selection = std::move(selection);
    NotifySelectionChanged();
}

StructuralModel::EditResult StructuralModel::SetValue(const std::vector<ObjectId>& ids, const QString& key,
                                                      const PropertyValue& value)
{
    return Edit(ids, key, [&value](const PropertyDefinition&) -> const PropertyValue& { return value; });
}

StructuralModel::EditResult StructuralModel::ResetToDefault(const std::vector<ObjectId>& ids,
                                                            const QString& key)
{
    // Kinds of object may share a property but not its default: each gets its own.
    return Edit(ids, key, [](const PropertyDefinition& definition) -> const PropertyValue& {
        return definition.defaultValue;
    });
}

StructuralModel::EditResult StructuralModel::Edit(const std::vector<ObjectId>& ids, const QString& key,
                                                  const ValueFor& valueFor)
{
    EditResult result;
    std::vector<ObjectId> changed;
    for (ObjectId id : ids) {
        StructuralObject* object = Find(id);
        if (!object || !object->HasProperty(key))
            continue;
        const PropertyDefinition& definition = *object->Type().FindProperty(key);
        if (definition.readOnly) {
            DebugOutput(
                QStringLiteral("Property %1 is read-only; object %2 keeps its value").arg(key).arg(id));
            ++result.rejected;
            continue;
        }
        QString rejection;
        switch (object->SetValue(key, valueFor(definition), &rejection)) {
        case StructuralObject::SetResult::Changed:
            ++result.changed;
            changed.push_back(id);
            break;
        case StructuralObject::SetResult::Unchanged:
            ++result.unchanged;
            break;
        case StructuralObject::SetResult::Rejected:
            DebugOutput(QStringLiteral("Object %1 keeps its value: %2").arg(id).arg(rejection));
            ++result.rejected;
            break;
        }
    }
    NotifyValuesChanged(std::move(changed), key);
    return result;
}

bool StructuralModel::Assign(ObjectId id, const QString& key, const PropertyValue& value)
{
    StructuralObject* object = Find(id);
    if (!object) {
        DebugOutput(QStringLiteral("Assign: object %1 does not exist").arg(id));
        return false;
    }
    QString rejection;
    const auto result = object->SetValue(key, value, &rejection);
    if (result == StructuralObject::SetResult::Rejected) {
        DebugOutput(QStringLiteral("Assign to object %1 refused: %2").arg(id).arg(rejection));
        return false;
    }
    if (result == StructuralObject::SetResult::Changed)
        NotifyValuesChanged({ id }, key);
    return true;
}

std::vector<StructuralModel::ActionInfo> StructuralModel::ActionsFor(const std::vector<ObjectId>& ids) const
{
    std::vector<const StructuralObject*> objects;
    for (ObjectId id : ids) {
        if (const StructuralObject* object = FindObject(id))
            objects.push_back(object);
    }
    if (objects.empty())
        return {};
    std::vector<ActionInfo> actions { { c_resetToDefaultsAction,
                                        QStringLiteral("UI_PROPERTIES_ACTION_RESET_DEFAULTS") } };
    for (const ObjectAction& action : objects.front()->Type().Actions()) {
        const bool offeredByAll
            = std::all_of(objects.begin(), objects.end(), [&action](const StructuralObject* object) {
                  return object->Type().FindAction(action.key) != nullptr;
              });
        if (offeredByAll)
            actions.push_back({ action.key, action.nameId });
    }
    return actions;
}

int StructuralModel::RunAction(const std::vector<ObjectId>& ids, const QString& actionKey)
{
    std::vector<ObjectId> changed;
    for (ObjectId id : ids) {
        StructuralObject* object = Find(id);
        if (!object)
            continue;
        bool objectChanged = false;
        if (actionKey == c_resetToDefaultsAction) {
            objectChanged = ResetAllToDefaults(*object);
        } else if (const ObjectAction* action = object->Type().FindAction(actionKey)) {
            objectChanged = action->apply(*object);
        } else {
            DebugOutput(QStringLiteral("Object %1 offers no action %2").arg(id).arg(actionKey));
        }
        if (objectChanged)
            changed.push_back(id);
    }
    const int count = static_cast<int>(changed.size());
    NotifyValuesChanged(std::move(changed), QString());
    return count;
}

bool StructuralModel::ResetAllToDefaults(StructuralObject& object)
{
    bool changed = false;
    for (const PropertyDefinition& definition : object.Type().Properties()) {
        if (!definition.readOnly
            && object.SetValue(definition.key, definition.defaultValue)
                == StructuralObject::SetResult::Changed)
            changed = true;
    }
    return changed;
}

void StructuralModel::NotifyValuesChanged(std::vector<ObjectId> ids, const QString& key)
{
    if (m_eventBus && !ids.empty())
        m_eventBus->Post(ObjectValuesChangedEvent { std::move(ids), key });
}

void StructuralModel::NotifySelectionChanged()
{
    if (m_eventBus)
        m_eventBus->Post(SelectionChangedEvent { m_selection });
}

void StructuralModel::NotifyStructureChanged()
{
    if (m_eventBus)
        m_eventBus->Post(StructureChangedEvent {});
}

} // namespace Orvo::Kernel::Framework
