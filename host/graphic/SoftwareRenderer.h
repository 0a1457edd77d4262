#pragma once

#include "HostKitExport.h"
#include "SceneRenderer.h"
#include "SoftwareRaster.h"

#include <QImage>
#include <QVector4D>
#include <vector>

namespace Orvo::Graphic {

struct LineVertex;

// Draws frames into an image with the engine's own rasterizer. With supersampling it draws at
// that many times the size and scales down smoothly: antialiased, at the square of the cost.
class HOSTKIT_EXPORT SoftwareRenderer : public SceneRenderer
{
public:
    explicit SoftwareRenderer(int supersampling = 1);

    bool Initialize() override;
    void Render(const FramePlan& plan, const StructureScene& scene, RenderView& view) override;
    void Release() override;

private:
    // A node in clip space and, when in front of the near plane, on the image.
    struct Projected
    {
        QVector4D clip;
        QVector3D screen;
        bool front = false;
    };

    Projected Project(const QMatrix4x4& viewProjection, const QVector3D& point) const;
    QVector3D ToScreen(const QVector4D& clip) const;
    void DrawLine(const Projected& a, const Projected& b, std::uint32_t color, int width);
    void DrawLines(const QMatrix4x4& viewProjection, const std::vector<LineVertex>& pairs, int width);
    void DrawPoints(const QMatrix4x4& viewProjection, const std::vector<LineVertex>& points, int size);
    void DrawMembers(const FramePlan& plan, const StructureScene& scene);
    void DrawSolids(const FramePlan& plan, const StructureScene& scene);
    void DrawTriangle(const QVector4D (&clip)[3], std::uint32_t color);
    void DrawOverlay(const FramePlan& plan);

    int m_supersampling;
    QImage m_image;
    SoftwareRaster m_raster;
    std::vector<Projected> m_nodes;
};

} // namespace Orvo::Graphic
