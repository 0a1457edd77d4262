#pragma once

#include "FrameModel.h"
#include "HostKitExport.h"

#include <QString>
#include <memory>
#include <vector>

namespace Orvo::Kernel::Analysis {

// A load case or a combination: what results are given for.
struct ResultSet
{
    enum class Kind : std::int32_t
    {
        LoadCase = 0,
        Combination = 1,
    };
    Kind kind = Kind::LoadCase;
    Model::Number number = 0;
    QString name;
    std::vector<std::pair<std::int32_t, double>> terms; // load case position, factor
};

// The outcome of a linear analysis: the displacements of every load case, from which everything
// else follows. Combinations are sums of load cases with their factors (superposition), computed
// when asked for; member forces likewise, so that the results of a big model cost little memory.
// Units: m and rad, kN and kNm.
class HOSTKIT_EXPORT AnalysisResults
{
public:
    AnalysisResults(std::shared_ptr<const FrameModel> model,
                    std::vector<std::vector<double>> caseDisplacements);

    const FrameModel& Frame() const { return *m_model; }
    // The load cases, then the combinations.
    const std::vector<ResultSet>& Sets() const { return m_sets; }
    std::int32_t DegreesOfFreedom() const { return m_model->equationCount; }

    // Global ux, uy, uz, rx, ry, rz of a node (positions in the frame model).
    Vector6 NodeDisplacement(std::size_t set, std::size_t node) const;
    // The uniform load on a member, in member axes.
    Vector3 LineLoad(std::size_t set, std::size_t member) const;
    // The forces the nodes exert on the member's ends, in member axes (start, then end).
    Vector12 MemberEndForces(std::size_t set, std::size_t member) const;
    // N, Vy, Vz, T, My, Mz at x from the member's start.
    Vector6 SectionForces(std::size_t set, std::size_t member, double x) const;
    // Global Fx, Fy, Fz, Mx, My, Mz that a support exerts on the structure.
    Vector6 Reaction(std::size_t set, std::size_t support) const;
    // The sum of the loads of a set (global, at the origin's axes): forces only, in kN.
    Vector3 TotalLoad(std::size_t set) const;

private:
    Vector6 NodalLoad(std::size_t set, std::size_t node) const;

    std::shared_ptr<const FrameModel> m_model;
    std::vector<std::vector<double>> m_caseDisplacements;
    std::vector<ResultSet> m_sets;
    // Per support, the members that end at its node and at which end (0 start, 1 end).
    std::vector<std::vector<std::pair<std::int32_t, int>>> m_membersAtSupports;
};

} // namespace Orvo::Kernel::Analysis
