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

void DebugOutputText(const QString& text)
{
    QStringList lines = text.split(QLatin1Char('\n'));
    if (lines.size() > 1 && lines.last().isEmpty())
        lines.removeLast(); // the line feed that ends the last line starts no new one
    for (const QString& line : std::as_const(lines))
        DebugOutput(line);
}

} // namespace Orvo::Kernel::Framework
