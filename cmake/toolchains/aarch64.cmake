# Linux on 64-bit ARM.
set(zel_triple aarch64-linux-gnu)
set(zel_processor aarch64)
include(${CMAKE_CURRENT_LIST_DIR}/parts/linux.cmake)
