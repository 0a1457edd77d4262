#pragma once

#include "HostKitExport.h"

#include <QString>
#include <functional>

namespace Orvo::Kernel::Analysis {
class AnalysisResults;
}

namespace Orvo::Kernel::Results {

// Writes an analysis's results into a new SQLite file, in one transaction: node displacements,
// support reactions, member end forces and member forces at stations along each member, for every
// load case and combination, with a summary per load case or combination. Runs on any thread.
class HOSTKIT_EXPORT ResultsWriter
{
public:
    // Reports the share of rows written (0 to 1); returns false to stop.
    using Progress = std::function<bool(double fraction)>;

    // False when stopped (error empty) or failed (error says why); no file is left then.
    static bool Write(const Analysis::AnalysisResults& results, const QString& path, const Progress& progress,
                      QString& error);
};

} // namespace Orvo::Kernel::Results
