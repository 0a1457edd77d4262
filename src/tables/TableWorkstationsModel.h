#pragma once

#include <QAbstractListModel>
#include <QString>
#include <QtQml/qqmlregistration.h>
#include <vector>

namespace Orvo::UI::UIComponents {

// One workstation a table panel can switch to.
struct TableWorkstationItem
{
    QString id;
    QString icon; // a QML file path
    QString label;
};

// The workstations whose tables a panel can show (the model, its loads, the results), and the one
// it shows.
class TableWorkstationsModel : public QAbstractListModel
{
    Q_OBJECT
    QML_NAMED_ELEMENT(TableWorkstationsModel)
    Q_PROPERTY(int selectedIndex READ selectedIndex WRITE setSelectedIndex NOTIFY selectedIndexChanged)

public:
    enum Roles
    {
        IdRole = Qt::UserRole + 1,
        IconRole,
        LabelRole,
        Count,
    };
    Q_ENUM(Roles)

    explicit TableWorkstationsModel(QObject* parent = nullptr);

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QHash<int, QByteArray> roleNames() const override;

    int selectedIndex() const { return m_selectedIndex; }
    void setSelectedIndex(int index);

    // Replaces the list; the selection stays on the workstation of the same id, or goes to none.
    void Set(std::vector<TableWorkstationItem>&& items);
    const std::vector<TableWorkstationItem>& Items() const { return m_items; }
    int FindIndexById(const QString& id) const;
    // The id of the selected workstation; empty for none.
    QString SelectedId() const;

signals:
    void selectedIndexChanged();

private:
    std::vector<TableWorkstationItem> m_items;
    int m_selectedIndex = -1;
};

} // namespace Orvo::UI::UIComponents
