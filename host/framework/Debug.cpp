#include "Debug.h"

namespace Orvo::Kernel::Framework {

Q_LOGGING_CATEGORY(lcDebugOutput, "orvo.debug")

const QLoggingCategory& DebugOutputCategory()
{
    return lcDebugOutput();
}

void DebugOutput(const QString& message)
{
    qCDebug(lcDebugOutput).noquote() << message;
}

void DebugOutput(const std::string& message)
{
    DebugOutput(QString::fromStdString(message));
}

void DebugOutput(const char* message)
{
    DebugOutput(QString::fromUtf8(message));
}

} // namespace Orvo::Kernel::Framework
