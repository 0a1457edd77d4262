if(QTC_SANITIZE)
    add_compile_options(-fsanitize=address,undefined -fno-omit-frame-pointer -fno-sanitize-recover=undefined)
    add_link_options(-fsanitize=address,undefined)
    # Programs that are not built here (Qt's tools, an outside host) but load the instrumented
    # libraries need the sanitizers' runtimes in the process before anything else.
    execute_process(COMMAND ${CMAKE_CXX_COMPILER} -print-file-name=libasan.so
        OUTPUT_VARIABLE asan_runtime OUTPUT_STRIP_TRAILING_WHITESPACE)
    execute_process(COMMAND ${CMAKE_CXX_COMPILER} -print-file-name=libubsan.so
        OUTPUT_VARIABLE ubsan_runtime OUTPUT_STRIP_TRAILING_WHITESPACE)
    set(QTC_SANITIZER_PRELOAD "${asan_runtime}:${ubsan_runtime}")
endif()

# Coverage instrumentation for libFuzzer in every library a fuzz target links; the targets
# themselves add -fsanitize=fuzzer to get libFuzzer's main.
if(QTC_FUZZ)
    if(NOT CMAKE_CXX_COMPILER_ID MATCHES "Clang")
        message(FATAL_ERROR "QTC_FUZZ needs clang (libFuzzer)")
    endif()
    add_compile_options(-fsanitize=fuzzer-no-link,address,undefined -fno-omit-frame-pointer
                        -fno-sanitize-recover=undefined)
    add_link_options(-fsanitize=address,undefined)
    # Programs that are not built here (Qt's tools, an outside host) but load the instrumented
    # libraries need the sanitizers' runtimes in the process before anything else.
    execute_process(COMMAND ${CMAKE_CXX_COMPILER} -print-file-name=libasan.so
        OUTPUT_VARIABLE asan_runtime OUTPUT_STRIP_TRAILING_WHITESPACE)
    execute_process(COMMAND ${CMAKE_CXX_COMPILER} -print-file-name=libubsan.so
        OUTPUT_VARIABLE ubsan_runtime OUTPUT_STRIP_TRAILING_WHITESPACE)
    set(QTC_SANITIZER_PRELOAD "${asan_runtime}:${ubsan_runtime}")
endif()

if(QTC_TSAN)
    # Qt's headers use std::atomic_thread_fence, which ThreadSanitizer does not model; GCC says
    # so for every file that includes them. Nothing of ours can change that, so the warning is
    # off rather than failing the build.
    add_compile_options(-fsanitize=thread -fno-omit-frame-pointer -Wno-tsan)
    add_link_options(-fsanitize=thread)
endif()
