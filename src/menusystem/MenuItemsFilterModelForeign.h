#pragma once

#include <QSortFilterProxyModel>
#include <QtQml/qqmlregistration.h>

namespace Orvo::UI::UIComponents {

// MenuItemsFilterModel has no meta-object of its own, so QML tools know it as the proxy it
// derives from: described here under its registered name, with the proxy's members.
struct MenuItemsFilterModelForeign
{
    Q_GADGET
    QML_FOREIGN(QSortFilterProxyModel)
    QML_NAMED_ELEMENT(MenuItemsFilterModel)
};

} // namespace Orvo::UI::UIComponents
