#include "CommandOrigin.h"

#include "framework/DefaultServices.h"
#include "framework/IStringLoader.h"
#include "framework/ServiceCatalog.h"

#include <utility>

namespace Orvo::Kernel::Framework {

namespace {

// The components that run commands, by their tracking identifiers.
const std::pair<const wchar_t*, const wchar_t*> c_originTexts[] = {
    { L"MarkingMenu", L"UI_COMMAND_ORIGIN_MARKING_MENU" },
    { L"HotkeyHandler", L"UI_COMMAND_ORIGIN_HOTKEY_HANDLER" },
    { L"Spotlight", L"UI_COMMAND_ORIGIN_SPOTLIGHT" },
    { L"MenuSystem", L"UI_COMMAND_ORIGIN_MENU_SYSTEM" },
    { L"InputPanel", L"UI_COMMAND_ORIGIN_INPUT_PANEL" },
};

} // namespace

std::wstring CommandOrigin::DisplayName(const std::wstring& origin)
{
    const auto catalog = ServiceCatalog::Global();
    const auto strings = catalog ? catalog->Get<IStringLoader>() : nullptr;
    for (const auto& [identifier, textId] : c_originTexts) {
        if (strings && origin == identifier)
            return strings->Load({ textId, DefaultServices::c_componentsStringTable });
    }
    return origin;
}

} // namespace Orvo::Kernel::Framework
