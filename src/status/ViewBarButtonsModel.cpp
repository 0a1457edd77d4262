#include "ViewBarButtonsModel.h"

#include "plugin/QtComponentsText.h"

namespace Orvo::UI::UIComponents {

ViewBarButtonsModel::ViewBarButtonsModel(QObject* parent)
    : QAbstractListModel(parent)
    , m_buttons {
        { QStringLiteral("isometric"), QStringLiteral("UI_VIEWBAR_ISOMETRIC") },
        { QStringLiteral("top"), QStringLiteral("UI_VIEWBAR_TOP") },
        { QStringLiteral("front"), QStringLiteral("UI_VIEWBAR_FRONT") },
        { QStringLiteral("side"), QStringLiteral("UI_VIEWBAR_SIDE") },
        { QStringLiteral("fit"), QStringLiteral("UI_VIEWBAR_FIT") },
        { QStringLiteral("solids"), QStringLiteral("UI_VIEWBAR_SOLIDS"), true },
        { QStringLiteral("loads"), QStringLiteral("UI_VIEWBAR_LOADS"), true },
        { QStringLiteral("supports"), QStringLiteral("UI_VIEWBAR_SUPPORTS"), true },
        { QStringLiteral("deformed"), QStringLiteral("UI_VIEWBAR_DEFORMED"), true },
        { QStringLiteral("moments"), QStringLiteral("UI_VIEWBAR_MOMENTS"), true },
    }
{ }

int ViewBarButtonsModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : int(m_buttons.size());
}

QVariant ViewBarButtonsModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || !checkIndex(index, CheckIndexOption::ParentIsInvalid))
        return {};
    const Button& button = m_buttons[std::size_t(index.row())];
    switch (role) {
    case ButtonIdRole:
        return button.id;
    case Qt::DisplayRole:
    case TitleRole:
        return GetText(button.titleId);
    case CheckableRole:
        return button.checkable;
    case CheckedRole:
        return button.checked;
    case EnabledRole:
        return button.enabled;
    case PinnedRole:
        return button.pinned;
    case InBarRole:
        return button.inBar;
    default:
        return {};
    }
}

QHash<int, QByteArray> ViewBarButtonsModel::roleNames() const
{
    return { { ButtonIdRole, "buttonId" }, { TitleRole, "title" },           { CheckableRole, "checkable" },
             { CheckedRole, "checked" },   { EnabledRole, "buttonEnabled" }, { PinnedRole, "pinned" },
             { InBarRole, "inBar" } };
}

int ViewBarButtonsModel::FindRow(const QString& buttonId) const
{
    for (std::size_t row = 0; row < m_buttons.size(); ++row) {
        if (m_buttons[row].id == buttonId)
            return int(row);
    }
    return -1;
}

void ViewBarButtonsModel::Update(const std::vector<Button>& buttons)
{
    for (std::size_t row = 0; row < buttons.size() && row < m_buttons.size(); ++row) {
        Button& current = m_buttons[row];
        const Button& next = buttons[row];
        if (current.checked == next.checked && current.enabled == next.enabled
            && current.pinned == next.pinned && current.inBar == next.inBar)
            continue;
        current.checked = next.checked;
        current.enabled = next.enabled;
        current.pinned = next.pinned;
        current.inBar = next.inBar;
        emit dataChanged(index(int(row)), index(int(row)),
                         { CheckedRole, EnabledRole, PinnedRole, InBarRole });
    }
}

} // namespace Orvo::UI::UIComponents
