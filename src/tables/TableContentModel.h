#pragma once

#include "FilterBarModel.h"
#include "MultiEditActionSolver.h"
#include "MultiEditSearchResult.h"
#include "TableCellContent.h"
#include "TableColumn.h"
#include "TableColumnsModel.h"
#include "TableContentFilterModel.h"
#include "TableContentGrid.h"
#include "TableContentUpdate.h"
#include "TableSelectionModel.h"
#include "TableValueType.h"
#include "tables/TableResultsValue.h"

#include <QAbstractTableModel>
#include <QHash>
#include <QItemSelection>
#include <QStringList>
#include <QVariantList>
#include <limits>
#include <unordered_set>
#include <vector>

namespace Orvo::UI::UIComponents {

class TableNumberText;

// The cell model behind every data table. It never reads the host's data itself: it asks its feeder
// (the table panel controller) through the request signals, and the feeder answers synchronously by
// calling the delivery operations. Cells are cached in bulks of 100 rows; edits wait in a pending
// update until confirmUpdate() hands them to the feeder in one request.
class TableContentModel : public QAbstractTableModel
{
    Q_OBJECT
    Q_PROPERTY(bool empty READ isEmpty NOTIFY rowCountChanged)
    Q_PROPERTY(int rowCount READ getRowCount NOTIFY rowCountChanged)
    Q_PROPERTY(int columnCount READ getColumnCount NOTIFY columnCountChanged)
    Q_PROPERTY(double minVerticalHeaderWidth READ getMinVerticalHeaderWidth CONSTANT)
    Q_PROPERTY(double horizontalHeaderHeight READ getHorizontalHeaderHeight WRITE setHorizontalHeaderHeight
                   NOTIFY horizontalHeaderHeightChanged)
    Q_PROPERTY(int newRowIndex READ newRowIndex)
    Q_PROPERTY(int allowAddNew READ getAllowAddNew WRITE setAllowAddNew NOTIFY allowAddNewChanged)
    Q_PROPERTY(int allowDelete READ getAllowDelete WRITE setAllowDelete NOTIFY allowDeleteChanged)
    Q_PROPERTY(int allowEdit READ getAllowEdit WRITE setAllowEdit NOTIFY allowEditChanged)
    Q_PROPERTY(int columnMaxWidth READ getColumnMaxWidth CONSTANT)
    Q_PROPERTY(QStringList selectionParametersNames READ getSelectionParametersNames NOTIFY
                   selectionParametersNamesChanged)
    Q_PROPERTY(QVariantList selectionParametersValues READ getSelectionParametersValues NOTIFY
                   selectionParametersValuesChanged)
    Q_PROPERTY(QList<int> selectionParametersSelectedIndices READ getSelectionParametersSelectedIndices NOTIFY
                   selectionParametersSelectedIndicesChanged)
    Q_PROPERTY(
        Orvo::UI::UIComponents::TableColumnsModel* columnsModel READ columnsModel NOTIFY columnsModelChanged)
    Q_PROPERTY(Orvo::UI::UIComponents::TableSelectionModel* selectionModel READ selectionModel CONSTANT)
    Q_PROPERTY(
        Orvo::UI::UIComponents::TableContentFilterModel* contentFilterModel READ contentFilterModel CONSTANT)
    Q_PROPERTY(Orvo::UI::UIComponents::MultiEditActionSolver* multiEditActionSolver READ
                   getMultiEditActionSolver CONSTANT)
    Q_PROPERTY(Orvo::UI::UIComponents::MultiEditSearchResult* multiEditSearchResult READ
                   getMultiEditSearchResult CONSTANT)
    Q_PROPERTY(Orvo::UI::UIComponents::FilterBarModel* filterBarModel READ getFilterBarModel WRITE
                   setFilterBarModel NOTIFY filterBarModelChanged)

public:
    static constexpr int c_rowsCountBulk = GridContentIndex::c_rowsCountBulk;
    static constexpr int c_rowHeight = 24;
    static constexpr int c_columnWidthStep = 64;
    static constexpr int c_boolWithNamesMinWidth = 128;

    enum ContentType
    {
        Unknown = 0,
        Bool = 1,
        Integer = 2,
        Real = 3,
        String = 4,
        List = 5,
        Color = 6,
    };
    Q_ENUM(ContentType)

    enum SortOrder
    {
        Unsorted = 0,
        Ascending = 1,
        Descending = 2,
    };
    Q_ENUM(SortOrder)

    // Declared out of numeric order on purpose: the numbers are the host's.
    enum HighlightState
    {
        Default = 0,
        DefaultModified = 1,
        Error = 3,
        UserDefined = 2,
    };
    Q_ENUM(HighlightState)

    enum HeaderOrientation
    {
        Horizontal = 1,
        Vertical = 2,
    };
    Q_ENUM(HeaderOrientation)

    enum Roles
    {
        ContentRole = Qt::UserRole + 1,
        AllValuesRole,
        ParameterIndexRole,
        ParametersNamesRole,
        ParametersValuesRole,
        ContentTypeRole,
        DecimalsRole,
        ColumnIdRole,
        ColumnLabelRole,
        ColumnMinWidthRole,
        EditableRole,
        RequiredRole,
        SortableRole,
        SortOrderRole,
        HasActionRole,
        SelectableRole,
        SelectedRole,
        SelectedActiveRole,
        SelectedInRowRole,
        SelectedInRowExtraRole,
        BoldRole,
        HighlightStateRole,
    };
    Q_ENUM(Roles)

    // How much to ask the feeder for when a cell is missing.
    enum class ContentRequest
    {
        SingleColumn = 0, // the bulk's rows, this column
        VisibleColumns = 1, // the bulk's rows, every visible column
        WholeColumn = 2, // every row, this column
    };

    explicit TableContentModel(QObject* parent = nullptr);
    ~TableContentModel() override;

    // QAbstractItemModel
    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    int columnCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role = Qt::EditRole) override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;
    Q_INVOKABLE bool setHeaderData(int section, Qt::Orientation orientation, const QVariant& value,
                                   int role = Qt::EditRole) override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    QHash<int, QByteArray> roleNames() const override;

    // Properties
    bool isEmpty() const { return m_rowCountSubmitted == 0; }
    int getRowCount() const { return rowCount(); }
    int getColumnCount() const { return columnCount(); }
    double getMinVerticalHeaderWidth() const { return 32.0; }
    double getHorizontalHeaderHeight() const { return m_horizontalHeaderHeight; }
    void setHorizontalHeaderHeight(double height);
    int newRowIndex() const;
    bool getAllowAddNew() const { return m_allowAddNew; }
    void setAllowAddNew(bool allow);
    bool getAllowDelete() const { return m_allowDelete; }
    void setAllowDelete(bool allow);
    bool getAllowEdit() const { return m_allowEdit; }
    void setAllowEdit(bool allow);
    int getColumnMaxWidth() const { return std::numeric_limits<std::int32_t>::max(); }
    QStringList getSelectionParametersNames() const;
    QVariantList getSelectionParametersValues() const;
    QList<int> getSelectionParametersSelectedIndices() const;

    // Invokables
    Q_INVOKABLE void confirmUpdate();
    Q_INVOKABLE void setDataForSelection(int action, const QString& value);
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
    Q_INVOKABLE bool clipboardContainsData() const;
    Q_INVOKABLE bool isAllRequiredFilledForNewRow() const;
    Q_INVOKABLE QString getColorLcid(int index) const;

    // Feeder side
    void AddColumns(std::vector<TableColumn>&& columns);
    void RemoveColumn(int index, bool notify = true);
    void UpdateColumnLabel(int index, const QString& label);
    void SetAllColumns(std::vector<TableColumnModelItem>&& columns);
    const std::vector<TableColumn>& GetColumns() const { return m_columns; }
    int FindParentColumnIndex(int column) const;
    void SetRowCount(int count);
    void SetColumnsContent(int index, std::vector<TableColumnContent>&& contents);
    void AddColumnsContent(std::vector<TableColumnContent>&& contents);
    void Clear();
    void ClearContent();
    // The cached cell; a default cell when the rows were never delivered. Never asks the feeder.
    TableCellContent GetCell(int row, int column) const;
    // The cell, asking the feeder for the rows first when they are missing.
    const TableCellContent& GetFilledCell(int row, int column, ContentRequest request) const;
    void SetColorNames(QHash<QString, QString> names);
    bool IsOneRowSelected() const;
    int rowCountSubmitted() const { return m_rowCountSubmitted; }
    QVariant DataForNewRow(int column, int role) const;
    bool SetDataForNewRow(int column, const QVariant& value, int role);
    const TableContentUpdate& GetPendingUpdate() const { return m_pendingUpdate; }
    // The value type of a cell: the column's, or the cell's own when the column has none.
    TableValueType GetValueType(const QModelIndex& index) const;
    int FindColumnIndex(const QString& columnId) const;

    TableColumnsModel* columnsModel() const { return m_columnsModel; }
    TableSelectionModel* selectionModel() const { return m_selectionModel; }
    TableContentFilterModel* contentFilterModel() const { return m_contentFilterModel; }
    FilterBarModel* getFilterBarModel() const;
    void setFilterBarModel(FilterBarModel* model);
    MultiEditActionSolver* getMultiEditActionSolver() const { return m_multiEditActionSolver; }
    MultiEditSearchResult* getMultiEditSearchResult() const { return m_multiEditSearchResult; }

    // A cell of a results table: the host's formatted value, bold when the host says so.
    static TableCellContent CreateCellContent(const Kernel::Tables::TableResultsValue& value);
    static QString ToString(const QVariant& value, TableValueType type);
    static QString ToString(const QVariant& value, TableValueType type, const TableNumberText& numbers);
    // The value a typed or pasted text stands for in a cell of that type; a null string when the
    // text fits neither the type nor one of the parameter names.
    static QString CreateContentUpdateValue(const QString& text, TableValueType type,
                                            const QStringList& parametersNames);
    static QString CreateContentUpdateValue(const QString& text, TableValueType type,
                                            const QStringList& parametersNames,
                                            const TableNumberText& numbers);

signals:
    void rowCountChanged();
    void columnCountChanged();
    void columnWidthChanged(int column);
    void verticalHeaderWidthChanged();
    void horizontalHeaderHeightChanged();
    void newRowIndexChanged();
    void allowAddNewChanged();
    void allowDeleteChanged();
    void allowEditChanged();
    void selectionParametersNamesChanged();
    void selectionParametersValuesChanged();
    void selectionParametersSelectedIndicesChanged();
    void columnsModelChanged();
    void addColumnsRequest(std::vector<QString> columnIds);
    void refillContentRequest();
    void setRowsRequest(int index, int count, std::vector<QString> columnsIds);
    void updateDataRequest(Orvo::UI::UIComponents::TableContentUpdate update);
    void executeActionRequest(int row, int column);
    void columnsLayoutChanged();
    void filterBarModelChanged();
    void aboutToClearContent();
    void clearContent();

private slots:
    void onColumnsModelColumnsCountChanged();
    void onColumnsVisibilityChanged(std::vector<int> indexes, bool visible);
    void onCurrentSelectedIndexChanged(QModelIndex prevSelectedIndex);
    void onSelectionModelCurrentRegionChanged(QItemSelectionRange previousRegion);
    void onSelectionChanged(QItemSelection selected, QItemSelection deselected);
    void onRowSelectionChanged(std::unordered_set<int> selected, std::unordered_set<int> deselected);
    void onRowExtraHighlightChanged(std::unordered_set<int> highlighted,
                                    std::unordered_set<int> highlightToRemove);

private:
    struct SelectionParameters;

    bool IsInTable(const QModelIndex& index) const;
    bool IsNewRow(int row) const { return m_allowAddNew && row == m_rowCountSubmitted; }
    const TableCellContent& EnsureData(int row, int column, ContentRequest request) const;
    void SetRowsToGrid(int index, std::vector<TableColumnContent>& contents);
    void PrepareDeliveredCells(int column, std::vector<TableCellContent>& cells) const;
    void UpdateMinimumWidths(int firstRow, int count);
    QVariant CellData(const QModelIndex& index, int role) const;
    QVariant SelectionData(int row, int column, int role) const;
    QVariant HorizontalHeaderData(int section, int role) const;
    QVariant CurrentValue(const TableCellContent& cell, int row, int column) const;
    bool IsCellEditable(int row, int column) const;
    void EmitSelectionRolesChanged(int top, int left, int bottom, int right);
    void EmitContentChanged(int top, int left, int bottom, int right);
    void RequestAllVisibleColumns();
    void RemoveAllColumns();
    void UpdateSelectionParameters() const;
    void MarkSelectionParametersDirty();
    std::vector<int> GetPasteTargetRows(int startRow, int lineCount, int& firstNewLine) const;

    double m_horizontalHeaderHeight = 24.0;
    bool m_allowAddNew = false;
    bool m_allowDelete = false;
    bool m_allowEdit = false;
    int m_rowCountSubmitted = 0;
    std::vector<TableColumn> m_columns;
    std::vector<int> m_columnWidths;
    std::vector<bool> m_minimumWidthDecided;
    mutable TableContentGrid m_grid;
    bool m_newRowHasData = false;
    std::vector<QString> m_newRowValues;
    TableContentUpdate m_pendingUpdate;
    TableColumnsModel* m_columnsModel = nullptr;
    TableSelectionModel* m_selectionModel = nullptr;
    TableContentFilterModel* m_contentFilterModel = nullptr;
    MultiEditActionSolver* m_multiEditActionSolver = nullptr;
    MultiEditSearchResult* m_multiEditSearchResult = nullptr;
    mutable QStringList m_selectionParametersNames;
    mutable QVariantList m_selectionParametersValues;
    mutable QList<int> m_selectionParametersSelectedIndices;
    mutable bool m_selectionParametersDirty = true;
    QHash<QString, QString> m_colorNames;
};

} // namespace Orvo::UI::UIComponents
