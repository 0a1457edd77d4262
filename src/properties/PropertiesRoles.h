#pragma once

#include <Qt>

namespace Orvo::UI::UIComponents {

// The roles of PropertiesModel, shared with the proxy that filters it. The names are also the
// role names QML sees; isBasicRole is answered but not named.
namespace PropertiesRoles {
enum Role : int
{
    uuidRole = Qt::UserRole + 1,
    nameRole,
    isNameRichTextRole,
    typeRole,
    categoryRole,
    valueRole,
    listIndexRole,
    indexRole,
    mixedValuesRole,
    allValuesRole,
    selectedParametersIndicesRole,
    parametersNamesRole,
    parametersValuesRole,
    hasActionRole,
    isEditableRole,
    highlightStateRole,
    visibleWhenValuesDifferRole,
    mixedRole,
    unitsRole,
    isMinMaxRole,
    minRole,
    maxRole,
    decimalsRole,
    isCollapsedRole,
    isBasicRole,
};

// typeRole of header rows; property rows carry their PropertyType (1 to 6).
inline constexpr int c_categoryType = 7;
inline constexpr int c_subcategoryType = 8;
} // namespace PropertiesRoles

} // namespace Orvo::UI::UIComponents
