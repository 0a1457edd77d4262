import QtQuick
import Qml.QtComponents
import BasicComponents.Constants

// The four support types as engineers draw them: free, pinned, fixed and roller.
Canvas {
    id: canvas

    property string subject: ""
    readonly property var labels: [Strings.text("UI_CHOICE_SUPPORT_FREE"), Strings.text("UI_CHOICE_SUPPORT_PINNED"),
                                   Strings.text("UI_CHOICE_SUPPORT_FIXED"), Strings.text("UI_CHOICE_SUPPORT_ROLLER")]

    onWidthChanged: requestPaint()
    onHeightChanged: requestPaint()

    onPaint: {
        const ctx = getContext("2d")
        ctx.reset()
        const cell = width / 4
        const s = Math.min(cell * 0.3, height * 0.25)
        const baseY = height * 0.42
        ctx.strokeStyle = BasicConstants.colors.text
        ctx.fillStyle = BasicConstants.colors.text
        ctx.lineWidth = 1.5

        function node(cx, cy) {
            ctx.beginPath()
            ctx.arc(cx, cy, 4, 0, 2 * Math.PI)
            ctx.fill()
        }
        function ground(cx, y) {
            ctx.beginPath()
            ctx.moveTo(cx - s, y); ctx.lineTo(cx + s, y)
            for (let x = cx - s; x < cx + s; x += s / 3) {
                ctx.moveTo(x + s / 3, y); ctx.lineTo(x, y + s / 3)
            }
            ctx.stroke()
        }
        function triangle(cx, cy) {
            ctx.beginPath()
            ctx.moveTo(cx, cy); ctx.lineTo(cx - s * 0.7, cy + s); ctx.lineTo(cx + s * 0.7, cy + s); ctx.closePath()
            ctx.stroke()
        }

        for (let i = 0; i < 4; ++i) {
            const cx = cell * (i + 0.5)
            if (i === 1) {
                triangle(cx, baseY)
                ground(cx, baseY + s)
            } else if (i === 2) {
                ctx.beginPath()
                ctx.moveTo(cx, baseY - s); ctx.lineTo(cx, baseY)
                ctx.stroke()
                ground(cx, baseY)
            } else if (i === 3) {
                triangle(cx, baseY)
                for (const dx of [-s * 0.4, s * 0.4]) {
                    ctx.beginPath()
                    ctx.arc(cx + dx, baseY + s + 4, 4, 0, 2 * Math.PI)
                    ctx.stroke()
                }
                ground(cx, baseY + s + 8)
            }
            node(cx, i === 2 ? baseY - s : baseY)
            ctx.font = "12px '" + BasicConstants.fonts.family + "'"
            ctx.textAlign = "center"
            ctx.fillText(labels[i], cx, height - 6)
        }
    }
}
