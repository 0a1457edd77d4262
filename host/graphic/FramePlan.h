#pragma once

#include "StructureScene.h"

#include <QMatrix4x4>
#include <QPointF>
#include <QSize>
#include <cstdint>
#include <vector>

namespace Orvo::Graphic {

// A line drawn over the picture in pixels from the top left: symbols, arrows, the axes.
struct ScreenLine
{
    QPointF a;
    QPointF b;
    std::uint32_t color = 0;
    int width = 1;
};

// Everything one frame draws, decided once for both renderers: which cells are in sight and
// how detailed, the lines that change with the view, and the symbols over the picture.
struct FramePlan
{
    QSize size;
    QMatrix4x4 viewProjection;
    QVector3D eye;
    QVector3D forward;
    // Towards the light that shades solids: above the viewer's left shoulder, so that the faces
    // of a member facing different ways differ.
    QVector3D light;
    bool perspective = true;
    // A complete frame has every detail; frames during a camera move leave out the costly ones.
    bool complete = true;
    bool nodes = true;

    // Cells in sight whose members are drawn as lines, and those drawn as solids.
    std::vector<std::uint32_t> lineCells;
    std::vector<std::uint32_t> solidCells;
    // Pairs of vertices in the scene's space: the grid, results.
    std::vector<LineVertex> modelLines;
    // Pairs drawn twice as wide over the rest: the selection and the object under the pointer.
    std::vector<LineVertex> emphasisLines;
    std::vector<LineVertex> emphasisPoints;
    std::vector<ScreenLine> overlay;
};

} // namespace Orvo::Graphic
