#include "ModelingCommands.h"

#include "commands/RunningCommand.h"
#include "events/CommandExecuted.h"
#include "events/RunningCommandEvents.h"
#include "framework/EventBus.h"
#include "framework/ServiceCatalog.h"
#include "properties/StructuralModel.h"

#include <algorithm>
#include <map>

using namespace Orvo::Kernel::Framework;
using Orvo::Kernel::Model::KindOf;
using Orvo::Kernel::Model::MakeObjectId;
using Orvo::Kernel::Model::Number;
using Orvo::Kernel::Model::NumberOf;
using Orvo::Kernel::Model::ObjectKind;

namespace {

const wchar_t* const c_startPrompt = L"UI_PROMPT_START_POINT";
const wchar_t* const c_endPrompt = L"UI_PROMPT_END_POINT";
const wchar_t* const c_movePrompt = L"UI_PROMPT_MOVE_VECTOR";

const wchar_t* const c_geometry = L"UI_INPUT_CATEGORY_GEOMETRY";
const wchar_t* const c_parameters = L"UI_INPUT_CATEGORY_PARAMETERS";
const wchar_t* const c_selection = L"UI_INPUT_CATEGORY_SELECTION";

// Input identifiers: the point of New node and the start of New member share theirs.
const wchar_t* const c_pointIds[] = { L"x", L"y", L"z" };
const wchar_t* const c_vectorIds[] = { L"dx", L"dy", L"dz" };
const wchar_t* const c_coordinateNames[] = { L"UI_PROP_X", L"UI_PROP_Y", L"UI_PROP_Z" };
const wchar_t* const c_length = L"length";
const wchar_t* const c_direction = L"direction";
const wchar_t* const c_mode = L"mode";
const wchar_t* const c_objects = L"objects";

// A member drawn from the panel is as long as a storey of the demo's building until the user
// says otherwise.
constexpr double c_defaultLength = 3.0;

// The member properties a copy takes over from its original besides its nodes.
const QString c_copiedMemberProperties[]
    = { QStringLiteral("member.section"), QStringLiteral("member.material"),
        QStringLiteral("member.rotation"), QStringLiteral("member.startRelease"),
        QStringLiteral("member.endRelease") };

QString PointText(const std::vector<double>& values)
{
    QStringList parts;
    for (double value : values)
        parts << QString::number(value);
    return QStringLiteral("(%1)").arg(parts.join(QStringLiteral("; ")));
}

CommandInput NumberInput(const wchar_t* id, const wchar_t* nameId, const wchar_t* groupId,
                         const wchar_t* category, double value)
{
    CommandInput input;
    input.id = id;
    input.nameId = nameId;
    input.groupId = groupId;
    input.category = category;
    input.kind = CommandInput::Kind::Number;
    input.unit = L"m";
    input.number = value;
    return input;
}

CommandInput ChoiceInput(const wchar_t* id, const wchar_t* nameId, const wchar_t* groupId,
                         std::vector<std::wstring> choices)
{
    CommandInput input;
    input.id = id;
    input.nameId = nameId;
    input.groupId = groupId;
    input.category = c_parameters;
    input.kind = CommandInput::Kind::Choice;
    input.choices = std::move(choices);
    return input;
}

double NumberOfInput(const RunningCommand& running, const wchar_t* id, double fallback = 0.0)
{
    const CommandInput* input = running.FindInput(id);
    return input && input->kind == CommandInput::Kind::Number ? input->number : fallback;
}

double Coordinate(const StructuralModel& model, ObjectId node, const QString& key)
{
    const auto value = model.Value(node, key);
    return value && std::holds_alternative<double>(*value) ? std::get<double>(*value) : 0.0;
}

Number NodeOf(const StructuralModel& model, ObjectId member, const QString& key)
{
    const auto value = model.Value(member, key);
    return value && std::holds_alternative<std::int32_t>(*value) ? std::get<std::int32_t>(*value) : 0;
}

const QString c_nodeKeys[] = { QStringLiteral("node.x"), QStringLiteral("node.y"), QStringLiteral("node.z") };

ObjectId AddNode(StructuralModel& model, const std::vector<double>& point)
{
    return model.AddObject(
        ObjectKind::Node,
        { { c_nodeKeys[0], point[0] }, { c_nodeKeys[1], point[1] }, { c_nodeKeys[2], point[2] } });
}

// The three numbers of a point or vector as the panel shows them.
std::vector<double> NumbersOfInputs(const RunningCommand& running, const wchar_t* const (&ids)[3])
{
    return { NumberOfInput(running, ids[0]), NumberOfInput(running, ids[1]), NumberOfInput(running, ids[2]) };
}

} // namespace

ModelingCommands::ModelingCommands(QObject* parent)
    : QObject(parent)
{
    auto catalog = ServiceCatalog::Global();
    auto eventbus = catalog->Get<EventBus>();
    if (!eventbus)
        return;
    m_executedConnection = eventbus->Subscribe<Orvo::UI::Events::CommandExecuted>(
        [this](const auto& event) { Start(event.GetCommandUuid()); });
    m_inputConnection = eventbus->Subscribe<Orvo::UI::Events::CommandInputOffered>(
        [this](const auto& event) { OnInput(event.GetCommandUuid(), event.GetValues()); });
    m_applyConnection = eventbus->Subscribe<Orvo::UI::Events::CommandInputsApplied>(
        [this](const auto& event) { OnApply(event.GetCommandUuid()); });
}

std::vector<CommandInput> ModelingCommands::PointInputs(const std::vector<double>& point)
{
    std::vector<CommandInput> inputs;
    for (std::size_t axis = 0; axis < 3; ++axis)
        inputs.push_back(NumberInput(c_pointIds[axis], c_coordinateNames[axis], L"UI_INPUT_GROUP_POINT",
                                     c_geometry, axis < point.size() ? point[axis] : 0.0));
    return inputs;
}

std::vector<CommandInput> ModelingCommands::NewMemberInputs(const std::vector<double>& start)
{
    std::vector<CommandInput> inputs = PointInputs(start);
    for (CommandInput& input : inputs)
        input.groupId = c_startPrompt;
    inputs.push_back(
        NumberInput(c_length, L"UI_PROP_LENGTH", L"UI_INPUT_GROUP_MEMBER", c_parameters, c_defaultLength));
    inputs.push_back(
        ChoiceInput(c_direction, L"UI_INPUT_DIRECTION", L"UI_INPUT_GROUP_MEMBER",
                    { L"UI_INPUT_DIRECTION_X", L"UI_INPUT_DIRECTION_Y", L"UI_INPUT_DIRECTION_Z" }));
    return inputs;
}

std::vector<CommandInput> ModelingCommands::MoveInputs(const std::vector<ObjectId>& selection)
{
    std::vector<CommandInput> inputs;
    for (std::size_t axis = 0; axis < 3; ++axis)
        inputs.push_back(NumberInput(c_vectorIds[axis], c_coordinateNames[axis], L"UI_INPUT_GROUP_VECTOR",
                                     c_geometry, 0.0));
    inputs.push_back(ChoiceInput(c_mode, L"UI_INPUT_MODE", L"UI_INPUT_GROUP_COPIES",
                                 { L"UI_INPUT_MODE_MOVE", L"UI_INPUT_MODE_COPY" }));
    CommandInput objects;
    objects.id = c_objects;
    objects.nameId = L"UI_INPUT_GROUP_OBJECTS";
    objects.groupId = L"UI_INPUT_GROUP_OBJECTS";
    objects.category = c_selection;
    objects.kind = CommandInput::Kind::Objects;
    // Only nodes and members have a place of their own; what hangs on them moves with them.
    std::copy_if(selection.begin(), selection.end(), std::back_inserter(objects.objects), [](ObjectId id) {
        return KindOf(id) == ObjectKind::Node || KindOf(id) == ObjectKind::Member;
    });
    inputs.push_back(std::move(objects));
    return inputs;
}

void ModelingCommands::Start(const std::wstring& uuid)
{
    auto catalog = ServiceCatalog::Global();
    auto running = catalog->Get<RunningCommand>();
    auto model = catalog->Get<StructuralModel>();
    if (!running)
        return;
    if (uuid == c_newNode || uuid == c_newMember) {
        m_startPoint.clear();
        running->Start(uuid, c_startPrompt, 3);
        running->SetInputs(uuid == c_newNode ? PointInputs({}) : NewMemberInputs({}));
    } else if (uuid == c_move) {
        running->Start(uuid, c_movePrompt, 3);
        running->SetInputs(MoveInputs(model ? model->Selection() : std::vector<ObjectId>()));
    }
}

void ModelingCommands::cancel()
{
    m_startPoint.clear();
    if (auto running = ServiceCatalog::Global()->Get<RunningCommand>())
        running->Finish();
}

std::vector<double> ModelingCommands::ShownPoint(const RunningCommand& running)
{
    return NumbersOfInputs(running, c_pointIds);
}

void ModelingCommands::ShowPoint(RunningCommand& running, const std::vector<double>& point)
{
    for (std::size_t axis = 0; axis < 3 && axis < point.size(); ++axis)
        running.SetNumber(c_pointIds[axis], point[axis]);
}

ObjectId ModelingCommands::AddMember(StructuralModel& model, const std::vector<double>& start,
                                     const std::vector<double>& end)
{
    StructuralModel::ChangeScope scope(model, model.PlainText(QStringLiteral("UI_COMMAND_NEW_MEMBER")));
    const Number startNode = NumberOf(AddNode(model, start));
    const Number endNode = NumberOf(AddNode(model, end));
    return model.AddObject(
        ObjectKind::Member,
        { { QStringLiteral("member.startNode"), startNode }, { QStringLiteral("member.endNode"), endNode } });
}

void ModelingCommands::OnInput(const std::wstring& commandUuid, const std::vector<double>& values)
{
    auto catalog = ServiceCatalog::Global();
    auto running = catalog->Get<RunningCommand>();
    auto model = catalog->Get<StructuralModel>();
    if (!running || !model || values.size() != 3)
        return;
    m_lastInput = PointText(values);
    if (commandUuid == c_newNode) {
        ShowPoint(*running, values);
        const ObjectId node = AddNode(*model, values);
        m_lastResult = node ? model->ObjectsPhrase({ node }) : QString();
        // New node stays on for the next point, as drawing tools do; Escape ends it.
    } else if (commandUuid == c_newMember) {
        if (m_startPoint.empty()) {
            m_startPoint = values;
            m_lastResult.clear();
            running->SetPrompt(c_endPrompt, 3);
        } else {
            // From the start point as the panel shows it: the user may have corrected it there.
            const ObjectId member = AddMember(*model, ShownPoint(*running), values);
            m_lastResult = member ? model->ObjectsPhrase({ member }) : QString();
            // The next member starts where this one ended.
            m_startPoint = values;
        }
        ShowPoint(*running, m_startPoint);
    } else if (commandUuid == c_move) {
        // A typed vector is shown for the user to check; Apply moves.
        for (std::size_t axis = 0; axis < 3; ++axis)
            running->SetNumber(c_vectorIds[axis], values[axis]);
        m_lastResult.clear();
    } else {
        return;
    }
    emit inputTaken();
}

void ModelingCommands::OnApply(const std::wstring& commandUuid)
{
    auto catalog = ServiceCatalog::Global();
    auto running = catalog->Get<RunningCommand>();
    auto model = catalog->Get<StructuralModel>();
    if (!running || !model || running->CommandUuid() != commandUuid)
        return;
    if (commandUuid == c_newNode) {
        const std::vector<double> point = ShownPoint(*running);
        m_lastInput = PointText(point);
        const ObjectId node = AddNode(*model, point);
        m_lastResult = node ? model->ObjectsPhrase({ node }) : QString();
    } else if (commandUuid == c_newMember) {
        const std::vector<double> start = ShownPoint(*running);
        const auto* direction = running->FindInput(c_direction);
        const std::size_t axis = direction ? std::size_t(std::clamp(direction->choice, 0, 2)) : 2;
        std::vector<double> end = start;
        end[axis] += NumberOfInput(*running, c_length, c_defaultLength);
        m_lastInput = PointText(start) + QStringLiteral(" \u2192 ") + PointText(end);
        const ObjectId member = AddMember(*model, start, end);
        m_lastResult = member ? model->ObjectsPhrase({ member }) : QString();
        if (member) {
            // Drawing goes on from the new member's end, as with picked points.
            m_startPoint = end;
            ShowPoint(*running, end);
            running->SetPrompt(c_endPrompt, 3);
        }
    } else if (commandUuid == c_move) {
        ApplyMove(*running, *model);
        // Moved once, the objects are where the user wanted them; another Apply would move
        // them again, so the command ends here.
        running->Finish();
    } else {
        return;
    }
    emit inputTaken();
}

void ModelingCommands::ApplyMove(RunningCommand& running, StructuralModel& model)
{
    const std::vector<double> vector = NumbersOfInputs(running, c_vectorIds);
    const CommandInput* objects = running.FindInput(c_objects);
    const CommandInput* mode = running.FindInput(c_mode);
    const bool copy = mode && mode->choice == int(MoveMode::Copy);
    m_lastInput = PointText(vector);
    if (!objects || objects->objects.empty()) {
        m_lastResult.clear();
        return;
    }
    // The nodes that carry the objects, in the order first met: a member moves with both ends.
    std::vector<ObjectId> nodes;
    std::vector<ObjectId> members;
    const auto addNode = [&nodes](Number number) {
        const ObjectId node = MakeObjectId(ObjectKind::Node, number);
        if (number > 0 && std::find(nodes.begin(), nodes.end(), node) == nodes.end())
            nodes.push_back(node);
    };
    for (ObjectId id : objects->objects) {
        if (!model.Exists(id))
            continue;
        if (KindOf(id) == ObjectKind::Node) {
            addNode(NumberOf(id));
        } else if (KindOf(id) == ObjectKind::Member) {
            members.push_back(id);
            addNode(NodeOf(model, id, QStringLiteral("member.startNode")));
            addNode(NodeOf(model, id, QStringLiteral("member.endNode")));
        }
    }
    const QString stepName
        = model.PlainText(copy ? QStringLiteral("UI_COMMAND_COPY") : QStringLiteral("UI_COMMAND_MOVE"));
    StructuralModel::ChangeScope scope(model, stepName);
    if (!copy) {
        int rejected = 0;
        for (ObjectId node : nodes) {
            for (std::size_t axis = 0; axis < 3; ++axis) {
                if (vector[axis] != 0.0)
                    rejected += model
                                    .SetValue({ node }, c_nodeKeys[axis],
                                              Coordinate(model, node, c_nodeKeys[axis]) + vector[axis])
                                    .rejected;
            }
        }
        m_lastResult = model.ObjectsPhrase(objects->objects);
        if (rejected > 0)
            m_lastResult
                += QStringLiteral(" (%1)").arg(model.PlainText(QStringLiteral("UI_INPUT_SOME_REFUSED")));
        return;
    }
    // A copy gets nodes of its own, so that it stands apart from the original.
    std::map<Number, Number> copiedNodes;
    std::vector<ObjectId> copies;
    for (ObjectId node : nodes) {
        std::vector<std::pair<QString, PropertyValue>> values;
        for (std::size_t axis = 0; axis < 3; ++axis)
            values.emplace_back(c_nodeKeys[axis], Coordinate(model, node, c_nodeKeys[axis]) + vector[axis]);
        const ObjectId copied = model.AddObject(ObjectKind::Node, values);
        copiedNodes[NumberOf(node)] = NumberOf(copied);
        if (std::find(objects->objects.begin(), objects->objects.end(), node) != objects->objects.end())
            copies.push_back(copied);
    }
    for (ObjectId member : members) {
        std::vector<std::pair<QString, PropertyValue>> values {
            { QStringLiteral("member.startNode"),
              copiedNodes[NodeOf(model, member, QStringLiteral("member.startNode"))] },
            { QStringLiteral("member.endNode"),
              copiedNodes[NodeOf(model, member, QStringLiteral("member.endNode"))] }
        };
        const ObjectType& memberType = model.Type(ObjectKind::Member);
        for (const QString& key : c_copiedMemberProperties) {
            // A reference to nothing (a member without a section) stays the new member's default.
            const auto value = model.Value(member, key);
            const PropertyDefinition* definition = memberType.FindProperty(key);
            if (value && definition && !definition->Check(*value))
                values.emplace_back(key, *value);
        }
        if (const ObjectId copied = model.AddObject(ObjectKind::Member, values))
            copies.push_back(copied);
    }
    model.Select(copies);
    m_lastResult = model.ObjectsPhrase(copies);
}
