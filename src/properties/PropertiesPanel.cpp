#include "PropertiesPanel.h"

#include "PropertiesLogging.h"
#include "framework/EventBus.h"
#include "framework/ServiceCatalog.h"
#include "plugin/QtComponentsText.h"
#include "properties/StructuralModel.h"
#include "properties/StructuralModelEvents.h"

#include <algorithm>
#include <functional>

namespace Orvo::UI::UIComponents {

using Kernel::Framework::EventBus;
using Kernel::Framework::ObjectId;
using Kernel::Framework::ObjectValuesChangedEvent;
using Kernel::Framework::SelectionChangedEvent;
using Kernel::Framework::ServiceCatalog;
using Kernel::Framework::StructuralModel;

PropertiesPanel::PropertiesPanel(QQuickItem* parent)
    : UIComponent(parent)
    , m_collapsedCategories(std::make_shared<std::vector<QString>>())
    , m_properties(new PropertiesModel(this))
    , m_proxy(new PropertiesProxyModel(this, m_collapsedCategories))
    , m_entities(new EntityModel(this))
    , m_actions(new ActionsModel(this))
    , m_illustration(new IllustrationData(this))
    , m_configuration(new PropertiesPanelUserConfiguration(this))
{
    m_proxy->setSourceModel(m_properties);
    m_proxy->SetInBasicMode(m_configuration->inBasicMode());
    connect(m_configuration, &PropertiesPanelUserConfiguration::inBasicModeChanged, this, [this]() {
        m_proxy->SetInBasicMode(m_configuration->inBasicMode());
        emit inBasicModeChanged();
    });
    connect(m_entities, &EntityModel::currentObjectsChanged, this, &PropertiesPanel::ShowCurrentEntity);
    connect(m_properties, &PropertiesModel::valueRejected, this,
            [this](const QString&, const QString& reason) { SetMessage(reason); });
    connect(m_properties, &PropertiesModel::valueAccepted, this, [this]() { SetMessage({}); });
    // The user's choices reach the host as they are made, not only when the window closes,
    // which a panel torn down with its window does not live to see.
    for (auto changed : { &PropertiesPanelUserConfiguration::collapsedCategoriesChanged,
                          &PropertiesPanelUserConfiguration::inBasicModeChanged,
                          &PropertiesPanelUserConfiguration::illustrationVisibleChanged })
        connect(m_configuration, changed, this, &PropertiesPanel::storeConfiguration);

    auto catalog = ServiceCatalog::Global();
    m_structuralModel = catalog->Get<StructuralModel>();
    if (!m_structuralModel)
        qCWarning(lcProperties).noquote()
            << "The host has no structural model: the properties panel stays empty";
    catalog->Inject(*this);
    ShowSelection(m_structuralModel ? m_structuralModel->Selection() : std::vector<ObjectId>());
}

PropertiesPanel::~PropertiesPanel() = default;

void PropertiesPanel::SetEventbus(std::shared_ptr<EventBus> eventbus)
{
    m_eventbus = std::move(eventbus);
    m_selectionConnection.Disconnect();
    m_valuesConnection.Disconnect();
    if (!m_eventbus)
        return;
    using namespace std::placeholders;
    m_selectionConnection = m_eventbus->Subscribe<SelectionChangedEvent>(
        std::bind(&PropertiesPanel::OnSelectionChanged, this, _1));
    m_valuesConnection = m_eventbus->Subscribe<ObjectValuesChangedEvent>(
        std::bind(&PropertiesPanel::OnObjectValuesChanged, this, _1));
}

bool PropertiesPanel::isInBasicMode() const
{
    return m_configuration->inBasicMode();
}

void PropertiesPanel::setInBasicMode(bool inBasicMode)
{
    m_configuration->setInBasicMode(inBasicMode);
}

void PropertiesPanel::toggleCategory(const QString& category)
{
    if (category.isEmpty())
        return;
    m_proxy->filterForCategory(category, !m_proxy->isCategoryCollapsed(category));
    m_proxy->UpdateCollapsedGroupsStates();
    m_configuration->setCollapsedCategories(
        QStringList(m_collapsedCategories->begin(), m_collapsedCategories->end()));
}

void PropertiesPanel::expandAll()
{
    ApplyCollapsedCategories({});
}

bool PropertiesPanel::setValue(const QVariant& value, const QString& uuid, int action)
{
    return m_proxy->SetValue(value, uuid, action);
}

bool PropertiesPanel::runAction(int row)
{
    const QString key = m_actions->KeyAt(row);
    if (key.isEmpty() || !m_structuralModel) {
        qCWarning(lcProperties).noquote() << "runAction: there is no action" << row;
        return false;
    }
    return m_structuralModel->RunAction(m_entities->CurrentObjects(), key) > 0;
}

void PropertiesPanel::showIllustration(const QString& uuid)
{
    m_illustrationUuid = uuid;
    const auto* definition = m_properties->FindDefinition(uuid);
    const auto& shown = m_properties->ShownObjects();
    // The drawing of the first object stands for all: a shape's drawing for a mixed selection of
    // shapes would be wrong for some, but the dimension it explains is the same.
    const QString source = definition && m_structuralModel && !shown.empty()
        ? m_structuralModel->Illustration(shown.front(), definition->key)
        : QString();
    if (source.isEmpty()) {
        m_illustration->Clear();
        return;
    }
    m_illustration->Show(GetText(definition->nameId), source, definition->key);
}

void PropertiesPanel::SetMessage(const QString& message)
{
    if (message == m_message)
        return;
    m_message = message;
    emit messageChanged();
}

void PropertiesPanel::loadConfiguration(const QString& userConfiguration)
{
    m_configuration->FromString(userConfiguration);
    ApplyCollapsedCategories(m_configuration->collapsedCategories());
    m_proxy->SetInBasicMode(m_configuration->inBasicMode());
}

QString PropertiesPanel::saveConfiguration()
{
    m_configuration->setCollapsedCategories(
        QStringList(m_collapsedCategories->begin(), m_collapsedCategories->end()));
    return m_configuration->ToString();
}

void PropertiesPanel::ApplyCollapsedCategories(const QStringList& categories)
{
    m_collapsedCategories->assign(categories.begin(), categories.end());
    m_configuration->setCollapsedCategories(categories);
    m_proxy->UpdateCollapsedGroupsStates();
}

void PropertiesPanel::OnSelectionChanged(const SelectionChangedEvent& event)
{
    ShowSelection(event.selection);
}

void PropertiesPanel::OnObjectValuesChanged(const ObjectValuesChangedEvent& event)
{
    const auto& shown = m_properties->ShownObjects();
    const bool concernsShown = std::any_of(event.objects.begin(), event.objects.end(), [&shown](ObjectId id) {
        return std::find(shown.begin(), shown.end(), id) != shown.end();
    });
    if (concernsShown) {
        m_properties->RefreshValues();
        // The drawing follows what it shows (a section's shape).
        if (!m_illustrationUuid.isEmpty())
            showIllustration(m_illustrationUuid);
    }
    UpdateTitle();
}

void PropertiesPanel::ShowSelection(const std::vector<ObjectId>& selection)
{
    const bool changed = selection != m_selection;
    m_selection = selection;
    if (changed)
        SetMessage({});
    m_entities->SetObjects(m_structuralModel.get(), selection);
    if (changed)
        emit selectionChanged();
    UpdateTitle();
}

void PropertiesPanel::ShowCurrentEntity()
{
    const std::vector<ObjectId> objects = m_entities->CurrentObjects();
    m_properties->ShowObjects(m_structuralModel, objects);
    std::vector<ActionsModel::Action> actions;
    if (m_structuralModel) {
        for (const auto& action : m_structuralModel->ActionsFor(objects))
            actions.push_back({ action.key, action.nameId });
    }
    m_actions->SetActions(std::move(actions));
    m_illustration->Clear();
    m_illustrationUuid.clear();
}

void PropertiesPanel::UpdateTitle()
{
    QString title;
    if (m_selection.empty()) {
        title = GetText(QStringLiteral("UI_PROPERTIES_NO_SELECTION"));
    } else if (m_selection.size() == 1 && m_structuralModel) {
        if (const auto* type = m_structuralModel->TypeOf(m_selection.front()))
            title = GetText(QStringLiteral("UI_PROPERTIES_TITLE_ONE"))
                        .arg(GetText(type->NameId()))
                        .arg(Kernel::Model::NumberOf(m_selection.front()));
    } else {
        title = GetText(QStringLiteral("UI_PROPERTIES_TITLE_MANY")).arg(m_selection.size());
    }
    if (title == m_title)
        return;
    m_title = title;
    emit titleChanged();
}

} // namespace Orvo::UI::UIComponents
