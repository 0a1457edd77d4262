#pragma once

#include <QSortFilterProxyModel>
#include <QString>
#include <QVariant>
#include <QtQml/qqmlregistration.h>
#include <cstdint>
#include <memory>
#include <vector>

namespace Orvo::UI::UIComponents {

// What the properties panel's list view shows of the PropertiesModel: hides properties
// outside the basic mode, properties whose values differ across the selection (unless they
// stay visible then), properties of collapsed categories, and headers with nothing left
// below them. The collapsed category names are shared with the panel, which persists them.
class PropertiesProxyModel : public QSortFilterProxyModel
{
    Q_OBJECT
    QML_NAMED_ELEMENT(PropertiesProxyModel)

public:
    explicit PropertiesProxyModel(QObject* parent = nullptr,
                                  std::shared_ptr<std::vector<QString>> collapsedCategories = nullptr);

    Qt::ItemFlags flags(const QModelIndex& index) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role = Qt::EditRole) override;

    // Forwarded to the source PropertiesModel.
    bool SetValue(const QVariant& value, const QString& uuid, std::int32_t action);
    void SetInBasicMode(bool inBasicMode);
    bool IsInBasicMode() const { return m_inBasicMode; }
    // Copies the collapsed names into the source model's rows, then filters again.
    void UpdateCollapsedGroupsStates();

    Q_INVOKABLE void filterForCategory(const QString& categoryName, bool collapse);
    Q_INVOKABLE bool isCategoryCollapsed(const QString& categoryName) const;

    bool IsPropertyAvailable(const QModelIndex& sourceIndex) const;

protected:
    bool filterAcceptsRow(int sourceRow, const QModelIndex& sourceParent) const override;

private:
    bool IsPropertyValueVisible(const QModelIndex& sourceIndex) const;
    bool CategoryHasVisibleProperty(int sourceRow, const QModelIndex& sourceParent) const;
    bool SubCategoryHasPropertyAvailable(int sourceRow, const QModelIndex& sourceParent) const;
    int TypeOf(const QModelIndex& sourceIndex) const;

    std::shared_ptr<std::vector<QString>> m_collapsedCategories;
    bool m_inBasicMode = true;
};

} // namespace Orvo::UI::UIComponents
