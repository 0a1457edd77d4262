import QtQuick

// The circle drawing of a cross-section.
SectionDrawing {
    shape: "circle"
}
