#pragma once

#include "HostKitExport.h"

#include <QLoggingCategory>
#include <string>

namespace Orvo::Kernel::Framework {

// The host's debugger output. Everything written here goes to the "orvo.debug" category,
// so a session can switch it on or off with QT_LOGGING_RULES like any other Qt output.
HOSTKIT_EXPORT const QLoggingCategory& DebugOutputCategory();

HOSTKIT_EXPORT void DebugOutput(const QString& message);
HOSTKIT_EXPORT void DebugOutput(const std::string& message);
HOSTKIT_EXPORT void DebugOutput(const char* message);

// Writes text the way a debugger stream takes it: the writer ends its own lines. Every line
// becomes one record of the category; a last line without its line feed is written as well,
// so nothing waits for a line feed that may never come.
HOSTKIT_EXPORT void DebugOutputText(const QString& text);

} // namespace Orvo::Kernel::Framework
