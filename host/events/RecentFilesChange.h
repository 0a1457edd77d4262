#pragma once

namespace Orvo::UI::Events {

// The list of recently used files changed (a file opened or saved, one forgotten): the menus
// that list them rebuild.
class RecentFilesChange
{
};

} // namespace Orvo::UI::Events
