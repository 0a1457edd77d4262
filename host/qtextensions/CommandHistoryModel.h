#pragma once

#include "HostKitExport.h"

#include <QAbstractListModel>
#include <QtQml/qqmlregistration.h>
#include <memory>

namespace Orvo::Kernel::Framework {
class CommandHistory;
}

namespace Orvo::UI::QtExtensions {

// The host's command history for QML, latest first: what ran, with which parameters, from where
// (as users name it) and when. It shows the whole history from its creation on, so a log opened
// late still lists the commands run before.
class HOSTKIT_EXPORT CommandHistoryModel : public QAbstractListModel
{
    Q_OBJECT
    QML_NAMED_ELEMENT(CommandHistoryModel)
    Q_PROPERTY(int count READ rowCount NOTIFY countChanged)

public:
    enum Roles
    {
        CommandUuidRole = Qt::UserRole + 1,
        NameRole,
        ParametersRole,
        OriginRole,
        TimeRole,
    };
    Q_ENUM(Roles)

    explicit CommandHistoryModel(QObject* parent = nullptr);

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QHash<int, QByteArray> roleNames() const override;

signals:
    void countChanged();

private:
    std::shared_ptr<Kernel::Framework::CommandHistory> m_history;
};

} // namespace Orvo::UI::QtExtensions
