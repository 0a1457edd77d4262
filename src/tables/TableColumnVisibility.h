#pragma once

#include <QObject>
#include <QString>
#include <vector>

namespace Orvo::UI::UIComponents {

class TableColumnsModel;
class TableContentModel;

// Keeps a content model's columns those the columns model shows. Hiding columns removes them
// from the content model at once; showing one, or a new set of columns, removes every column
// and asks the feeder for all shown ones again, in the columns model's order.
class TableColumnVisibility : public QObject
{
    Q_OBJECT

public:
    TableColumnVisibility(TableContentModel& model, TableColumnsModel& columns, QObject* parent = nullptr);

    // True while every column is removed and asked for again: the columns that go now come back
    // at once.
    bool IsRebuilding() const { return m_rebuilding; }
    void RequestAllVisibleColumns();

private:
    void OnVisibilityChanged(const std::vector<int>& indexes, bool visible);

    TableContentModel& m_model;
    TableColumnsModel& m_columns;
    bool m_rebuilding = false;
};

} // namespace Orvo::UI::UIComponents
