#pragma once

#include "HostKitExport.h"
#include "ObjectType.h"

#include <vector>

namespace Orvo::Kernel::Framework {

// The object types of the structural model as users see them: their keys, properties and
// actions, one per kind of object.
class HOSTKIT_EXPORT StructuralObjectTypes
{
public:
    static inline const QString c_node = QStringLiteral("node");
    static inline const QString c_member = QStringLiteral("member");
    static inline const QString c_support = QStringLiteral("support");
    static inline const QString c_crossSection = QStringLiteral("crossSection");
    static inline const QString c_material = QStringLiteral("material");
    static inline const QString c_loadCase = QStringLiteral("loadCase");
    static inline const QString c_nodalLoad = QStringLiteral("nodalLoad");
    static inline const QString c_memberLoad = QStringLiteral("memberLoad");
    static inline const QString c_combination = QStringLiteral("combination");

    // One type per kind, in the order of Model::c_allKinds.
    static std::vector<ObjectType> CreateAll();

    static ObjectType CreateNode();
    static ObjectType CreateMember();
    static ObjectType CreateSupport();
};

} // namespace Orvo::Kernel::Framework
