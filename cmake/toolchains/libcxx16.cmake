# This machine, with clang 16 and its own standard library, unpacked by scripts/setup.
set(zel_clang ${CMAKE_CURRENT_LIST_DIR}/../../build/beside/clang-16/usr/lib/llvm-16)
set(CMAKE_C_COMPILER ${zel_clang}/bin/clang)
set(CMAKE_CXX_COMPILER ${zel_clang}/bin/clang++)
set(CMAKE_CXX_FLAGS_INIT -stdlib=libc++)
foreach(kind IN ITEMS EXE SHARED)
    set(CMAKE_${kind}_LINKER_FLAGS_INIT -Wl,-rpath,${zel_clang}/lib)
endforeach()
