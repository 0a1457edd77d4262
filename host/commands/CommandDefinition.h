#pragma once

#include <string>

namespace Orvo::Kernel::Framework {

// One command the user can run from menus, the marking menu or a shortcut.
struct CommandDefinition
{
    std::wstring uuid; // identifier, stable across releases
    std::wstring nameId; // text identifier of its name in the components' string table
    std::wstring icon; // image, relative to the application directory (or absolute)
    std::wstring group; // the area it belongs to ("model", "edit", ...), may be empty
    std::wstring shortcut; // portable key sequence text ("Ctrl+Shift+N"), may be empty
    std::wstring parameterString; // handed to the command when it runs
    bool enabled = true;
    bool visible = true;
    // A command that switches something on and off (Show results) shows whether it is on.
    bool checkable = false;
    bool checked = false;
};

// One keyboard binding of the repository, as the hotkey handler mirrors it.
struct ShortcutEntry
{
    std::wstring commandUuid;
    std::wstring shortcut;
    std::wstring parameterString;
};

} // namespace Orvo::Kernel::Framework
