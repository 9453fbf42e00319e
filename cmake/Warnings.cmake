# The warnings of the project's own targets. They are private to each target, so that a project that
# uses the library never sees them; as a part of that project the library is built without them.

function(zel_warnings target)
    if(ZELINTERCHANGEDATA_WARNINGS)
        target_compile_options(${target} PRIVATE
            -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion -Wold-style-cast
            -Woverloaded-virtual)
    endif()
    if(ZELINTERCHANGEDATA_WERROR)
        target_compile_options(${target} PRIVATE -Werror)
    endif()
endfunction()
