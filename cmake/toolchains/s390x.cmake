# Linux on s390x, which is big-endian.
set(zel_triple s390x-linux-gnu)
set(zel_processor s390x)
include(${CMAKE_CURRENT_LIST_DIR}/parts/linux.cmake)
