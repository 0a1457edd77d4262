#pragma once

#include "SelectionModel.h"

#include <QPointer>
#include <QSortFilterProxyModel>
#include <QStringList>
#include <QtQml/qqmlregistration.h>

namespace Orvo::UI::UIComponents {

// The list of a multi-select combo box: the items whose text holds every word of searchText,
// in source order, each with a "selected" role read from and written to selectionModel. Its
// checkState and setAllSelected act on the items shown, so that "select all" after a search
// selects what the search found and leaves the other choices as they were.
class FilterItemsProxyModel : public QSortFilterProxyModel
{
    Q_OBJECT
    QML_NAMED_ELEMENT(FilterItemsProxyModel)
    Q_PROPERTY(QString textRole READ textRole WRITE setTextRole NOTIFY textRoleChanged)
    Q_PROPERTY(QString searchText READ searchText WRITE setSearchText NOTIFY searchTextChanged)
    Q_PROPERTY(Orvo::UI::UIComponents::SelectionModel* selectionModel READ selectionModel WRITE
                   setSelectionModel NOTIFY selectionModelChanged)
    // Shows only the selected items (a "show selected" switch).
    Q_PROPERTY(bool onlySelected READ onlySelected WRITE setOnlySelected NOTIFY onlySelectedChanged)
    Q_PROPERTY(int count READ count NOTIFY countChanged)
    // Of the items shown: none, some or all selected.
    Q_PROPERTY(Qt::CheckState checkState READ checkState NOTIFY checkStateChanged)

public:
    enum Roles
    {
        SelectedRole = Qt::UserRole + 1000,
        // The text of textRole under one name, so that a delegate need not know which role it is.
        ItemTextRole,
    };
    Q_ENUM(Roles)

    explicit FilterItemsProxyModel(QObject* parent = nullptr);

    QString textRole() const { return m_textRole; }
    void setTextRole(const QString& textRole);
    QString searchText() const { return m_searchText; }
    void setSearchText(const QString& searchText);
    SelectionModel* selectionModel() const { return m_selectionModel; }
    void setSelectionModel(SelectionModel* selectionModel);
    bool onlySelected() const { return m_onlySelected; }
    void setOnlySelected(bool onlySelected);
    int count() const { return rowCount(); }
    Qt::CheckState checkState() const;

    // Selects or deselects every item shown.
    Q_INVOKABLE void setAllSelected(bool selected);
    Q_INVOKABLE void toggle(int row);

    QVariant data(const QModelIndex& index, int role) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    QHash<int, QByteArray> roleNames() const override;

signals:
    void textRoleChanged();
    void searchTextChanged();
    void selectionModelChanged();
    void onlySelectedChanged();
    void countChanged();
    void checkStateChanged();

protected:
    bool filterAcceptsRow(int sourceRow, const QModelIndex& sourceParent) const override;

private:
    QVariant KeyOfRow(int row) const;
    void OnSelectionChanged();
    void Refilter();

    QString m_textRole = QStringLiteral("display");
    QString m_searchText;
    QStringList m_words;
    QPointer<SelectionModel> m_selectionModel;
    QMetaObject::Connection m_selectionConnection;
    bool m_onlySelected = false;
};

} // namespace Orvo::UI::UIComponents
