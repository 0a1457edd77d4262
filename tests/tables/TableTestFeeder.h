#pragma once

#include "tables/TableColumn.h"
#include "tables/TableContentModel.h"

#include <QObject>
#include <QString>
#include <vector>

namespace Orvo::UI::UIComponents {

// A feeder as the host's table controllers are: it answers the content model's requests
// synchronously from an in-memory table and applies confirmed updates to it.
class TableTestFeeder : public QObject
{
    Q_OBJECT

public:
    explicit TableTestFeeder(TableContentModel& model);

    // Columns with their cells, row by row; Load hands all of it to the model.
    void SetTable(std::vector<TableColumn> columns, std::vector<std::vector<TableCellContent>> rows);
    void Load();

    std::vector<TableColumn> columns;
    std::vector<std::vector<TableCellContent>> rows; // rows[row][column of `columns`]

    // What the model asked for, to check the contract from the outside.
    struct Request
    {
        int index;
        int count;
        std::vector<QString> ids;
    };
    std::vector<Request> requests;
    std::vector<TableContentUpdate> updates;
    std::vector<std::pair<int, int>> actions;
    int refills = 0;
    bool deliver = true; // false: answer nothing, like a broken controller

private:
    void OnSetRowsRequest(int index, int count, const std::vector<QString>& ids);
    void OnAddColumnsRequest(const std::vector<QString>& ids);
    void OnUpdateDataRequest(const TableContentUpdate& update);
    int FindColumn(const QString& id) const;

    TableContentModel& m_model;
};

} // namespace Orvo::UI::UIComponents
