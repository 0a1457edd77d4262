#include "ProcessToolbar.h"

#include "StatusLogging.h"
#include "analysis/AnalysisService.h"
#include "analysis/DesignService.h"
#include "framework/EventBus.h"
#include "framework/ServiceCatalog.h"
#include "model/ModelRecords.h"
#include "plugin/QtComponentsText.h"
#include "properties/StructuralModel.h"
#include "properties/StructuralModelEvents.h"
#include "tables/TableDataCatalog.h"

#include <QJsonDocument>
#include <QJsonObject>

namespace Orvo::UI::UIComponents {

using namespace Kernel;
using State = WorkflowStepsModel::StepState;

namespace {

enum StepRow
{
    ModelStep,
    LoadsStep,
    AnalysisStep,
    ResultsStep,
    DesignStep,
};

const QString c_currentStepKey = QStringLiteral("currentStep");

bool WorkstationHasErrors(const Tables::TableDataCatalog& catalog, const std::wstring& id)
{
    const Tables::TableWorkstation* workstation = catalog.FindWorkstation(id);
    if (!workstation)
        return false;
    for (const auto& table : workstation->tables) {
        if (table->HasErrors())
            return true;
    }
    return false;
}

} // namespace

ProcessToolbar::ProcessToolbar(QQuickItem* parent)
    : UIComponent(parent)
    , m_steps(new WorkflowStepsModel(this))
    , m_centerButton(new CenterButtonData(this))
    , m_tooltip(new TooltipData(this))
{
    connect(m_centerButton, &CenterButtonData::triggered, this, &ProcessToolbar::RunCurrentStep);
    const auto catalog = Framework::ServiceCatalog::Global();
    if (catalog) {
        m_model = catalog->Get<Framework::StructuralModel>();
        m_tables = catalog->Get<Tables::TableDataCatalog>();
        m_analysis = catalog->Get<Analysis::AnalysisService>();
        m_design = catalog->Get<Analysis::DesignService>();
        if (const auto eventbus = catalog->Get<Framework::EventBus>()) {
            m_connections.push_back(eventbus->Subscribe<Framework::StructureChangedEvent>(
                [this](const Framework::StructureChangedEvent&) { UpdateStates(); }));
            m_connections.push_back(eventbus->Subscribe<Framework::ObjectValuesChangedEvent>(
                [this](const Framework::ObjectValuesChangedEvent&) { UpdateStates(); }));
        }
    }
    if (m_analysis) {
        using Analysis::AnalysisService;
        connect(m_analysis.get(), &AnalysisService::runningChanged, this, &ProcessToolbar::UpdateStates);
        connect(m_analysis.get(), &AnalysisService::resultsUpToDateChanged, this,
                &ProcessToolbar::UpdateStates);
        connect(m_analysis.get(), &AnalysisService::resultsChanged, this, &ProcessToolbar::UpdateStates);
        connect(m_analysis.get(), &AnalysisService::finished, this, [this](bool succeeded) {
            m_lastAnalysisFailed = !succeeded;
            UpdateStates();
        });
    }
    if (m_design) {
        using Analysis::DesignService;
        connect(m_design.get(), &DesignService::outcomeChanged, this, &ProcessToolbar::UpdateStates);
        connect(m_design.get(), &DesignService::upToDateChanged, this, &ProcessToolbar::UpdateStates);
        connect(m_design.get(), &DesignService::canRunChanged, this, &ProcessToolbar::UpdateStates);
    }
    UpdateStates();
}

ProcessToolbar::~ProcessToolbar()
{
    // The services outlive the toolbar.
    if (m_analysis)
        m_analysis->disconnect(this);
    if (m_design)
        m_design->disconnect(this);
}

void ProcessToolbar::setCurrentStep(int row)
{
    if (row == currentStep())
        return;
    if (row < 0 || row >= m_steps->rowCount()) {
        qCWarning(lcStatus) << "setCurrentStep: there is no step" << row;
        return;
    }
    m_steps->SetCurrent(row);
    UpdateCenterButton();
    emit currentStepChanged();
}

void ProcessToolbar::UpdateStates()
{
    const Model::Structure* structure = m_model ? &m_model->Structure() : nullptr;
    const bool hasMembers = structure && structure->Count(Model::ObjectKind::Member) > 0;
    const bool hasLoads = structure && structure->Count(Model::ObjectKind::LoadCase) > 0
        && (structure->Count(Model::ObjectKind::NodalLoad) + structure->Count(Model::ObjectKind::MemberLoad))
            > 0;
    const bool modelErrors
        = m_tables && CatchAtStatusBoundary("UpdateStates", false, [this] {
              return WorkstationHasErrors(*m_tables, Tables::TableDataCatalog::c_modelWorkstation);
          });
    const bool loadErrors
        = m_tables && CatchAtStatusBoundary("UpdateStates", false, [this] {
              return WorkstationHasErrors(*m_tables, Tables::TableDataCatalog::c_loadsWorkstation);
          });
    m_steps->SetState(ModelStep, modelErrors ? State::Error : hasMembers ? State::Done : State::NotStarted);
    m_steps->SetState(LoadsStep, loadErrors ? State::Error : hasLoads ? State::Done : State::NotStarted);

    const bool running = m_analysis && m_analysis->running();
    const bool hasResults = m_analysis && m_analysis->hasResults();
    const bool upToDate = hasResults && m_analysis->resultsUpToDate();
    State analysis = State::NotStarted;
    if (running)
        analysis = State::Running;
    else if (m_lastAnalysisFailed)
        analysis = State::Error;
    else if (hasResults)
        analysis = upToDate ? State::Done : State::NeedsUpdate;
    m_steps->SetState(AnalysisStep, analysis);
    m_steps->SetState(ResultsStep,
                      !hasResults    ? State::NotStarted
                          : upToDate ? State::Done
                                     : State::NeedsUpdate);
    // A check that found members over their strength is an error of the design, to be fixed in
    // the model; a check of results that changed since needs to run again.
    State design = State::NotStarted;
    if (m_design && m_design->hasOutcome()) {
        if (!m_design->upToDate())
            design = State::NeedsUpdate;
        else
            design = m_design->passes() ? State::Done : State::Error;
    }
    m_steps->SetState(DesignStep, design);
    UpdateCenterButton();
}

void ProcessToolbar::UpdateCenterButton()
{
    const int row = currentStep();
    const auto& step = WorkflowStepsModel::Steps()[std::size_t(row)];
    const bool running = m_analysis && m_analysis->running();
    bool enabled = false;
    switch (row) {
    case ModelStep:
    case LoadsStep:
        enabled = m_tables != nullptr;
        break;
    case AnalysisStep:
        enabled = m_analysis && !running && m_steps->State(ModelStep) == State::Done;
        break;
    case ResultsStep:
        enabled = m_analysis && m_analysis->hasResults();
        break;
    case DesignStep:
        // The check needs results of the model as it is.
        enabled = m_design && m_design->canRun() && !running;
        break;
    default:
        break;
    }
    m_centerButton->Set(step.id, GetText(step.actionTitleId), enabled, row == AnalysisStep && running);
}

void ProcessToolbar::RunCurrentStep()
{
    switch (currentStep()) {
    case ModelStep:
        emit tablesRequested(QString::fromStdWString(Tables::TableDataCatalog::c_modelWorkstation));
        break;
    case LoadsStep:
        emit tablesRequested(QString::fromStdWString(Tables::TableDataCatalog::c_loadsWorkstation));
        break;
    case AnalysisStep:
        if (m_analysis) {
            m_lastAnalysisFailed = false;
            m_analysis->start();
        }
        break;
    case ResultsStep:
        emit resultsRequested();
        break;
    case DesignStep:
        if (m_design)
            CatchAtStatusBoundary("Design check", false, [this] { return m_design->run(); });
        break;
    default:
        break;
    }
}

void ProcessToolbar::showTooltip(int row)
{
    if (row == -1) {
        m_tooltip->setTitle(m_centerButton->text());
        const auto& step = WorkflowStepsModel::Steps()[std::size_t(currentStep())];
        m_tooltip->setDescription(GetText(step.descriptionId));
        m_tooltip->setShortcut(m_centerButton->shortcut());
        m_tooltip->setStatus(
            m_centerButton->enabled() ? QString() : GetText(QStringLiteral("UI_PROCESS_ACTION_UNAVAILABLE")));
        return;
    }
    if (row < 0 || row >= m_steps->rowCount()) {
        qCWarning(lcStatus) << "showTooltip: there is no step" << row;
        return;
    }
    const auto& step = WorkflowStepsModel::Steps()[std::size_t(row)];
    m_tooltip->setTitle(GetText(step.titleId));
    m_tooltip->setDescription(GetText(step.descriptionId));
    m_tooltip->setShortcut(step.shortcut);
    m_tooltip->setStatus(StateText(m_steps->State(row)));
}

QString ProcessToolbar::StateText(State state) const
{
    switch (state) {
    case State::NotStarted:
        return GetText(QStringLiteral("UI_PROCESS_STATE_NOT_STARTED"));
    case State::Done:
        return GetText(QStringLiteral("UI_PROCESS_STATE_DONE"));
    case State::NeedsUpdate:
        return GetText(QStringLiteral("UI_PROCESS_STATE_NEEDS_UPDATE"));
    case State::Error:
        return GetText(QStringLiteral("UI_PROCESS_STATE_ERROR"));
    case State::Running:
        return GetText(QStringLiteral("UI_PROCESS_STATE_RUNNING"));
    }
    return {};
}

QString ProcessToolbar::saveConfiguration()
{
    const auto& step = WorkflowStepsModel::Steps()[std::size_t(currentStep())];
    return QString::fromUtf8(
        QJsonDocument(QJsonObject { { c_currentStepKey, step.id } }).toJson(QJsonDocument::Compact));
}

void ProcessToolbar::loadConfiguration(const QString& userConfiguration)
{
    if (userConfiguration.isEmpty())
        return;
    const QJsonDocument document = QJsonDocument::fromJson(userConfiguration.toUtf8());
    const int row = m_steps->FindRow(document.object().value(c_currentStepKey).toString());
    if (row < 0) {
        qCWarning(lcStatus).noquote()
            << "The process toolbar's configuration names no step:" << userConfiguration;
        return;
    }
    setCurrentStep(row);
}

} // namespace Orvo::UI::UIComponents
