#pragma once

#include "FilterBarModel.h"
#include "FilterConditionBase.h"
#include "TableFilterRows.h"
#include "TableSelectionFilterModel.h"

#include <QPointer>
#include <QSortFilterProxyModel>
#include <QtQml/qqmlregistration.h>
#include <map>
#include <memory>
#include <optional>
#include <vector>

namespace Orvo::UI::UIComponents {

class TableContentModel;

// What a table view shows: the rows of its TableContentModel that pass every column's filter,
// renumbered, with the new-row line always kept. The filter texts live in a FilterBarModel; each
// becomes a condition through FilterConditionFactory. Layout and editing operations go to the source.
class TableContentFilterModel : public QSortFilterProxyModel
{
    Q_OBJECT
    QML_NAMED_ELEMENT(TableContentFilterModel)
    Q_PROPERTY(bool empty READ isEmpty NOTIFY rowCountChanged)
    Q_PROPERTY(int rowCount READ getRowCount NOTIFY rowCountChanged)
    Q_PROPERTY(int columnCount READ getColumnCount NOTIFY columnCountChanged)
    Q_PROPERTY(double minVerticalHeaderWidth READ getMinVerticalHeaderWidth CONSTANT)
    Q_PROPERTY(double horizontalHeaderHeight READ getHorizontalHeaderHeight WRITE setHorizontalHeaderHeight
                   NOTIFY horizontalHeaderHeightChanged)
    Q_PROPERTY(int newRowIndex READ newRowIndex NOTIFY rowCountChanged)
    Q_PROPERTY(int rowCountSubmitted READ rowCountSubmitted NOTIFY rowCountChanged)
    Q_PROPERTY(bool allowAddNew READ getAllowAddNew WRITE setAllowAddNew NOTIFY allowAddNewChanged)
    Q_PROPERTY(bool allowEdit READ getAllowEdit WRITE setAllowEdit NOTIFY allowEditChanged)
    Q_PROPERTY(int columnMaxWidth READ getColumnMaxWidth CONSTANT)
    Q_PROPERTY(Orvo::UI::UIComponents::TableSelectionFilterModel* selectionModel READ selectionModel CONSTANT)
    Q_PROPERTY(Orvo::UI::UIComponents::FilterBarModel* filterBarModel READ getFilterBarModel WRITE
                   setFilterBarModel NOTIFY filterBarModelChanged)

public:
    // What a view shows beyond the content model's own roles, prepared by the content model so
    // that views do not format values themselves: the text of a cell, a colour cell's swatch, and
    // the text an editor of the cell starts from.
    enum ViewRoles
    {
        DisplayTextRole = Qt::UserRole + 23, // after the content model's roles
        SwatchColorRole,
        EditTextRole,
    };
    Q_ENUM(ViewRoles)

    explicit TableContentFilterModel(QObject* parent = nullptr);
    ~TableContentFilterModel() override;

    void SetSourceModel(TableContentModel* model);
    TableContentModel* GetSourceModel();
    const TableContentModel* GetSourceModel() const;
    FilterBarModel* getFilterBarModel() const { return m_filterBarModel; }
    void setFilterBarModel(FilterBarModel* model);
    TableSelectionFilterModel* selectionModel() const { return m_selectionModel; }
    // True while a row is being tested against the filters.
    bool Invalidating() const { return m_filtering; }
    int rowCountSubmitted() const;
    int newRowIndex() const;

    QHash<int, QByteArray> roleNames() const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;
    Q_INVOKABLE bool setHeaderData(int section, Qt::Orientation orientation, const QVariant& value,
                                   int role = Qt::EditRole) override;

    bool isEmpty() const;
    int getRowCount() const { return rowCount(); }
    int getColumnCount() const { return columnCount(); }
    double getMinVerticalHeaderWidth() const;
    double getHorizontalHeaderHeight() const;
    void setHorizontalHeaderHeight(double height);
    bool getAllowAddNew() const;
    void setAllowAddNew(bool allow);
    bool getAllowEdit() const;
    void setAllowEdit(bool allow);
    int getColumnMaxWidth() const;

    Q_INVOKABLE void confirmUpdate();
    Q_INVOKABLE int rowHeight(int row) const;
    Q_INVOKABLE int columnWidth(int column) const;
    Q_INVOKABLE void setColumnWidth(int column, int width);
    Q_INVOKABLE void moveColumn(int srcIndex, int dstIndex);
    Q_INVOKABLE void extendAllColumns();
    Q_INVOKABLE void narrowAllColumns();
    Q_INVOKABLE bool submitLayout();
    Q_INVOKABLE void executeAction(const QModelIndex& index);
    Q_INVOKABLE void copyToClipboard();
    Q_INVOKABLE void pasteFromClipboard();
    Q_INVOKABLE bool isAllRequiredFilledForNewRow() const;
    // Why text typed into the cell is no value of it; empty when it is one (the editor's message).
    Q_INVOKABLE QString typedTextRefusal(const QModelIndex& index, const QString& text) const;
    // A filter text that looks like a comparison or a range but is none, for the filter bar to mark.
    Q_INVOKABLE bool isFilterTextMalformed(const QString& text) const;

signals:
    void rowCountChanged();
    void columnCountChanged();
    void columnWidthChanged(int column);
    void horizontalHeaderHeightChanged();
    void allowAddNewChanged();
    void allowEditChanged();
    void columnsLayoutChanged();
    void filterBarModelChanged();
    void filterChanged();

protected:
    bool filterAcceptsRow(int sourceRow, const QModelIndex& sourceParent) const override;

private slots:
    void onColumnWidthChanged(int sourceColumn);
    void onColumnsInserted(const QModelIndex& parent, int first, int last);
    void onColumnsAboutToBeRemoved(const QModelIndex& parent, int first, int last);
    void onColumnsRemoved(const QModelIndex& parent, int first, int last);
    void RestoreReturningFilterTexts();
    void onColumnsMoved(const QModelIndex& parent, int start, int end, const QModelIndex& destination,
                        int column);
    void onFilterBarModelChanged();
    void onFilterBarDataChanged(const QModelIndex& topLeft, const QModelIndex& bottomRight,
                                const QList<int>& roles);

private:
    struct ColumnCondition
    {
        QString columnId;
        std::unique_ptr<FilterConditionBase> condition;
    };

    void RebuildColumnsMapping();
    // narrowedColumn: the one column whose condition only narrowed.
    void InvalidateFiltering(std::optional<int> narrowedColumn = std::nullopt);
    int MapColumnToSource(int column) const;
    int MapColumnFromSource(int column) const;
    std::vector<QString> GetColumnsIds(int first, int last) const;
    // Columns came, went or moved: each condition follows its column by id. True when one was lost.
    bool RekeyConditions();
    // Brings the precomputed answers of filterAcceptsRow up to date.
    void UpdateAcceptedRows() const;
    TableFilterRows::Condition SourceCondition(int column, const ColumnCondition& entry) const;
    void MarkAnswersStale();

    QPointer<TableContentModel> m_sourceModel;
    // The same, for the row questions the proxy asks by the million: no weak-pointer check there.
    const TableContentModel* m_source = nullptr;
    QPointer<FilterBarModel> m_filterBarModel;
    std::vector<int> m_proxyToSource;
    std::vector<int> m_sourceToProxy;
    std::map<int, ColumnCondition> m_conditions;
    // Filter texts of columns that the source removes only to add them again (column id -> text).
    QHash<QString, QString> m_textsOfReturningColumns;
    mutable bool m_filtering = false;
    mutable TableFilterRows m_acceptedRows;
    // The proxy is rebuilding its mapping after the filters changed: it asks every row in order.
    bool m_remapping = false;
    // The answers no longer follow the conditions; recomputed at the next row asked.
    mutable bool m_acceptedRowsStale = true;
    // The one column whose condition only narrowed since the answers were computed.
    std::optional<int> m_narrowedColumn;
    TableSelectionFilterModel* m_selectionModel = nullptr;
};

} // namespace Orvo::UI::UIComponents
