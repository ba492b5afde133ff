#include "lesson/fuzz/marked_kinds.hpp"

#include <iterator>

const char* const markedKinds[] = {KINDS};
const std::size_t markedKindCount = std::size(markedKinds);
