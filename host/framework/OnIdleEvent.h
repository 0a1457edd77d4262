#pragma once

namespace Orvo::Kernel::Framework {

// Posted by the host each time its GUI event loop has run out of work and is about to wait
// (see IdleEventSource). Carries no data.
struct OnIdleEvent
{
};

} // namespace Orvo::Kernel::Framework
