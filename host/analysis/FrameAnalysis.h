#pragma once

#include "AnalysisResults.h"
#include "HostKitExport.h"
#include "model/ModelMessage.h"
#include "model/Structure.h"

#include <functional>
#include <memory>

namespace Orvo::Kernel::Analysis {

enum class AnalysisStage : std::int32_t
{
    Preparing = 0,
    Assembling,
    Factorising,
    Solving,
    WritingResults,
};

struct AnalysisOutcome
{
    bool succeeded = false;
    bool cancelled = false;
    Model::ModelMessage why; // when it neither succeeded nor was cancelled
    std::shared_ptr<const AnalysisResults> results;
};

// A linear-elastic analysis of a 3-D frame by the direct stiffness method: six degrees of freedom
// per node, member end releases, fixed and elastic supports, nodal and uniform member loads and
// self-weight, every load case from one factorisation, combinations by superposition.
class HOSTKIT_EXPORT FrameAnalysis
{
public:
    // Tells how far the analysis is within a stage (0 to 1); returns false to stop it. Called on
    // the thread that runs the analysis.
    using Progress = std::function<bool(AnalysisStage stage, double fraction)>;

    static AnalysisOutcome Run(const Model::Structure& structure, const Progress& progress = {});
};

} // namespace Orvo::Kernel::Analysis
