#include "ResultsLayer.h"

#include "ResultsSource.h"
#include "ScenePalette.h"

#include <algorithm>
#include <cmath>

namespace Orvo::Graphic {

namespace {

float ModelSize(const StructureScene& scene)
{
    return std::max(scene.Bounds().Radius() * 2.0f, 1.0f);
}

// The member axis a diagram of the component is drawn along: the axis of the plane its
// bending or shear acts in.
QVector3D DiagramAxis(const StructureScene::MemberFrame& frame, ForceComponent component)
{
    switch (component) {
    case ForceComponent::ShearY:
    case ForceComponent::Torsion:
    case ForceComponent::MomentZ:
        return frame.axisY;
    default:
        return frame.axisZ;
    }
}

} // namespace

std::vector<LineVertex> ResultsLayer::Build(const StructureScene& scene, const ResultsSource* source,
                                            const DisplayOptions& options)
{
    std::vector<LineVertex> lines;
    if (!source || !source->HasResults(options.resultCase))
        return lines;
    if (options.deformedShape)
        AddDeformedShape(scene, *source, options, lines);
    if (options.diagram != ForceComponent::None)
        AddDiagram(scene, *source, options, lines);
    return lines;
}

void ResultsLayer::AddDeformedShape(const StructureScene& scene, const ResultsSource& source,
                                    const DisplayOptions& options, std::vector<LineVertex>& lines)
{
    const auto& numbers = scene.NodeNumbers();
    std::vector<QVector3D> displacements(numbers.size());
    float largest = 0.0f;
    for (std::size_t i = 0; i < numbers.size(); ++i) {
        const auto displacement = source.NodeDisplacement(options.resultCase, numbers[i]);
        if (!displacement)
            continue;
        displacements[i] = QVector3D(float(displacement->x), float(displacement->y), float(displacement->z));
        if (std::isfinite(displacements[i].length()))
            largest = std::max(largest, displacements[i].length());
        else
            displacements[i] = QVector3D();
    }
    if (largest <= 0.0f)
        return;
    const float scale = options.deformationScale > 0.0
        ? float(options.deformationScale)
        : float(c_deformationShare) * ModelSize(scene) / largest;
    const auto& positions = scene.NodePositions();
    lines.reserve(lines.size() + scene.Members().size() * 2);
    for (const auto& member : scene.Members()) {
        lines.push_back(
            { positions[member.startNode] + displacements[member.startNode] * scale, Palette::c_deformed });
        lines.push_back(
            { positions[member.endNode] + displacements[member.endNode] * scale, Palette::c_deformed });
    }
}

void ResultsLayer::AddDiagram(const StructureScene& scene, const ResultsSource& source,
                              const DisplayOptions& options, std::vector<LineVertex>& lines)
{
    const auto& members = scene.Members();
    std::vector<std::vector<double>> values(members.size());
    double largest = 0.0;
    for (std::size_t i = 0; i < members.size(); ++i) {
        values[i]
            = source.MemberForces(options.resultCase, members[i].number, options.diagram, c_diagramStations);
        if (values[i].size() < 2)
            values[i].clear();
        for (double& value : values[i]) {
            if (!std::isfinite(value))
                value = 0.0;
            largest = std::max(largest, std::abs(value));
        }
    }
    if (largest <= 0.0)
        return;
    const float scale = float(c_diagramShare * ModelSize(scene) / largest);
    for (std::size_t i = 0; i < members.size(); ++i) {
        const auto& stations = values[i];
        if (stations.empty())
            continue;
        const auto& frame = scene.Frames()[i];
        const QVector3D axis = DiagramAxis(frame, options.diagram);
        auto base = [&](std::size_t station) {
            return frame.start + frame.axisX * (float(station) / float(stations.size() - 1));
        };
        auto offset
            = [&](std::size_t station) { return base(station) + axis * float(stations[station]) * scale; };
        auto color = [](double value) {
            return value >= 0.0 ? Palette::c_diagramPositive : Palette::c_diagramNegative;
        };
        const std::size_t last = stations.size() - 1;
        lines.push_back({ base(0), color(stations[0]) });
        lines.push_back({ offset(0), color(stations[0]) });
        for (std::size_t s = 0; s < last; ++s) {
            const std::uint32_t segmentColor = color((stations[s] + stations[s + 1]) / 2.0);
            lines.push_back({ offset(s), segmentColor });
            lines.push_back({ offset(s + 1), segmentColor });
        }
        lines.push_back({ offset(last), color(stations[last]) });
        lines.push_back({ base(last), color(stations[last]) });
    }
}

} // namespace Orvo::Graphic
