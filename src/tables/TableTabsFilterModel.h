#pragma once

#include <QSortFilterProxyModel>
#include <QtQml/qqmlregistration.h>

namespace Orvo::UI::UIComponents {

class TableTabsModel;

// The open tabs of a TableTabsModel in their order on screen: the tab bar's model. Its rows are
// the tabs' places, so QML selects and moves tabs by the place it sees.
class TableTabsFilterModel : public QSortFilterProxyModel
{
    Q_OBJECT
    QML_ANONYMOUS
    Q_PROPERTY(int selectedIndex READ selectedIndex WRITE setSelectedIndex NOTIFY selectedIndexChanged)

public:
    explicit TableTabsFilterModel(QObject* parent = nullptr);

    int selectedIndex() const;
    void setSelectedIndex(int index);

    // Moves the tab at srcIndex before the tab at dstIndex (dstIndex == rowCount: last).
    Q_INVOKABLE bool move(int srcIndex, int dstIndex);

signals:
    void selectedIndexChanged();

protected:
    bool filterAcceptsRow(int sourceRow, const QModelIndex& sourceParent) const override;

private slots:
    void CatchSourceModelChanged();
    void CatchSourceModelSelectedIndexChanged();

private:
    TableTabsModel* Tabs() const;
    void FollowSelectedPlace();

    QMetaObject::Connection m_selectedIndexConnection;
    int m_shownSelectedIndex = -1; // what selectedIndexChanged last announced
};

} // namespace Orvo::UI::UIComponents
