#include "AnalysisResults.h"

#include <unordered_map>

namespace Orvo::Kernel::Analysis {

AnalysisResults::AnalysisResults(std::shared_ptr<const FrameModel> model,
                                 std::vector<std::vector<double>> caseDisplacements)
    : m_model(std::move(model))
    , m_caseDisplacements(std::move(caseDisplacements))
{
    for (std::size_t index = 0; index < m_model->loadCases.size(); ++index) {
        const FrameLoadCase& loadCase = m_model->loadCases[index];
        m_sets.push_back(
            { ResultSet::Kind::LoadCase, loadCase.number, loadCase.name, { { std::int32_t(index), 1.0 } } });
    }
    for (const FrameCombination& combination : m_model->combinations)
        m_sets.push_back(
            { ResultSet::Kind::Combination, combination.number, combination.name, combination.terms });

    std::unordered_map<std::int32_t, std::size_t> supportAt;
    for (std::size_t support = 0; support < m_model->supports.size(); ++support)
        supportAt[m_model->supports[support].node] = support;
    m_membersAtSupports.resize(m_model->supports.size());
    for (std::size_t member = 0; member < m_model->members.size(); ++member) {
        const FrameMember& frame = m_model->members[member];
        for (int end = 0; end < 2; ++end) {
            const auto it = supportAt.find(end == 0 ? frame.startNode : frame.endNode);
            if (it != supportAt.end())
                m_membersAtSupports[it->second].push_back({ std::int32_t(member), end });
        }
    }
}

Vector6 AnalysisResults::NodeDisplacement(std::size_t set, std::size_t node) const
{
    Vector6 displacement {};
    const auto& equations = m_model->nodes[node].equations;
    for (const auto& [loadCase, factor] : m_sets[set].terms) {
        const auto& values = m_caseDisplacements[std::size_t(loadCase)];
        for (std::size_t dof = 0; dof < 6; ++dof) {
            if (equations[dof] >= 0)
                displacement[dof] += factor * values[std::size_t(equations[dof])];
        }
    }
    return displacement;
}

Vector3 AnalysisResults::LineLoad(std::size_t set, std::size_t member) const
{
    Vector3 q {};
    for (const auto& [loadCase, factor] : m_sets[set].terms) {
        const Vector3 part = m_model->LineLoad(std::size_t(loadCase), std::int32_t(member));
        for (std::size_t i = 0; i < 3; ++i)
            q[i] += factor * part[i];
    }
    return q;
}

Vector12 AnalysisResults::MemberEndForces(std::size_t set, std::size_t member) const
{
    const FrameMember& frame = m_model->members[member];
    const Vector6 start = NodeDisplacement(set, std::size_t(frame.startNode));
    const Vector6 end = NodeDisplacement(set, std::size_t(frame.endNode));
    Vector12 displacements;
    std::copy(start.begin(), start.end(), displacements.begin());
    std::copy(end.begin(), end.end(), displacements.begin() + 6);
    return frame.EndForces(displacements, LineLoad(set, member));
}

Vector6 AnalysisResults::SectionForces(std::size_t set, std::size_t member, double x) const
{
    return FrameMember::SectionForces(MemberEndForces(set, member), LineLoad(set, member), x);
}

Vector6 AnalysisResults::NodalLoad(std::size_t set, std::size_t node) const
{
    Vector6 load {};
    for (const auto& [loadCase, factor] : m_sets[set].terms) {
        for (const FrameNodalLoad& nodal : m_model->loadCases[std::size_t(loadCase)].nodalLoads) {
            if (std::size_t(nodal.node) != node)
                continue;
            for (std::size_t i = 0; i < 6; ++i)
                load[i] += factor * nodal.values[i];
        }
    }
    return load;
}

Vector6 AnalysisResults::Reaction(std::size_t set, std::size_t support) const
{
    // The node's balance: reaction + load = what the node gives its members.
    const std::size_t node = std::size_t(m_model->supports[support].node);
    Vector6 reaction {};
    for (const auto& [member, end] : m_membersAtSupports[support]) {
        const FrameMember& frame = m_model->members[std::size_t(member)];
        const Vector12 forces = frame.ToGlobal(MemberEndForces(set, std::size_t(member)));
        for (std::size_t i = 0; i < 6; ++i)
            reaction[i] += forces[std::size_t(6 * end) + i];
    }
    const Vector6 load = NodalLoad(set, node);
    for (std::size_t i = 0; i < 6; ++i)
        reaction[i] -= load[i];
    return reaction;
}

Vector3 AnalysisResults::TotalLoad(std::size_t set) const
{
    Vector3 total {};
    for (const auto& [loadCase, factor] : m_sets[set].terms) {
        const FrameLoadCase& loads = m_model->loadCases[std::size_t(loadCase)];
        for (const FrameNodalLoad& nodal : loads.nodalLoads) {
            for (std::size_t i = 0; i < 3; ++i)
                total[i] += factor * nodal.values[i];
        }
        for (const FrameLineLoad& line : loads.lineLoads) {
            const FrameMember& member = m_model->members[std::size_t(line.member)];
            const Vector3 global = member.ToGlobal(line.q);
            for (std::size_t i = 0; i < 3; ++i)
                total[i] += factor * global[i] * member.length;
        }
    }
    return total;
}

} // namespace Orvo::Kernel::Analysis
