target_sources(QtComponentsCore PRIVATE
    ${CMAKE_CURRENT_LIST_DIR}/TableValueType.h
    ${CMAKE_CURRENT_LIST_DIR}/TableCellContent.h
    ${CMAKE_CURRENT_LIST_DIR}/FilterConditionBase.h
    ${CMAKE_CURRENT_LIST_DIR}/FilterConditionFactory.h
    ${CMAKE_CURRENT_LIST_DIR}/FilterConditionFactory.cpp
    ${CMAKE_CURRENT_LIST_DIR}/ExpressionFilterCondition.h ${CMAKE_CURRENT_LIST_DIR}/ExpressionFilterCondition.cpp
    ${CMAKE_CURRENT_LIST_DIR}/IntervalFilterCondition.h ${CMAKE_CURRENT_LIST_DIR}/IntervalFilterCondition.cpp
    ${CMAKE_CURRENT_LIST_DIR}/ValueTextFilterCondition.h ${CMAKE_CURRENT_LIST_DIR}/ValueTextFilterCondition.cpp
    ${CMAKE_CURRENT_LIST_DIR}/FilterComparison.h ${CMAKE_CURRENT_LIST_DIR}/FilterComparison.cpp
    ${CMAKE_CURRENT_LIST_DIR}/FilterCellText.h ${CMAKE_CURRENT_LIST_DIR}/FilterCellText.cpp
    ${CMAKE_CURRENT_LIST_DIR}/FilterColumnFold.h ${CMAKE_CURRENT_LIST_DIR}/FilterColumnFold.cpp
    ${CMAKE_CURRENT_LIST_DIR}/FilterTextScan.h ${CMAKE_CURRENT_LIST_DIR}/FilterTextScan.cpp
    ${CMAKE_CURRENT_LIST_DIR}/TableFilterRows.h ${CMAKE_CURRENT_LIST_DIR}/TableFilterRows.cpp
    ${CMAKE_CURRENT_LIST_DIR}/NaturalTextOrder.h
    ${CMAKE_CURRENT_LIST_DIR}/UnicodeStripped.h ${CMAKE_CURRENT_LIST_DIR}/UnicodeStripped.cpp
    ${CMAKE_CURRENT_LIST_DIR}/TablesLogging.h ${CMAKE_CURRENT_LIST_DIR}/TablesLogging.cpp
    ${CMAKE_CURRENT_LIST_DIR}/TableColumn.h
    ${CMAKE_CURRENT_LIST_DIR}/TableContentUpdate.h ${CMAKE_CURRENT_LIST_DIR}/TableContentUpdate.cpp
    ${CMAKE_CURRENT_LIST_DIR}/TableCompactCells.h ${CMAKE_CURRENT_LIST_DIR}/TableCompactCells.cpp
    ${CMAKE_CURRENT_LIST_DIR}/TableContentGrid.h ${CMAKE_CURRENT_LIST_DIR}/TableContentGrid.cpp
    ${CMAKE_CURRENT_LIST_DIR}/TableNumberText.h ${CMAKE_CURRENT_LIST_DIR}/TableNumberText.cpp
    ${CMAKE_CURRENT_LIST_DIR}/TableColorPalette.h ${CMAKE_CURRENT_LIST_DIR}/TableColorPalette.cpp
    ${CMAKE_CURRENT_LIST_DIR}/TableColumnsModel.h ${CMAKE_CURRENT_LIST_DIR}/TableColumnsModel.cpp
    ${CMAKE_CURRENT_LIST_DIR}/TableColumnVisibility.h ${CMAKE_CURRENT_LIST_DIR}/TableColumnVisibility.cpp
    ${CMAKE_CURRENT_LIST_DIR}/TableSelectionRegion.h ${CMAKE_CURRENT_LIST_DIR}/TableSelectionRegion.cpp
    ${CMAKE_CURRENT_LIST_DIR}/TableSelectionView.h
    ${CMAKE_CURRENT_LIST_DIR}/TableSelectionState.h ${CMAKE_CURRENT_LIST_DIR}/TableSelectionState.cpp
    ${CMAKE_CURRENT_LIST_DIR}/TableSelectionModel.h ${CMAKE_CURRENT_LIST_DIR}/TableSelectionModel.cpp
    ${CMAKE_CURRENT_LIST_DIR}/TableSelectionFilterModel.h ${CMAKE_CURRENT_LIST_DIR}/TableSelectionFilterModel.cpp
    ${CMAKE_CURRENT_LIST_DIR}/TableColumnLayout.h ${CMAKE_CURRENT_LIST_DIR}/TableColumnLayout.cpp
    ${CMAKE_CURRENT_LIST_DIR}/TableCellText.h ${CMAKE_CURRENT_LIST_DIR}/TableCellText.cpp
    ${CMAKE_CURRENT_LIST_DIR}/TableRoleData.h ${CMAKE_CURRENT_LIST_DIR}/TableRoleData.cpp
    ${CMAKE_CURRENT_LIST_DIR}/TableNewRowLine.h ${CMAKE_CURRENT_LIST_DIR}/TableNewRowLine.cpp
    ${CMAKE_CURRENT_LIST_DIR}/TablePendingEdits.h ${CMAKE_CURRENT_LIST_DIR}/TablePendingEdits.cpp
    ${CMAKE_CURRENT_LIST_DIR}/TableClipboard.h ${CMAKE_CURRENT_LIST_DIR}/TableClipboard.cpp
    ${CMAKE_CURRENT_LIST_DIR}/TableSelectionParameters.h ${CMAKE_CURRENT_LIST_DIR}/TableSelectionParameters.cpp
    ${CMAKE_CURRENT_LIST_DIR}/TableSelectionFollower.h ${CMAKE_CURRENT_LIST_DIR}/TableSelectionFollower.cpp
    ${CMAKE_CURRENT_LIST_DIR}/TableNamedStateWidths.h ${CMAKE_CURRENT_LIST_DIR}/TableNamedStateWidths.cpp
    ${CMAKE_CURRENT_LIST_DIR}/MultiEditSelection.h ${CMAKE_CURRENT_LIST_DIR}/MultiEditSelection.cpp
    ${CMAKE_CURRENT_LIST_DIR}/TableContentDelivery.h ${CMAKE_CURRENT_LIST_DIR}/TableContentDelivery.cpp
    ${CMAKE_CURRENT_LIST_DIR}/MoveVectorElement.h
    ${CMAKE_CURRENT_LIST_DIR}/TableContentModel.h ${CMAKE_CURRENT_LIST_DIR}/TableContentModel.cpp
    ${CMAKE_CURRENT_LIST_DIR}/FilterBarModel.h ${CMAKE_CURRENT_LIST_DIR}/FilterBarModel.cpp
    ${CMAKE_CURRENT_LIST_DIR}/TableContentFilterModel.h ${CMAKE_CURRENT_LIST_DIR}/TableContentFilterModel.cpp
    ${CMAKE_CURRENT_LIST_DIR}/MultiEditOperation.h ${CMAKE_CURRENT_LIST_DIR}/MultiEditOperation.cpp
    ${CMAKE_CURRENT_LIST_DIR}/MultiEditAction.h ${CMAKE_CURRENT_LIST_DIR}/MultiEditAction.cpp
    ${CMAKE_CURRENT_LIST_DIR}/MultiEditActionSolver.h ${CMAKE_CURRENT_LIST_DIR}/MultiEditActionSolver.cpp
    ${CMAKE_CURRENT_LIST_DIR}/MultiEditSearchResult.h ${CMAKE_CURRENT_LIST_DIR}/MultiEditSearchResult.cpp
    ${CMAKE_CURRENT_LIST_DIR}/TableTabsModelItem.h
    ${CMAKE_CURRENT_LIST_DIR}/TableTabsModel.h ${CMAKE_CURRENT_LIST_DIR}/TableTabsModel.cpp
    ${CMAKE_CURRENT_LIST_DIR}/TableTabsFilterModel.h ${CMAKE_CURRENT_LIST_DIR}/TableTabsFilterModel.cpp
    ${CMAKE_CURRENT_LIST_DIR}/TableWorkstationsModel.h ${CMAKE_CURRENT_LIST_DIR}/TableWorkstationsModel.cpp
    ${CMAKE_CURRENT_LIST_DIR}/ColumnDataAdapter.h ${CMAKE_CURRENT_LIST_DIR}/ColumnDataAdapter.cpp
    ${CMAKE_CURRENT_LIST_DIR}/TablePanelConfiguration.h ${CMAKE_CURRENT_LIST_DIR}/TablePanelConfiguration.cpp
    ${CMAKE_CURRENT_LIST_DIR}/TablePanel.h ${CMAKE_CURRENT_LIST_DIR}/TablePanel.cpp
    ${CMAKE_CURRENT_LIST_DIR}/TableResult.h ${CMAKE_CURRENT_LIST_DIR}/TableResult.cpp
    ${CMAKE_CURRENT_LIST_DIR}/TableInput.h ${CMAKE_CURRENT_LIST_DIR}/TableInput.cpp
)
