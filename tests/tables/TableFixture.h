#pragma once

#include "TableTestData.h"
#include "TableTestFeeder.h"
#include "tables/TableContentModel.h"

#include <QAbstractItemModelTester>

namespace Orvo::UI::UIComponents::TestData {

// A members table of rowCount rows with its feeder, editable, and a model tester attached before
// anything happens.
struct TableFixture
{
    explicit TableFixture(int rowCount, bool allowAddNew = false)
        : feeder(model)
        , tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest)
    {
        model.setAllowEdit(true);
        model.setAllowAddNew(allowAddNew);
        feeder.SetTable(MemberColumns(), MemberRows(rowCount));
        feeder.Load();
    }
    QString Content(int row, int column) const
    {
        return model.data(model.index(row, column), TableContentModel::ContentRole).toString();
    }
    // Makes a cell of the shown rows the current one, as a click does.
    void SelectShown(int row, int column)
    {
        TableContentFilterModel* shown = model.contentFilterModel();
        shown->selectionModel()->select(shown->index(row, column), TableSelectionModel::CleanSelect);
    }

    TableContentModel model;
    TableTestFeeder feeder;
    QAbstractItemModelTester tester;
};

} // namespace Orvo::UI::UIComponents::TestData
