#include "SoftwareRenderer.h"

#include "FramePlan.h"
#include "RenderView.h"
#include "ScenePalette.h"
#include "StructureScene.h"

#include <algorithm>
#include <cmath>

namespace Orvo::Graphic {

namespace {

constexpr int c_nodeSize = 3;
constexpr int c_emphasisNodeSize = 7;
constexpr int c_emphasisLineWidth = 2;
// Light that does not come from the viewer's direction, and how much of the surface colour
// faces turned away still show.
constexpr float c_ambient = 0.35f;
// Solids are lighter than the material's line colour, so that their shading reads.
constexpr float c_solidLightening = 0.45f;

// The part of a clip-space segment in front of the near plane (z >= -w), as a parameter range.
bool ClipToNearPlane(const QVector4D& a, const QVector4D& b, float& enter, float& leave)
{
    const float da = a.z() + a.w();
    const float db = b.z() + b.w();
    enter = 0.0f;
    leave = 1.0f;
    if (da < 0.0f && db < 0.0f)
        return false;
    if (da < 0.0f)
        enter = da / (da - db);
    else if (db < 0.0f)
        leave = da / (da - db);
    return true;
}

std::uint32_t Shade(std::uint32_t color, float intensity)
{
    std::uint32_t result = 0xff000000u;
    for (int shift = 0; shift < 24; shift += 8) {
        const float channel = float((color >> shift) & 0xffu);
        const float lightened = channel + (255.0f - channel) * c_solidLightening;
        result |= std::uint32_t(std::clamp(lightened * intensity, 0.0f, 255.0f)) << shift;
    }
    return result;
}

} // namespace

SoftwareRenderer::SoftwareRenderer(int supersampling)
    : m_supersampling(std::max(1, supersampling))
{ }

bool SoftwareRenderer::Initialize()
{
    return true;
}

void SoftwareRenderer::Release()
{
    m_image = QImage();
    m_nodes.clear();
    m_nodes.shrink_to_fit();
}

void SoftwareRenderer::Render(const FramePlan& plan, const StructureScene& scene, RenderView& view)
{
    const QSize size = plan.size * m_supersampling;
    if (m_image.size() != size)
        m_image = QImage(size, QImage::Format_RGB32);
    m_raster.Begin(m_image, !plan.solidCells.empty());
    m_raster.FillVerticalGradient(Palette::c_backgroundTop, Palette::c_backgroundBottom);

    const auto& positions = scene.NodePositions();
    m_nodes.resize(positions.size());
    for (std::size_t i = 0; i < positions.size(); ++i)
        m_nodes[i] = Project(plan.viewProjection, positions[i]);

    DrawLines(plan.viewProjection, plan.modelLines, 1);
    DrawMembers(plan, scene);
    DrawSolids(plan, scene);
    if (plan.nodes) {
        for (const Projected& node : m_nodes) {
            if (node.front)
                m_raster.DrawPoint(node.screen, c_nodeSize * m_supersampling, Palette::c_node);
        }
    }
    // The selection and the object under the pointer show through everything.
    m_raster.SetDepthTest(false);
    DrawLines(plan.viewProjection, plan.emphasisLines, c_emphasisLineWidth);
    DrawPoints(plan.viewProjection, plan.emphasisPoints, c_emphasisNodeSize);
    DrawOverlay(plan);

    if (m_supersampling > 1)
        view.SetImage(m_image.scaled(plan.size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
    else
        view.SetImage(m_image);
}

SoftwareRenderer::Projected SoftwareRenderer::Project(const QMatrix4x4& viewProjection,
                                                      const QVector3D& point) const
{
    Projected projected;
    projected.clip = viewProjection * QVector4D(point, 1.0f);
    projected.front = projected.clip.z() + projected.clip.w() >= 0.0f && projected.clip.w() > 0.0f;
    if (projected.front)
        projected.screen = ToScreen(projected.clip);
    return projected;
}

QVector3D SoftwareRenderer::ToScreen(const QVector4D& clip) const
{
    const float inverse = 1.0f / clip.w();
    return QVector3D((clip.x() * inverse + 1.0f) * 0.5f * float(m_raster.Width()),
                     (1.0f - clip.y() * inverse) * 0.5f * float(m_raster.Height()),
                     clip.z() * inverse * 0.5f + 0.5f);
}

void SoftwareRenderer::DrawLine(const Projected& a, const Projected& b, std::uint32_t color, int width)
{
    if (a.front && b.front) {
        m_raster.DrawLine(a.screen, b.screen, color, width);
        return;
    }
    float enter = 0.0f;
    float leave = 1.0f;
    if (!ClipToNearPlane(a.clip, b.clip, enter, leave))
        return;
    const QVector4D from = a.clip + (b.clip - a.clip) * enter;
    const QVector4D to = a.clip + (b.clip - a.clip) * leave;
    if (from.w() <= 0.0f || to.w() <= 0.0f)
        return;
    m_raster.DrawLine(ToScreen(from), ToScreen(to), color, width);
}

void SoftwareRenderer::DrawLines(const QMatrix4x4& viewProjection, const std::vector<LineVertex>& pairs,
                                 int width)
{
    for (std::size_t i = 0; i + 1 < pairs.size(); i += 2) {
        DrawLine(Project(viewProjection, pairs[i].position), Project(viewProjection, pairs[i + 1].position),
                 pairs[i].color, width * m_supersampling);
    }
}

void SoftwareRenderer::DrawPoints(const QMatrix4x4& viewProjection, const std::vector<LineVertex>& points,
                                  int size)
{
    for (const LineVertex& point : points) {
        const Projected projected = Project(viewProjection, point.position);
        if (projected.front)
            m_raster.DrawPoint(projected.screen, size * m_supersampling, point.color);
    }
}

void SoftwareRenderer::DrawMembers(const FramePlan& plan, const StructureScene& scene)
{
    const auto& members = scene.Members();
    for (const std::uint32_t index : plan.lineCells) {
        const auto& cell = scene.Cells()[index];
        for (std::uint32_t i = cell.first; i < cell.first + cell.count; ++i) {
            const auto& member = members[i];
            DrawLine(m_nodes[member.startNode], m_nodes[member.endNode], member.color, m_supersampling);
        }
    }
}

void SoftwareRenderer::DrawSolids(const FramePlan& plan, const StructureScene& scene)
{
    const auto& members = scene.Members();
    for (const std::uint32_t index : plan.solidCells) {
        const auto& cell = scene.Cells()[index];
        for (std::uint32_t i = cell.first; i < cell.first + cell.count; ++i) {
            const auto& frame = scene.Frames()[i];
            const auto& mesh = scene.Profiles()[members[i].profile].Mesh();
            for (std::size_t v = 0; v + 2 < mesh.size(); v += 3) {
                QVector4D clip[3];
                for (int corner = 0; corner < 3; ++corner) {
                    const QVector3D& local = mesh[v + std::size_t(corner)].position;
                    const QVector3D world = frame.start + frame.axisX * local.x() + frame.axisY * local.y()
                        + frame.axisZ * local.z();
                    clip[corner] = plan.viewProjection * QVector4D(world, 1.0f);
                }
                const QVector3D& n = mesh[v].normal;
                const QVector3D normal
                    = (frame.axisX.normalized() * n.x() + frame.axisY * n.y() + frame.axisZ * n.z())
                          .normalized();
                const float facing = std::abs(QVector3D::dotProduct(normal, plan.light));
                DrawTriangle(clip, Shade(members[i].color, c_ambient + (1.0f - c_ambient) * facing));
            }
        }
    }
}

void SoftwareRenderer::DrawTriangle(const QVector4D (&clip)[3], std::uint32_t color)
{
    // Sutherland-Hodgman against the near plane: a triangle stays one or becomes a quad.
    QVector4D kept[4];
    int count = 0;
    for (int i = 0; i < 3; ++i) {
        const QVector4D& current = clip[i];
        const QVector4D& next = clip[(i + 1) % 3];
        const float dc = current.z() + current.w();
        const float dn = next.z() + next.w();
        if (dc >= 0.0f)
            kept[count++] = current;
        if ((dc >= 0.0f) != (dn >= 0.0f))
            kept[count++] = current + (next - current) * (dc / (dc - dn));
    }
    if (count < 3)
        return;
    QVector3D screen[4];
    for (int i = 0; i < count; ++i) {
        if (kept[i].w() <= 0.0f)
            return;
        screen[i] = ToScreen(kept[i]);
    }
    m_raster.DrawTriangle(screen[0], screen[1], screen[2], color);
    if (count == 4)
        m_raster.DrawTriangle(screen[0], screen[2], screen[3], color);
}

void SoftwareRenderer::DrawOverlay(const FramePlan& plan)
{
    const double scale = m_supersampling;
    for (const ScreenLine& line : plan.overlay)
        m_raster.DrawOverlayLine(line.a * scale, line.b * scale, line.color, line.width * m_supersampling);
}

} // namespace Orvo::Graphic
