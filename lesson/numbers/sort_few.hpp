#pragma once

#include <algorithm>
#include <functional>
#include <iterator>

namespace lesson
{

// Sorts a list; what is equal stays in its order. For some hundred members at most: it takes the
// square of their number, and a tenth of the room that the library's sort takes in a module.
template <typename List, typename Less = std::less<>>
void sortFew(List& list, Less less = {})
{
    for (auto next = list.begin(); next != list.end(); ++next) {
        std::rotate(std::upper_bound(list.begin(), next, *next, less), next, std::next(next));
    }
}

} // namespace lesson
