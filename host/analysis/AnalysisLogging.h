#pragma once

#include "HostKitExport.h"

#include <QLoggingCategory>
#include <functional>

namespace Orvo::Kernel::Analysis {

// Messages of the frame analysis and its results database ("orvo.analysis").
HOSTKIT_EXPORT const QLoggingCategory& AnalysisCategory();

// Runs work at the boundary of the analysis (its thread, a results table read): an exception it
// throws is written to the category at warning level, with what was being done, and becomes
// false.
HOSTKIT_EXPORT bool RunGuarded(const char* what, const std::function<void()>& work);

} // namespace Orvo::Kernel::Analysis
