#include "AnalysisLogging.h"

#include <exception>

namespace Orvo::Kernel::Analysis {

Q_LOGGING_CATEGORY(lcAnalysis, "orvo.analysis")

const QLoggingCategory& AnalysisCategory()
{
    return lcAnalysis();
}

bool RunGuarded(const char* what, const std::function<void()>& work)
{
    try {
        work();
        return true;
    } catch (const std::exception& error) {
        qCWarning(lcAnalysis, "%s failed: %s", what, error.what());
    } catch (...) {
        qCWarning(lcAnalysis, "%s failed", what);
    }
    return false;
}

} // namespace Orvo::Kernel::Analysis
