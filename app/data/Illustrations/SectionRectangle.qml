import QtQuick

// The rectangle drawing of a cross-section.
SectionDrawing {
    shape: "rectangle"
}
