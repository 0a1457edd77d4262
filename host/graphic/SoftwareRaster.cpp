#include "SoftwareRaster.h"

#include <algorithm>
#include <cmath>

namespace Orvo::Graphic {

namespace {

// Lines are drawn slightly nearer than they are, so that an edge on a face is not hidden by
// the face it lies on.
constexpr float c_lineDepthBias = 2e-5f;

std::uint32_t Blend(std::uint32_t a, std::uint32_t b, int weight, int total)
{
    std::uint32_t result = 0xff000000u;
    for (int shift = 0; shift < 24; shift += 8) {
        const int from = int((a >> shift) & 0xffu);
        const int to = int((b >> shift) & 0xffu);
        result |= std::uint32_t(from + (to - from) * weight / std::max(1, total)) << shift;
    }
    return result;
}

float EdgeFunction(const QVector3D& a, const QVector3D& b, float x, float y)
{
    return (b.x() - a.x()) * (y - a.y()) - (b.y() - a.y()) * (x - a.x());
}

} // namespace

void SoftwareRaster::Begin(QImage& image, bool depth)
{
    m_pixels = reinterpret_cast<std::uint32_t*>(image.bits());
    m_stride = std::size_t(image.bytesPerLine() / 4);
    m_width = image.width();
    m_height = image.height();
    m_hasDepth = depth;
    m_depthEnabled = depth;
    if (depth)
        m_depth.assign(std::size_t(m_width) * std::size_t(m_height), 1.0f);
}

void SoftwareRaster::FillVerticalGradient(std::uint32_t top, std::uint32_t bottom)
{
    for (int y = 0; y < m_height; ++y) {
        const std::uint32_t color = Blend(top, bottom, y, m_height - 1);
        std::fill_n(m_pixels + std::size_t(y) * m_stride, m_width, color);
    }
}

void SoftwareRaster::DrawLine(const QVector3D& a, const QVector3D& b, std::uint32_t color, int width)
{
    const bool steep = std::abs(b.y() - a.y()) > std::abs(b.x() - a.x());
    for (int pass = 0; pass < width; ++pass) {
        // A wider line is the same line again, one pixel across its run each time.
        const float offset = float(pass - (width - 1) / 2);
        const QVector3D shift = steep ? QVector3D(offset, 0, 0) : QVector3D(0, offset, 0);
        if (m_depthEnabled)
            Line<true>(a + shift, b + shift, color);
        else
            Line<false>(a + shift, b + shift, color);
    }
}

void SoftwareRaster::DrawOverlayLine(const QPointF& a, const QPointF& b, std::uint32_t color, int width)
{
    const bool depth = m_depthEnabled;
    m_depthEnabled = false;
    DrawLine(QVector3D(float(a.x()), float(a.y()), 0.0f), QVector3D(float(b.x()), float(b.y()), 0.0f), color,
             width);
    m_depthEnabled = depth;
}

void SoftwareRaster::DrawPoint(const QVector3D& point, int size, std::uint32_t color)
{
    const int left = int(std::floor(point.x() - size / 2.0f + 0.5f));
    const int top = int(std::floor(point.y() - size / 2.0f + 0.5f));
    const float depth = point.z() - c_lineDepthBias;
    for (int y = std::max(top, 0); y < std::min(top + size, m_height); ++y) {
        for (int x = std::max(left, 0); x < std::min(left + size, m_width); ++x) {
            const std::size_t index = std::size_t(y) * std::size_t(m_width) + std::size_t(x);
            if (m_depthEnabled) {
                if (depth > m_depth[index])
                    continue;
                m_depth[index] = depth;
            }
            m_pixels[std::size_t(y) * m_stride + std::size_t(x)] = color;
        }
    }
}

void SoftwareRaster::DrawTriangle(const QVector3D& a, const QVector3D& b, const QVector3D& c,
                                  std::uint32_t color)
{
    const float area = EdgeFunction(a, b, c.x(), c.y());
    if (std::abs(area) < 1e-8f || !std::isfinite(area))
        return;
    // Depth is a plane over the screen: z = z0 + dzdx * x + dzdy * y.
    const QVector3D ab = b - a;
    const QVector3D ac = c - a;
    const float dzdx = (ab.z() * ac.y() - ac.z() * ab.y()) / (ab.x() * ac.y() - ac.x() * ab.y());
    const float dzdy = (ac.z() * ab.x() - ab.z() * ac.x()) / (ab.x() * ac.y() - ac.x() * ab.y());
    // Rows by pixel centres, each filled between where its centre line crosses the edges.
    const QVector3D* corners[3] = { &a, &b, &c };
    std::sort(std::begin(corners), std::end(corners),
              [](const QVector3D* p, const QVector3D* q) { return p->y() < q->y(); });
    const QVector3D& top = *corners[0];
    const QVector3D& middle = *corners[1];
    const QVector3D& bottom = *corners[2];
    const int firstRow = std::max(0, int(std::ceil(top.y() - 0.5f)));
    const int lastRow = std::min(m_height - 1, int(std::ceil(bottom.y() - 0.5f)) - 1);
    auto crossing = [](const QVector3D& from, const QVector3D& to, float y) {
        return from.x() + (to.x() - from.x()) * (y - from.y()) / (to.y() - from.y());
    };
    for (int y = firstRow; y <= lastRow; ++y) {
        const float centre = float(y) + 0.5f;
        const float longEdge = crossing(top, bottom, centre);
        const float shortEdge
            = centre < middle.y() ? crossing(top, middle, centre) : crossing(middle, bottom, centre);
        const float from = std::min(longEdge, shortEdge);
        const float to = std::max(longEdge, shortEdge);
        const int firstColumn = std::max(0, int(std::ceil(from - 0.5f)));
        const int lastColumn = std::min(m_width - 1, int(std::ceil(to - 0.5f)) - 1);
        if (firstColumn > lastColumn)
            continue;
        std::uint32_t* row = m_pixels + std::size_t(y) * m_stride;
        if (!m_depthEnabled) {
            std::fill(row + firstColumn, row + lastColumn + 1, color);
            continue;
        }
        float* depthRow = m_depth.data() + std::size_t(y) * std::size_t(m_width);
        float depth = a.z() + dzdx * (float(firstColumn) + 0.5f - a.x()) + dzdy * (centre - a.y());
        for (int x = firstColumn; x <= lastColumn; ++x, depth += dzdx) {
            if (depth <= depthRow[x]) {
                depthRow[x] = depth;
                row[x] = color;
            }
        }
    }
}

template<bool TestDepth> void SoftwareRaster::Line(QVector3D a, QVector3D b, std::uint32_t color)
{
    if (!ClipToImage(a, b))
        return;
    const float dx = b.x() - a.x();
    const float dy = b.y() - a.y();
    const int steps = std::max(1, int(std::ceil(std::max(std::abs(dx), std::abs(dy)))));
    // Fixed point with 16 fractional bits: no float to int conversion per pixel.
    constexpr float c_one = 65536.0f;
    std::int32_t x = std::int32_t((a.x() + 0.5f) * c_one);
    std::int32_t y = std::int32_t((a.y() + 0.5f) * c_one);
    const std::int32_t stepX = std::int32_t(dx / float(steps) * c_one);
    const std::int32_t stepY = std::int32_t(dy / float(steps) * c_one);
    float depth = a.z() - c_lineDepthBias;
    const float stepDepth = (b.z() - a.z()) / float(steps);
    for (int i = 0; i <= steps; ++i) {
        const int px = std::min(x >> 16, m_width - 1);
        const int py = std::min(y >> 16, m_height - 1);
        if constexpr (TestDepth) {
            float& stored = m_depth[std::size_t(py) * std::size_t(m_width) + std::size_t(px)];
            if (depth <= stored) {
                stored = depth;
                m_pixels[std::size_t(py) * m_stride + std::size_t(px)] = color;
            }
            depth += stepDepth;
        } else {
            m_pixels[std::size_t(py) * m_stride + std::size_t(px)] = color;
        }
        x += stepX;
        y += stepY;
    }
}

bool SoftwareRaster::ClipToImage(QVector3D& a, QVector3D& b) const
{
    // Liang-Barsky against [0, width) x [0, height), kept half a pixel inside so that rounding
    // never leaves the image.
    const float low[2] = { 0.0f, 0.0f };
    const float high[2] = { float(m_width) - 0.51f, float(m_height) - 0.51f };
    float enter = 0.0f;
    float leave = 1.0f;
    const QVector3D delta = b - a;
    for (int axis = 0; axis < 2; ++axis) {
        const float start = a[axis];
        const float change = delta[axis];
        if (!std::isfinite(start) || !std::isfinite(change))
            return false;
        if (change == 0.0f) {
            if (start < low[axis] || start > high[axis])
                return false;
            continue;
        }
        float t0 = (low[axis] - start) / change;
        float t1 = (high[axis] - start) / change;
        if (t0 > t1)
            std::swap(t0, t1);
        enter = std::max(enter, t0);
        leave = std::min(leave, t1);
        if (enter > leave)
            return false;
    }
    const QVector3D start = a;
    a = start + delta * enter;
    b = start + delta * leave;
    return true;
}

} // namespace Orvo::Graphic
