#include "Structure.h"

#include <cmath>

namespace Orvo::Kernel::Model {

std::size_t Structure::Count(ObjectKind kind) const
{
    return VisitKind(kind, [this](auto tag) { return Table<typename decltype(tag)::Type>().Size(); });
}

bool Structure::Contains(ObjectKind kind, Number number) const
{
    return VisitKind(
        kind, [this, number](auto tag) { return Table<typename decltype(tag)::Type>().Contains(number); });
}

void Structure::Clear()
{
    std::apply([](auto&... tables) { (tables.Clear(), ...); }, m_tables);
}

double Structure::MemberLength(const Member& member) const
{
    const Node* start = Nodes().Find(member.startNode);
    const Node* end = Nodes().Find(member.endNode);
    if (!start || !end)
        return 0.0;
    return std::hypot(end->x - start->x, end->y - start->y, end->z - start->z);
}

} // namespace Orvo::Kernel::Model
