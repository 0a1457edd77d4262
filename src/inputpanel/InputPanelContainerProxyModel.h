#pragma once

#include "FilterBarItemModel.h"

#include <QPointer>
#include <QSortFilterProxyModel>
#include <QtQml/qqmlregistration.h>

namespace Orvo::UI::UIComponents {

// The containers the input panel shows: those whose kind the filter bar has on.
class InputPanelContainerProxyModel : public QSortFilterProxyModel
{
    Q_OBJECT
    QML_NAMED_ELEMENT(InputPanelContainerProxyModel)
    Q_PROPERTY(Orvo::UI::UIComponents::FilterBarItemModel* filterItems READ filterItems WRITE setFilterItems
                   NOTIFY filterItemsChanged)
    Q_PROPERTY(int count READ count NOTIFY countChanged)

public:
    explicit InputPanelContainerProxyModel(QObject* parent = nullptr);

    FilterBarItemModel* filterItems() const { return m_filterItems; }
    void setFilterItems(FilterBarItemModel* items);
    int count() const { return rowCount(); }

    Q_INVOKABLE void setFolded(int row, bool folded);

signals:
    void filterItemsChanged();
    void countChanged();

protected:
    bool filterAcceptsRow(int sourceRow, const QModelIndex& sourceParent) const override;

private:
    QPointer<FilterBarItemModel> m_filterItems;
};

} // namespace Orvo::UI::UIComponents
