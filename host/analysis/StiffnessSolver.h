#pragma once

#include "FrameModel.h"
#include "HostKitExport.h"

#include <functional>
#include <memory>
#include <vector>

namespace Orvo::Kernel::Analysis {

// The structure's stiffness matrix, assembled sparse from its members and supports and factorised
// once (sparse Cholesky, LDLᵀ) for all load cases.
class HOSTKIT_EXPORT StiffnessSolver
{
public:
    // Reports how far a long step is (0 to 1); returns false to stop.
    using Progress = std::function<bool(double fraction)>;

    StiffnessSolver();
    ~StiffnessSolver();
    StiffnessSolver(const StiffnessSolver&) = delete;
    StiffnessSolver& operator=(const StiffnessSolver&) = delete;

    // Assembles and factorises. Degrees of freedom that nothing holds and nothing loads (the
    // rotation of a node where every member is hinged) are held still. False when stopped, or
    // with why when the structure is unstable: a load where nothing resists, or a mechanism,
    // named by a node and direction that moves freely.
    bool Factorize(const FrameModel& model, const std::vector<std::vector<double>>& loads,
                   const Progress& progress, Model::ModelMessage& why);

    // The displacements, one vector per load vector, by equation.
    std::vector<std::vector<double>> Solve(const std::vector<std::vector<double>>& loads) const;

    // Name of a degree of freedom in messages: "ux", "uy", "uz", "rx", "ry", "rz".
    static QString DofName(int dof);

private:
    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace Orvo::Kernel::Analysis
