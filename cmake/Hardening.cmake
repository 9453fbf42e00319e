# Hardens the optimised libraries against exploits. As part of another project, the library uses that
# project's flags only.

function(zel_hardening target)
    if(NOT ZELINTERCHANGEDATA_HARDENING OR MSVC)
        return()
    endif()
    target_compile_options(${target} PRIVATE $<$<NOT:$<CONFIG:Debug>>:-fstack-protector-strong>)
    # Undefines the macro first, because a distribution's flags may set another level. Without
    # optimisation, the macro would only cause a warning.
    target_compile_options(${target} PRIVATE
        $<$<NOT:$<CONFIG:Debug>>:-U_FORTIFY_SOURCE> $<$<NOT:$<CONFIG:Debug>>:-D_FORTIFY_SOURCE=2>)
    if(CMAKE_SYSTEM_PROCESSOR MATCHES "^(x86_64|AMD64|i[3-6]86)$" AND NOT APPLE)
        target_compile_options(${target} PRIVATE $<$<NOT:$<CONFIG:Debug>>:-fcf-protection=full>)
    endif()
    if(MINGW)
        # The functions that both call are in a library of the compiler, which a program needs with the
        # static library, too.
        target_link_libraries(${target} PRIVATE $<$<NOT:$<CONFIG:Debug>>:ssp>)
    elseif(NOT APPLE)
        # Full RELRO and a non-executable stack, in every build.
        target_link_options(${target} PRIVATE -Wl,-z,relro -Wl,-z,now -Wl,-z,noexecstack)
    endif()
endfunction()
