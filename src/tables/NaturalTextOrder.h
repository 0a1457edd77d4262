#pragma once

// The order lives in the host kit, which sorts its tables by it; the filters compare by the same.
#include "kernel/NaturalTextOrder.h"

namespace Orvo::UI::UIComponents {

using Kernel::NaturalTextOrder;

} // namespace Orvo::UI::UIComponents
