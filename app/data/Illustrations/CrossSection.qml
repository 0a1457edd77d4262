import QtQuick
import BasicComponents.Constants

// An I-section with its dimensions; the dimension of the property in "subject" is marked.
Canvas {
    id: canvas

    property string subject: ""

    function marked(key) {
        return subject === key || subject === "member.sectionShape"
    }

    onSubjectChanged: requestPaint()
    onWidthChanged: requestPaint()
    onHeightChanged: requestPaint()

    onPaint: {
        const ctx = getContext("2d")
        ctx.reset()
        const accent = BasicConstants.colors.accent
        const plain = BasicConstants.colors.textSecondary
        // Room above the section for the width's dimension line and its label.
        const size = Math.max(0, Math.min(width * 0.5, height - 40))
        const h = size, b = size * 0.55, tf = size * 0.1, tw = size * 0.07
        const x0 = (width - b) / 2, y0 = (height - h) / 2 + 12

        // The section itself.
        ctx.fillStyle = subject === "member.sectionShape" ? BasicConstants.colors.accentLight : BasicConstants.colors.panelHeader
        ctx.strokeStyle = BasicConstants.colors.text
        ctx.lineWidth = 1.5
        ctx.beginPath()
        ctx.moveTo(x0, y0); ctx.lineTo(x0 + b, y0); ctx.lineTo(x0 + b, y0 + tf)
        ctx.lineTo(x0 + (b + tw) / 2, y0 + tf); ctx.lineTo(x0 + (b + tw) / 2, y0 + h - tf)
        ctx.lineTo(x0 + b, y0 + h - tf); ctx.lineTo(x0 + b, y0 + h); ctx.lineTo(x0, y0 + h)
        ctx.lineTo(x0, y0 + h - tf); ctx.lineTo(x0 + (b - tw) / 2, y0 + h - tf)
        ctx.lineTo(x0 + (b - tw) / 2, y0 + tf); ctx.lineTo(x0, y0 + tf)
        ctx.closePath()
        ctx.fill()
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

        dimension(x0 - 16, y0, x0 - 16, y0 + h, "h", "member.height", x0 - 34, y0 + h / 2 + 4)
        dimension(x0, y0 - 12, x0 + b, y0 - 12, "b", "member.width", x0 + b / 2 - 4, y0 - 17)
        dimension(x0 + b + 14, y0, x0 + b + 14, y0 + tf, "tf", "member.flangeThickness", x0 + b + 22, y0 + tf)
        dimension(x0 + (b - tw) / 2, y0 + h / 2, x0 + (b + tw) / 2, y0 + h / 2, "tw", "member.webThickness",
                  x0 + (b + tw) / 2 + 6, y0 + h / 2 + 4)
    }
}
