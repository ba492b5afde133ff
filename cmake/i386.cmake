# 32-bit x86 by Debian's g++-i686-linux-gnu. What it builds runs on a 64-bit machine as it is, given
# the loader and the libraries that come with the compiler.
set(CMAKE_SYSTEM_NAME Linux)
set(CMAKE_SYSTEM_PROCESSOR i686)
set(CMAKE_CXX_COMPILER i686-linux-gnu-g++)
set(CMAKE_C_COMPILER i686-linux-gnu-gcc)
set(CMAKE_EXE_LINKER_FLAGS_INIT
    "-Wl,--dynamic-linker=/usr/i686-linux-gnu/lib/ld-linux.so.2 -Wl,-rpath,/usr/i686-linux-gnu/lib")
