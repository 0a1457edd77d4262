#pragma once

#include "HostKitExport.h"
#include "ResultsSource.h"

#include <QObject>
#include <array>
#include <memory>
#include <unordered_map>

namespace Orvo::Kernel::Analysis {
class AnalysisService;
}

namespace Orvo::Kernel::Results {
class ResultsDatabase;
}

namespace Orvo::Graphic {

class GraphicsService;

// The views' results from the host's analysis: the displacements and station forces of its
// results file, read one load case or combination at a time when a view first shows it.
// Results the model has moved away from (edited since the analysis) are not shown. Reads
// through a connection of its own, so that sorting a results table changes nothing here.
// Lives on the GUI thread, where the views build their result lines.
class HOSTKIT_EXPORT AnalysisResultsSource : public QObject, public ResultsSource
{
    Q_OBJECT

public:
    // Installs itself in the graphics service and follows the analysis from then on.
    static std::shared_ptr<AnalysisResultsSource>
    Install(std::shared_ptr<Kernel::Analysis::AnalysisService> analysis, GraphicsService& graphics);

    explicit AnalysisResultsSource(std::shared_ptr<Kernel::Analysis::AnalysisService> analysis);
    ~AnalysisResultsSource() override;

    bool HasResults(Kernel::Model::ObjectId resultCase) const override;
    std::optional<Geometry::Point3D> NodeDisplacement(Kernel::Model::ObjectId resultCase,
                                                      Kernel::Model::Number node) const override;
    std::vector<double> MemberForces(Kernel::Model::ObjectId resultCase, Kernel::Model::Number member,
                                     ForceComponent component, int stations) const override;

    // The analysis produced new results, or the model left them behind.
    void Reload();

private:
    using Forces = std::array<double, 6>; // N, Vy, Vz, T, My, Mz
    struct Set
    {
        bool displacementsRead = false;
        bool forcesRead = false;
        std::unordered_map<Kernel::Model::Number, Geometry::Point3D> displacements;
        std::unordered_map<Kernel::Model::Number, std::vector<Forces>> forces;
    };

    // The results set of the case, read as far as needed; null when there is none.
    Set* FindSet(Kernel::Model::ObjectId resultCase) const;
    void ReadDisplacements(int position, Set& set) const;
    void ReadForces(int position, Set& set) const;

    std::shared_ptr<Kernel::Analysis::AnalysisService> m_analysis;
    std::unique_ptr<Kernel::Results::ResultsDatabase> m_database;
    // By position in the results file.
    mutable std::vector<Set> m_sets;
};

} // namespace Orvo::Graphic
