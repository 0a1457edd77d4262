#include "StructureChange.h"

#include <algorithm>

namespace Orvo::Kernel::Model {

namespace {

template<class Record> void Put(ObjectTable<Record>& table, Number number, const std::optional<Record>& state)
{
    if (state)
        table.Put(*state);
    else
        table.Remove(number);
}

} // namespace

void StructureChange::Remember(const Structure& structure, ObjectKind kind, Number number)
{
    VisitKind(kind, [&](auto tag) { Remember<typename decltype(tag)::Type>(structure, number); });
}

void StructureChange::Seal(const Structure& structure)
{
    std::apply(
        [&structure](auto&... entries) {
            const auto seal = [&structure](auto& list) {
                for (auto& entry : list) {
                    using Record = typename std::decay_t<decltype(entry.before)>::value_type;
                    entry.after = Copy(structure.Table<Record>().Find(entry.number));
                }
                list.erase(std::remove_if(list.begin(), list.end(),
                                          [](const auto& entry) { return entry.before == entry.after; }),
                           list.end());
            };
            (seal(entries), ...);
        },
        m_entries);
    for (auto& seen : m_seen)
        seen.clear();
}

void StructureChange::Undo(Structure& structure) const
{
    ForEachKind([&structure](const auto& list) {
        // Backwards, so that an object touched twice ends as it was first.
        for (auto it = list.rbegin(); it != list.rend(); ++it) {
            using Record = typename std::decay_t<decltype(it->before)>::value_type;
            Put<Record>(structure.Table<Record>(), it->number, it->before);
        }
    });
}

void StructureChange::Redo(Structure& structure) const
{
    ForEachKind([&structure](const auto& list) {
        for (const auto& entry : list) {
            using Record = typename std::decay_t<decltype(entry.before)>::value_type;
            Put<Record>(structure.Table<Record>(), entry.number, entry.after);
        }
    });
}

std::size_t StructureChange::Count() const
{
    std::size_t count = 0;
    ForEachKind([&count](const auto& list) { count += list.size(); });
    return count;
}

std::vector<ObjectId> StructureChange::Objects() const
{
    std::vector<ObjectId> objects;
    ForEachKind([&objects](const auto& list) {
        for (const auto& entry : list) {
            using Record = typename std::decay_t<decltype(entry.before)>::value_type;
            objects.push_back(MakeObjectId(Record::c_kind, entry.number));
        }
    });
    return objects;
}

bool StructureChange::AddsOrRemoves(ObjectKind kind) const
{
    bool found = false;
    ForEachKind([&found, kind](const auto& list) {
        for (const auto& entry : list) {
            using Record = typename std::decay_t<decltype(entry.before)>::value_type;
            if (Record::c_kind == kind && entry.before.has_value() != entry.after.has_value())
                found = true;
        }
    });
    return found;
}

} // namespace Orvo::Kernel::Model
