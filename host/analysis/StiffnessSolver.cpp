#include "StiffnessSolver.h"

#include <Eigen/SparseCholesky>
#include <cmath>

namespace Orvo::Kernel::Analysis {

using Model::ModelMessage;
using Model::ObjectKind;
using Model::ObjectRef;

namespace {

using SparseMatrix = Eigen::SparseMatrix<double>;

// A pivot this much smaller than its diagonal means the equation has no stiffness of its own left:
// round-off of a mechanism, not an honest structure (whose pivots stay within a few orders of
// magnitude of their diagonal).
constexpr double c_pivotTolerance = 1e-9;
constexpr int c_progressStep = 4096;

ModelMessage AtDof(const QString& id, const FrameModel& model, std::int32_t equation)
{
    const auto [node, dof] = model.DegreeOfFreedom(equation);
    if (node < 0)
        return ModelMessage(QStringLiteral("UI_ANALYSIS_ERROR_SINGULAR"));
    return ModelMessage(id,
                        { ObjectRef { ObjectKind::Node, model.nodes[std::size_t(node)].number },
                          StiffnessSolver::DofName(dof) });
}

} // namespace

struct StiffnessSolver::Private
{
    Eigen::SimplicialLDLT<SparseMatrix, Eigen::Lower> factorization;
    std::int32_t size = 0;
};

StiffnessSolver::StiffnessSolver()
    : d(std::make_unique<Private>())
{ }

StiffnessSolver::~StiffnessSolver() = default;

QString StiffnessSolver::DofName(int dof)
{
    static const char* names[] = { "ux", "uy", "uz", "rx", "ry", "rz" };
    return dof >= 0 && dof < 6 ? QString::fromLatin1(names[dof]) : QString();
}

bool StiffnessSolver::Factorize(const FrameModel& model, const std::vector<std::vector<double>>& loads,
                                const Progress& progress, ModelMessage& why)
{
    const std::int32_t size = model.equationCount;
    d->size = size;
    if (size == 0)
        return true; // every degree of freedom is held
    // Room per column for the lower triangle: the node's own six and six per member at it.
    Eigen::VectorXi room = Eigen::VectorXi::Constant(size, 6);
    for (const FrameMember& member : model.members) {
        for (std::int32_t node : { member.startNode, member.endNode }) {
            for (std::int32_t equation : model.nodes[std::size_t(node)].equations) {
                if (equation >= 0)
                    room[equation] += 6;
            }
        }
    }
    SparseMatrix stiffness(size, size);
    stiffness.reserve(room);
    for (std::size_t index = 0; index < model.members.size(); ++index) {
        const FrameMember& member = model.members[index];
        const Matrix12 k = member.GlobalStiffness();
        std::array<std::int32_t, 12> equations;
        for (std::size_t i = 0; i < 6; ++i) {
            equations[i] = model.nodes[std::size_t(member.startNode)].equations[i];
            equations[i + 6] = model.nodes[std::size_t(member.endNode)].equations[i];
        }
        for (std::size_t column = 0; column < 12; ++column) {
            if (equations[column] < 0)
                continue;
            for (std::size_t row = 0; row < 12; ++row) {
                if (equations[row] >= equations[column] && k[row * 12 + column] != 0.0)
                    stiffness.coeffRef(equations[row], equations[column]) += k[row * 12 + column];
            }
        }
        if (progress && index % c_progressStep == 0
            && !progress(0.5 * double(index) / double(model.members.size())))
            return false;
    }
    for (const FrameNode& node : model.nodes) {
        for (std::size_t dof = 0; dof < 6; ++dof) {
            if (node.equations[dof] >= 0 && node.springs[dof] > 0.0)
                stiffness.coeffRef(node.equations[dof], node.equations[dof]) += node.springs[dof];
        }
    }
    stiffness.makeCompressed();

    Eigen::VectorXd diagonal = stiffness.diagonal();
    bool held = false;
    for (std::int32_t equation = 0; equation < size; ++equation) {
        if (diagonal[equation] != 0.0)
            continue;
        for (const auto& load : loads) {
            if (load[std::size_t(equation)] != 0.0) {
                why = AtDof(QStringLiteral("UI_ANALYSIS_ERROR_UNRESISTED_LOAD"), model, equation);
                return false;
            }
        }
        // Nothing holds it and nothing moves it: keep it still.
        stiffness.coeffRef(equation, equation) = diagonal[equation] = 1.0;
        held = true;
    }
    if (held)
        stiffness.makeCompressed();
    if (progress && !progress(0.55))
        return false;

    d->factorization.compute(stiffness);
    const Eigen::VectorXd pivots = d->factorization.vectorD();
    const auto& permutation = d->factorization.permutationP().indices();
    std::vector<std::int32_t> original(std::size_t(size), 0);
    for (std::int32_t equation = 0; equation < size; ++equation)
        original[std::size_t(permutation[equation])] = equation;
    for (std::int32_t step = 0; step < size; ++step) {
        const std::int32_t equation = original[std::size_t(step)];
        if (!(pivots[step] > c_pivotTolerance * diagonal[equation])) {
            why = AtDof(QStringLiteral("UI_ANALYSIS_ERROR_MECHANISM"), model, equation);
            return false;
        }
    }
    if (d->factorization.info() != Eigen::Success) {
        why = ModelMessage(QStringLiteral("UI_ANALYSIS_ERROR_SINGULAR"));
        return false;
    }
    return !progress || progress(1.0);
}

std::vector<std::vector<double>> StiffnessSolver::Solve(const std::vector<std::vector<double>>& loads) const
{
    if (d->size == 0)
        return std::vector<std::vector<double>>(loads.size());
    Eigen::MatrixXd right(d->size, Eigen::Index(loads.size()));
    for (std::size_t column = 0; column < loads.size(); ++column)
        right.col(Eigen::Index(column)) = Eigen::Map<const Eigen::VectorXd>(loads[column].data(), d->size);
    const Eigen::MatrixXd solution = d->factorization.solve(right);
    std::vector<std::vector<double>> displacements(loads.size());
    for (std::size_t column = 0; column < loads.size(); ++column) {
        const auto vector = solution.col(Eigen::Index(column));
        displacements[column].assign(vector.data(), vector.data() + d->size);
    }
    return displacements;
}

} // namespace Orvo::Kernel::Analysis
