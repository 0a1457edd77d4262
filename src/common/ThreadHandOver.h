#pragma once

namespace Orvo::UI::UIComponents {

// Qt hands work and data between threads under mutexes and wait conditions of its own: Qt Quick's
// synchronisation of a window's GUI thread with its render thread, a job scheduled on the render
// thread. Qt is built without ThreadSanitizer's instrumentation, so those hand-overs are invisible
// to it, and what one thread wrote before handing over looks like a race with what the other
// reads after. Both ends of such a hand-over are marked with this; outside a ThreadSanitizer build
// it does nothing. One mark serves every window: a job's captures cannot name the window before
// the render thread has taken the hand-over that makes them visible.
class ThreadHandOver
{
public:
    // What this thread wrote so far is for the thread that takes it next.
    static void Give();
    // This thread sees what others wrote before they last gave.
    static void Take();
};

} // namespace Orvo::UI::UIComponents
