# Windows on i686.
set(zel_triple i686-w64-mingw32)
include(${CMAKE_CURRENT_LIST_DIR}/parts/mingw.cmake)
