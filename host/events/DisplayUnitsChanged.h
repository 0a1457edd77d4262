#pragma once

namespace Orvo::UI::Events {

// The user chose another unit for a quantity: whatever shows values of it converts them again.
class DisplayUnitsChanged
{
};

} // namespace Orvo::UI::Events
