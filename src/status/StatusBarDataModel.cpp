#include "StatusBarDataModel.h"

#include "analysis/AnalysisService.h"
#include "framework/ServiceCatalog.h"

namespace Orvo::UI::UIComponents {

using Kernel::Analysis::AnalysisService;

StatusBarDataModel::StatusBarDataModel(QObject* parent)
    : QObject(parent)
    , m_units(new UnitsSubDataModel(this))
    , m_scale(new ScaleSubDataModel(this))
    , m_snapping(new SnappingSubDataModel(this))
    , m_coordinates(new CoordinatesSubModel(this))
    , m_masterEntity(new MasterEntitySubDataModel(this))
{
    const auto catalog = Kernel::Framework::ServiceCatalog::Global();
    m_analysis = catalog ? catalog->Get<AnalysisService>() : nullptr;
    if (m_analysis) {
        connect(m_analysis.get(), &AnalysisService::runningChanged, this,
                &StatusBarDataModel::progressChanged);
        connect(m_analysis.get(), &AnalysisService::progressChanged, this,
                &StatusBarDataModel::progressChanged);
    }
}

StatusBarDataModel::~StatusBarDataModel()
{
    // The service outlives the bar; its signals must not reach a half-destroyed one.
    if (m_analysis)
        m_analysis->disconnect(this);
}

void StatusBarDataModel::setViewportId(int id)
{
    if (id == viewportId())
        return;
    m_coordinates->setViewportId(id);
    m_scale->setViewportId(id);
    emit viewportIdChanged();
}

bool StatusBarDataModel::busy() const
{
    return m_analysis && m_analysis->running();
}

double StatusBarDataModel::progress() const
{
    return busy() ? m_analysis->progress() : 0.0;
}

QString StatusBarDataModel::progressText() const
{
    return busy() ? m_analysis->stageText() : QString();
}

void StatusBarDataModel::cancel()
{
    if (busy())
        m_analysis->cancel();
}

} // namespace Orvo::UI::UIComponents
