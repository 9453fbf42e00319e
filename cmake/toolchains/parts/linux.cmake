# Linux on the processor of zel_triple, programs under the emulator of zel_processor.
set(CMAKE_SYSTEM_NAME Linux)
set(CMAKE_SYSTEM_PROCESSOR ${zel_processor})
set(CMAKE_C_COMPILER ${zel_triple}-gcc)
set(CMAKE_CXX_COMPILER ${zel_triple}-g++)
include(${CMAKE_CURRENT_LIST_DIR}/cross.cmake)
set(CMAKE_CROSSCOMPILING_EMULATOR qemu-${zel_processor} -L /usr/${zel_triple})
