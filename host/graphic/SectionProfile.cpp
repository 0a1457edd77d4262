#include "SectionProfile.h"

#include <QtMath>
#include <algorithm>
#include <cmath>

namespace Orvo::Graphic {

namespace {

using Kernel::Model::SectionShape;

// Dimensions are stored in millimetres; a dimension that is not positive (a section still
// being edited) is drawn one millimetre thin rather than not at all.
double Metres(double millimetres)
{
    return std::max(millimetres, 1.0) / 1000.0;
}

std::vector<QPointF> Rectangle(double width, double height)
{
    const double y = width / 2.0;
    const double z = height / 2.0;
    return { { -y, -z }, { y, -z }, { y, z }, { -y, z } };
}

std::vector<QPointF> Circle(double radius)
{
    std::vector<QPointF> points;
    for (int i = 0; i < SectionProfile::c_circleSegments; ++i) {
        const double angle = 2.0 * M_PI * i / SectionProfile::c_circleSegments;
        points.emplace_back(radius * std::cos(angle), radius * std::sin(angle));
    }
    return points;
}

std::vector<QPointF> Reversed(std::vector<QPointF> loop)
{
    std::reverse(loop.begin(), loop.end());
    return loop;
}

} // namespace

SectionProfile SectionProfile::FromSection(const Kernel::Model::CrossSection& section)
{
    SectionProfile profile;
    const double height = Metres(section.height);
    const double width = Metres(section.width);
    switch (section.shape) {
    case SectionShape::I: {
        const double y = width / 2.0;
        const double z = height / 2.0;
        const double flange = std::min(Metres(section.flangeThickness), z);
        const double web = std::min(Metres(section.webThickness), width) / 2.0;
        profile.AddLoop({ { -y, -z },
                          { y, -z },
                          { y, -z + flange },
                          { web, -z + flange },
                          { web, z - flange },
                          { y, z - flange },
                          { y, z },
                          { -y, z },
                          { -y, z - flange },
                          { -web, z - flange },
                          { -web, -z + flange },
                          { -y, -z + flange } });
        profile.AddQuadCap({ -y, -z }, { y, -z }, { y, -z + flange }, { -y, -z + flange });
        profile.AddQuadCap({ -web, -z + flange }, { web, -z + flange }, { web, z - flange },
                           { -web, z - flange });
        profile.AddQuadCap({ -y, z - flange }, { y, z - flange }, { y, z }, { -y, z });
        break;
    }
    case SectionShape::RectangularHollow: {
        const double wall = std::min(Metres(section.wallThickness), std::min(width, height) / 2.0);
        const auto outer = Rectangle(width, height);
        const auto inner = Rectangle(width - 2.0 * wall, height - 2.0 * wall);
        profile.AddLoop(outer);
        profile.AddLoop(Reversed(inner));
        for (std::size_t i = 0; i < 4; ++i) {
            const std::size_t next = (i + 1) % 4;
            profile.AddQuadCap(outer[i], outer[next], inner[next], inner[i]);
        }
        break;
    }
    case SectionShape::CircularHollow: {
        const double radius = Metres(section.diameter) / 2.0;
        const double wall = std::min(Metres(section.wallThickness), radius);
        const auto outer = Circle(radius);
        const auto inner = Circle(radius - wall);
        profile.AddLoop(outer);
        profile.AddLoop(Reversed(inner));
        for (std::size_t i = 0; i < outer.size(); ++i) {
            const std::size_t next = (i + 1) % outer.size();
            profile.AddQuadCap(outer[i], outer[next], inner[next], inner[i]);
        }
        break;
    }
    case SectionShape::Rectangle: {
        const auto outline = Rectangle(width, height);
        profile.AddLoop(outline);
        profile.AddQuadCap(outline[0], outline[1], outline[2], outline[3]);
        break;
    }
    case SectionShape::Circle: {
        const auto outline = Circle(Metres(section.diameter) / 2.0);
        profile.AddLoop(outline);
        for (std::size_t i = 1; i + 1 < outline.size(); ++i)
            profile.m_capTriangles.insert(profile.m_capTriangles.end(),
                                          { outline[0], outline[i], outline[i + 1] });
        break;
    }
    }
    profile.BuildMesh();
    return profile;
}

void SectionProfile::AddLoop(std::vector<QPointF> loop)
{
    for (const QPointF& point : loop)
        m_size = std::max({ m_size, 2.0 * std::abs(point.x()), 2.0 * std::abs(point.y()) });
    m_loops.push_back(std::move(loop));
}

void SectionProfile::AddQuadCap(const QPointF& a, const QPointF& b, const QPointF& c, const QPointF& d)
{
    m_capTriangles.insert(m_capTriangles.end(), { a, b, c, a, c, d });
}

void SectionProfile::BuildMesh()
{
    m_mesh.clear();
    for (const auto& loop : m_loops) {
        for (std::size_t i = 0; i < loop.size(); ++i) {
            const QPointF a = loop[i];
            const QPointF b = loop[(i + 1) % loop.size()];
            // Outward for a counter-clockwise loop, into the hole for a clockwise one: away from
            // the material either way.
            const QVector3D normal = QVector3D(0.0f, float(b.y() - a.y()), float(a.x() - b.x())).normalized();
            const QVector3D a0(0.0f, float(a.x()), float(a.y()));
            const QVector3D a1(1.0f, float(a.x()), float(a.y()));
            const QVector3D b0(0.0f, float(b.x()), float(b.y()));
            const QVector3D b1(1.0f, float(b.x()), float(b.y()));
            m_mesh.insert(m_mesh.end(), { { a0, normal }, { a1, normal }, { b1, normal } });
            m_mesh.insert(m_mesh.end(), { { a0, normal }, { b1, normal }, { b0, normal } });
        }
    }
    for (float end : { 0.0f, 1.0f }) {
        const QVector3D normal(end == 0.0f ? -1.0f : 1.0f, 0.0f, 0.0f);
        for (const QPointF& point : m_capTriangles)
            m_mesh.push_back({ QVector3D(end, float(point.x()), float(point.y())), normal });
    }
}

} // namespace Orvo::Graphic
