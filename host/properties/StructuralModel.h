#pragma once

#include "HostKitExport.h"
#include "ObjectType.h"
#include "PropertyValue.h"
#include "model/ModelMessage.h"
#include "model/Structure.h"

#include <functional>
#include <memory>
#include <optional>
#include <vector>

class QUndoStack;

namespace Orvo::Kernel::Model {
class StructureChange;
}

namespace Orvo::Kernel::Framework {

class EventBus;
class IStringLoader;

// The host's structural model as its users work on it: the structure's objects seen through
// their types' properties, the current selection, and every change a user makes as one step
// of the undo stack. Every change is announced on the event bus (StructuralModelEvents.h).
// Lives on the GUI thread.
class HOSTKIT_EXPORT StructuralModel
{
public:
    struct EditResult
    {
        int changed = 0;
        int unchanged = 0;
        int rejected = 0;
        Model::ModelMessage firstRejection; // why the first refused object was refused
    };

    struct ActionInfo
    {
        QString key;
        QString nameId;
    };

    // Offered for every object: puts every property that has a default back to it.
    static inline const QString c_resetToDefaultsAction = QStringLiteral("object.resetToDefaults");
    // Every type has it: the object's number within its kind.
    static inline const QString c_numberProperty = QStringLiteral("general.number");

    StructuralModel(std::shared_ptr<EventBus> eventBus = nullptr,
                    std::shared_ptr<QUndoStack> undoStack = nullptr,
                    std::shared_ptr<const IStringLoader> strings = nullptr);
    ~StructuralModel();
    StructuralModel(const StructuralModel&) = delete;
    StructuralModel& operator=(const StructuralModel&) = delete;

    const ObjectType& Type(Model::ObjectKind kind) const;
    const ObjectType* FindType(const QString& key) const;
    const Model::Structure& Structure() const { return m_structure; }
    QUndoStack* UndoStack() const { return m_undoStack.get(); }
    const IStringLoader* Strings() const { return m_strings.get(); }
    // The user's language for undo step names and messages.
    QString Text(const Model::ModelMessage& message) const;
    // The text of an identifier without markup (property names may be rich text).
    QString PlainText(const QString& textId) const;
    // The objects as a step's name says them: "Member 4", "2 members", "3 objects".
    QString ObjectsPhrase(const std::vector<ObjectId>& ids) const;

    // Replaces the whole structure (a generated model, a file read): not a step of the undo
    // stack, which it empties.
    void Replace(const std::function<void(Model::Structure&)>& fill);
    // Replaces the whole structure as one step of the undo stack (a model file opened), so that
    // undo brings back the structure it replaced. `swapped` runs after every exchange, both ways,
    // for what belongs to the structure outside it (the file it came from).
    void ReplaceAsStep(Model::Structure structure, const QString& name, std::function<void()> swapped = {});
    // Undo and redo of such a step: exchanges the structure with `other`; the selection, which
    // named objects of the other one, is emptied.
    void SwapStructure(Model::Structure& other);

    bool Exists(ObjectId id) const;
    const ObjectType* TypeOf(ObjectId id) const;
    std::optional<std::size_t> IndexOf(ObjectId id) const;
    std::vector<ObjectId> Objects(Model::ObjectKind kind) const;
    // Whether the object has the property now (some depend on others, as a section's flange
    // thickness on its shape).
    bool HasProperty(ObjectId id, const QString& key) const;
    std::optional<PropertyValue> Value(ObjectId id, const QString& key) const;
    // The drawing that explains the property on this object.
    QString Illustration(ObjectId id, const QString& key) const;

    // Unknown ids and repetitions are dropped; the order of first appearance is kept.
    void Select(const std::vector<ObjectId>& ids);
    const std::vector<ObjectId>& Selection() const { return m_selection; }

    // A user's edit: refuses read-only properties and values the property or the structure does
    // not accept, skips objects that do not have the property. One undo step.
    EditResult SetValue(const std::vector<ObjectId>& ids, const QString& key, const PropertyValue& value);
    EditResult ResetToDefault(const std::vector<ObjectId>& ids, const QString& key);
    // The host's own write (reading a file, computed values): read-only properties included,
    // not a step of the undo stack.
    bool Assign(ObjectId id, const QString& key, const PropertyValue& value);

    // A new object with the given values over its defaults; 0 (and why) when the structure
    // does not accept it. One undo step.
    ObjectId AddObject(Model::ObjectKind kind,
                       const std::vector<std::pair<QString, PropertyValue>>& values = {},
                       Model::ModelMessage* rejection = nullptr);
    // Refuses (and changes nothing) when another object refers to one of them. One undo step.
    EditResult RemoveObjects(const std::vector<ObjectId>& ids);

    // The actions every one of the objects offers, the reset first.
    std::vector<ActionInfo> ActionsFor(const std::vector<ObjectId>& ids) const;
    // Returns how many objects the action changed. One undo step.
    int RunAction(const std::vector<ObjectId>& ids, const QString& actionKey);

    // Makes every change until the scope ends one undo step of the given name (a table update
    // of many cells). Scopes nest; the outermost one names the step.
    class HOSTKIT_EXPORT ChangeScope
    {
    public:
        ChangeScope(StructuralModel& model, QString name);
        ~ChangeScope();
        ChangeScope(const ChangeScope&) = delete;
        ChangeScope& operator=(const ChangeScope&) = delete;

    private:
        StructuralModel& m_model;
    };

    // Undo and redo come back here: the structure takes the records of one side of the change,
    // and the views hear of it.
    void ApplyChange(const Model::StructureChange& change, bool undo);

private:
    friend class ChangeScope;
    enum class EditKind
    {
        User,
        Host,
    };
    using ValueFor = std::function<const PropertyValue*(const PropertyDefinition&)>;

    EditResult Edit(const std::vector<ObjectId>& ids, const QString& key, const ValueFor& valueFor,
                    EditKind kind);
    Model::ModelMessage EditOne(Model::ObjectKind kind, std::size_t index,
                                const PropertyDefinition& definition, const PropertyValue& value,
                                bool& changed);
    Model::ModelMessage Modify(Model::ObjectKind kind, std::size_t index,
                               const std::function<Model::ModelMessage()>& write, bool& changed);
    Model::ModelMessage CheckMovedNode(std::size_t nodeIndex) const;
    void OpenChange(const QString& name);
    void CloseChange();
    void Announce(const Model::StructureChange& change);
    void DropMissingFromSelection();
    void NotifySelectionChanged();

    std::shared_ptr<EventBus> m_eventBus;
    std::shared_ptr<QUndoStack> m_undoStack;
    std::shared_ptr<const IStringLoader> m_strings;
    Model::Structure m_structure;
    std::vector<ObjectType> m_types;
    std::vector<ObjectId> m_selection;
    // The change being recorded, while a scope is open.
    std::unique_ptr<Model::StructureChange> m_change;
    QString m_changeName;
    int m_changeDepth = 0;
    // Members at the nodes being edited, gathered once per edit.
    std::vector<std::size_t> m_membersAtEditedNodes;
};

} // namespace Orvo::Kernel::Framework
