#pragma once

#include "Camera.h"
#include "FramePlan.h"
#include "model/ModelRecords.h"

#include <optional>

namespace Orvo::Graphic {

class StructureScene;

// The symbols drawn over the picture at a constant size in pixels: supports, load arrows and
// the axes in the corner. They follow the view's projection of the model's directions.
class OverlaySymbols
{
public:
    OverlaySymbols(const StructureScene& scene, const Camera& camera, FramePlan& plan);

    void AddSupports();
    // Nodal loads always; member loads only in complete frames and on members long enough on
    // the screen to carry their arrows.
    void AddLoads(Kernel::Model::Number loadCase, bool complete);
    void AddAxesTriad();

private:
    std::optional<QPointF> Project(const QVector3D& point) const;
    // Only points near enough to the view to show their symbol.
    std::optional<QPointF> OnScreen(const QVector3D& point) const;
    // The unit direction on the screen of a direction of the scene at point; null when the
    // direction points (nearly) at the viewer.
    QPointF ScreenDirection(const QVector3D& point, const QVector3D& direction) const;
    void AddLine(const QPointF& a, const QPointF& b, std::uint32_t color, int width = 1);
    void AddArrow(const QPointF& tail, const QPointF& head, std::uint32_t color);
    void AddSupport(const QPointF& at, const QPointF& down, double scale, Kernel::Model::DofMask fixed,
                    std::uint32_t color);
    void AddMemberLoads(Kernel::Model::Number loadCase);
    void AddLetter(char letter, const QPointF& center, std::uint32_t color);

    const StructureScene& m_scene;
    const Camera& m_camera;
    FramePlan& m_plan;
    float m_directionStep;
};

} // namespace Orvo::Graphic
