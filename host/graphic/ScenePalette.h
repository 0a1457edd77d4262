#pragma once

#include <cstdint>

namespace Orvo::Graphic::Palette {

// Colours of the model views, as 0xAARRGGBB. The selection must stand out against every
// material colour and against the background of both ends of the gradient.
inline constexpr std::uint32_t c_backgroundTop = 0xffd9e1ea;
inline constexpr std::uint32_t c_backgroundBottom = 0xfff6f8fa;
inline constexpr std::uint32_t c_member = 0xff2b3445;
inline constexpr std::uint32_t c_node = 0xff1b2330;
inline constexpr std::uint32_t c_selected = 0xfff50057;
inline constexpr std::uint32_t c_hovered = 0xff2f8fff;
inline constexpr std::uint32_t c_support = 0xff2e7d32;
inline constexpr std::uint32_t c_load = 0xffb7791f;
inline constexpr std::uint32_t c_gridMinor = 0xffc9d1da;
inline constexpr std::uint32_t c_gridMajor = 0xffaab5c1;
inline constexpr std::uint32_t c_axisX = 0xffd32f2f;
inline constexpr std::uint32_t c_axisY = 0xff388e3c;
inline constexpr std::uint32_t c_axisZ = 0xff1976d2;
inline constexpr std::uint32_t c_deformed = 0xff00897b;
inline constexpr std::uint32_t c_diagramPositive = 0xff1565c0;
inline constexpr std::uint32_t c_diagramNegative = 0xffc62828;
inline constexpr std::uint32_t c_rubberBand = 0xff6b7785;

} // namespace Orvo::Graphic::Palette
