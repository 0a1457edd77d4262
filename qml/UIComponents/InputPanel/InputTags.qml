import QtQuick
import Qml.QtComponents
import Qml.QtBasicComponents
import BasicComponents.Constants

// The objects picked for one input, as tags the user removes one by one; "Nothing selected"
// while there are none.
Flow {
    id: root

    // The picked objects; removing a tag asks it to drop the object.
    property TagModel tags: null

    spacing: 4

    Repeater {
        model: root.tags
        delegate: InputTag {}
        // Wired here: a delegate that takes its row's roles sees nothing of this document.
        onItemAdded: (index, item) => (item as InputTag).removeRequested.connect(row => {
            if (root.tags)
                root.tags.remove(row)
        })
    }

    BasicLabel {
        visible: !root.tags || root.tags.count === 0
        topPadding: 5
        text: Strings.text("UI_INPUT_NO_OBJECTS")
        color: BasicConstants.colors.textSecondary
    }
}
