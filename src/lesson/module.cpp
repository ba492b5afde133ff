// What the WebAssembly module needs besides the library.

// Registers what to do at the end of a thread: nothing, since the module has one thread, whose end
// is its own. The C++ library for WebAssembly leaves this out.
// NOLINTNEXTLINE(bugprone-reserved-identifier): the name is the compiler's
extern "C" int __cxa_thread_atexit(void (* /*destroy*/)(void*), void* /*object*/, void* /*library*/)
{
    return 0;
}
