#pragma once

#include "HostKitExport.h"
#include "ObjectIds.h"
#include "Structure.h"

#include <array>
#include <optional>
#include <tuple>
#include <unordered_map>
#include <vector>

namespace Orvo::Kernel::Model {

// What one user action did to the structure, as the records before and after it, so that the
// action can be taken back and done again. Objects are remembered before they are touched;
// Seal reads how they ended up and drops those that came back to where they were.
class HOSTKIT_EXPORT StructureChange
{
public:
    void Remember(const Structure& structure, ObjectKind kind, Number number);
    template<class Record> void Remember(const Structure& structure, Number number)
    {
        auto& entries = Entries<Record>();
        if (Seen<Record>().emplace(number, entries.size()).second)
            entries.push_back({ number, Copy(structure.Table<Record>().Find(number)), std::nullopt });
    }

    void Seal(const Structure& structure);
    void Undo(Structure& structure) const;
    void Redo(Structure& structure) const;

    bool IsEmpty() const { return Count() == 0; }
    std::size_t Count() const;
    // Every object the change touched.
    std::vector<ObjectId> Objects() const;
    // Whether objects of the kind were added or removed (rather than only edited).
    bool AddsOrRemoves(ObjectKind kind) const;

private:
    template<class Record> struct Entry
    {
        Number number;
        std::optional<Record> before;
        std::optional<Record> after;
    };
    template<class Record> static std::optional<Record> Copy(const Record* record)
    {
        return record ? std::optional<Record>(*record) : std::nullopt;
    }
    template<class Record> std::vector<Entry<Record>>& Entries()
    {
        return std::get<std::vector<Entry<Record>>>(m_entries);
    }
    template<class Record> const std::vector<Entry<Record>>& Entries() const
    {
        return std::get<std::vector<Entry<Record>>>(m_entries);
    }
    template<class Record> std::unordered_map<Number, std::size_t>& Seen()
    {
        return m_seen[std::size_t(Record::c_kind) - 1];
    }
    template<class Apply> void ForEachKind(Apply&& apply) const
    {
        std::apply([&apply](const auto&... entries) { (apply(entries), ...); }, m_entries);
    }

    std::tuple<std::vector<Entry<Node>>, std::vector<Entry<Member>>, std::vector<Entry<Support>>,
               std::vector<Entry<CrossSection>>, std::vector<Entry<Material>>, std::vector<Entry<LoadCase>>,
               std::vector<Entry<NodalLoad>>, std::vector<Entry<MemberLoad>>, std::vector<Entry<Combination>>>
        m_entries;
    // Which numbers of each kind are remembered already, and where.
    std::array<std::unordered_map<Number, std::size_t>, c_allKinds.size()> m_seen;
};

} // namespace Orvo::Kernel::Model
