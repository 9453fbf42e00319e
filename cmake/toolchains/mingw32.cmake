# Windows on i686. Wine's 32-bit half is the one that scripts/setup unpacked.
set(zel_triple i686-w64-mingw32)
set(zel_wine WINEARCH=win32 ${CMAKE_CURRENT_LIST_DIR}/../../build/beside/wine32/usr/lib/wine/wine)
include(${CMAKE_CURRENT_LIST_DIR}/parts/mingw.cmake)
