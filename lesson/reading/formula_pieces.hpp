#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "lesson/chemistry/elements.hpp"

namespace lesson
{

// Before water of crystals: all that is typed for the dot.
constexpr std::string_view formulaDots[] = {".", "·", "*", "×"};

struct FormulaPiece {
    enum class Kind { dot, element, open, close };

    Kind kind;
    const ElementRow* element = nullptr;
    // How often it occurs: of a bracket both pieces tell it, a dot tells it of the part behind.
    std::int64_t count = 1;
    std::size_t partner = 0;    // the other one of a pair of brackets
    char bracket = '(';         // or '[', of one that opens
    std::string raised = {};    // what was typed raised behind it: "2-", "+"
    bool isCountRaised = false; // then `raised` is the count
    bool isOneAtom = false;     // a bracket around a single atom
    bool isNeedless = false;    // a bracket that changes nothing
};

// A formula cut into pieces; where it could not be read, those in front of `unread`.
struct FormulaPieces {
    bool isRead = false;
    std::string_view unread = {}; // a symbol alone, or all that is left
    std::vector<FormulaPiece> pieces = {};
    bool hasCharge = false;
    bool hasRaisedNumber = false;
};

// Cuts a typed formula without its state, in time proportional to the length and with no recursion.
// The needless brackets are not marked yet.
FormulaPieces readPieces(std::string_view formula);

// A piece in the one spelling of formulas: "Ca", "O4", "(", ")2", ".5"; the dot in front of a whole
// formula is not written.
std::string textOf(const FormulaPiece& piece, bool isFirst);

} // namespace lesson
