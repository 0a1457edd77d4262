#pragma once

#include "HostKitExport.h"

namespace Orvo::Kernel::Framework {

class StructuralModel;

// A small two-bay steel frame with its load cases, for demonstrations and tests: six nodes,
// five members and three load cases whose values differ enough to show mixed selections.
class HOSTKIT_EXPORT SampleStructure
{
public:
    // Registers the standard object types when they are missing, then adds the objects.
    static void Fill(StructuralModel& model);
};

} // namespace Orvo::Kernel::Framework
