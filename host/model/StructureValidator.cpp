#include "StructureValidator.h"

#include <cmath>

namespace Orvo::Kernel::Model {

namespace {

ModelMessage Missing(const QString& id, Number number)
{
    return ModelMessage(id, { QString::number(number) });
}

// The first record of the table that refers to one of the numbers and is not itself removed.
template<class Record, class RefersTo>
ModelMessage FirstUser(const ObjectTable<Record>& table, ObjectKind removedKind,
                       const std::unordered_set<Number>& numbers, RefersTo refersTo)
{
    for (const Record& record : table.Records()) {
        const Number used = refersTo(record);
        if (used && numbers.count(used))
            return ModelMessage(
                QStringLiteral("UI_MODEL_ERROR_IN_USE"),
                { ObjectRef { removedKind, used }, ObjectRef { Record::c_kind, record.number } });
    }
    return {};
}

bool Finite(double value)
{
    return std::isfinite(value);
}

} // namespace

ModelMessage StructureValidator::Check(const Structure&, const Node& node)
{
    if (!Finite(node.x) || !Finite(node.y) || !Finite(node.z))
        return ModelMessage(QStringLiteral("UI_MODEL_ERROR_NOT_A_NUMBER"));
    return {};
}

ModelMessage StructureValidator::Check(const Structure& structure, const Member& member)
{
    const auto& nodes = structure.Nodes();
    if (!nodes.Contains(member.startNode))
        return Missing(QStringLiteral("UI_MODEL_ERROR_NO_NODE"), member.startNode);
    if (!nodes.Contains(member.endNode))
        return Missing(QStringLiteral("UI_MODEL_ERROR_NO_NODE"), member.endNode);
    if (member.startNode == member.endNode)
        return ModelMessage(QStringLiteral("UI_MODEL_ERROR_SAME_NODES"),
                            { QString::number(member.startNode) });
    if (structure.MemberLength(member) < c_minimumLength)
        return ModelMessage(QStringLiteral("UI_MODEL_ERROR_ZERO_LENGTH"),
                            { ObjectRef { ObjectKind::Member, member.number },
                              QString::number(member.startNode), QString::number(member.endNode) });
    if (!structure.Sections().Contains(member.section))
        return Missing(QStringLiteral("UI_MODEL_ERROR_NO_SECTION"), member.section);
    if (!structure.Materials().Contains(member.material))
        return Missing(QStringLiteral("UI_MODEL_ERROR_NO_MATERIAL"), member.material);
    if (!Finite(member.rotation))
        return ModelMessage(QStringLiteral("UI_MODEL_ERROR_NOT_A_NUMBER"));
    return {};
}

ModelMessage StructureValidator::Check(const Structure& structure, const Support& support)
{
    if (!structure.Nodes().Contains(support.node))
        return Missing(QStringLiteral("UI_MODEL_ERROR_NO_NODE"), support.node);
    for (const Support& other : structure.Supports().Records()) {
        if (other.node == support.node && other.number != support.number)
            return ModelMessage(QStringLiteral("UI_MODEL_ERROR_SUPPORT_TAKEN"),
                                { ObjectRef { ObjectKind::Node, support.node },
                                  ObjectRef { ObjectKind::Support, other.number } });
    }
    for (double spring : support.springs) {
        if (!Finite(spring) || spring < 0.0)
            return ModelMessage(QStringLiteral("UI_MODEL_ERROR_NEGATIVE"));
    }
    return {};
}

ModelMessage StructureValidator::Check(const Structure&, const CrossSection& s)
{
    for (double dimension :
         { s.height, s.width, s.flangeThickness, s.webThickness, s.wallThickness, s.diameter }) {
        if (!Finite(dimension) || dimension <= 0.0)
            return ModelMessage(QStringLiteral("UI_MODEL_ERROR_NOT_POSITIVE"));
    }
    switch (s.shape) {
    case SectionShape::I:
        if (2.0 * s.flangeThickness >= s.height)
            return ModelMessage(QStringLiteral("UI_MODEL_ERROR_FLANGES_TOO_THICK"),
                                { s.flangeThickness, s.height });
        if (s.webThickness >= s.width)
            return ModelMessage(QStringLiteral("UI_MODEL_ERROR_WEB_TOO_THICK"), { s.webThickness, s.width });
        break;
    case SectionShape::RectangularHollow:
        if (2.0 * s.wallThickness >= std::min(s.height, s.width))
            return ModelMessage(QStringLiteral("UI_MODEL_ERROR_WALL_TOO_THICK"),
                                { s.wallThickness, std::min(s.height, s.width) });
        break;
    case SectionShape::CircularHollow:
        if (2.0 * s.wallThickness >= s.diameter)
            return ModelMessage(QStringLiteral("UI_MODEL_ERROR_WALL_TOO_THICK"),
                                { s.wallThickness, s.diameter });
        break;
    case SectionShape::Rectangle:
    case SectionShape::Circle:
        break;
    }
    return {};
}

ModelMessage StructureValidator::Check(const Structure&, const Material& material)
{
    if (!(material.elasticModulus > 0.0) || !(material.shearModulus > 0.0) || !(material.density >= 0.0)
        || !(material.strength > 0.0))
        return ModelMessage(QStringLiteral("UI_MODEL_ERROR_NOT_POSITIVE"));
    return {};
}

ModelMessage StructureValidator::Check(const Structure&, const LoadCase&)
{
    return {};
}

ModelMessage StructureValidator::Check(const Structure& structure, const NodalLoad& load)
{
    if (!structure.LoadCases().Contains(load.loadCase))
        return Missing(QStringLiteral("UI_MODEL_ERROR_NO_LOAD_CASE"), load.loadCase);
    if (!structure.Nodes().Contains(load.node))
        return Missing(QStringLiteral("UI_MODEL_ERROR_NO_NODE"), load.node);
    for (double value : load.values) {
        if (!Finite(value))
            return ModelMessage(QStringLiteral("UI_MODEL_ERROR_NOT_A_NUMBER"));
    }
    return {};
}

ModelMessage StructureValidator::Check(const Structure& structure, const MemberLoad& load)
{
    if (!structure.LoadCases().Contains(load.loadCase))
        return Missing(QStringLiteral("UI_MODEL_ERROR_NO_LOAD_CASE"), load.loadCase);
    if (!structure.Members().Contains(load.member))
        return Missing(QStringLiteral("UI_MODEL_ERROR_NO_MEMBER"), load.member);
    if (!Finite(load.value))
        return ModelMessage(QStringLiteral("UI_MODEL_ERROR_NOT_A_NUMBER"));
    return {};
}

ModelMessage StructureValidator::Check(const Structure& structure, const Combination& combination)
{
    if (combination.factors.empty())
        return ModelMessage(QStringLiteral("UI_MODEL_ERROR_COMBINATION_EMPTY"));
    for (const auto& [loadCase, factor] : combination.factors) {
        if (!structure.LoadCases().Contains(loadCase))
            return Missing(QStringLiteral("UI_MODEL_ERROR_NO_LOAD_CASE"), loadCase);
        if (!Finite(factor))
            return ModelMessage(QStringLiteral("UI_MODEL_ERROR_NOT_A_NUMBER"));
    }
    return {};
}

std::vector<std::size_t> StructureValidator::MembersAt(const Structure& structure,
                                                       const std::unordered_set<Number>& nodes)
{
    std::vector<std::size_t> members;
    const auto& records = structure.Members().Records();
    for (std::size_t i = 0; i < records.size(); ++i) {
        if (nodes.count(records[i].startNode) || nodes.count(records[i].endNode))
            members.push_back(i);
    }
    return members;
}

ModelMessage StructureValidator::CheckRemoval(const Structure& structure, ObjectKind kind,
                                              const std::unordered_set<Number>& numbers)
{
    ModelMessage message;
    const auto firstOf = [&message](ModelMessage found) {
        if (message.IsEmpty())
            message = std::move(found);
    };
    switch (kind) {
    case ObjectKind::Node:
        firstOf(FirstUser(structure.Members(), kind, numbers, [&numbers](const Member& m) {
            return numbers.count(m.startNode) ? m.startNode : m.endNode;
        }));
        firstOf(FirstUser(structure.Supports(), kind, numbers, [](const Support& s) { return s.node; }));
        firstOf(FirstUser(structure.NodalLoads(), kind, numbers, [](const NodalLoad& l) { return l.node; }));
        break;
    case ObjectKind::Member:
        firstOf(
            FirstUser(structure.MemberLoads(), kind, numbers, [](const MemberLoad& l) { return l.member; }));
        break;
    case ObjectKind::CrossSection:
        firstOf(FirstUser(structure.Members(), kind, numbers, [](const Member& m) { return m.section; }));
        break;
    case ObjectKind::Material:
        firstOf(FirstUser(structure.Members(), kind, numbers, [](const Member& m) { return m.material; }));
        break;
    case ObjectKind::LoadCase:
        firstOf(
            FirstUser(structure.NodalLoads(), kind, numbers, [](const NodalLoad& l) { return l.loadCase; }));
        firstOf(FirstUser(structure.MemberLoads(), kind, numbers,
                          [](const MemberLoad& l) { return l.loadCase; }));
        for (const Combination& combination : structure.Combinations().Records()) {
            for (const auto& [loadCase, factor] : combination.factors) {
                if (numbers.count(loadCase))
                    firstOf(ModelMessage(QStringLiteral("UI_MODEL_ERROR_IN_USE"),
                                         { ObjectRef { kind, loadCase },
                                           ObjectRef { ObjectKind::Combination, combination.number } }));
            }
        }
        break;
    case ObjectKind::Support:
    case ObjectKind::NodalLoad:
    case ObjectKind::MemberLoad:
    case ObjectKind::Combination:
        break;
    }
    return message;
}

} // namespace Orvo::Kernel::Model
