#pragma once

#include "HostKitExport.h"

#include <QImage>
#include <QSize>
#include <cstdint>

namespace Orvo::Graphic {

// What a view shows: its size in pixels and its latest frame, as an image (software renderers)
// or as the name of an OpenGL texture of the engine's context (OpenGL renderers). The frame is
// valid from the end of the engine's Draw until its next Draw or Invalidate.
class HOSTKIT_EXPORT RenderView
{
public:
    // Width and height in pixels; zero until the view is given a size.
    QSize GetSize() const { return m_size; }
    const QImage& GetImage() const { return m_image; }
    std::uint32_t GetNativeTexture() const { return m_nativeTexture; }

    void SetSize(const QSize& size) { m_size = size; }
    void SetImage(const QImage& image) { m_image = image; }
    void SetNativeTexture(std::uint32_t texture) { m_nativeTexture = texture; }

private:
    QSize m_size { 0, 0 };
    QImage m_image;
    std::uint32_t m_nativeTexture = 0;
};

} // namespace Orvo::Graphic
