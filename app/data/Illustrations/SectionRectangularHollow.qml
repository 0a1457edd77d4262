import QtQuick

// The box drawing of a cross-section.
SectionDrawing {
    shape: "box"
}
