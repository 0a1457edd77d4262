#pragma once

#include "HostKitExport.h"
#include "ObjectType.h"

namespace Orvo::Kernel::Framework {

class StructuralModel;

// The object types of the structural model and their properties.
class HOSTKIT_EXPORT StructuralObjectTypes
{
public:
    static inline const QString c_node = QStringLiteral("node");
    static inline const QString c_member = QStringLiteral("member");
    static inline const QString c_loadCase = QStringLiteral("loadCase");

    static ObjectType CreateNode();
    static ObjectType CreateMember();
    static ObjectType CreateLoadCase();
    static void RegisterAll(StructuralModel& model);
};

} // namespace Orvo::Kernel::Framework
