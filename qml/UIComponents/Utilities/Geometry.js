.pragma library

// Plane geometry for the component library, in screen coordinates (y grows downwards).

function distance(x1, y1, x2, y2) {
    var dx = x2 - x1
    var dy = y2 - y1
    return Math.sqrt(dx * dx + dy * dy)
}

// The angle of the vector (dx, dy) in degrees, counter-clockwise from the positive x axis as
// seen on screen (so "up" is 90), normalised to [0, 360).
function screenAngle(dx, dy) {
    var degrees = Math.atan2(-dy, dx) * 180 / Math.PI
    return normalizeAngle(degrees)
}

function normalizeAngle(degrees) {
    var normalized = degrees % 360
    return normalized < 0 ? normalized + 360 : normalized
}

function clamp(value, minimum, maximum) {
    return Math.max(minimum, Math.min(maximum, value))
}
