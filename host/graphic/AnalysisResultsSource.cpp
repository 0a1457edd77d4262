#include "AnalysisResultsSource.h"

#include "GraphicsService.h"
#include "analysis/AnalysisService.h"
#include "results/ResultsDatabase.h"
#include "results/ResultsSchema.h"

#include <QCoreApplication>
#include <algorithm>

namespace Orvo::Graphic {

namespace Model = Kernel::Model;
using Kernel::Results::ResultsTable;

namespace {

// The results file keeps displacements in mm.
constexpr double c_metresPerMillimetre = 0.001;
// Columns of a row, in the results schema's order.
constexpr std::size_t c_objectColumn = 1;
constexpr std::size_t c_firstDisplacementColumn = 2;
constexpr std::size_t c_firstForceColumn = 3;

int ForceIndex(ForceComponent component)
{
    return int(component) - int(ForceComponent::AxialForce);
}

} // namespace

std::shared_ptr<AnalysisResultsSource>
AnalysisResultsSource::Install(std::shared_ptr<Kernel::Analysis::AnalysisService> analysis,
                               GraphicsService& graphics)
{
    auto source = std::make_shared<AnalysisResultsSource>(analysis);
    auto reload = [source = source.get(), &graphics]() {
        source->Reload();
        graphics.NotifyResultsChanged();
    };
    QObject::connect(analysis.get(), &Kernel::Analysis::AnalysisService::resultsChanged, source.get(),
                     reload);
    QObject::connect(analysis.get(), &Kernel::Analysis::AnalysisService::resultsUpToDateChanged, source.get(),
                     reload);
    graphics.SetResultsSource(source);
    return source;
}

AnalysisResultsSource::AnalysisResultsSource(std::shared_ptr<Kernel::Analysis::AnalysisService> analysis)
    : m_analysis(std::move(analysis))
{
    Reload();
    // The connection must close while Qt's database layer still exists, not with the host's
    // services at the very end of the process.
    if (QCoreApplication::instance())
        connect(QCoreApplication::instance(), &QCoreApplication::aboutToQuit, this, [this]() {
            m_sets.clear();
            m_database.reset();
        });
}

AnalysisResultsSource::~AnalysisResultsSource() = default;

void AnalysisResultsSource::Reload()
{
    m_sets.clear();
    m_database.reset();
    const auto database = m_analysis ? m_analysis->Database() : nullptr;
    if (!database || !m_analysis->resultsUpToDate())
        return;
    m_database = std::make_unique<Kernel::Results::ResultsDatabase>(database->Path());
    if (!m_database->IsOpen()) {
        m_database.reset();
        return;
    }
    m_sets.resize(m_database->Sets().size());
}

bool AnalysisResultsSource::HasResults(Model::ObjectId resultCase) const
{
    return FindSet(resultCase) != nullptr;
}

std::optional<Geometry::Point3D> AnalysisResultsSource::NodeDisplacement(Model::ObjectId resultCase,
                                                                         Model::Number node) const
{
    Set* set = FindSet(resultCase);
    if (!set)
        return std::nullopt;
    if (!set->displacementsRead)
        ReadDisplacements(int(set - m_sets.data()), *set);
    const auto it = set->displacements.find(node);
    if (it == set->displacements.end())
        return std::nullopt;
    return it->second;
}

std::vector<double> AnalysisResultsSource::MemberForces(Model::ObjectId resultCase, Model::Number member,
                                                        ForceComponent component, int stations) const
{
    Set* set = FindSet(resultCase);
    if (!set || component == ForceComponent::None || stations < 2)
        return {};
    if (!set->forcesRead)
        ReadForces(int(set - m_sets.data()), *set);
    const auto it = set->forces.find(member);
    if (it == set->forces.end() || it->second.size() < 2)
        return {};
    // The file's stations spread evenly along the member as the caller's do: interpolate.
    const auto& stored = it->second;
    const int index = ForceIndex(component);
    std::vector<double> values;
    values.reserve(std::size_t(stations));
    for (int i = 0; i < stations; ++i) {
        const double at = double(i) * double(stored.size() - 1) / double(stations - 1);
        const std::size_t below = std::min(std::size_t(at), stored.size() - 2);
        const double part = at - double(below);
        values.push_back(stored[below][std::size_t(index)] * (1.0 - part)
                         + stored[below + 1][std::size_t(index)] * part);
    }
    return values;
}

AnalysisResultsSource::Set* AnalysisResultsSource::FindSet(Model::ObjectId resultCase) const
{
    if (!m_database || !Model::IsKnownKind(resultCase))
        return nullptr;
    const auto kind = Model::KindOf(resultCase);
    if (kind != Model::ObjectKind::LoadCase && kind != Model::ObjectKind::Combination)
        return nullptr;
    const auto& summaries = m_database->Sets();
    const auto it = std::find_if(summaries.begin(), summaries.end(), [&](const auto& summary) {
        return summary.combination == (kind == Model::ObjectKind::Combination)
            && summary.number == Model::NumberOf(resultCase);
    });
    if (it == summaries.end())
        return nullptr;
    return &m_sets[std::size_t(it - summaries.begin())];
}

void AnalysisResultsSource::ReadDisplacements(int position, Set& set) const
{
    // The file holds every node once per set, set after set.
    const int perSet = m_database->RowCount(ResultsTable::NodeDisplacements) / int(m_sets.size());
    for (const auto& row : m_database->ReadRows(ResultsTable::NodeDisplacements, position * perSet, perSet)) {
        set.displacements[row[c_objectColumn].toInt()]
            = { row[c_firstDisplacementColumn].toDouble() * c_metresPerMillimetre,
                row[c_firstDisplacementColumn + 1].toDouble() * c_metresPerMillimetre,
                row[c_firstDisplacementColumn + 2].toDouble() * c_metresPerMillimetre };
    }
    set.displacementsRead = true;
}

void AnalysisResultsSource::ReadForces(int position, Set& set) const
{
    // Every member's stations, member after member, set after set.
    const int perSet = m_database->RowCount(ResultsTable::MemberStationForces) / int(m_sets.size());
    for (const auto& row :
         m_database->ReadRows(ResultsTable::MemberStationForces, position * perSet, perSet)) {
        Forces forces {};
        for (std::size_t i = 0; i < forces.size(); ++i)
            forces[i] = row[c_firstForceColumn + i].toDouble();
        set.forces[row[c_objectColumn].toInt()].push_back(forces);
    }
    set.forcesRead = true;
}

} // namespace Orvo::Graphic
