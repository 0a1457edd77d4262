#include "InputPanel.h"

#include "InputPanelLogging.h"
#include "commands/ICommandRepository.h"
#include "commands/RunningCommand.h"
#include "events/RunningCommandEvents.h"
#include "framework/EventBus.h"
#include "framework/ServiceCatalog.h"
#include "plugin/QtComponentsText.h"

namespace Orvo::UI::UIComponents {

using namespace Kernel::Framework;

InputPanel::InputPanel(QQuickItem* parent)
    : UIComponent(parent)
    , m_userConfiguration(new InputPanelUserConfiguration(this))
    , m_containerModel(new InputPanelContainerModel(this))
    , m_containers(new InputPanelContainerProxyModel(this))
    , m_filterItemModel(new FilterBarItemModel(this))
    , m_filterItems(new FilterBarItemProxyModel(this))
{
    m_filterItemModel->setContainers(m_containerModel);
    m_filterItems->setSourceModel(m_filterItemModel);
    m_containers->setSourceModel(m_containerModel);
    m_containers->setFilterItems(m_filterItemModel);
    // The models hold what the user does; the configuration keeps it for the next session.
    connect(m_containerModel, &InputPanelContainerModel::foldedContainersChanged, this,
            [this] { m_userConfiguration->setFoldedContainers(m_containerModel->foldedContainers()); });
    connect(m_filterItemModel, &FilterBarItemModel::hiddenCategoriesChanged, this,
            [this] { m_userConfiguration->setHiddenCategories(m_filterItemModel->hiddenCategories()); });
    auto catalog = ServiceCatalog::Global();
    catalog->Inject(*this);
    m_command = catalog->Get<RunningCommand>();
}

InputPanel::~InputPanel() = default;

void InputPanel::SetRunningCommand(std::shared_ptr<RunningCommand> command)
{
    m_command = command;
    m_containerModel->SetRunningCommand(std::move(command));
    emit runningCommandChanged();
}

bool InputPanel::commandRunning() const
{
    return m_command && m_command->IsRunning();
}

QString InputPanel::commandName() const
{
    if (!commandRunning())
        return QString();
    const auto repository = ServiceCatalog::Global()->Get<ICommandRepository>();
    const auto command = repository ? repository->FindCommand(m_command->CommandUuid()) : std::nullopt;
    return command ? GetText(QString::fromStdWString(command->nameId))
                   : QString::fromStdWString(m_command->CommandUuid());
}

QString InputPanel::prompt() const
{
    return commandRunning() && !m_command->Prompt().empty()
        ? GetText(QString::fromStdWString(m_command->Prompt()))
        : QString();
}

bool InputPanel::apply()
{
    return CatchAtInputPanelBoundary("Applying the inputs", false,
                                     [&] { return m_command && m_command->Apply(); });
}

bool InputPanel::cancel()
{
    return CatchAtInputPanelBoundary("Cancelling the command", false, [&] {
        if (!commandRunning())
            return false;
        m_command->Finish();
        return true;
    });
}

void InputPanel::loadConfiguration(const QString& userConfiguration)
{
    CatchAtInputPanelBoundary("Loading the configuration", false,
                              [&] { return m_userConfiguration->FromString(userConfiguration); });
    m_containerModel->setFoldedContainers(m_userConfiguration->foldedContainers());
    m_filterItemModel->setHiddenCategories(m_userConfiguration->hiddenCategories());
}

bool InputPanel::customUserSettingPosition() const
{
    return m_userConfiguration->placed();
}

QString InputPanel::saveConfiguration()
{
    return m_userConfiguration->ToString();
}

void InputPanel::SetEventbus(std::shared_ptr<EventBus> eventbus)
{
    m_eventbus = std::move(eventbus);
    m_commandConnection = m_eventbus ? m_eventbus->Subscribe<Events::RunningCommandChanged>(
                              [this](const auto&) { emit runningCommandChanged(); })
                                     : EventConnection();
}

std::shared_ptr<EventBus> InputPanel::GetEventbus() const
{
    return m_eventbus;
}

} // namespace Orvo::UI::UIComponents
