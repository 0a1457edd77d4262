#pragma once

#include <QItemSelection>
#include <QModelIndex>
#include <QObject>
#include <QPointer>
#include <QtQml/qqmlregistration.h>
#include <memory>

namespace Orvo::UI::UIComponents {

class TableContentFilterModel;
class TableSelectionModel;

// The table selection as the filtered table shows it: indexes and rows are the filter model's, the
// selection itself lives in the content model's TableSelectionModel. A rectangle drawn here selects
// only the rows that pass the filter.
class TableSelectionFilterModel : public QObject
{
    Q_OBJECT
    QML_NAMED_ELEMENT(TableSelectionFilterModel)
    Q_PROPERTY(int regionCount READ getRegionCount NOTIFY regionCountChanged)
    Q_PROPERTY(
        QModelIndex currentSelectedIndex READ getCurrentSelectedIndex NOTIFY currentSelectedIndexChanged)
    Q_PROPERTY(QItemSelectionRange currentRegion READ getCurrentRegion NOTIFY currentRegionChanged)
    Q_PROPERTY(
        bool activeRectangleSelecting READ isActiveRectangleSelecting NOTIFY activeRectangleSelectingChanged)
    Q_PROPERTY(bool selectedAll READ isSelectedAll NOTIFY selectedAllChanged)

public:
    explicit TableSelectionFilterModel(QObject* parent = nullptr);
    explicit TableSelectionFilterModel(TableContentFilterModel* filterModel, QObject* parent = nullptr);
    ~TableSelectionFilterModel() override;

    // Follows the selection of the filter model's current source; null detaches.
    void SetSourceSelectionModel(TableSelectionModel* selectionModel);
    TableSelectionModel* GetSourceSelectionModel() const { return m_source; }

    int getRegionCount() const;
    QModelIndex getCurrentSelectedIndex() const;
    QItemSelectionRange getCurrentRegion() const;
    bool isActiveRectangleSelecting() const;
    bool isSelectedAll() const;

    Q_INVOKABLE void select(const QModelIndex& index, int mode, bool ensureVisible);
    Q_INVOKABLE void select(const QModelIndex& index, int mode) { select(index, mode, false); }
    Q_INVOKABLE void beginSelectRegion(const QModelIndex& index, int mode);
    Q_INVOKABLE void selectRegion(const QModelIndex& index, int mode);
    Q_INVOKABLE void endSelectRegion(bool discard);
    Q_INVOKABLE void selectAll();
    Q_INVOKABLE bool isSelected(const QModelIndex& index) const;
    Q_INVOKABLE int findRegion(const QModelIndex& index) const;
    Q_INVOKABLE void selectRow(int row, int mode);
    Q_INVOKABLE void selectRowFromLast(int row);
    Q_INVOKABLE void extendSelection(int rows, int columns);
    Q_INVOKABLE bool isRowSelected(int row) const;
    Q_INVOKABLE QItemSelectionRange getEnvelope() const;

signals:
    void regionCountChanged();
    void currentSelectedIndexChanged(QModelIndex prevSelectedIndex);
    void currentRegionChanged();
    void activeRectangleSelectingChanged();
    void selectedAllChanged();
    void ensureVisibleCurrentSelected();

private:
    class FilterView;

    QModelIndex MapToSource(const QModelIndex& index) const;
    QModelIndex MapFromSource(const QModelIndex& sourceIndex) const;
    bool IsUsable(const QModelIndex& index) const;

    QPointer<TableContentFilterModel> m_filterModel;
    QPointer<TableSelectionModel> m_source;
    std::unique_ptr<FilterView> m_view;
};

} // namespace Orvo::UI::UIComponents
