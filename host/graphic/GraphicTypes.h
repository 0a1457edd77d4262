#pragma once

#include "geometry/CKVPoint2D.h"
#include "geometry/Point3D.h"

#include <cstdint>

namespace Orvo::Graphic {

// The renderers of the graphics engine, as the render system reports them. The software
// renderers draw each frame into an image of their own; the OpenGL ones render into a texture
// of the engine's framebuffer that the caller shows as it is. The smooth and multisampled
// variants trade speed for antialiased edges; the headless one draws nothing (batch work that
// needs a view's camera and picking but no picture).
enum class RendererType : std::int32_t
{
    Software = 0,
    OpenGL = 1,
    Headless = 2,
    SoftwareSmooth = 3,
    OpenGLMultisample = 4,
};

inline constexpr bool IsSoftwareRenderer(std::int32_t type)
{
    return type == std::int32_t(RendererType::Software) || type == std::int32_t(RendererType::SoftwareSmooth);
}

inline constexpr bool IsOpenGLRenderer(std::int32_t type)
{
    return type == std::int32_t(RendererType::OpenGL)
        || type == std::int32_t(RendererType::OpenGLMultisample);
}

namespace MouseButton {
inline constexpr std::uint8_t None = 0;
inline constexpr std::uint8_t Left = 1;
inline constexpr std::uint8_t Right = 2;
inline constexpr std::uint8_t Middle = 4;
} // namespace MouseButton

namespace KeyModifier {
inline constexpr std::uint8_t None = 0;
inline constexpr std::uint8_t Shift = 1;
inline constexpr std::uint8_t Control = 2;
inline constexpr std::uint8_t Alt = 4;
} // namespace KeyModifier

// A pointer event as the engine takes it: where (view pixels), the wheel's turn (delta, in
// eighths of a degree as input systems report it, zero for other events), the button that
// changed (none for moves) and the keyboard modifiers held.
struct MouseEvent
{
    CKVPoint2D position;
    Geometry::Vector2D delta;
    std::uint8_t button = MouseButton::None;
    std::uint8_t modifiers = KeyModifier::None;
};

} // namespace Orvo::Graphic
