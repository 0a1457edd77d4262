#include "StructuralModel.h"

#include "StructuralModelEvents.h"
#include "StructuralObjectTypes.h"
#include "StructureReplaceCommand.h"
#include "StructureUndoCommand.h"
#include "framework/Debug.h"
#include "framework/EventBus.h"
#include "model/StructureChange.h"
#include "model/StructureValidator.h"

#include <QTextDocumentFragment>
#include <QUndoStack>
#include <algorithm>
#include <stdexcept>
#include <unordered_set>

namespace Orvo::Kernel::Framework {

using namespace Model;

namespace {

QString CountId(ObjectKind kind)
{
    switch (kind) {
    case ObjectKind::Node:
        return QStringLiteral("UI_COUNT_NODES");
    case ObjectKind::Member:
        return QStringLiteral("UI_COUNT_MEMBERS");
    case ObjectKind::Support:
        return QStringLiteral("UI_COUNT_SUPPORTS");
    case ObjectKind::CrossSection:
        return QStringLiteral("UI_COUNT_CROSS_SECTIONS");
    case ObjectKind::Material:
        return QStringLiteral("UI_COUNT_MATERIALS");
    case ObjectKind::LoadCase:
        return QStringLiteral("UI_COUNT_LOAD_CASES");
    case ObjectKind::NodalLoad:
        return QStringLiteral("UI_COUNT_NODAL_LOADS");
    case ObjectKind::MemberLoad:
        return QStringLiteral("UI_COUNT_MEMBER_LOADS");
    case ObjectKind::Combination:
        return QStringLiteral("UI_COUNT_COMBINATIONS");
    }
    return QStringLiteral("UI_COUNT_OBJECTS");
}

// New objects refer to the first section, material and load case there is, so that a user
// only has to name their nodes.
void Prefill(const Structure&, Node&) { }
void Prefill(const Structure& structure, Member& member)
{
    if (!structure.Sections().Empty())
        member.section = structure.Sections().At(0).number;
    if (!structure.Materials().Empty())
        member.material = structure.Materials().At(0).number;
}
void Prefill(const Structure&, Support&) { }
void Prefill(const Structure&, CrossSection&) { }
void Prefill(const Structure&, Material&) { }
void Prefill(const Structure&, LoadCase&) { }
void Prefill(const Structure& structure, NodalLoad& load)
{
    if (!structure.LoadCases().Empty())
        load.loadCase = structure.LoadCases().At(0).number;
}
void Prefill(const Structure& structure, MemberLoad& load)
{
    if (!structure.LoadCases().Empty())
        load.loadCase = structure.LoadCases().At(0).number;
}
void Prefill(const Structure& structure, Combination& combination)
{
    if (!structure.LoadCases().Empty())
        combination.factors = { { structure.LoadCases().At(0).number, 1.0 } };
}

// Removing in this order lets loads go before what they load, members before their nodes.
constexpr ObjectKind c_removalOrder[]
    = { ObjectKind::NodalLoad,    ObjectKind::MemberLoad, ObjectKind::Combination,
        ObjectKind::Member,       ObjectKind::Support,    ObjectKind::Node,
        ObjectKind::CrossSection, ObjectKind::Material,   ObjectKind::LoadCase };

} // namespace

StructuralModel::StructuralModel(std::shared_ptr<EventBus> eventBus, std::shared_ptr<QUndoStack> undoStack,
                                 std::shared_ptr<const IStringLoader> strings)
    : m_eventBus(std::move(eventBus))
    , m_undoStack(std::move(undoStack))
    , m_strings(std::move(strings))
    , m_types(StructuralObjectTypes::CreateAll())
{ }

StructuralModel::~StructuralModel()
{
    // The steps refer to this model.
    if (m_undoStack)
        m_undoStack->clear();
}

const ObjectType& StructuralModel::Type(ObjectKind kind) const
{
    return m_types[std::size_t(kind) - 1];
}

const ObjectType* StructuralModel::FindType(const QString& key) const
{
    auto it = std::find_if(m_types.begin(), m_types.end(),
                           [&key](const ObjectType& type) { return type.Key() == key; });
    return it == m_types.end() ? nullptr : &*it;
}

QString StructuralModel::Text(const ModelMessage& message) const
{
    return message.ToText(m_strings.get());
}

void StructuralModel::Replace(const std::function<void(Model::Structure&)>& fill)
{
    if (m_undoStack)
        m_undoStack->clear();
    m_structure.Clear();
    fill(m_structure);
    if (m_eventBus)
        m_eventBus->Post(StructureChangedEvent {});
    DropMissingFromSelection();
}

void StructuralModel::ReplaceAsStep(Model::Structure structure, const QString& name,
                                    std::function<void()> swapped)
{
    if (!m_undoStack) {
        SwapStructure(structure);
        if (swapped)
            swapped();
        return;
    }
    // The step makes the exchange when pushed, as its first redo.
    m_undoStack->push(new StructureReplaceCommand(*this, std::move(structure), std::move(swapped), name));
}

void StructuralModel::SwapStructure(Model::Structure& other)
{
    std::swap(m_structure, other);
    if (m_eventBus)
        m_eventBus->Post(StructureChangedEvent {});
    if (!m_selection.empty()) {
        m_selection.clear();
        NotifySelectionChanged();
    }
}

bool StructuralModel::Exists(ObjectId id) const
{
    return IsKnownKind(id) && m_structure.Contains(KindOf(id), NumberOf(id));
}

const ObjectType* StructuralModel::TypeOf(ObjectId id) const
{
    return Exists(id) ? &Type(KindOf(id)) : nullptr;
}

std::optional<std::size_t> StructuralModel::IndexOf(ObjectId id) const
{
    if (!IsKnownKind(id))
        return std::nullopt;
    return VisitKind(KindOf(id), [this, id](auto tag) {
        return m_structure.Table<typename decltype(tag)::Type>().IndexOf(NumberOf(id));
    });
}

std::vector<ObjectId> StructuralModel::Objects(ObjectKind kind) const
{
    return VisitKind(kind, [this, kind](auto tag) {
        const auto& records = m_structure.Table<typename decltype(tag)::Type>().Records();
        std::vector<ObjectId> ids;
        ids.reserve(records.size());
        for (const auto& record : records)
            ids.push_back(MakeObjectId(kind, record.number));
        return ids;
    });
}

bool StructuralModel::HasProperty(ObjectId id, const QString& key) const
{
    const auto index = IndexOf(id);
    if (!index)
        return false;
    const PropertyDefinition* definition = Type(KindOf(id)).FindProperty(key);
    return definition && definition->AppliesTo(m_structure, *index);
}

std::optional<PropertyValue> StructuralModel::Value(ObjectId id, const QString& key) const
{
    if (!HasProperty(id, key))
        return std::nullopt;
    return Type(KindOf(id)).FindProperty(key)->read(m_structure, *IndexOf(id));
}

QString StructuralModel::Illustration(ObjectId id, const QString& key) const
{
    if (!HasProperty(id, key))
        return {};
    return Type(KindOf(id)).FindProperty(key)->IllustrationFor(m_structure, *IndexOf(id));
}

void StructuralModel::Select(const std::vector<ObjectId>& ids)
{
    std::vector<ObjectId> selection;
    std::unordered_set<ObjectId> seen;
    for (ObjectId id : ids) {
        if (!Exists(id)) {
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
    return Edit(
        ids, key, [&value](const PropertyDefinition&) { return &value; }, EditKind::User);
}

StructuralModel::EditResult StructuralModel::ResetToDefault(const std::vector<ObjectId>& ids,
                                                            const QString& key)
{
    // Kinds of object may share a property but not its default: each gets its own.
    return Edit(
        ids, key,
        [](const PropertyDefinition& definition) {
            return definition.hasDefault ? &definition.defaultValue : nullptr;
        },
        EditKind::User);
}

bool StructuralModel::Assign(ObjectId id, const QString& key, const PropertyValue& value)
{
    const EditResult result = Edit(
        { id }, key, [&value](const PropertyDefinition&) { return &value; }, EditKind::Host);
    if (result.changed + result.unchanged == 0) {
        DebugOutput(
            QStringLiteral("Assign to object %1 refused: %2").arg(id).arg(Text(result.firstRejection)));
        return false;
    }
    return true;
}

StructuralModel::EditResult StructuralModel::Edit(const std::vector<ObjectId>& ids, const QString& key,
                                                  const ValueFor& valueFor, EditKind editKind)
{
    EditResult result;
    ObjectId firstRejected = 0;
    std::vector<ObjectId> changed;
    const PropertyDefinition* named = nullptr;
    const bool undoable = editKind == EditKind::User;
    if (undoable)
        OpenChange({});
    std::unordered_set<Number> nodes;
    for (ObjectId id : ids) {
        if (IsKnownKind(id) && KindOf(id) == ObjectKind::Node)
            nodes.insert(NumberOf(id));
    }
    m_membersAtEditedNodes
        = nodes.empty() ? std::vector<std::size_t>() : StructureValidator::MembersAt(m_structure, nodes);

    for (ObjectId id : ids) {
        const auto index = IndexOf(id);
        const PropertyDefinition* definition = index ? Type(KindOf(id)).FindProperty(key) : nullptr;
        if (!definition || !definition->AppliesTo(m_structure, *index))
            continue;
        named = definition;
        ModelMessage rejection;
        if (!definition->write || (editKind == EditKind::User && definition->readOnly)) {
            rejection
                = ModelMessage(QStringLiteral("UI_MODEL_ERROR_READ_ONLY"), { PlainText(definition->nameId) });
        } else if (const PropertyValue* value = valueFor(*definition)) {
            bool objectChanged = false;
            rejection = EditOne(KindOf(id), *index, *definition, *value, objectChanged);
            if (!rejection && objectChanged)
                changed.push_back(id);
            else if (!rejection)
                ++result.unchanged;
        } else {
            ++result.unchanged;
        }
        if (rejection) {
            DebugOutput(
                QStringLiteral("Object %1 keeps its value: %2").arg(id).arg(definition->Describe(rejection)));
            if (result.rejected++ == 0) {
                result.firstRejection = rejection;
                firstRejected = id;
            }
        }
    }
    m_membersAtEditedNodes.clear();
    result.changed = int(changed.size());
    if (!undoable) {
        if (m_eventBus && !changed.empty())
            m_eventBus->Post(ObjectValuesChangedEvent { std::move(changed), key });
        return result;
    }
    if (m_changeDepth == 1 && named)
        m_changeName = Text(ModelMessage(QStringLiteral("UI_UNDO_SET_PROPERTY"),
                                         { PlainText(named->nameId), ObjectsPhrase(changed) }));
    CloseChange();
    // Only a user's edit is announced: the host's own writes report their refusals themselves.
    if (m_eventBus && result.rejected > 0)
        m_eventBus->Post(EditRejectedEvent { Text(result.firstRejection), firstRejected, result.rejected });
    return result;
}

ModelMessage StructuralModel::EditOne(ObjectKind kind, std::size_t index,
                                      const PropertyDefinition& definition, const PropertyValue& value,
                                      bool& changed)
{
    if (ModelMessage why = definition.Check(value))
        return why;
    return Modify(
        kind, index, [&]() { return definition.write(m_structure, index, value); }, changed);
}

ModelMessage StructuralModel::Modify(ObjectKind kind, std::size_t index,
                                     const std::function<ModelMessage()>& write, bool& changed)
{
    return VisitKind(kind, [&](auto tag) {
        using Record = typename decltype(tag)::Type;
        auto& table = m_structure.Table<Record>();
        const Record before = table.At(index);
        if (m_change)
            m_change->Remember<Record>(m_structure, before.number);
        ModelMessage why = write();
        if (!why)
            why = StructureValidator::Check(m_structure, table.At(index));
        if (!why && kind == ObjectKind::Node)
            why = CheckMovedNode(index);
        if (why) {
            table.At(index) = before;
            changed = false;
            return why;
        }
        changed = table.At(index) != before;
        return ModelMessage();
    });
}

ModelMessage StructuralModel::CheckMovedNode(std::size_t nodeIndex) const
{
    const Number node = m_structure.Nodes().At(nodeIndex).number;
    for (std::size_t memberIndex : m_membersAtEditedNodes) {
        const Member& member = m_structure.Members().At(memberIndex);
        if ((member.startNode == node || member.endNode == node)
            && m_structure.MemberLength(member) < StructureValidator::c_minimumLength)
            return ModelMessage(QStringLiteral("UI_MODEL_ERROR_ZERO_LENGTH"),
                                { ObjectRef { ObjectKind::Member, member.number },
                                  QString::number(member.startNode), QString::number(member.endNode) });
    }
    return {};
}

ObjectId StructuralModel::AddObject(ObjectKind kind,
                                    const std::vector<std::pair<QString, PropertyValue>>& values,
                                    ModelMessage* rejection)
{
    OpenChange({});
    const ObjectType& type = Type(kind);
    ModelMessage why;
    const Number number = VisitKind(kind, [&](auto tag) {
        using Record = typename decltype(tag)::Type;
        auto& table = m_structure.Table<Record>();
        m_change->Remember<Record>(m_structure, table.NextNumber());
        Record record;
        Prefill(m_structure, record);
        const Number added = table.Append(std::move(record));
        const std::size_t index = table.Size() - 1;
        for (const auto& [key, value] : values) {
            const PropertyDefinition* definition = type.FindProperty(key);
            if (!definition || !definition->write)
                why = ModelMessage(QStringLiteral("UI_MODEL_ERROR_READ_ONLY"), { key });
            else if (!(why = definition->Check(value)))
                why = definition->write(m_structure, index, value);
            if (why)
                break;
        }
        if (!why)
            why = StructureValidator::Check(m_structure, table.At(index));
        if (why) {
            table.Remove(added);
            return Number(0);
        }
        return added;
    });
    if (rejection)
        *rejection = why;
    if (why)
        DebugOutput(QStringLiteral("No new %1: %2").arg(type.Key(), Text(why)));
    const ObjectId id = number ? MakeObjectId(kind, number) : 0;
    if (m_changeDepth == 1 && id)
        m_changeName = Text(ModelMessage(QStringLiteral("UI_UNDO_ADD"), { ObjectRef { kind, number } }));
    CloseChange();
    return id;
}

StructuralModel::EditResult StructuralModel::RemoveObjects(const std::vector<ObjectId>& ids)
{
    EditResult result;
    std::vector<ObjectId> removed;
    OpenChange({});
    for (ObjectKind kind : c_removalOrder) {
        std::unordered_set<Number> numbers;
        for (ObjectId id : ids) {
            if (IsKnownKind(id) && KindOf(id) == kind && m_structure.Contains(kind, NumberOf(id)))
                numbers.insert(NumberOf(id));
        }
        if (numbers.empty())
            continue;
        if (ModelMessage why = StructureValidator::CheckRemoval(m_structure, kind, numbers)) {
            result.rejected = int(ids.size());
            result.firstRejection = why;
            break;
        }
        VisitKind(kind, [&](auto tag) {
            using Record = typename decltype(tag)::Type;
            for (Number number : numbers)
                m_change->Remember<Record>(m_structure, number);
            m_structure.Table<Record>().RemoveIf(
                [&numbers](const Record& record) { return numbers.count(record.number) != 0; });
        });
        for (Number number : numbers)
            removed.push_back(MakeObjectId(kind, number));
    }
    if (result.rejected) {
        // All or nothing: what was removed before the refusal comes back.
        m_change->Seal(m_structure);
        m_change->Undo(m_structure);
        m_change = std::make_unique<StructureChange>();
        DebugOutput(QStringLiteral("Nothing removed: %1").arg(Text(result.firstRejection)));
    } else {
        result.changed = int(removed.size());
        if (m_changeDepth == 1)
            m_changeName = Text(ModelMessage(QStringLiteral("UI_UNDO_DELETE"), { ObjectsPhrase(removed) }));
    }
    CloseChange();
    return result;
}

std::vector<StructuralModel::ActionInfo> StructuralModel::ActionsFor(const std::vector<ObjectId>& ids) const
{
    std::vector<const ObjectType*> types;
    for (ObjectId id : ids) {
        if (const ObjectType* type = TypeOf(id))
            types.push_back(type);
    }
    if (types.empty())
        return {};
    std::vector<ActionInfo> actions { { c_resetToDefaultsAction,
                                        QStringLiteral("UI_PROPERTIES_ACTION_RESET_DEFAULTS") } };
    for (const ObjectAction& action : types.front()->Actions()) {
        const bool offeredByAll = std::all_of(types.begin(), types.end(), [&action](const ObjectType* type) {
            return type->FindAction(action.key) != nullptr;
        });
        if (offeredByAll)
            actions.push_back({ action.key, action.nameId });
    }
    return actions;
}

int StructuralModel::RunAction(const std::vector<ObjectId>& ids, const QString& actionKey)
{
    OpenChange({});
    std::vector<ObjectId> changed;
    QString actionNameId;
    for (ObjectId id : ids) {
        const auto index = IndexOf(id);
        if (!index)
            continue;
        const ObjectType& type = Type(KindOf(id));
        bool objectChanged = false;
        if (actionKey == c_resetToDefaultsAction) {
            actionNameId = QStringLiteral("UI_PROPERTIES_ACTION_RESET_DEFAULTS");
            // Only what has a default goes back to it: names and coordinates stay.
            for (const PropertyDefinition& definition : type.Properties()) {
                if (!definition.hasDefault || definition.readOnly || !definition.write
                    || !definition.AppliesTo(m_structure, *index))
                    continue;
                bool propertyChanged = false;
                if (!EditOne(KindOf(id), *index, definition, definition.defaultValue, propertyChanged))
                    objectChanged = objectChanged || propertyChanged;
            }
        } else if (const ObjectAction* action = type.FindAction(actionKey)) {
            actionNameId = action->nameId;
            const ModelMessage why = Modify(
                KindOf(id), *index,
                [&]() {
                    action->apply(m_structure, *index);
                    return ModelMessage();
                },
                objectChanged);
            if (why)
                DebugOutput(QStringLiteral("Object %1 refuses %2: %3").arg(id).arg(actionKey, Text(why)));
        } else {
            DebugOutput(QStringLiteral("Object %1 offers no action %2").arg(id).arg(actionKey));
        }
        if (objectChanged)
            changed.push_back(id);
    }
    if (m_changeDepth == 1 && !actionNameId.isEmpty())
        m_changeName = Text(ModelMessage(QStringLiteral("UI_UNDO_ACTION"),
                                         { PlainText(actionNameId), ObjectsPhrase(changed) }));
    CloseChange();
    return int(changed.size());
}

StructuralModel::ChangeScope::ChangeScope(StructuralModel& model, QString name)
    : m_model(model)
{
    m_model.OpenChange(name);
}

StructuralModel::ChangeScope::~ChangeScope()
{
    m_model.CloseChange();
}

void StructuralModel::OpenChange(const QString& name)
{
    if (m_changeDepth++ == 0) {
        m_change = std::make_unique<StructureChange>();
        m_changeName = name;
    }
}

void StructuralModel::CloseChange()
{
    if (--m_changeDepth > 0)
        return;
    std::unique_ptr<StructureChange> change = std::move(m_change);
    change->Seal(m_structure);
    if (change->IsEmpty())
        return;
    Announce(*change);
    if (m_undoStack)
        m_undoStack->push(new StructureUndoCommand(*this, std::move(change), m_changeName));
}

void StructuralModel::ApplyChange(const StructureChange& change, bool undo)
{
    if (undo)
        change.Undo(m_structure);
    else
        change.Redo(m_structure);
    Announce(change);
    DropMissingFromSelection();
}

void StructuralModel::Announce(const StructureChange& change)
{
    if (!m_eventBus)
        return;
    StructureChangedEvent structureChanged;
    for (ObjectKind kind : c_allKinds) {
        if (change.AddsOrRemoves(kind))
            structureChanged.kinds.push_back(kind);
    }
    if (!structureChanged.kinds.empty())
        m_eventBus->Post(structureChanged);
    m_eventBus->Post(ObjectValuesChangedEvent { change.Objects(), QString() });
}

void StructuralModel::DropMissingFromSelection()
{
    std::vector<ObjectId> kept;
    std::copy_if(m_selection.begin(), m_selection.end(), std::back_inserter(kept),
                 [this](ObjectId id) { return Exists(id); });
    if (kept.size() == m_selection.size())
        return;
    m_selection = std::move(kept);
    NotifySelectionChanged();
}

QString StructuralModel::ObjectsPhrase(const std::vector<ObjectId>& ids) const
{
    if (ids.size() == 1)
        return QStringLiteral("%1 %2")
            .arg(PlainText(ModelMessage::KindNameId(KindOf(ids.front()))))
            .arg(NumberOf(ids.front()));
    const bool oneKind = std::all_of(ids.begin(), ids.end(),
                                     [&ids](ObjectId id) { return KindOf(id) == KindOf(ids.front()); });
    const QString countId
        = !ids.empty() && oneKind ? CountId(KindOf(ids.front())) : QStringLiteral("UI_COUNT_OBJECTS");
    return Text(ModelMessage(countId, { QString::number(ids.size()) }));
}

QString StructuralModel::PlainText(const QString& nameId) const
{
    const QString text = Text(ModelMessage(nameId));
    return text.contains(QLatin1Char('<')) ? QTextDocumentFragment::fromHtml(text).toPlainText() : text;
}

void StructuralModel::NotifySelectionChanged()
{
    if (m_eventBus)
        m_eventBus->Post(SelectionChangedEvent { m_selection });
}

} // namespace Orvo::Kernel::Framework
