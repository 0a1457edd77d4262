#pragma once

#include <QSortFilterProxyModel>
#include <QtQml/qqmlregistration.h>

namespace Orvo::UI::UIComponents {

// The filter items the bar shows: the kinds the running command has containers of (a kind
// remembered from an earlier command but absent now would filter nothing).
class FilterBarItemProxyModel : public QSortFilterProxyModel
{
    Q_OBJECT
    QML_NAMED_ELEMENT(FilterBarItemProxyModel)
    Q_PROPERTY(int count READ count NOTIFY countChanged)

public:
    explicit FilterBarItemProxyModel(QObject* parent = nullptr);

    int count() const { return rowCount(); }
    // Switches the row's kind on or off in the source model.
    Q_INVOKABLE void setChecked(int row, bool checked);

signals:
    void countChanged();

protected:
    bool filterAcceptsRow(int sourceRow, const QModelIndex& sourceParent) const override;
};

} // namespace Orvo::UI::UIComponents
