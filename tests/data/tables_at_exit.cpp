// Ends as the console program never does, by a return from `main`, and writes in which order the
// tables give up their memory: to the standard stream, which has to outlive them. See
// tables_at_exit.cmake.

#include <cstdlib>
#include <new>

#include "data/late_writer.hpp"
#include "data/tables.hpp"

namespace
{

struct Storage {
    const void* memory;
    const char* table;
};
Storage storages[3] = {};

void tellOf(const void* freed)
{
    for (Storage& storage : storages) {
        if (freed != nullptr && freed == storage.memory) {
            storage.memory = nullptr;
            writeText(storage.table);
        }
    }
}

} // namespace

void* operator new(std::size_t size)
{
    void* const memory = std::malloc(size);
    if (memory == nullptr) {
        std::abort();
    }
    return memory;
}

void operator delete(void* memory) noexcept
{
    tellOf(memory);
    std::free(memory);
}

void operator delete(void* memory, std::size_t /*size*/) noexcept
{
    tellOf(memory);
    std::free(memory);
}

int main()
{
    keepOutputBack();
    aMasses.reserve(1);
    ion.reserve(1);
    dissolvable.reserve(1);
    storages[0] = {aMasses.data(), "aMasses\n"};
    storages[1] = {ion.data(), "ion\n"};
    storages[2] = {dissolvable.data(), "dissolvable\n"};
}
