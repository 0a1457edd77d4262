#pragma once

#include "SearchableProxyModel.h"
#include "SelectionModel.h"

#include <QPointer>

namespace Orvo::UI::UIComponents {

// The list of a multi-select combo box: the items whose text holds every word of searchText,
// in source order, each with a "selected" role read from and written to selectionModel. Its
// checkState and setAllSelected act on the items shown, so that "select all" after a search
// selects what the search found and leaves the other choices as they were.
class FilterItemsProxyModel : public Orvo::UI::UIComponents::SearchableProxyModel
{
    Q_OBJECT
    QML_NAMED_ELEMENT(FilterItemsProxyModel)
    Q_PROPERTY(Orvo::UI::UIComponents::SelectionModel* selectionModel READ selectionModel WRITE
                   setSelectionModel NOTIFY selectionModelChanged)
    // Shows only the selected items (a "show selected" switch).
    Q_PROPERTY(bool onlySelected READ onlySelected WRITE setOnlySelected NOTIFY onlySelectedChanged)
    // Of the items shown: none, some or all selected.
    Q_PROPERTY(Qt::CheckState checkState READ checkState NOTIFY checkStateChanged)

public:
    enum FilterItemsRoles
    {
        SelectedRole = Qt::UserRole + 1000,
    };
    Q_ENUM(FilterItemsRoles)

    explicit FilterItemsProxyModel(QObject* parent = nullptr);

    SelectionModel* selectionModel() const { return m_selectionModel; }
    void setSelectionModel(SelectionModel* selectionModel);
    bool onlySelected() const { return m_onlySelected; }
    void setOnlySelected(bool onlySelected);
    Qt::CheckState checkState() const;

    // Selects or deselects every item shown.
    Q_INVOKABLE void setAllSelected(bool selected);
    Q_INVOKABLE void toggle(int row);

    QVariant data(const QModelIndex& index, int role) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    QHash<int, QByteArray> roleNames() const override;

signals:
    void selectionModelChanged();
    void onlySelectedChanged();
    void checkStateChanged();

protected:
    bool filterAcceptsRow(int sourceRow, const QModelIndex& sourceParent) const override;
    void Refilter() override;

private:
    QVariant KeyOfRow(int row) const;
    void OnSelectionChanged();

    QPointer<SelectionModel> m_selectionModel;
    QMetaObject::Connection m_selectionConnection;
    bool m_onlySelected = false;
};

} // namespace Orvo::UI::UIComponents
