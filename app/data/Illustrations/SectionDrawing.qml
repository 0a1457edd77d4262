import QtQuick
import BasicComponents.Constants

// A cross-section of one shape with its dimensions; the dimension of the property in "subject"
// is marked, the whole section when the subject is the shape itself.
Canvas {
    id: canvas

    property string subject: ""
    // "I", "box", "tube", "rectangle" or "circle"
    property string shape: "I"

    function marked(key) {
        return subject === key || subject === "section.shape"
    }

    onSubjectChanged: requestPaint()
    onShapeChanged: requestPaint()
    onWidthChanged: requestPaint()
    onHeightChanged: requestPaint()

    onPaint: {
        const ctx = getContext("2d")
        ctx.reset()
        const accent = BasicConstants.colors.accent
        const plain = BasicConstants.colors.textSecondary
        // Room above the section for the width's dimension line and its label.
        const size = Math.max(0, Math.min(width * 0.5, height - 40))
        const round = shape === "tube" || shape === "circle"
        const h = size, b = round ? size : size * 0.55, t = size * 0.1, tw = size * 0.07
        const x0 = (width - b) / 2, y0 = (height - h) / 2 + 12
        const cx = x0 + b / 2, cy = y0 + h / 2

        ctx.fillStyle = subject === "section.shape" ? BasicConstants.colors.accentLight : BasicConstants.colors.panelHeader
        ctx.strokeStyle = BasicConstants.colors.text
        ctx.lineWidth = 1.5
        ctx.beginPath()
        if (shape === "I") {
            ctx.moveTo(x0, y0); ctx.lineTo(x0 + b, y0); ctx.lineTo(x0 + b, y0 + t)
            ctx.lineTo(x0 + (b + tw) / 2, y0 + t); ctx.lineTo(x0 + (b + tw) / 2, y0 + h - t)
            ctx.lineTo(x0 + b, y0 + h - t); ctx.lineTo(x0 + b, y0 + h); ctx.lineTo(x0, y0 + h)
            ctx.lineTo(x0, y0 + h - t); ctx.lineTo(x0 + (b - tw) / 2, y0 + h - t)
            ctx.lineTo(x0 + (b - tw) / 2, y0 + t); ctx.lineTo(x0, y0 + t)
            ctx.closePath()
        } else if (round) {
            ctx.arc(cx, cy, h / 2, 0, 2 * Math.PI)
            if (shape === "tube") {
                ctx.moveTo(cx + h / 2 - t, cy)
                ctx.arc(cx, cy, h / 2 - t, 0, 2 * Math.PI, true)
            }
        } else {
            ctx.rect(x0, y0, b, h)
            if (shape === "box") {
                ctx.moveTo(x0 + t, y0 + t)
                ctx.lineTo(x0 + t, y0 + h - t); ctx.lineTo(x0 + b - t, y0 + h - t)
                ctx.lineTo(x0 + b - t, y0 + t); ctx.closePath()
            }
        }
        ctx.fill("evenodd")
        ctx.stroke()

        function dimension(x1, y1, x2, y2, label, key, labelX, labelY) {
            const color = marked(key) ? accent : plain
            ctx.strokeStyle = color
            ctx.fillStyle = color
            ctx.lineWidth = marked(key) ? 2 : 1
            ctx.beginPath()
            ctx.moveTo(x1, y1)
            ctx.lineTo(x2, y2)
            ctx.stroke()
            for (const [px, py] of [[x1, y1], [x2, y2]]) {
                ctx.beginPath()
                ctx.arc(px, py, 2.5, 0, 2 * Math.PI)
                ctx.fill()
            }
            ctx.font = (marked(key) ? "bold " : "") + "13px '" + BasicConstants.fonts.family + "'"
            ctx.fillText(label, labelX, labelY)
        }

        if (round) {
            dimension(x0, y0 - 12, x0 + b, y0 - 12, "d", "section.diameter", cx - 4, y0 - 17)
        } else {
            dimension(x0 - 16, y0, x0 - 16, y0 + h, "h", "section.height", x0 - 34, y0 + h / 2 + 4)
            dimension(x0, y0 - 12, x0 + b, y0 - 12, "b", "section.width", x0 + b / 2 - 4, y0 - 17)
        }
        if (shape === "I") {
            dimension(x0 + b + 14, y0, x0 + b + 14, y0 + t, "tf", "section.flangeThickness", x0 + b + 22, y0 + t)
            dimension(x0 + (b - tw) / 2, y0 + h / 2, x0 + (b + tw) / 2, y0 + h / 2, "tw", "section.webThickness",
                      x0 + (b + tw) / 2 + 6, y0 + h / 2 + 4)
        } else if (shape === "box" || shape === "tube") {
            dimension(x0 + b + 14, cy - t / 2, x0 + b + 14, cy + t / 2, "t", "section.wallThickness",
                      x0 + b + 22, cy + 4)
        }
    }
}
