#include "InputPanelContainerModel.h"

#include "InputPanelLogging.h"
#include "commands/RunningCommand.h"
#include "events/RunningCommandEvents.h"
#include "framework/EventBus.h"
#include "framework/ServiceCatalog.h"
#include "plugin/QtComponentsText.h"
#include "properties/StructuralModel.h"

#include <algorithm>

namespace Orvo::UI::UIComponents {

using namespace Kernel::Framework;

InputPanelContainerModel::InputPanelContainerModel(QObject* parent)
    : QAbstractListModel(parent)
{
    auto catalog = ServiceCatalog::Global();
    catalog->Inject(*this);
    m_command = catalog->Get<RunningCommand>();
    m_model = catalog->Get<StructuralModel>();
    Rebuild();
}

InputPanelContainerModel::~InputPanelContainerModel() = default;

void InputPanelContainerModel::SetRunningCommand(std::shared_ptr<RunningCommand> command)
{
    m_command = std::move(command);
    Rebuild();
}

void InputPanelContainerModel::SetStructuralModel(std::shared_ptr<StructuralModel> model)
{
    m_model = std::move(model);
    Rebuild();
}

void InputPanelContainerModel::Rebuild()
{
    std::vector<Container> containers;
    if (m_command && m_command->IsRunning()) {
        for (const CommandInput& input : m_command->Inputs()) {
            const QString id = QString::fromStdWString(input.groupId);
            auto found = std::find_if(containers.begin(), containers.end(),
                                      [&id](const Container& container) { return container.id == id; });
            if (found == containers.end())
                found = containers.insert(containers.end(),
                                          Container { id, QString::fromStdWString(input.category), {} });
            found->inputs.push_back(input);
        }
    }
    m_builtFor = m_command && m_command->IsRunning() ? m_command->CommandUuid() : std::wstring();
    const int before = rowCount();
    // A new command or a new set of inputs: nothing of the old rows carries over.
    beginResetModel();
    m_containers = std::move(containers);
    endResetModel();
    for (const Container& container : m_containers) {
        for (const CommandInput& input : container.inputs) {
            if (input.kind == CommandInput::Kind::Objects)
                UpdateTags(input);
        }
    }
    if (before != rowCount())
        emit countChanged();
}

void InputPanelContainerModel::OnRunningCommandChanged()
{
    // The same command asking for something else (New member's end point after its start)
    // keeps its inputs, which announce their own changes: the rows, and the user's edits in
    // them, stay.
    const std::wstring running
        = m_command && m_command->IsRunning() ? m_command->CommandUuid() : std::wstring();
    if (running != m_builtFor)
        Rebuild();
}

void InputPanelContainerModel::UpdateInput(const std::wstring& inputId)
{
    const CommandInput* changed = m_command ? m_command->FindInput(inputId) : nullptr;
    if (!changed) {
        Rebuild();
        return;
    }
    for (std::size_t row = 0; row < m_containers.size(); ++row) {
        for (CommandInput& input : m_containers[row].inputs) {
            if (input.id != inputId)
                continue;
            input = *changed;
            if (input.kind == CommandInput::Kind::Objects)
                UpdateTags(input);
            emit dataChanged(index(int(row)), index(int(row)), { FieldsRole });
            return;
        }
    }
}

void InputPanelContainerModel::UpdateTags(const CommandInput& input)
{
    TagModel* model = tags(QString::fromStdWString(input.id));
    std::vector<TagModel::Tag> tags;
    for (int objectId : input.objects)
        tags.push_back(
            { objectId, m_model ? m_model->ObjectsPhrase({ objectId }) : QString::number(objectId) });
    model->SetTags(std::move(tags));
}

TagModel* InputPanelContainerModel::tags(const QString& inputId)
{
    if (TagModel* known = m_tags.value(inputId))
        return known;
    auto* model = new TagModel(this);
    const std::wstring id = inputId.toStdWString();
    model->SetRemover([this, id](int objectId) {
        return CatchAtInputPanelBoundary("Removing a picked object", false,
                                         [&] { return m_command && m_command->RemoveObject(id, objectId); });
    });
    m_tags.insert(inputId, model);
    return model;
}

bool InputPanelContainerModel::setNumber(const QString& inputId, double value)
{
    return CatchAtInputPanelBoundary("Setting an input", false, [&] {
        return m_command && m_command->SetNumber(inputId.toStdWString(), value);
    });
}

bool InputPanelContainerModel::setChoice(const QString& inputId, int choice)
{
    return CatchAtInputPanelBoundary("Setting an input", false, [&] {
        return m_command && m_command->SetChoice(inputId.toStdWString(), choice);
    });
}

QStringList InputPanelContainerModel::foldedContainers() const
{
    QStringList folded(m_folded.begin(), m_folded.end());
    folded.sort();
    return folded;
}

void InputPanelContainerModel::setFoldedContainers(const QStringList& containers)
{
    const QSet<QString> folded(containers.begin(), containers.end());
    if (folded == m_folded)
        return;
    m_folded = folded;
    if (rowCount() > 0)
        emit dataChanged(index(0), index(rowCount() - 1), { FoldedRole });
    emit foldedContainersChanged();
}

void InputPanelContainerModel::setFolded(int row, bool folded)
{
    if (row < 0 || row >= rowCount()) {
        qCWarning(lcInputPanel) << "setFolded: no container at row" << row;
        return;
    }
    const QString& id = m_containers[std::size_t(row)].id;
    if (m_folded.contains(id) == folded)
        return;
    if (folded)
        m_folded.insert(id);
    else
        m_folded.remove(id);
    emit dataChanged(index(row), index(row), { FoldedRole });
    emit foldedContainersChanged();
}

QVariantList InputPanelContainerModel::Fields(const Container& container) const
{
    QVariantList fields;
    for (const CommandInput& input : container.inputs) {
        QStringList choices;
        for (const std::wstring& choice : input.choices)
            choices << GetText(QString::fromStdWString(choice));
        const FieldKind kind = input.kind == CommandInput::Kind::Number ? NumberField
            : input.kind == CommandInput::Kind::Choice                  ? ChoiceField
                                                                        : ObjectsField;
        fields.append(
            QVariantMap { { QStringLiteral("inputId"), QString::fromStdWString(input.id) },
                          { QStringLiteral("label"), GetText(QString::fromStdWString(input.nameId)) },
                          { QStringLiteral("kind"), int(kind) },
                          { QStringLiteral("number"), input.number },
                          { QStringLiteral("unit"), QString::fromStdWString(input.unit) },
                          { QStringLiteral("choices"), choices },
                          { QStringLiteral("choice"), input.choice } });
    }
    return fields;
}

int InputPanelContainerModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : int(m_containers.size());
}

QVariant InputPanelContainerModel::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid))
        return QVariant();
    const Container& container = m_containers[std::size_t(index.row())];
    switch (role) {
    case ContainerIdRole:
        return container.id;
    case Qt::DisplayRole:
    case TitleRole:
        return GetText(container.id);
    case CategoryRole:
        return container.category;
    case FoldedRole:
        return m_folded.contains(container.id);
    case FieldsRole:
        return Fields(container);
    default:
        return QVariant();
    }
}

QHash<int, QByteArray> InputPanelContainerModel::roleNames() const
{
    return { { Qt::DisplayRole, "display" }, { ContainerIdRole, "containerId" }, { TitleRole, "title" },
             { CategoryRole, "category" },   { FoldedRole, "folded" },           { FieldsRole, "fields" } };
}

void InputPanelContainerModel::SetEventbus(std::shared_ptr<EventBus> eventbus)
{
    m_eventbus = std::move(eventbus);
    if (!m_eventbus) {
        m_commandConnection = EventConnection();
        m_inputsConnection = EventConnection();
        return;
    }
    m_commandConnection = m_eventbus->Subscribe<Events::RunningCommandChanged>(
        [this](const auto&) { OnRunningCommandChanged(); });
    m_inputsConnection = m_eventbus->Subscribe<Events::RunningCommandInputsChanged>(
        [this](const Events::RunningCommandInputsChanged& event) {
            if (event.GetInputId().empty())
                Rebuild();
            else
                UpdateInput(event.GetInputId());
        });
}

std::shared_ptr<EventBus> InputPanelContainerModel::GetEventbus() const
{
    return m_eventbus;
}

} // namespace Orvo::UI::UIComponents
