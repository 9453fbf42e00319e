# Enables warnings for the project's own targets; MSVC must also be asked for standard C++ and for sources in
# UTF-8. The options are private to each target, so they do not apply to a project that uses the library. As
# part of another project, the library is built without warnings.

function(zel_warnings target)
    if(MSVC)
        # Deliberate: 4251 and 4275 warn of interfaces with types of the standard library, which must be the
        # same on both sides.
        target_compile_options(${target} PRIVATE /permissive- /utf-8
            $<$<BOOL:${ZELINTERCHANGEDATA_WARNINGS}>:/W4> /wd4251 /wd4275
            $<$<BOOL:${ZELINTERCHANGEDATA_WERROR}>:/WX>)
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
