# Linux on 32-bit x86. Its programs run on this processor, with the loader and the libraries of the cross
# compiler.
set(zel_triple i686-linux-gnu)
set(zel_processor i686)
include(${CMAKE_CURRENT_LIST_DIR}/parts/linux.cmake)
set(CMAKE_CROSSCOMPILING_EMULATOR
    /usr/${zel_triple}/lib/ld-linux.so.2 --library-path /usr/${zel_triple}/lib)
