#pragma once

#include "FilterBarModel.h"
#include "MultiEditActionSolver.h"
#include "MultiEditSearchResult.h"
#include "TableCellContent.h"
#include "TableCellText.h"
#include "TableColorPalette.h"
#include "TableColumn.h"
#include "TableColumnLayout.h"
#include "TableColumnsModel.h"
#include "TableContentFilterModel.h"
#include "TableContentGrid.h"
#include "TableContentUpdate.h"
#include "TablePendingEdits.h"
#include "TableRoleData.h"
#include "TableSelectionFollower.h"
#include "TableSelectionModel.h"
#include "TableValueType.h"
#include "framework/EventConnection.h"
#include "tables/TableResultsValue.h"

#include <QAbstractTableModel>
#include <QHash>
#include <QStringList>
#include <QVariantList>
#include <QtQml/qqmlregistration.h>
#include <vector>

namespace Orvo::UI::UIComponents {

class TableColumnVisibility;
class TableNamedStateWidths;

// The cell model behind every data table. It never reads the host's data itself: it asks its feeder
// (the table panel controller) through the request signals, and the feeder answers synchronously by
// calling the delivery operations. Cells are cached in bulks of 100 rows; edits wait in a pending
// update until confirmUpdate() hands them to the feeder in one request.
class TableContentModel : public QAbstractTableModel
{
    Q_OBJECT
    QML_NAMED_ELEMENT(TableContentModel)
    Q_PROPERTY(bool empty READ isEmpty NOTIFY rowCountChanged)
    Q_PROPERTY(int rowCount READ getRowCount NOTIFY rowCountChanged)
    Q_PROPERTY(int columnCount READ getColumnCount NOTIFY columnCountChanged)
    Q_PROPERTY(double minVerticalHeaderWidth READ getMinVerticalHeaderWidth CONSTANT)
    Q_PROPERTY(double horizontalHeaderHeight READ getHorizontalHeaderHeight WRITE setHorizontalHeaderHeight
                   NOTIFY horizontalHeaderHeightChanged)
    Q_PROPERTY(int newRowIndex READ newRowIndex)
    Q_PROPERTY(int rowCountSubmitted READ rowCountSubmitted NOTIFY rowCountChanged)
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
    static constexpr int c_columnWidthStep = TableColumnLayout::c_widthStep;

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
    int columnCount(const QModelIndex& parent = QModelIndex()) const override
    {
        return parent.isValid() ? 0 : m_layout.Count();
    }
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role = Qt::EditRole) override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;
    Q_INVOKABLE bool setHeaderData(int section, Qt::Orientation orientation, const QVariant& value,
                                   int role = Qt::EditRole) override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    QHash<int, QByteArray> roleNames() const override { return TableRoleData::Names(); }

    // Properties
    bool isEmpty() const { return m_rowCountSubmitted == 0; }
    int getRowCount() const { return rowCount(); }
    int getColumnCount() const { return columnCount(); }
    double getMinVerticalHeaderWidth() const { return 32.0; }
    double getHorizontalHeaderHeight() const { return m_horizontalHeaderHeight; }
    void setHorizontalHeaderHeight(double height);
    int newRowIndex() const { return m_allowAddNew ? m_rowCountSubmitted : -1; }
    bool getAllowAddNew() const { return m_allowAddNew; }
    void setAllowAddNew(bool allow);
    bool getAllowDelete() const { return m_allowDelete; }
    void setAllowDelete(bool allow);
    bool getAllowEdit() const { return m_allowEdit; }
    void setAllowEdit(bool allow);
    int getColumnMaxWidth() const { return TableColumnLayout::c_maxWidth; }
    QStringList getSelectionParametersNames() const { return m_selectionFollower->Parameters().Names(); }
    QVariantList getSelectionParametersValues() const { return m_selectionFollower->Parameters().Values(); }
    QList<int> getSelectionParametersSelectedIndices() const
    {
        return m_selectionFollower->Parameters().SelectedIndices();
    }

    // Invokables
    Q_INVOKABLE void confirmUpdate();
    Q_INVOKABLE void setDataForSelection(int action, const QString& value);
    Q_INVOKABLE int rowHeight(int) const { return c_rowHeight; }
    Q_INVOKABLE int columnWidth(int column) const { return m_layout.LiveWidth(column); }
    Q_INVOKABLE void setColumnWidth(int column, int width);
    Q_INVOKABLE void moveColumn(int srcIndex, int dstIndex);
    Q_INVOKABLE void extendAllColumns();
    Q_INVOKABLE void narrowAllColumns();
    Q_INVOKABLE bool submitLayout();
    Q_INVOKABLE void executeAction(const QModelIndex& index);
    Q_INVOKABLE void copyToClipboard();
    Q_INVOKABLE void pasteFromClipboard();
    Q_INVOKABLE bool clipboardContainsData() const;
    Q_INVOKABLE bool isAllRequiredFilledForNewRow() const
    {
        return m_pendingEdits.NewRow().IsAllRequiredFilled(m_layout);
    }
    Q_INVOKABLE QString getColorLcid(int index) const { return TableColorPalette::GetKey(index); }

    // Feeder side
    void AddColumns(std::vector<TableColumn>&& columns);
    void RemoveColumn(int index, bool notify = true);
    void RemoveAllColumns();
    void UpdateColumnLabel(int index, const QString& label);
    void SetAllColumns(std::vector<TableColumnModelItem>&& columns)
    {
        m_columnsModel->SetAll(std::move(columns));
    }
    const std::vector<TableColumn>& GetColumns() const { return m_layout.Columns(); }
    int FindParentColumnIndex(int column) const;
    void SetRowCount(int count);
    void SetColumnsContent(int index, std::vector<TableColumnContent>&& contents);
    void AddColumnsContent(std::vector<TableColumnContent>&& contents);
    void Clear();
    void ClearContent();
    // The cached cell; a default cell when the rows were never delivered. Never asks the feeder.
    TableCellContent GetCell(int row, int column) const;
    // The cached cells as they stand; never asks the feeder.
    const TableContentGrid& Grid() const { return m_grid; }
    // The cell, asking the feeder for the rows first when they are missing.
    TableCellContent GetFilledCell(int row, int column, ContentRequest request) const
    {
        return EnsureData(row, column, request);
    }
    void SetColorNames(QHash<QString, QString> names) { m_colorNames = std::move(names); }
    bool IsOneRowSelected() const
    {
        const auto envelope = m_selectionModel->GetSourceEnvelope();
        return envelope && envelope->top == envelope->bottom;
    }
    int rowCountSubmitted() const { return m_rowCountSubmitted; }
    QVariant DataForNewRow(int column, int role) const;
    bool SetDataForNewRow(int column, const QVariant& value, int role);
    const TableContentUpdate& GetPendingUpdate() const { return m_pendingEdits.Update(); }
    // The edit waiting for a cell; invalid when there is none.
    QVariant PendingValue(int row, int column) const { return m_pendingEdits.Update().GetValue(row, column); }
    // Why text typed into a cell is no value of it; empty when it is one.
    QString TypedTextRefusal(int row, int column, const QString& text) const;
    // A record cell that takes edits: its column and the cell itself say so.
    bool IsCellEditable(int row, int column) const;
    // The value type of a cell: the column's, or the cell's own when the column has none.
    TableValueType GetValueType(const QModelIndex& index) const
    {
        return GetValueType(index.row(), index.column());
    }
    TableValueType GetValueType(int row, int column) const;
    int FindColumnIndex(const QString& columnId) const { return m_layout.FindById(columnId); }
    // True while every column is removed and asked for again (a column was shown): the columns
    // that go now come back at once.
    bool IsRebuildingColumns() const;

    TableColumnsModel* columnsModel() const { return m_columnsModel; }
    TableSelectionModel* selectionModel() const { return m_selectionModel; }
    TableContentFilterModel* contentFilterModel() const { return m_contentFilterModel; }
    FilterBarModel* getFilterBarModel() const { return m_contentFilterModel->getFilterBarModel(); }
    void setFilterBarModel(FilterBarModel* model) { m_contentFilterModel->setFilterBarModel(model); }
    MultiEditActionSolver* getMultiEditActionSolver() const { return m_multiEditActionSolver; }
    MultiEditSearchResult* getMultiEditSearchResult() const { return m_multiEditSearchResult; }

    // A cell of a results table: the host's formatted value, bold when the host says so.
    static TableCellContent CreateCellContent(const Kernel::Tables::TableResultsValue& value)
    {
        TableCellContent cell;
        cell.content = QString::fromStdWString(value.text);
        cell.bold = value.bold;
        return cell;
    }
    // The conversions of TableCellText with the host's current number settings.
    static QString ToString(const QVariant& value, TableValueType type)
    {
        return TableCellText::ToString(value, type, TableNumberText());
    }
    static QString CreateContentUpdateValue(const QString& text, TableValueType type,
                                            const QStringList& parametersNames)
    {
        return TableCellText::CreateContentUpdateValue(text, type, parametersNames, TableNumberText());
    }

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

private:
    bool IsInTable(const QModelIndex& index) const;
    bool IsNewRow(int row) const { return m_allowAddNew && row == m_rowCountSubmitted; }
    TableCellContent EnsureData(int row, int column, ContentRequest request) const;
    void SetRowsToGrid(int index, std::vector<TableColumnContent>& contents);
    void UpdateMinimumWidths(int firstRow, int count);
    QVariant CellData(const QModelIndex& index, int role) const;
    bool SetCellValue(int row, int column, const QVariant& value, int role);
    // Queues edits and repaints the rows they touch in one go.
    void QueueEdits(const TableContentUpdate& edits, const QList<int>& roles);
    // Cells write numbers with the host's number format: a new format rewrites every shown text.
    void FollowNumberFormat();

    double m_horizontalHeaderHeight = 24.0;
    bool m_allowAddNew = false;
    bool m_allowDelete = false;
    bool m_allowEdit = false;
    int m_rowCountSubmitted = 0;
    TableColumnLayout m_layout;
    mutable TableContentGrid m_grid;

    TablePendingEdits m_pendingEdits;
    TableColumnsModel* m_columnsModel = nullptr;
    TableSelectionModel* m_selectionModel = nullptr;
    TableContentFilterModel* m_contentFilterModel = nullptr;
    MultiEditActionSolver* m_multiEditActionSolver = nullptr;
    MultiEditSearchResult* m_multiEditSearchResult = nullptr;
    TableSelectionFollower* m_selectionFollower = nullptr;
    TableNamedStateWidths* m_namedStateWidths = nullptr;
    TableColumnVisibility* m_columnVisibility = nullptr;
    QHash<QString, QString> m_colorNames;
    Kernel::Framework::EventConnection m_numberFormatConnection;
};

} // namespace Orvo::UI::UIComponents
