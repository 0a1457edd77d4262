#pragma once

#include "HostKitExport.h"

#include <QImage>
#include <QPointF>
#include <QVector3D>
#include <cstdint>
#include <vector>

namespace Orvo::Graphic {

// Draws lines, points and flat triangles straight into the pixels of an image, with an
// optional depth buffer. Coordinates are pixels from the top left (x, y) and depth from 0
// (near) to 1 (far) in z; everything is clipped to the image here, the caller clips to the
// near plane.
class HOSTKIT_EXPORT SoftwareRaster
{
public:
    // Draws into image (32 bits a pixel) until the next Begin; with depth, lines and triangles
    // hide what lies behind them.
    void Begin(QImage& image, bool depth);

    // Whether lines, points and triangles drawn from now on test and write depth (when the
    // image has a depth buffer).
    void SetDepthTest(bool enabled) { m_depthEnabled = enabled && m_hasDepth; }

    void FillVerticalGradient(std::uint32_t top, std::uint32_t bottom);
    void DrawLine(const QVector3D& a, const QVector3D& b, std::uint32_t color, int width = 1);
    // A line over everything, depth neither tested nor written.
    void DrawOverlayLine(const QPointF& a, const QPointF& b, std::uint32_t color, int width = 1);
    void DrawPoint(const QVector3D& point, int size, std::uint32_t color);
    void DrawTriangle(const QVector3D& a, const QVector3D& b, const QVector3D& c, std::uint32_t color);

    int Width() const { return m_width; }
    int Height() const { return m_height; }

private:
    template<bool TestDepth> void Line(QVector3D a, QVector3D b, std::uint32_t color);
    bool ClipToImage(QVector3D& a, QVector3D& b) const;

    std::uint32_t* m_pixels = nullptr;
    std::size_t m_stride = 0; // pixels per row
    int m_width = 0;
    int m_height = 0;
    bool m_hasDepth = false;
    bool m_depthEnabled = false;
    std::vector<float> m_depth;
};

} // namespace Orvo::Graphic
