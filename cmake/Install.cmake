# The install rules: libraries, headers, the CMake package and the .pc file. You can install Debug and
# Release builds in the same prefix, and move the prefix afterwards.
include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

set(zel_package_folder ${CMAKE_INSTALL_LIBDIR}/cmake/ZelInterchangeData)
set(zel_runtime ZelInterchangeData_Runtime)
set(zel_development ZelInterchangeData_Development)

set(zel_targets ZelInterchangeDataStatic)
if(zel_kind STREQUAL SHARED_LIBRARY)
    list(APPEND zel_targets ZelInterchangeData)
else()
    set(zel_pc_static_flag " -DZELINTERCHANGEDATA_STATIC")
endif()
# What a program needs besides the static library: see cmake/Hardening.cmake.
if(MINGW AND ZELINTERCHANGEDATA_HARDENING)
    set(zel_pc_libraries "$<$<NOT:$<CONFIG:Debug>>: -lssp>")
endif()
if(zel_pc_static_flag)
    set(zel_pc_static_libraries "${zel_pc_libraries}")
endif()

install(TARGETS ${zel_targets} EXPORT ZelInterchangeDataTargets
    RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT ${zel_runtime}
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
        COMPONENT ${zel_runtime} NAMELINK_COMPONENT ${zel_development}
    ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT ${zel_development}
    INCLUDES DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
install(DIRECTORY ${PROJECT_SOURCE_DIR}/include/ZelInterchangeData
    DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} COMPONENT ${zel_development}
    FILES_MATCHING PATTERN *.h)
install(FILES ${PROJECT_SOURCE_DIR}/docs/zeldata.json
    DESTINATION ${CMAKE_INSTALL_DATADIR}/ZelInterchangeData COMPONENT ${zel_development})

# find_package
configure_package_config_file(cmake/ZelInterchangeDataConfig.cmake.in
    ${PROJECT_BINARY_DIR}/ZelInterchangeDataConfig.cmake
    INSTALL_DESTINATION ${zel_package_folder})
write_basic_package_version_file(${PROJECT_BINARY_DIR}/ZelInterchangeDataConfigVersion.cmake
    COMPATIBILITY SameMajorVersion)
install(FILES
    ${PROJECT_BINARY_DIR}/ZelInterchangeDataConfig.cmake
    ${PROJECT_BINARY_DIR}/ZelInterchangeDataConfigVersion.cmake
    DESTINATION ${zel_package_folder} COMPONENT ${zel_development})
install(EXPORT ZelInterchangeDataTargets NAMESPACE ZelInterchangeData::
    DESTINATION ${zel_package_folder} COMPONENT ${zel_development})

# pkg-config. The .pc file finds the prefix relative to its own folder. If the library folder is an
# absolute path, the file cannot move with the prefix, so it states the configured prefix.
set(zel_pc_folder ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
if(IS_ABSOLUTE ${zel_pc_folder})
    set(zel_pc_prefix ${CMAKE_INSTALL_PREFIX})
else()
    file(RELATIVE_PATH zel_pc_prefix /${zel_pc_folder} /)
    string(REGEX REPLACE "/$" "" zel_pc_prefix "\${pcfiledir}/${zel_pc_prefix}")
endif()
foreach(folder IN ITEMS LIBDIR INCLUDEDIR)
    set(zel_pc_${folder} \${prefix})
    cmake_path(APPEND zel_pc_${folder} ${CMAKE_INSTALL_${folder}})
endforeach()

# The file is named after the library file: ZelInterchangeData.pc for the optimised library and
# ZelInterchangeDatad.pc for the Debug build, so neither overwrites the other.
set(zel_pc_name $<TARGET_FILE_BASE_NAME:ZelInterchangeData>)
configure_file(cmake/ZelInterchangeData.pc.in ${PROJECT_BINARY_DIR}/ZelInterchangeData.pc.in @ONLY)
file(GENERATE OUTPUT ${PROJECT_BINARY_DIR}/${zel_pc_name}.pc
    INPUT ${PROJECT_BINARY_DIR}/ZelInterchangeData.pc.in)
install(FILES ${PROJECT_BINARY_DIR}/${zel_pc_name}.pc
    DESTINATION ${zel_pc_folder} COMPONENT ${zel_development})
