#pragma once

#include "CenterButtonData.h"
#include "TooltipData.h"
#include "WorkflowStepsModel.h"
#include "framework/EventConnection.h"
#include "qtextensions/UIComponent.h"

#include <QtQml/qqmlregistration.h>
#include <memory>
#include <vector>

namespace Orvo::Kernel::Analysis {
class AnalysisService;
class DesignService;
} // namespace Orvo::Kernel::Analysis
namespace Orvo::Kernel::Framework {
class StructuralModel;
}
namespace Orvo::Kernel::Tables {
class TableDataCatalog;
}

namespace Orvo::UI::UIComponents {

// The native half of the process toolbar: the steps of a structural project with their states
// (done, needs an update after an edit, error, running), the current step, and the centre button
// that runs the current step's main action. The states follow the model and the analysis:
//   model     done with members and no object in error, error while one is;
//   loads     done with a load case and a load, error while a load is wrong;
//   analysis  done while its results are those of the model, needs an update after an edit,
//             error when the last run failed, running while it runs;
//   results   as the analysis, once it has results;
//   design    the host's member check, offered once the results are those of the model: done
//             when every member passes, error when one is over its strength, needs an update
//             once the results it checked are out of date.
class ProcessToolbar : public Orvo::UI::QtExtensions::UIComponent
{
    Q_OBJECT
    QML_NAMED_ELEMENT(ProcessToolbar_Cpp)
    Q_PROPERTY(Orvo::UI::UIComponents::WorkflowStepsModel* steps READ steps CONSTANT)
    Q_PROPERTY(Orvo::UI::UIComponents::CenterButtonData* centerButton READ centerButton CONSTANT)
    Q_PROPERTY(Orvo::UI::UIComponents::TooltipData* tooltip READ tooltip CONSTANT)
    Q_PROPERTY(int currentStep READ currentStep WRITE setCurrentStep NOTIFY currentStepChanged)

public:
    explicit ProcessToolbar(QQuickItem* parent = nullptr);
    ~ProcessToolbar() override;

    WorkflowStepsModel* steps() const { return m_steps; }
    CenterButtonData* centerButton() const { return m_centerButton; }
    TooltipData* tooltip() const { return m_tooltip; }
    int currentStep() const { return m_steps->Current(); }
    void setCurrentStep(int row);

    // Fills the tooltip for a step's button, or for the centre button with -1.
    Q_INVOKABLE void showTooltip(int row);

    // The current step is the one the user chose; its state is kept.
    QString saveConfiguration() override;
    void loadConfiguration(const QString& userConfiguration) override;
    bool isPersistent() const override { return true; }

    // Works the states out again (the host's events call it; so can a host after a change of its own).
    void UpdateStates();

signals:
    void currentStepChanged();
    // The main actions that the application carries out: show the tables of a workstation, show
    // the results in the view.
    void tablesRequested(const QString& workstationId);
    void resultsRequested();

private:
    void RunCurrentStep();
    void UpdateCenterButton();
    QString StateText(WorkflowStepsModel::StepState state) const;

    WorkflowStepsModel* m_steps;
    CenterButtonData* m_centerButton;
    TooltipData* m_tooltip;
    std::shared_ptr<Kernel::Framework::StructuralModel> m_model;
    std::shared_ptr<Kernel::Tables::TableDataCatalog> m_tables;
    std::shared_ptr<Kernel::Analysis::AnalysisService> m_analysis;
    std::shared_ptr<Kernel::Analysis::DesignService> m_design;
    bool m_lastAnalysisFailed = false;
    std::vector<Kernel::Framework::EventConnection> m_connections;
};

} // namespace Orvo::UI::UIComponents
