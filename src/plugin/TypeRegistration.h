#pragma once

namespace Orvo::UI::UIComponents {

// Registers the module's native types and the Strings singleton under uri, version 1.0,
// in the module's fixed registration order.
void RegisterQtComponentsTypes(const char* uri);

} // namespace Orvo::UI::UIComponents
