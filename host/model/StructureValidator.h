#pragma once

#include "HostKitExport.h"
#include "ModelMessage.h"
#include "Structure.h"

#include <unordered_set>

namespace Orvo::Kernel::Model {

// The rules a structure keeps: references name existing objects, members have a length, sections
// have dimensions that make their shape, a node has at most one support. Each check returns why
// a record breaks a rule, or an empty message.
class HOSTKIT_EXPORT StructureValidator
{
public:
    static ModelMessage Check(const Structure& structure, const Node& node);
    static ModelMessage Check(const Structure& structure, const Member& member);
    static ModelMessage Check(const Structure& structure, const Support& support);
    static ModelMessage Check(const Structure& structure, const CrossSection& section);
    static ModelMessage Check(const Structure& structure, const Material& material);
    static ModelMessage Check(const Structure& structure, const LoadCase& loadCase);
    static ModelMessage Check(const Structure& structure, const NodalLoad& load);
    static ModelMessage Check(const Structure& structure, const MemberLoad& load);
    static ModelMessage Check(const Structure& structure, const Combination& combination);

    // Members that start or end at one of the nodes: a node may only move where none of them
    // loses its length. One pass over the members, for a whole set of nodes.
    static std::vector<std::size_t> MembersAt(const Structure& structure,
                                              const std::unordered_set<Number>& nodes);

    // Why the objects cannot be removed: another object that stays refers to one of them.
    static ModelMessage CheckRemoval(const Structure& structure, ObjectKind kind,
                                     const std::unordered_set<Number>& numbers);

    // Smallest length a member may have, in metres.
    static constexpr double c_minimumLength = 1.0e-6;
};

} // namespace Orvo::Kernel::Model
