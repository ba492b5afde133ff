# WebAssembly by Debian's clang, with wasi-libc and libc++ for it.
set(CMAKE_SYSTEM_NAME Generic)
set(CMAKE_SYSTEM_PROCESSOR wasm32)
set(CMAKE_CXX_COMPILER clang++)
set(CMAKE_CXX_COMPILER_TARGET wasm32-wasi)
# The linker finds nothing in an archive by GNU ar, which writes no index for such objects.
set(CMAKE_AR llvm-ar)
set(CMAKE_RANLIB llvm-ranlib)
# The libraries have nothing that could unwind, nor anything that destroys what is static: a module
# has no end; and one thread, so that nothing has to guard what is made at its first use.
set(CMAKE_CXX_FLAGS_INIT
    "-fno-exceptions -fno-rtti -fno-c++-static-destructors -fno-threadsafe-statics")
