# Linux on 32-bit ARM.
set(zel_triple arm-linux-gnueabihf)
set(zel_processor arm)
include(${CMAKE_CURRENT_LIST_DIR}/parts/linux.cmake)
set(CMAKE_CXX_FLAGS_INIT -Wno-psabi) # no notes on what GCC 7.1 changed
