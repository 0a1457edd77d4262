.pragma library

// Hit-testing and layout of the marking menu. Coordinates are relative to the menu's centre,
// in pixels, with y growing downwards.

// Sections in the configuration's order.
var noSection = -1
var topSection = 0
var rightSection = 1
var bottomSection = 2
var leftSection = 3
var sectionCount = 4

var noSlice = 0
var sliceCount = 6

// First level: nothing is selected within the dead radius; beyond the outer radius the pointer
// is on its way into a ring, so a selection made inside no longer follows it.
var firstLevelDeadRadius = 21
var firstLevelOuterRadius = 44

// Second level: the rings around the first level.
var ringInnerRadius = 100
var ringOuterRadius = 240
// A point this close to an axis or a diagonal of a ring is between two slices: none of them.
var sliceDeadBand = 1
var sliceSweep = 45
// The gap left on each side of a drawn slice, in degrees.
var sliceGapAngle = 0.8

function distance(x, y) {
    return Math.sqrt(x * x + y * y)
}

// The sector of the first level that (x, y) points into, ignoring distance and visibility.
function firstLevelSector(x, y) {
    var inBottomRight = x > y
    var inBottomLeft = x > -y
    if (inBottomRight && inBottomLeft)
        return rightSection
    if (inBottomRight)
        return topSection
    if (inBottomLeft)
        return bottomSection
    return leftSection
}

// The section selected with the pointer at (x, y), given the current selection and the
// visibility of the four sections (an array of four booleans).
function firstLevelSelection(x, y, currentSection, sectionVisible) {
    var d = distance(x, y)
    if (d < firstLevelDeadRadius)
        return noSection
    if (d > firstLevelOuterRadius && currentSection !== noSection)
        return currentSection
    var sector = firstLevelSector(x, y)
    return sectionVisible[sector] ? sector : noSection
}

// (x, y) in the frame of a section's ring. The rings are the top ring turned clockwise by
// 90, 180 and 270 degrees for right, bottom and left; this turns the point back.
function toRingFrame(x, y, section) {
    switch (section) {
    case rightSection:
        return { x: y, y: -x }
    case bottomSection:
        return { x: -x, y: -y }
    case leftSection:
        return { x: -y, y: x }
    default:
        return { x: x, y: y }
    }
}

// The slice (1 to 6, or noSlice) under (x, y) given in a ring's own frame. The six slices
// fan from lower left over the top to lower right; the wedge below points back to the centre
// and holds none.
function ringSlice(x, y, innerRadius) {
    var ax = Math.abs(x)
    var ay = Math.abs(y)
    if (ax <= sliceDeadBand || ay <= sliceDeadBand || Math.abs(ax - ay) <= sliceDeadBand)
        return noSlice
    if (distance(x, y) < innerRadius)
        return noSlice
    var right = x > 0
    var down = y > 0
    var shallow = ax > ay
    if (!right && !down)
        return shallow ? 2 : 3
    if (!right && down)
        return shallow ? 1 : noSlice
    if (right && !down)
        return shallow ? 5 : 4
    return shallow ? 6 : noSlice
}

// The slice of section's ring under (x, y) relative to the menu's centre.
function sectionSlice(x, y, section, innerRadius) {
    if (section === noSection)
        return noSlice
    var p = toRingFrame(x, y, section)
    return ringSlice(p.x, p.y, innerRadius)
}

// Drawing. Angles are in degrees clockwise from the positive x axis, as QML's arcs take them.
function sectionAngle(section) {
    return (270 + 90 * section) % 360
}

function sliceStartAngle(section, slice) {
    return (135 + sliceSweep * (slice - 1) + 90 * section) % 360
}

function sliceMiddleAngle(section, slice) {
    return sliceStartAngle(section, slice) + sliceSweep / 2
}

function pointAt(angleDegrees, radius) {
    var radians = angleDegrees * Math.PI / 180
    return { x: Math.cos(radians) * radius, y: Math.sin(radians) * radius }
}

// The centre of a box of the given size that lies just beyond radius in the direction of
// angleDegrees, touching the circle with its nearest edge.
function boxBeyond(angleDegrees, radius, width, height) {
    var direction = pointAt(angleDegrees, 1)
    var halfExtent = Math.abs(direction.x) * width / 2 + Math.abs(direction.y) * height / 2
    return pointAt(angleDegrees, radius + halfExtent)
}

// Outlines of what the menu draws, for a window that cannot be transparent and shows only these
// polygons. Each is a list of points relative to (cx, cy); arcs are cut into steps of at most
// three degrees, finer than a pixel at the rings' radii.
function arcPoints(cx, cy, radius, startDegrees, sweepDegrees) {
    var steps = Math.max(2, Math.ceil(Math.abs(sweepDegrees) / 3))
    var points = []
    for (var i = 0; i <= steps; ++i) {
        var p = pointAt(startDegrees + sweepDegrees * i / steps, radius)
        points.push(Qt.point(cx + p.x, cy + p.y))
    }
    return points
}

function discPolygon(cx, cy, radius) {
    return arcPoints(cx, cy, radius, 0, 360)
}

// A slice of a ring as drawn: the annular sector between the radii, less its gaps.
function slicePolygon(cx, cy, section, slice, innerRadius, outerRadius) {
    var start = sliceStartAngle(section, slice) + sliceGapAngle
    var sweep = sliceSweep - 2 * sliceGapAngle
    return arcPoints(cx, cy, outerRadius + 1, start, sweep).concat(
        arcPoints(cx, cy, innerRadius - 1, start + sweep, -sweep))
}

// A box with round ends (a pill), as the captions are drawn.
function capsulePolygon(x, y, width, height) {
    var radius = Math.min(width, height) / 2
    var top = y + radius
    var left = x + radius
    var right = x + width - radius
    return arcPoints(right, top, radius, -90, 180).concat(arcPoints(left, top, radius, 90, 180))
}

// A straight line of the given width.
function linePolygon(x1, y1, x2, y2, width) {
    var length = Math.max(distance(x2 - x1, y2 - y1), 1)
    var nx = -(y2 - y1) / length * width / 2
    var ny = (x2 - x1) / length * width / 2
    return [Qt.point(x1 + nx, y1 + ny), Qt.point(x2 + nx, y2 + ny), Qt.point(x2 - nx, y2 - ny), Qt.point(x1 - nx, y1 - ny)]
}
