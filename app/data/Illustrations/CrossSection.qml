import QtQuick

// The I drawing of a cross-section.
SectionDrawing {
    shape: "I"
}
