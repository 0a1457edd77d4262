#pragma once

#include "HostKitExport.h"
#include "model/ModelRecords.h"

#include <QPointF>
#include <QVector3D>
#include <vector>

namespace Orvo::Graphic {

// A cross-section's outline in metres in the member's local y-z plane (y across, z up), and the
// mesh of one metre of the member extruded from it along local x.
class HOSTKIT_EXPORT SectionProfile
{
public:
    struct MeshVertex
    {
        QVector3D position; // x is 0 at the start face and 1 at the end face
        QVector3D normal;
    };

    // Points a circle's outline is made of: round enough at the sizes members reach on screen.
    static constexpr int c_circleSegments = 12;

    static SectionProfile FromSection(const Kernel::Model::CrossSection& section);

    // Closed loops, counter-clockwise seen from the end face; holes clockwise.
    const std::vector<std::vector<QPointF>>& Loops() const { return m_loops; }
    // The end faces as triangles of the outline's plane, three points each.
    const std::vector<QPointF>& CapTriangles() const { return m_capTriangles; }
    // Triangles of the extruded mesh, three vertices each: side faces, then both end faces.
    const std::vector<MeshVertex>& Mesh() const { return m_mesh; }
    // The larger of the outline's width and height.
    double Size() const { return m_size; }

private:
    void AddLoop(std::vector<QPointF> loop);
    void AddQuadCap(const QPointF& a, const QPointF& b, const QPointF& c, const QPointF& d);
    void BuildMesh();

    std::vector<std::vector<QPointF>> m_loops;
    std::vector<QPointF> m_capTriangles;
    std::vector<MeshVertex> m_mesh;
    double m_size = 0.0;
};

} // namespace Orvo::Graphic
