#include "TagModel.h"

namespace Orvo::UI::UIComponents {

TagModel::TagModel(QObject* parent)
    : QAbstractListModel(parent)
{ }

void TagModel::SetTags(std::vector<Tag> tags)
{
    if (tags == m_tags)
        return;
    // One tag removed, the rest unchanged: a row removal keeps the view where it was.
    if (tags.size() + 1 == m_tags.size()) {
        std::size_t gone = 0;
        while (gone < tags.size() && tags[gone] == m_tags[gone])
            ++gone;
        if (std::equal(tags.begin() + std::ptrdiff_t(gone), tags.end(),
                       m_tags.begin() + std::ptrdiff_t(gone) + 1)) {
            beginRemoveRows(QModelIndex(), int(gone), int(gone));
            m_tags.erase(m_tags.begin() + std::ptrdiff_t(gone));
            endRemoveRows();
            emit countChanged();
            return;
        }
    }
    const bool countChanges = tags.size() != m_tags.size();
    // Any other change is a new set of picked objects.
    beginResetModel();
    m_tags = std::move(tags);
    endResetModel();
    if (countChanges)
        emit countChanged();
}

bool TagModel::remove(int row)
{
    if (row < 0 || row >= rowCount() || !m_remover)
        return false;
    return m_remover(m_tags[std::size_t(row)].objectId);
}

int TagModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : int(m_tags.size());
}

QVariant TagModel::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid))
        return QVariant();
    const Tag& tag = m_tags[std::size_t(index.row())];
    switch (role) {
    case ObjectIdRole:
        return tag.objectId;
    case Qt::DisplayRole:
    case TagTextRole:
        return tag.text;
    default:
        return QVariant();
    }
}

QHash<int, QByteArray> TagModel::roleNames() const
{
    return { { Qt::DisplayRole, "display" }, { ObjectIdRole, "objectId" }, { TagTextRole, "tagText" } };
}

} // namespace Orvo::UI::UIComponents
