import QtQuick

// The tube drawing of a cross-section.
SectionDrawing {
    shape: "tube"
}
