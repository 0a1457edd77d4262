# qtc_enable_warnings(target): the project's warning set on a target of its own code.
function(qtc_enable_warnings target)
    target_compile_options(${target} PRIVATE -Wall -Wextra -Wpedantic)
    if(QTC_WERROR)
        target_compile_options(${target} PRIVATE -Werror)
    endif()
endfunction()
