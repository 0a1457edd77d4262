#pragma once

#include <QAbstractListModel>
#include <QString>
#include <QtQml/qqmlregistration.h>
#include <vector>

namespace Orvo::UI::UIComponents {

// One column of a table as the column selector lists it, shown or not.
struct TableColumnModelItem
{
    QString id;
    QString label;
    bool visible = true;
    bool required = false; // a required column is shown again when a new row is being typed
};

// Every column of the current table, hidden ones included, in table order; drives the column selector.
class TableColumnsModel : public QAbstractListModel
{
    Q_OBJECT
    QML_NAMED_ELEMENT(TableColumnsModel)
    Q_PROPERTY(int columnCount READ getColumnCount NOTIFY columnCountChanged)

public:
    enum Roles
    {
        IdRole = Qt::UserRole + 1,
        LabelRole,
        VisibleRole,
        RequiredRole,
    };
    Q_ENUM(Roles)

    explicit TableColumnsModel(QObject* parent = nullptr);

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role = Qt::EditRole) override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    QHash<int, QByteArray> roleNames() const override;

    int getColumnCount() const { return static_cast<int>(m_items.size()); }

    Q_INVOKABLE void displayAllColumns();
    Q_INVOKABLE void displayAllMandatoryColumns();
    Q_INVOKABLE void hideColumn(const QString& id);
    Q_INVOKABLE int getFirstVisibleIndex() const;

    void SetAll(std::vector<TableColumnModelItem>&& items);
    const std::vector<TableColumnModelItem>& GetItems() const { return m_items; }
    std::vector<QString> GetVisibleIds() const;
    int FindIndexById(const QString& id) const;
    // Follows a column dragged in the table: the visible column srcId goes before the visible column
    // dstId, or after the last column when dstId is empty.
    void MoveVisibleColumn(const QString& srcId, const QString& dstId);

signals:
    void columnCountChanged();
    void columnsVisibilityChanged(std::vector<int> indexes, bool visible);

private:
    template<typename Predicate> void Show(Predicate shouldShow);

    std::vector<TableColumnModelItem> m_items;
};

} // namespace Orvo::UI::UIComponents
