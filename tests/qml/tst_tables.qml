import QtQuick
import QtTest
import Qml.QtComponents
import UIComponents.Tables

TestCase {
    id: testCase
    name: "Tables"
    width: 800
    height: 400
    when: windowShown

    Component { id: contentModel; TableContentModel {} }
    Component { id: contentTable; ContentTable {} }
    Component { id: multiEditBox; MultiEditBox {} }

    function test_registeredTypes_data() {
        return [
            { tag: "TableColumnsModel", source: "TableColumnsModel {}" },
            { tag: "TableContentModel", source: "TableContentModel {}" },
            { tag: "MultiEditAction", source: "MultiEditAction {}" },
            { tag: "MultiEditActionSolver", source: "MultiEditActionSolver {}" },
            { tag: "MultiEditSearchResult", source: "MultiEditSearchResult {}" },
            { tag: "TableContentFilterModel", source: "TableContentFilterModel {}" },
            { tag: "TableSelectionModel", source: "TableSelectionModel {}" },
            { tag: "TableSelectionFilterModel", source: "TableSelectionFilterModel {}" },
            { tag: "FilterBarModel", source: "FilterBarModel {}" }
        ]
    }

    function test_registeredTypes(data) {
        const object = Qt.createQmlObject("import Qml.QtComponents; " + data.source, testCase)
        verify(object !== null)
        object.destroy()
    }

    function test_modelCompanionsAreReachable() {
        const model = createTemporaryObject(contentModel, testCase)
        verify(model.contentFilterModel !== null)
        verify(model.contentFilterModel.selectionModel !== null)
        compare(model.multiEditActionSolver.actionsLcids.length, 7)
        compare(model.columnMaxWidth, 2147483647)
        compare(model.getColorLcid(0), "UI_COLOR_ORVO_BURGUNDY")
        model.allowAddNew = true
        compare(model.rowCount, 1)
        compare(model.contentFilterModel.newRowIndex, -1) // no columns yet: no cell to show
    }

    function test_emptyTableShowsItsToolsAndAFilterBar() {
        const model = createTemporaryObject(contentModel, testCase)
        model.allowEdit = true
        const table = createTemporaryObject(contentTable, testCase, { contentModel: model, width: 800, height: 400 })
        verify(table !== null)
        verify(model.filterBarModel !== null) // the table brings its own filter bar
        compare(model.filterBarModel.anyCondition, false)
    }

    function test_multiEditBoxFollowsTheExpression_data() {
        return [
            { tag: "add a number", text: "+5", valid: true, action: MultiEditAction.Add },
            { tag: "add needs a number", text: "+x", valid: false, action: MultiEditAction.Add },
            { tag: "search", text: "?IPE", valid: true, action: MultiEditAction.Search }
        ]
    }

    function test_multiEditBoxFollowsTheExpression(data) {
        const model = createTemporaryObject(contentModel, testCase)
        const box = createTemporaryObject(multiEditBox, testCase, { contentModel: model, width: 700 })
        const field = findChild(box, "multiEditExpression")
        verify(field !== null)
        field.text = data.text
        compare(model.multiEditActionSolver.expression, data.text)
        compare(model.multiEditActionSolver.currentActionIsValid, data.valid)
        compare(model.multiEditActionSolver.currentAction.action, data.action)
        compare(field.invalid, !data.valid)
    }
}
