#pragma once

#include "properties/PropertyValue.h"

#include <QAbstractListModel>
#include <QtQml/qqmlregistration.h>
#include <vector>

namespace Orvo::Kernel::Framework {
class StructuralModel;
}

namespace Orvo::UI::UIComponents {

// The kinds of object in the selection ("3 Nodes", "2 Members"), led by "All objects" when
// there is more than one kind. The current entry decides which objects the panel edits.
class EntityModel : public QAbstractListModel
{
    Q_OBJECT
    QML_NAMED_ELEMENT(EntityModel)
    Q_PROPERTY(int currentIndex READ currentIndex WRITE setCurrentIndex NOTIFY currentIndexChanged)
    Q_PROPERTY(int count READ rowCount NOTIFY countChanged)

public:
    enum Roles
    {
        nameRole = Qt::UserRole + 1,
        countRole,
        typeKeyRole,
        isCurrentRole,
    };

    explicit EntityModel(QObject* parent = nullptr);

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QHash<int, QByteArray> roleNames() const override;

    int currentIndex() const { return m_currentIndex; }
    // An index outside the rows is refused with a warning.
    void setCurrentIndex(int index);

    // Groups the objects by type, in the order the types first appear. The current entry stays
    // on the same kind of object when it is still there, else returns to the first entry.
    // Objects the model does not hold are left out.
    void SetObjects(const Kernel::Framework::StructuralModel* model,
                    const std::vector<Kernel::Framework::ObjectId>& objects);
    std::vector<Kernel::Framework::ObjectId> CurrentObjects() const;

signals:
    void currentIndexChanged();
    void countChanged();
    // The objects of the current entry changed: another entry, or new objects for it.
    void currentObjectsChanged();

private:
    struct Entity
    {
        QString typeKey; // empty for "All objects"
        QString name;
        std::vector<Kernel::Framework::ObjectId> objects;
    };

    std::vector<Entity> m_entities;
    int m_currentIndex = -1;
};

} // namespace Orvo::UI::UIComponents
