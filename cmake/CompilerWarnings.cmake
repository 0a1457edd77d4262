# qtc_enable_warnings(target): the project's warning set on a target of its own code.
function(qtc_enable_warnings target)
    target_compile_options(${target} PRIVATE -Wall -Wextra -Wpedantic)
    if(CMAKE_CXX_COMPILER_ID MATCHES "Clang")
        # Qt's logging macros are declared qCWarning(category, ...) and are meant to be used as
        # qCWarning(category) << text: an empty variadic argument, standard since C++20, which
        # clang's -Wpedantic reports in C++17 at every use (gcc does not, as the macro comes from
        # a system header). Nothing in our code is wrong there, and no other spelling of a
        # category's message streams.
        target_compile_options(${target} PRIVATE -Wno-gnu-zero-variadic-macro-arguments)
    endif()
    if(QTC_WERROR)
        target_compile_options(${target} PRIVATE -Werror)
    endif()
endfunction()
