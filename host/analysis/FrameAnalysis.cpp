#include "FrameAnalysis.h"

#include "StiffnessSolver.h"

namespace Orvo::Kernel::Analysis {

namespace {

// The load vector of each load case: nodal loads where they act, member loads as the forces
// their fixed ends would take, reversed.
std::vector<std::vector<double>> LoadVectors(const FrameModel& model)
{
    std::vector<std::vector<double>> loads;
    for (const FrameLoadCase& loadCase : model.loadCases) {
        std::vector<double> load(std::size_t(model.equationCount), 0.0);
        const auto add = [&](std::size_t node, std::size_t dof, double value) {
            const std::int32_t equation = model.nodes[node].equations[dof];
            if (equation >= 0)
                load[std::size_t(equation)] += value;
        };
        for (const FrameNodalLoad& nodal : loadCase.nodalLoads) {
            for (std::size_t dof = 0; dof < 6; ++dof)
                add(std::size_t(nodal.node), dof, nodal.values[dof]);
        }
        for (const FrameLineLoad& line : loadCase.lineLoads) {
            const FrameMember& member = model.members[std::size_t(line.member)];
            const Vector12 fixedEnd = member.ToGlobal(member.FixedEndForces(line.q));
            for (std::size_t dof = 0; dof < 6; ++dof) {
                add(std::size_t(member.startNode), dof, -fixedEnd[dof]);
                add(std::size_t(member.endNode), dof, -fixedEnd[dof + 6]);
            }
        }
        loads.push_back(std::move(load));
    }
    return loads;
}

} // namespace

AnalysisOutcome FrameAnalysis::Run(const Model::Structure& structure, const Progress& progress)
{
    AnalysisOutcome outcome;
    const auto report = [&progress, &outcome](AnalysisStage stage, double fraction) {
        if (progress && !progress(stage, fraction))
            outcome.cancelled = true;
        return !outcome.cancelled;
    };
    if (!report(AnalysisStage::Preparing, 0.0))
        return outcome;
    const auto model = FrameModel::Build(structure, outcome.why);
    if (!model)
        return outcome;
    const auto loads = LoadVectors(*model);
    if (!report(AnalysisStage::Preparing, 1.0))
        return outcome;

    StiffnessSolver solver;
    const auto factorProgress = [&report](double fraction) {
        return report(fraction < 0.55 ? AnalysisStage::Assembling : AnalysisStage::Factorising,
                      fraction < 0.55 ? fraction / 0.55 : (fraction - 0.55) / 0.45);
    };
    if (!solver.Factorize(*model, loads, factorProgress, outcome.why))
        return outcome;
    if (!report(AnalysisStage::Solving, 0.0))
        return outcome;
    auto displacements = solver.Solve(loads);
    if (!report(AnalysisStage::Solving, 1.0))
        return outcome;
    outcome.results = std::make_shared<AnalysisResults>(model, std::move(displacements));
    outcome.succeeded = true;
    return outcome;
}

} // namespace Orvo::Kernel::Analysis
