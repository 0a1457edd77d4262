#pragma once

#include <QMatrix4x4>
#include <QVector3D>
#include <cstdint>

class QOpenGLContext;
class QOpenGLExtraFunctions;

namespace Orvo::Graphic {

// The OpenGL renderer's two shader programs: coloured lines and points, and instanced member
// solids shaded by one light. Written once for desktop OpenGL 3 and OpenGL ES 3; the
// version line is chosen for the context.
class GLPrograms
{
public:
    // Attribute locations.
    static constexpr std::uint32_t c_position = 0;
    static constexpr std::uint32_t c_color = 1; // lines: 4 normalised bytes, B G R A in memory
    static constexpr std::uint32_t c_normal = 1; // solids
    static constexpr std::uint32_t c_instanceStart = 2;
    static constexpr std::uint32_t c_instanceAxisX = 3;
    static constexpr std::uint32_t c_instanceAxisY = 4;
    static constexpr std::uint32_t c_instanceAxisZ = 5;
    static constexpr std::uint32_t c_instanceColor = 6;

    // False, with the reason logged, when the context cannot run them.
    bool Create(QOpenGLContext& context);
    void Destroy(QOpenGLExtraFunctions& gl);

    void UseLines(QOpenGLExtraFunctions& gl, const QMatrix4x4& transform, float pointSize) const;
    void UseSolids(QOpenGLExtraFunctions& gl, const QMatrix4x4& transform, const QVector3D& light) const;

private:
    std::uint32_t m_lines = 0;
    std::uint32_t m_solids = 0;
    int m_linesTransform = -1;
    int m_linesPointSize = -1;
    int m_solidsTransform = -1;
    int m_solidsLight = -1;
};

} // namespace Orvo::Graphic
