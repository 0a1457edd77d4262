#pragma once

#include "HostKitExport.h"
#include "model/ObjectIds.h"

#include <QPointF>
#include <QRectF>
#include <QVector3D>
#include <cstdint>
#include <optional>
#include <vector>

namespace Orvo::Graphic {

class Camera;
class StructureScene;

// Finds the objects of a scene under the pointer or in a rectangle of the view, as the camera
// shows them. Nodes come before members: a click near a node at a member's end means the node.
class HOSTKIT_EXPORT Picker
{
public:
    Picker(const StructureScene& scene, const Camera& camera);

    // The object nearest to the point within radius pixels; among members at the same
    // distance, the one nearest the viewer.
    std::optional<Kernel::Model::ObjectId> PickAt(const QPointF& point, double radius) const;
    // Nodes inside the rectangle; members wholly inside it, or with crossing, every member that
    // touches it.
    std::vector<Kernel::Model::ObjectId> PickInRectangle(const QRectF& rectangle, bool crossing) const;
    // Where the scene point shows in the view, unless it lies behind the camera.
    std::optional<QPointF> ToScreen(const QVector3D& point) const;
    // The member's point nearest to the pixel's line of sight, when a member was picked there.
    std::optional<QVector3D> PointOnMember(std::uint32_t member, const QPointF& point) const;

private:
    struct Projected
    {
        QPointF position;
        float depth = 0.0f;
        bool visible = false;
    };

    const StructureScene& m_scene;
    const Camera& m_camera;
    std::vector<Projected> m_nodes;
};

} // namespace Orvo::Graphic
