#pragma once

#include "HostKitExport.h"
#include "model/ModelRecords.h"

#include <cstdint>
#include <vector>

namespace Orvo::Kernel::Framework {
class PropertyDefinition;
class StructuralModel;
} // namespace Orvo::Kernel::Framework

namespace Orvo::Kernel::Tables {

// The order of a kind's objects by one of their properties, for a sorted table.
class HOSTKIT_EXPORT ObjectTableOrder
{
public:
    // Positions in the kind's records, ordered by the property's values: numbers by value, texts
    // in natural order, list choices by their text. Ties keep the objects' own order; objects
    // without the property count as greater than any value.
    static std::vector<std::int32_t> Sorted(const Framework::StructuralModel& model, Model::ObjectKind kind,
                                            const Framework::PropertyDefinition& definition, bool descending);
};

} // namespace Orvo::Kernel::Tables
