#pragma once

#include "DisplayOptions.h"
#include "HostKitExport.h"
#include "StructureScene.h"

#include <vector>

namespace Orvo::Graphic {

class ResultsSource;

// The lines a view draws of the analysis's results: the deformed shape (members between their
// nodes' displaced positions) and the diagram of one internal force along every member.
class HOSTKIT_EXPORT ResultsLayer
{
public:
    // Stations along a member at which a diagram is drawn.
    static constexpr int c_diagramStations = 11;
    // The automatic scales: the largest displacement drawn as this part of the model's size,
    // the largest diagram value as that part.
    static constexpr double c_deformationShare = 0.1;
    static constexpr double c_diagramShare = 0.06;

    // Pairs of vertices in the scene's space; empty when the options show no results or the
    // source has none for the options' result case.
    static std::vector<LineVertex> Build(const StructureScene& scene, const ResultsSource* source,
                                         const DisplayOptions& options);

private:
    static void AddDeformedShape(const StructureScene& scene, const ResultsSource& source,
                                 const DisplayOptions& options, std::vector<LineVertex>& lines);
    static void AddDiagram(const StructureScene& scene, const ResultsSource& source,
                           const DisplayOptions& options, std::vector<LineVertex>& lines);
};

} // namespace Orvo::Graphic
