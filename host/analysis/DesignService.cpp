#include "DesignService.h"

#include "AnalysisEvents.h"
#include "AnalysisService.h"
#include "basiccomponents/NumberHelper.h"
#include "framework/EventBus.h"
#include "model/ObjectIds.h"

namespace Orvo::Kernel::Analysis {

namespace {

// Utilisations are read to the hundredth: 0.995 is as full as 1.00 to an engineer.
constexpr int c_utilisationDecimals = 2;

} // namespace

DesignService::DesignService(std::shared_ptr<AnalysisService> analysis,
                             std::shared_ptr<Framework::EventBus> eventBus,
                             std::shared_ptr<const Framework::IStringLoader> strings, QObject* parent)
    : QObject(parent)
    , m_analysis(std::move(analysis))
    , m_eventBus(std::move(eventBus))
    , m_strings(std::move(strings))
{
    if (!m_analysis)
        return;
    connect(m_analysis.get(), &AnalysisService::resultsChanged, this, &DesignService::UpdateStates);
    connect(m_analysis.get(), &AnalysisService::resultsUpToDateChanged, this, &DesignService::UpdateStates);
    UpdateStates();
}

DesignService::~DesignService()
{
    // The analysis may outlive this service in the catalog's teardown.
    if (m_analysis)
        m_analysis->disconnect(this);
}

bool DesignService::run()
{
    UpdateStates();
    if (!m_canRun)
        return false;
    const auto results = m_analysis->Results();
    m_outcome = DesignCheck::Run(*m_analysis->AnalysedStructure(), *results);
    m_checked = results;
    const QString utilisation = UI::BasicComponents::NumberHelper().locale().toString(
        m_outcome->maxUtilisation, 'f', c_utilisationDecimals);
    const Model::ObjectRef governing { Model::ObjectKind::Member, m_outcome->governingMember };
    if (m_outcome->Passes())
        m_statusText = Text(QStringLiteral("UI_DESIGN_PASSED"),
                            { QString::number(m_outcome->members.size()), utilisation, governing });
    else
        m_statusText = Text(QStringLiteral("UI_DESIGN_FAILED"),
                            { QString::number(m_outcome->failingCount), utilisation, governing });
    UpdateStates();
    emit outcomeChanged();
    if (m_eventBus)
        m_eventBus->Post(DesignCheckedEvent { m_outcome->Passes(), m_outcome->maxUtilisation, m_statusText,
                                              m_outcome->governingMember != 0 ? Model::MakeObjectId(
                                                  Model::ObjectKind::Member, m_outcome->governingMember)
                                                                              : 0 });
    return true;
}

void DesignService::UpdateStates()
{
    const bool canRun = m_analysis && m_analysis->Results() && m_analysis->resultsUpToDate();
    const bool upToDate = canRun && m_outcome && m_checked == m_analysis->Results();
    if (canRun != m_canRun) {
        m_canRun = canRun;
        emit canRunChanged();
    }
    if (upToDate != m_upToDate) {
        m_upToDate = upToDate;
        emit upToDateChanged();
    }
}

QString DesignService::Text(const QString& id,
                            const std::vector<Model::ModelMessage::Argument>& arguments) const
{
    return Model::ModelMessage(id, arguments).ToText(m_strings.get());
}

} // namespace Orvo::Kernel::Analysis
