#pragma once

#include "HostKitExport.h"

namespace Orvo::UI::QtExtensions {

// The host's own QML types, under the module "Orvo.QtExtensions" 1.0 (ViewInputArea,
// MessageBoxTracker, CommandListModel, CommandExecutionMonitor, CommandHistoryModel,
// FieldExpression and the singletons NumberFormat, KeySequences and QmlModuleInfo).
// Registers once; the kit also calls it when the application object is created.
HOSTKIT_EXPORT void RegisterHostQmlTypes();

inline constexpr const char* c_hostQmlModule = "Orvo.QtExtensions";

} // namespace Orvo::UI::QtExtensions
