#pragma once

namespace Orvo::UI::Events {

// The user changed how numbers are written (decimal mark, edit decimals): whatever shows numbers
// writes them again.
class NumberFormatChanged
{
};

} // namespace Orvo::UI::Events
