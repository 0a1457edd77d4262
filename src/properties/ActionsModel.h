#pragma once

#include <QAbstractListModel>
#include <QtQml/qqmlregistration.h>
#include <vector>

namespace Orvo::UI::UIComponents {

// The actions the host offers for the objects the panel edits, as buttons below the list.
class ActionsModel : public QAbstractListModel
{
    Q_OBJECT
    QML_NAMED_ELEMENT(ActionsModel)
    Q_PROPERTY(int count READ rowCount NOTIFY countChanged)

public:
    enum Roles
    {
        keyRole = Qt::UserRole + 1,
        nameRole,
    };

    struct Action
    {
        QString key;
        QString nameId;
    };

    explicit ActionsModel(QObject* parent = nullptr);

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QHash<int, QByteArray> roleNames() const override;

    void SetActions(std::vector<Action> actions);
    // The key of row's action, or an empty string when there is no such row.
    QString KeyAt(int row) const;

signals:
    void countChanged();

private:
    std::vector<Action> m_actions;
};

} // namespace Orvo::UI::UIComponents
