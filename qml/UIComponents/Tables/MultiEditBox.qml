import QtQuick
import QtQuick.Layouts
import Qml.QtComponents
import Qml.QtBasicComponents
import BasicComponents.Constants
import UIComponents.Constants

// One box to edit every selected cell at once: "+5" adds 5, "*-2" multiplies by -2, "~0.5" rounds
// to halves, ">S355" replaces, "?IPE" finds the next cell containing IPE.
RowLayout {
    id: box
    required property var contentModel // the TableContentModel
    readonly property var solver: contentModel?.multiEditActionSolver ?? null
    readonly property var search: contentModel?.multiEditSearchResult ?? null
    spacing: BasicConstants.sizes.spacing

    function apply() {
        if (!solver.currentActionIsValid)
            return
        contentModel.setDataForSelection(solver.currentAction.action, solver.currentActionValue)
        if (solver.currentAction.action !== MultiEditAction.Search)
            contentModel.confirmUpdate()
    }

    BasicComboBox {
        id: actions
        Layout.preferredWidth: 150
        model: (box.solver?.actionsLcids ?? []).map(lcid => Strings.text(lcid))
        currentIndex: box.solver?.currentAction?.action ?? -1
        displayText: currentIndex < 0 ? Strings.text("UI_TABLE_MULTIPLE_EDITBOX_ACTION") : currentText
        onActivated: index => {
            expression.text = box.solver.getExpressionUpdatedByActionAt(index)
            expression.forceActiveFocus()
        }
    }
    BasicTextField {
        id: expression
        objectName: "multiEditExpression"
        Layout.fillWidth: true
        placeholderText: Strings.text("UI_TABLE_MULTIPLE_EDITBOX_PLACEHOLDER")
        invalid: text.length > 0 && !(box.solver?.currentActionIsValid ?? false)
        onTextChanged: {
            if (box.solver)
                box.solver.expression = text
            // A report belongs to the search that made it, not to what is typed since.
            if (box.search)
                box.search.active = false
        }
        Keys.onReturnPressed: box.apply()
        Keys.onEnterPressed: box.apply()
    }
    BasicButton {
        text: box.solver?.currentAction?.action === MultiEditAction.Search
              ? Strings.text("UI_TABLE_MULTIPLE_EDITBOX_FIND_NEXT") : Strings.text("UI_TABLE_MULTIPLE_EDITBOX_APPLY")
        enabled: box.solver?.currentActionIsValid ?? false
        onClicked: box.apply()
    }
    BasicLabel {
        objectName: "searchReport"
        // "0 of N" says nothing once the user has moved away from the matches.
        visible: box.search ? box.search.active && (box.search.matchCount === 0 || box.search.currentMatchIndex >= 0) : false
        text: box.search?.report ?? ""
        color: (box.search?.matchCount ?? 0) > 0 ? BasicConstants.colors.textSecondary : BasicConstants.colors.error
    }
    BasicComboBox {
        id: parameters
        visible: (box.contentModel?.selectionParametersNames.length ?? 0) > 0
        Layout.preferredWidth: 130
        model: box.contentModel?.selectionParametersNames ?? []
        displayText: box.contentModel?.selectionParametersSelectedIndices.length === 1
                     ? box.contentModel.selectionParametersNames[box.contentModel.selectionParametersSelectedIndices[0]]
                     : Strings.text("UI_TABLE_MULTIPLE_VALUES")
        onActivated: index => {
            box.contentModel.setDataForSelection(MultiEditAction.Replace, box.contentModel.selectionParametersNames[index])
            box.contentModel.confirmUpdate()
        }
    }
}
