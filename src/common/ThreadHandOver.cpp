#include "common/ThreadHandOver.h"

#if defined(__SANITIZE_THREAD__)
#define QTC_THREAD_SANITIZER 1
#elif defined(__has_feature)
#if __has_feature(thread_sanitizer)
#define QTC_THREAD_SANITIZER 1
#endif
#endif

#ifdef QTC_THREAD_SANITIZER
#include <sanitizer/tsan_interface.h>
#endif

namespace Orvo::UI::UIComponents {

#ifdef QTC_THREAD_SANITIZER
namespace {
char g_handOverMark = 0;
}
#endif

void ThreadHandOver::Give()
{
#ifdef QTC_THREAD_SANITIZER
    __tsan_release(&g_handOverMark);
#endif
}

void ThreadHandOver::Take()
{
#ifdef QTC_THREAD_SANITIZER
    __tsan_acquire(&g_handOverMark);
#endif
}

} // namespace Orvo::UI::UIComponents
