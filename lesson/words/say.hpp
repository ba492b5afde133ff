#pragma once

#include <array>

#include "lesson/words/en_GB_sentences.hpp"
#include "lesson/words/spans.hpp"

namespace lesson
{

// A sentence with its arguments, in the order in which British English first has them:
//   say<Sentence::dilutionOfVolume>(told(c1), solution, told(V2), told(c2))
template <Sentence says, typename... Arguments>
Span say(const Arguments&... arguments)
{
    static_assert(sizeof...(Arguments) == argumentCount(says), "as many as its pattern has");
    if constexpr (sizeof...(Arguments) == 0) {
        return sentenceOf(says, nullptr, 0);
    } else {
        const std::array<Piece, sizeof...(Arguments)> all = {Piece(arguments)...};
        return sentenceOf(says, all.data(), all.size());
    }
}

// One that a table tells; how many arguments it takes is for who fills the table to see to.
template <typename... Arguments>
Span say(Sentence says, const Arguments&... arguments)
{
    const std::array<Piece, sizeof...(Arguments)> all = {Piece(arguments)...};
    return sentenceOf(says, all.data(), all.size());
}

} // namespace lesson
