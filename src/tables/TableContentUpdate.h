#pragma once

#include <QMetaType>
#include <QVariant>
#include <map>
#include <memory>

namespace Orvo::UI::UIComponents {

// Edits not yet handed to the feeder: row -> (column -> new value), iterated in ascending order.
// Copies share their values until one of them changes (a paste of 100,000 cells travels through a
// signal by value without being copied).
class TableContentUpdate
{
public:
    using RowValues = std::map<int, QVariant>;
    using Rows = std::map<int, RowValues>;

    TableContentUpdate() = default;
    TableContentUpdate(const TableContentUpdate&) = default;
    TableContentUpdate(TableContentUpdate&&) = default;
    TableContentUpdate& operator=(const TableContentUpdate&) = default;
    TableContentUpdate& operator=(TableContentUpdate&&) = default;
    virtual ~TableContentUpdate() = default;

    void SetValue(int row, int column, const QVariant& value);
    QVariant GetValue(int row, int column) const;
    bool Contains(int row, int column) const;
    void Remove(int row, int column);
    // The values of a column that the table removes go, those of later columns move down one.
    void RemoveColumn(int column);
    // The values follow a column moved to stand before dstIndex, as the table's columns do.
    void MoveColumn(int srcIndex, int dstIndex);
    void Clear();
    bool IsEmpty() const { return !m_rows || m_rows->empty(); }
    int MaxRow() const { return m_maxRow; }
    const Rows& GetRows() const;

private:
    Rows& Detach();
    // Renumbers the columns of every row; a column mapped to -1 loses its values.
    template<typename Mapping> void RenumberColumns(Mapping newColumn);

    std::shared_ptr<Rows> m_rows;
    int m_maxRow = -1;
};

} // namespace Orvo::UI::UIComponents

Q_DECLARE_METATYPE(Orvo::UI::UIComponents::TableContentUpdate)
