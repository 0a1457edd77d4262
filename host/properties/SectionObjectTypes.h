#pragma once

#include "ObjectType.h"

namespace Orvo::Kernel::Framework {

// The cross-section and material types: parametric shapes with their computed properties, and
// materials whose values follow their grade.
class SectionObjectTypes
{
public:
    static ObjectType CreateCrossSection();
    static ObjectType CreateMaterial();
};

} // namespace Orvo::Kernel::Framework
