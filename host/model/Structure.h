#pragma once

#include "HostKitExport.h"
#include "ModelRecords.h"
#include "ObjectTable.h"

#include <tuple>

namespace Orvo::Kernel::Model {

template<class Record> struct RecordTag
{
    using Type = Record;
};

// Calls visitor with a RecordTag of the record type that holds objects of kind.
template<class Visitor> decltype(auto) VisitKind(ObjectKind kind, Visitor&& visitor)
{
    switch (kind) {
    case ObjectKind::Member:
        return visitor(RecordTag<Member> {});
    case ObjectKind::Support:
        return visitor(RecordTag<Support> {});
    case ObjectKind::CrossSection:
        return visitor(RecordTag<CrossSection> {});
    case ObjectKind::Material:
        return visitor(RecordTag<Material> {});
    case ObjectKind::LoadCase:
        return visitor(RecordTag<LoadCase> {});
    case ObjectKind::NodalLoad:
        return visitor(RecordTag<NodalLoad> {});
    case ObjectKind::MemberLoad:
        return visitor(RecordTag<MemberLoad> {});
    case ObjectKind::Combination:
        return visitor(RecordTag<Combination> {});
    case ObjectKind::Node:
        break;
    }
    return visitor(RecordTag<Node> {});
}

// The structural model's data: one table per kind of object. It holds values only; checking
// them is StructureValidator's work and announcing changes is the StructuralModel's.
class HOSTKIT_EXPORT Structure
{
public:
    template<class Record> ObjectTable<Record>& Table() { return std::get<ObjectTable<Record>>(m_tables); }
    template<class Record> const ObjectTable<Record>& Table() const
    {
        return std::get<ObjectTable<Record>>(m_tables);
    }

    ObjectTable<Node>& Nodes() { return Table<Node>(); }
    const ObjectTable<Node>& Nodes() const { return Table<Node>(); }
    ObjectTable<Member>& Members() { return Table<Member>(); }
    const ObjectTable<Member>& Members() const { return Table<Member>(); }
    ObjectTable<Support>& Supports() { return Table<Support>(); }
    const ObjectTable<Support>& Supports() const { return Table<Support>(); }
    ObjectTable<CrossSection>& Sections() { return Table<CrossSection>(); }
    const ObjectTable<CrossSection>& Sections() const { return Table<CrossSection>(); }
    ObjectTable<Material>& Materials() { return Table<Material>(); }
    const ObjectTable<Material>& Materials() const { return Table<Material>(); }
    ObjectTable<LoadCase>& LoadCases() { return Table<LoadCase>(); }
    const ObjectTable<LoadCase>& LoadCases() const { return Table<LoadCase>(); }
    ObjectTable<NodalLoad>& NodalLoads() { return Table<NodalLoad>(); }
    const ObjectTable<NodalLoad>& NodalLoads() const { return Table<NodalLoad>(); }
    ObjectTable<MemberLoad>& MemberLoads() { return Table<MemberLoad>(); }
    const ObjectTable<MemberLoad>& MemberLoads() const { return Table<MemberLoad>(); }
    ObjectTable<Combination>& Combinations() { return Table<Combination>(); }
    const ObjectTable<Combination>& Combinations() const { return Table<Combination>(); }

    std::size_t Count(ObjectKind kind) const;
    bool Contains(ObjectKind kind, Number number) const;
    void Clear();

    // The distance between a member's end nodes; 0 when one of them does not exist.
    double MemberLength(const Member& member) const;

private:
    std::tuple<ObjectTable<Node>, ObjectTable<Member>, ObjectTable<Support>, ObjectTable<CrossSection>,
               ObjectTable<Material>, ObjectTable<LoadCase>, ObjectTable<NodalLoad>, ObjectTable<MemberLoad>,
               ObjectTable<Combination>>
        m_tables;
};

} // namespace Orvo::Kernel::Model
