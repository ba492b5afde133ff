#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "lesson/numbers/ratio.hpp"
#include "lesson/words/spans.hpp"

namespace lesson
{

// The quantities of an exercise by their names, behind its kind: a text that lasts through every
// version of that, since it holds the quantities themselves.
//   "dilution;substance=HCl;c1=6.00;V1=25.0;V2=500"
class Description
{
public:
    Description& with(std::string_view name, std::string_view value);

    // What stands behind the slug: ";substance=HCl;c1=6.00".
    std::string fields;
};

// Takes the fields out of a description one by one. The first problem is kept, and what is taken
// after it means nothing.
class FieldReader
{
public:
    // What stands behind the slug: "c1=6.00;V1=25.0".
    explicit FieldReader(std::string_view text);
    FieldReader(const FieldReader&) = delete;
    FieldReader& operator=(const FieldReader&) = delete;
    ~FieldReader();

    bool has(std::string_view name) const;
    // The value of a field, which has to be there.
    std::string_view text(std::string_view name);
    // The same as a number above 0 of at most four figures: "25.0", "0.0500". 1 where it is none.
    Ratio number(std::string_view name);
    // The same for several, separated by commas.
    std::vector<Ratio> numbers(std::string_view name);
    // 1 to 3; `otherwise` where there is no field "level".
    int level(int otherwise);

    // What is wrong with the values.
    void fail(const Span& sentence);
    // "Nothing is asked about 'Xx' as cation."
    void failAsNotAsked(std::string_view name, std::string_view value);
    // The first one, or the one on a field that nobody took; empty where there is none.
    Spans problem() const;

private:
    struct Entry {
        std::string_view name;
        std::string_view value;
        bool isTaken = false;
    };

    Ratio numberIn(std::string_view name, std::string_view value);

    std::vector<Entry> entries;
    Spans firstProblem;
};

} // namespace lesson
