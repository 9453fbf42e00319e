# Linux on 32-bit x86.
set(zel_triple i686-linux-gnu)
set(zel_processor i386)
include(${CMAKE_CURRENT_LIST_DIR}/parts/linux.cmake)
