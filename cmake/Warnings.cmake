# Enables warnings for the project's own targets. The options are private to each target, so they do
# not apply to a project that uses the library. As part of another project, the library is built
# without them.

function(zel_warnings target)
    if(MSVC)
        target_compile_options(${target} PRIVATE
            $<$<BOOL:${ZELINTERCHANGEDATA_WARNINGS}>:/W4> $<$<BOOL:${ZELINTERCHANGEDATA_WERROR}>:/WX>)
        return()
    endif()
    if(ZELINTERCHANGEDATA_WARNINGS)
        target_compile_options(${target} PRIVATE
            -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion -Wold-style-cast
            -Woverloaded-virtual)
    endif()
    if(ZELINTERCHANGEDATA_WERROR)
        target_compile_options(${target} PRIVATE -Werror)
        target_link_options(${target} PRIVATE
            LINKER:$<IF:$<PLATFORM_ID:Darwin>,-fatal_warnings,--fatal-warnings>)
    endif()
endfunction()
