# Windows on x86-64.
set(zel_triple x86_64-w64-mingw32)
set(zel_wine wine)
include(${CMAKE_CURRENT_LIST_DIR}/parts/mingw.cmake)
