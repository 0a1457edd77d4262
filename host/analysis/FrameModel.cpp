#include "FrameModel.h"

#include "model/SectionProperties.h"
#include "model/StructureValidator.h"

#include <algorithm>

namespace Orvo::Kernel::Analysis {

using namespace Model;

namespace {

ModelMessage Missing(const QString& id, Number number)
{
    return ModelMessage(id, { QString::number(number) });
}

// Section and material values in kN and m: E in MPa is 1000 kN/m², areas in mm² and second
// moments in mm⁴ scale by 1e-6 and 1e-12.
void SetStiffness(FrameMember& member, const CrossSection& section, const Material& material)
{
    const SectionProperties properties = SectionProperties::Of(section);
    const double e = material.elasticModulus * 1e3;
    const double g = material.shearModulus * 1e3;
    member.axialStiffness = e * properties.area * 1e-6;
    member.bendingStiffnessY = e * properties.iy * 1e-12;
    member.bendingStiffnessZ = e * properties.iz * 1e-12;
    member.torsionalStiffness = g * properties.torsion * 1e-12;
    member.weightPerLength = material.density * FrameModel::c_gravity * properties.area * 1e-6 / 1e3;
}

Vector3 GlobalDirection(LoadDirection direction, double value)
{
    Vector3 q {};
    q[std::size_t(direction)] = value;
    return q;
}

} // namespace

std::shared_ptr<const FrameModel> FrameModel::Build(const Structure& structure, ModelMessage& why)
{
    auto model = std::make_shared<FrameModel>();
    if (structure.Members().Empty()) {
        why = ModelMessage(QStringLiteral("UI_ANALYSIS_ERROR_NO_MEMBERS"));
        return nullptr;
    }
    if (structure.LoadCases().Empty()) {
        why = ModelMessage(QStringLiteral("UI_ANALYSIS_ERROR_NO_LOAD_CASES"));
        return nullptr;
    }
    const auto& nodes = structure.Nodes();
    model->nodes.reserve(nodes.Size());
    for (const Node& node : nodes.Records())
        model->nodes.push_back({ node.number, { node.x, node.y, node.z }, { -1, -1, -1, -1, -1, -1 }, {} });

    std::vector<char> held(nodes.Size(), 0);
    model->members.reserve(structure.Members().Size());
    for (const Member& record : structure.Members().Records()) {
        if ((why = StructureValidator::Check(structure, record)))
            return nullptr;
        FrameMember member;
        member.number = record.number;
        member.startNode = std::int32_t(*nodes.IndexOf(record.startNode));
        member.endNode = std::int32_t(*nodes.IndexOf(record.endNode));
        member.startReleases = record.startReleases;
        member.endReleases = record.endReleases;
        member.SetGeometry(model->nodes[std::size_t(member.startNode)].position,
                           model->nodes[std::size_t(member.endNode)].position, record.rotation);
        SetStiffness(member, *structure.Sections().Find(record.section),
                     *structure.Materials().Find(record.material));
        held[std::size_t(member.startNode)] = held[std::size_t(member.endNode)] = 1;
        model->members.push_back(member);
    }

    for (const Support& record : structure.Supports().Records()) {
        const auto node = nodes.IndexOf(record.node);
        if (!node) {
            why = Missing(QStringLiteral("UI_MODEL_ERROR_NO_NODE"), record.node);
            return nullptr;
        }
        model->supports.push_back({ record.number, std::int32_t(*node), record.fixed });
        held[*node] = 1;
        for (int dof = 0; dof < 6; ++dof) {
            if ((record.fixed & Dof(dof)) == 0)
                model->nodes[*node].springs[std::size_t(dof)] = record.springs[std::size_t(dof)];
        }
    }
    const auto loose = std::find(held.begin(), held.end(), 0);
    if (loose != held.end()) {
        why = ModelMessage(
            QStringLiteral("UI_ANALYSIS_ERROR_FREE_NODE"),
            { ObjectRef { ObjectKind::Node, model->nodes[std::size_t(loose - held.begin())].number } });
        return nullptr;
    }

    std::vector<DofMask> fixed(nodes.Size(), 0);
    for (const FrameSupport& support : model->supports)
        fixed[std::size_t(support.node)] |= support.fixed;
    for (std::size_t node = 0; node < model->nodes.size(); ++node) {
        for (int dof = 0; dof < 6; ++dof) {
            if ((fixed[node] & Dof(dof)) == 0)
                model->nodes[node].equations[std::size_t(dof)] = model->equationCount++;
        }
    }

    const auto& members = structure.Members();
    std::vector<Vector3> perMember(model->members.size());
    std::vector<char> loaded(model->members.size());
    for (const LoadCase& record : structure.LoadCases().Records()) {
        FrameLoadCase loadCase { record.number, record.name, {}, {} };
        std::fill(perMember.begin(), perMember.end(), Vector3 {});
        std::fill(loaded.begin(), loaded.end(), 0);
        const auto add = [&](std::size_t member, const Vector3& q) {
            for (std::size_t i = 0; i < 3; ++i)
                perMember[member][i] += q[i];
            loaded[member] = 1;
        };
        if (record.selfWeight) {
            for (std::size_t member = 0; member < model->members.size(); ++member) {
                const FrameMember& frame = model->members[member];
                add(member, frame.ToLocal(Vector3 { 0.0, 0.0, -frame.weightPerLength }));
            }
        }
        for (const MemberLoad& load : structure.MemberLoads().Records()) {
            if (load.loadCase != record.number)
                continue;
            const auto member = members.IndexOf(load.member);
            if (!member) {
                why = Missing(QStringLiteral("UI_MODEL_ERROR_NO_MEMBER"), load.member);
                return nullptr;
            }
            const FrameMember& frame = model->members[*member];
            switch (load.direction) {
            case LoadDirection::LocalY:
                add(*member, { 0.0, load.value, 0.0 });
                break;
            case LoadDirection::LocalZ:
                add(*member, { 0.0, 0.0, load.value });
                break;
            default:
                add(*member, frame.ToLocal(GlobalDirection(load.direction, load.value)));
            }
        }
        for (std::size_t member = 0; member < loaded.size(); ++member) {
            if (loaded[member])
                loadCase.lineLoads.push_back({ std::int32_t(member), perMember[member] });
        }
        for (const NodalLoad& load : structure.NodalLoads().Records()) {
            if (load.loadCase != record.number)
                continue;
            const auto node = nodes.IndexOf(load.node);
            if (!node) {
                why = Missing(QStringLiteral("UI_MODEL_ERROR_NO_NODE"), load.node);
                return nullptr;
            }
            loadCase.nodalLoads.push_back({ std::int32_t(*node), load.values });
        }
        model->loadCases.push_back(std::move(loadCase));
    }

    for (const Combination& record : structure.Combinations().Records()) {
        FrameCombination combination { record.number, record.name, {} };
        for (const auto& [loadCase, factor] : record.factors) {
            const auto position = structure.LoadCases().IndexOf(loadCase);
            if (!position) {
                why = Missing(QStringLiteral("UI_MODEL_ERROR_NO_LOAD_CASE"), loadCase);
                return nullptr;
            }
            combination.terms.push_back({ std::int32_t(*position), factor });
        }
        model->combinations.push_back(std::move(combination));
    }
    return model;
}

std::pair<std::int32_t, int> FrameModel::DegreeOfFreedom(std::int32_t equation) const
{
    for (std::size_t node = 0; node < nodes.size(); ++node) {
        for (int dof = 0; dof < 6; ++dof) {
            if (nodes[node].equations[std::size_t(dof)] == equation)
                return { std::int32_t(node), dof };
        }
    }
    return { -1, -1 };
}

Vector3 FrameModel::LineLoad(std::size_t loadCase, std::int32_t member) const
{
    const auto& loads = loadCases[loadCase].lineLoads;
    const auto it = std::lower_bound(
        loads.begin(), loads.end(), member,
        [](const FrameLineLoad& load, std::int32_t wanted) { return load.member < wanted; });
    return it != loads.end() && it->member == member ? it->q : Vector3 {};
}

} // namespace Orvo::Kernel::Analysis
