# Windows on the processor of zel_triple: mingw-w64 with the POSIX thread model, programs under
# zel_wine, which may begin with variables of its environment.
set(CMAKE_SYSTEM_NAME Windows)
string(REGEX REPLACE "-.*" "" CMAKE_SYSTEM_PROCESSOR ${zel_triple})
set(CMAKE_C_COMPILER ${zel_triple}-gcc-posix)
set(CMAKE_CXX_COMPILER ${zel_triple}-g++-posix)
set(CMAKE_RC_COMPILER ${zel_triple}-windres)
include(${CMAKE_CURRENT_LIST_DIR}/cross.cmake)

# Wine finds the compiler's libraries, and ours, in these folders. In the locale "C" it could not open files
# whose names are outside ASCII. Its own folder belongs to one build: one for 32 bits cannot be one for 64.
set(zel_folders ${CMAKE_BINARY_DIR}/src)
foreach(library IN ITEMS libstdc++-6.dll libwinpthread-1.dll)
    execute_process(COMMAND ${CMAKE_CXX_COMPILER} -print-file-name=${library}
        OUTPUT_VARIABLE zel_library OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
    get_filename_component(zel_folder ${zel_library} DIRECTORY)
    get_filename_component(zel_folder ${zel_folder} REALPATH)
    list(APPEND zel_folders ${zel_folder})
endforeach()
list(TRANSFORM zel_folders PREPEND "Z:")
list(JOIN zel_folders "\\;" zel_folders)
set(CMAKE_CROSSCOMPILING_EMULATOR
    env LC_ALL=C.UTF-8 WINEDEBUG=-all "WINEPREFIX=${CMAKE_BINARY_DIR}/wine" "WINEPATH=${zel_folders}"
    ${zel_wine})
