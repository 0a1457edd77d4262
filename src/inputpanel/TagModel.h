#pragma once

#include <QAbstractListModel>
#include <QtQml/qqmlregistration.h>
#include <functional>
#include <vector>

namespace Orvo::UI::UIComponents {

// The objects picked for one input of the running command, one tag each ("Member 12"), that
// the user can remove one by one. The panel fills it from the command; remove() asks the
// command to drop the object, and the tag goes when the command says so.
class TagModel : public QAbstractListModel
{
    Q_OBJECT
    QML_NAMED_ELEMENT(TagModel)
    Q_PROPERTY(int count READ count NOTIFY countChanged)

public:
    enum Roles
    {
        ObjectIdRole = Qt::UserRole + 1,
        TagTextRole,
    };
    Q_ENUM(Roles)

    struct Tag
    {
        int objectId = 0;
        QString text;
        bool operator==(const Tag& other) const { return objectId == other.objectId && text == other.text; }
    };
    using Remover = std::function<bool(int objectId)>;

    explicit TagModel(QObject* parent = nullptr);

    int count() const { return rowCount(); }
    // Replaces the tags, announcing only what changed when one tag went (the usual edit).
    void SetTags(std::vector<Tag> tags);
    void SetRemover(Remover remover) { m_remover = std::move(remover); }

    // Asks for the row's object to be dropped; false for a row that is not there or a refusal.
    Q_INVOKABLE bool remove(int row);

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

signals:
    void countChanged();

private:
    std::vector<Tag> m_tags;
    Remover m_remover;
};

} // namespace Orvo::UI::UIComponents
