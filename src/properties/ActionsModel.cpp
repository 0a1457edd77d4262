#include "ActionsModel.h"

#include "plugin/QtComponentsText.h"

#include <algorithm>

namespace Orvo::UI::UIComponents {

ActionsModel::ActionsModel(QObject* parent)
    : QAbstractListModel(parent)
{ }

int ActionsModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_actions.size());
}

QVariant ActionsModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || !checkIndex(index, CheckIndexOption::ParentIsInvalid))
        return {};
    const Action& action = m_actions[static_cast<std::size_t>(index.row())];
    switch (role) {
    case keyRole:
        return action.key;
    case Qt::DisplayRole:
    case nameRole:
        return GetText(action.nameId);
    default:
        return {};
    }
}

QHash<int, QByteArray> ActionsModel::roleNames() const
{
    QHash<int, QByteArray> names = QAbstractListModel::roleNames();
    names.insert({ { keyRole, "keyRole" }, { nameRole, "nameRole" } });
    return names;
}

void ActionsModel::SetActions(std::vector<Action> actions)
{
    const bool sameKeys = actions.size() == m_actions.size()
        && std::equal(actions.begin(), actions.end(), m_actions.begin(),
                      [](const Action& a, const Action& b) {
                          return a.key == b.key && a.nameId == b.nameId;
                      });
    if (sameKeys)
        return;
    const int oldCount = rowCount();
    // The offered actions change with the kind of object; the list is short.
    beginResetModel();
    m_actions = std::move(actions);
    endResetModel();
    if (oldCount != rowCount())
        emit countChanged();
}

QString ActionsModel::KeyAt(int row) const
{
    if (row < 0 || row >= rowCount())
        return {};
    return m_actions[static_cast<std::size_t>(row)].key;
}

} // namespace Orvo::UI::UIComponents
