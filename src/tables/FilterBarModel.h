#pragma once

#include <QAbstractListModel>
#include <QString>
#include <QtQml/qqmlregistration.h>
#include <vector>

namespace Orvo::UI::UIComponents {

// The filter texts of a table, one row per column in table order; the filter bar above the header
// edits them through the role "conditionText".
class FilterBarModel : public QAbstractListModel
{
    Q_OBJECT
    QML_NAMED_ELEMENT(FilterBarModel)
    Q_PROPERTY(int rowCount READ getRowCount NOTIFY rowCountChanged)
    Q_PROPERTY(bool anyCondition READ anyCondition NOTIFY anyConditionChanged)

public:
    enum Roles
    {
        ConditionTextRole = Qt::UserRole + 1,
    };
    Q_ENUM(Roles)

    explicit FilterBarModel(QObject* parent = nullptr);

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role = Qt::EditRole) override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    QHash<int, QByteArray> roleNames() const override;

    int getRowCount() const { return static_cast<int>(m_items.size()); }
    bool anyCondition() const;
    Q_INVOKABLE void clearAll();

    void Insert(int row, std::vector<QString> const& columnIds);
    void Remove(int row, int count);
    void SynchronizeColumns(std::vector<QString> const& columnIds);

signals:
    void rowCountChanged();
    void anyConditionChanged();

private:
    struct Item
    {
        QString columnId;
        QString conditionText;
    };

    std::vector<Item> m_items;
};

} // namespace Orvo::UI::UIComponents
