#pragma once

#include "PropertyItem.h"

#include <vector>

namespace Orvo::UI::UIComponents {

// Lays properties out as the panel lists them: properties without a category first, then each
// category (in the order of first appearance) with a header row, its own properties, and its
// subcategories depth first, each with a header row whose level is its depth. A subcategory's
// own properties come before its nested subcategories, so the flat list stays unambiguous.
class PropertyRowsBuilder
{
public:
    static std::vector<PropertyItem>
    Build(const std::vector<const Kernel::Framework::PropertyDefinition*>& definitions);
};

} // namespace Orvo::UI::UIComponents
