# Restricts what a shared library exports to the names in a version script.

function(zel_exports target version_script)
    set_property(TARGET ${target} APPEND PROPERTY LINK_DEPENDS ${version_script})
    if(WIN32)
        # Exports what the headers mark and nothing else.
    elseif(APPLE)
        # The linker takes a list of the same names, each with another underscore in front.
        file(STRINGS ${version_script} names REGEX "^ +(_Z|zeldata_)")
        list(TRANSFORM names REPLACE "^ +(.*);$" "_\\1")
        list(JOIN names "\n" names)
        file(WRITE ${CMAKE_CURRENT_BINARY_DIR}/exports.list "${names}\n")
        target_link_options(${target} PRIVATE
            -Wl,-exported_symbols_list,${CMAKE_CURRENT_BINARY_DIR}/exports.list)
    else()
        # The library binds calls to its own functions to itself, because another copy in the process may
        # have the same names. It still looks up virtual tables and type information, because catching an
        # exception requires that its type has only one type information.
        target_link_options(${target} PRIVATE
            -Wl,-Bsymbolic-functions -Wl,--version-script=${version_script})
    endif()
endfunction()
