#pragma once

#include "TableCellContent.h"
#include "TableColumn.h"
#include "TableValueType.h"

#include <QByteArray>
#include <QHash>
#include <QVariant>

namespace Orvo::UI::UIComponents {

// What the content model answers for each of its roles: a regular cell from its record, a cell
// of the new-row line from the text typed into it, a column title from its column. The
// selection roles are the selection model's.
class TableRoleData
{
public:
    static QHash<int, QByteArray> Names();
    // Whether a regular cell answers role from its record.
    static bool IsRecordRole(int role);
    // pending: the edit waiting for this cell, invalid when there is none.
    static QVariant RecordData(const TableCellContent& cell, const TableColumn& column, TableValueType type,
                               const QVariant& pending, int role);
    static QVariant NewRowData(const TableColumn& column, const QString& value, int role);
    static QVariant HeaderData(const TableColumn& column, int role);
};

} // namespace Orvo::UI::UIComponents
