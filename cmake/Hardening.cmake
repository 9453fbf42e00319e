# What the optimised libraries are compiled and linked with against exploits. As a part of another
# project the library takes that project's flags alone.

function(zel_hardening target)
    if(NOT ZELINTERCHANGEDATA_HARDENING)
        return()
    endif()
    target_compile_options(${target} PRIVATE $<$<NOT:$<CONFIG:Debug>>:-fstack-protector-strong>)
    # Undefined first: a distribution's own flags may have another level. Without optimisation the
    # level has no effect but a warning.
    target_compile_options(${target} PRIVATE
        $<$<NOT:$<CONFIG:Debug>>:-U_FORTIFY_SOURCE> $<$<NOT:$<CONFIG:Debug>>:-D_FORTIFY_SOURCE=2>)
    if(CMAKE_SYSTEM_PROCESSOR MATCHES "^(x86_64|AMD64|i[3-6]86)$")
        target_compile_options(${target} PRIVATE $<$<NOT:$<CONFIG:Debug>>:-fcf-protection=full>)
    endif()
    # Full RELRO, and no executable stack, in every build.
    target_link_options(${target} PRIVATE -Wl,-z,relro -Wl,-z,now -Wl,-z,noexecstack)
endfunction()
