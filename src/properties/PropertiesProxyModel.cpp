#include "PropertiesProxyModel.h"

#include "PropertiesLogging.h"
#include "PropertiesModel.h"
#include "PropertiesRoles.h"

#include <algorithm>

namespace Orvo::UI::UIComponents {

using namespace PropertiesRoles;

PropertiesProxyModel::PropertiesProxyModel(QObject* parent,
                                           std::shared_ptr<std::vector<QString>> collapsedCategories)
    : QSortFilterProxyModel(parent)
    , m_collapsedCategories(std::move(collapsedCategories))
{ }

Qt::ItemFlags PropertiesProxyModel::flags(const QModelIndex& index) const
{
    if (!sourceModel())
        return Qt::NoItemFlags;
    return sourceModel()->flags(mapToSource(index));
}

bool PropertiesProxyModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    if (!sourceModel())
        return false;
    return sourceModel()->setData(mapToSource(index), value, role);
}

bool PropertiesProxyModel::SetValue(const QVariant& value, const QString& uuid, std::int32_t action)
{
    auto* properties = qobject_cast<PropertiesModel*>(sourceModel());
    if (!properties) {
        qCWarning(lcProperties).noquote() << "SetValue: the proxy's source is not a PropertiesModel";
        return false;
    }
    return properties->SetValue(value, uuid, action);
}

void PropertiesProxyModel::SetInBasicMode(bool inBasicMode)
{
    if (m_inBasicMode == inBasicMode)
        return;
    m_inBasicMode = inBasicMode;
    invalidateFilter();
}

void PropertiesProxyModel::filterForCategory(const QString& categoryName, bool collapse)
{
    if (!m_collapsedCategories)
        return;
    if (collapse) {
        m_collapsedCategories->push_back(categoryName);
    } else {
        auto& names = *m_collapsedCategories;
        names.erase(std::remove(names.begin(), names.end(), categoryName), names.end());
    }
    invalidateFilter();
}

bool PropertiesProxyModel::isCategoryCollapsed(const QString& categoryName) const
{
    if (!m_collapsedCategories)
        return false;
    const auto& names = *m_collapsedCategories;
    return std::find(names.begin(), names.end(), categoryName) != names.end();
}

void PropertiesProxyModel::UpdateCollapsedGroupsStates()
{
    if (auto* properties = qobject_cast<PropertiesModel*>(sourceModel()))
        properties->SetCollapsedCategories(m_collapsedCategories ? *m_collapsedCategories
                                                                 : std::vector<QString>());
    invalidateFilter();
}

bool PropertiesProxyModel::filterAcceptsRow(int sourceRow, const QModelIndex& sourceParent) const
{
    if (!sourceModel())
        return false;
    const QModelIndex index = sourceModel()->index(sourceRow, 0, sourceParent);
    switch (TypeOf(index)) {
    case c_categoryType:
        return CategoryHasVisibleProperty(sourceRow, sourceParent);
    case c_subcategoryType:
        return SubCategoryHasPropertyAvailable(sourceRow, sourceParent);
    default:
        return IsPropertyValueVisible(index);
    }
}

bool PropertiesProxyModel::IsPropertyAvailable(const QModelIndex& sourceIndex) const
{
    if (m_inBasicMode && !sourceIndex.data(isBasicRole).toBool())
        return false;
    if (sourceIndex.data(mixedRole).toBool() && !sourceIndex.data(visibleWhenValuesDifferRole).toBool())
        return false;
    return true;
}

bool PropertiesProxyModel::IsPropertyValueVisible(const QModelIndex& sourceIndex) const
{
    if (!IsPropertyAvailable(sourceIndex))
        return false;
    const QString category = sourceIndex.data(categoryRole).toString();
    return category.isEmpty() || !isCategoryCollapsed(category);
}

// A collapsed category keeps its header while it has an available property; only the rows
// below it disappear. Hence availability here, not visibility.
bool PropertiesProxyModel::CategoryHasVisibleProperty(int sourceRow, const QModelIndex& sourceParent) const
{
    const int rowCount = sourceModel()->rowCount();
    for (int row = sourceRow + 1; row < rowCount; ++row) {
        const QModelIndex index = sourceModel()->index(row, 0, sourceParent);
        const int type = TypeOf(index);
        if (type == c_categoryType)
            return false;
        if (type == c_subcategoryType)
            continue;
        if (IsPropertyAvailable(index))
            return true;
    }
    return false;
}

// Subcategories nest by their valueRole level: deeper ones belong to this one, a level not
// deeper ends it. Collapse counts here, so a collapsed category loses its subcategory headers.
bool PropertiesProxyModel::SubCategoryHasPropertyAvailable(int sourceRow,
                                                           const QModelIndex& sourceParent) const
{
    const int ownLevel = sourceModel()->index(sourceRow, 0, sourceParent).data(valueRole).toInt();
    const int rowCount = sourceModel()->rowCount();
    for (int row = sourceRow + 1; row < rowCount; ++row) {
        const QModelIndex index = sourceModel()->index(row, 0, sourceParent);
        const int type = TypeOf(index);
        if (type == c_categoryType)
            return false;
        if (type == c_subcategoryType) {
            if (index.data(valueRole).toInt() <= ownLevel)
                return false;
            continue;
        }
        if (IsPropertyValueVisible(index))
            return true;
    }
    return false;
}

int PropertiesProxyModel::TypeOf(const QModelIndex& sourceIndex) const
{
    return sourceIndex.data(typeRole).toInt();
}

} // namespace Orvo::UI::UIComponents
