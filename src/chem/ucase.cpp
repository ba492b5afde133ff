#include "chem/ucase.hpp"

char ucase(char letter)
{
    if (letter >= 'a' && letter <= 'z') {
        return static_cast<char>(letter - 'a' + 'A');
    }
    return letter;
}

std::string ucase(std::string text)
{
    for (char& letter : text) {
        letter = ucase(letter);
    }
    return text;
}
