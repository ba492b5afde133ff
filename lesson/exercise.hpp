#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "lesson/chemistry/acids_and_bases.hpp"
#include "lesson/chemistry/equation.hpp"
#include "lesson/chemistry/ions.hpp"
#include "lesson/numbers/ratio.hpp"
#include "lesson/paper/place.hpp"
#include "lesson/words/spans.hpp"
#include "lesson/words/writing.hpp"

namespace lesson
{

// What kind of answer is typed.
enum class Form {
    number,
    formula,
    ion,
    equation,
    solubility,
};

// What is asked for. All but the form are for numbers only, except `choices`.
struct Ask {
    Form form;
    std::string quantity;          // "c", "M"; "V1" for the first of two
    std::string of;                // formula of the substance
    std::string unit;              // "mol/L", "g/mol", "g", "mL"
    int figures = 0;               // significant figures of the answer
    std::vector<Sentence> choices; // where the answer is one of a few words: yes, no
};

// What a volume is in a titration: what runs out of the burette, or what is pipetted.
enum class VolumeRole {
    none,
    titre,
    aliquot,
};

// What the answer rests on: a quantity, an ion or a compound.
struct GivenQuantity {
    std::string quantity; // as in Ask
    std::string of;
    Ratio value; // in `unit`: g, g/mol, L or mol/L
    std::string unit;
    std::string shown;            // as the prompt shows it; empty where it does not
    std::string shownUnit;        // "mL"; empty with `shown`
    std::vector<int> titres = {}; // in hundredths of a millilitre, the rough one first
    VolumeRole role = VolumeRole::none;
};
struct GivenIon {
    const IonRow* ion;
};
struct GivenCompound {
    std::string formula;
    Name name;
};
using Given = std::variant<GivenQuantity, GivenIon, GivenCompound>;

// One step of a worked solution: a sentence, and a line of mathematics, which may be empty. The
// hint is for who wants to take the step without seeing it: other words than the sentence, and
// nothing of the result.
struct Step {
    Spans say;
    Spans math;
    Spans hint = {};
};

// A common mistake: the answer that it leads to, as it might be typed, and a sentence that helps
// without giving the answer away. `value` is for numbers only, in the asked unit, unrounded.
struct Slip {
    std::string text;
    std::optional<Ratio> value;
    Spans sentence;
};

// What typed answers are compared with, form by form.

struct NumberAnswer {
    Ratio value; // in the asked unit, unrounded
    // The same worked out with atomic masses as other tables print them, going up or going down;
    // only where the molar mass was not given.
    std::vector<Ratio> withRoundedMasses = {};
    bool isMolarMass = false;
    bool hasGivenVolumes = false;
};

struct FormulaAnswer {
    const IonRow* cation;
    const IonRow* anion;
};

struct IonAnswer {
    const IonRow* ion;
};

// Whether a compound dissolves.
struct SolubilityAnswer {
    bool isSoluble;
    Spans rule; // the sentence that tells why
};

// The precipitate of two solutions; null pointers where there is none.
struct PrecipitateAnswer {
    const IonRow* cation;
    const IonRow* anion;
    Spans rule;
};

// The balanced equation of an acid and a base.
struct EquationAnswer {
    const AcidRow* acid;
    Base base;
};

using Answer = std::variant<NumberAnswer, FormulaAnswer, IonAnswer, SolubilityAnswer,
                            PrecipitateAnswer, EquationAnswer>;

struct Exercise {
    Place place;             // paper and number are 0 where it was not drawn
    std::string description; // see kinds/description.hpp
    Spans prompt;
    Ask ask;
    std::vector<Given> given;
    std::optional<Equation> equation;
    Spans key; // what a perfect learner types, with its unit
    Answer answer;
    std::vector<Step> solution;
    std::vector<Slip> slips; // the commoner ones first

    // Not inline: each is made, moved and left in many places, and the module would be larger.
    Exercise();
    Exercise(const Exercise& other);
    Exercise(Exercise&& other) noexcept;
    Exercise& operator=(const Exercise& other);
    Exercise& operator=(Exercise&& other) noexcept;
    ~Exercise();
};

// The exercise that a text names, or what is wrong with the text.
struct NamedExercise {
    Exercise exercise;
    Spans error; // empty where there is an exercise
};

// The exercise of a place, always the same one.
Exercise makeExercise(const Place& place);

enum class Verdict {
    correct,
    figures,
    slip,
    powerOfTen,
    close,
    wrong,
    unreadable,
};

// What a typed answer gets, and what is said of it to the learner.
struct Mark {
    Verdict verdict;
    Spans sentence;
};

// Marks what was typed, whatever bytes it holds, in time proportional to its length; its numbers
// are read as the reader writes them.
Mark markAnswer(const Exercise& exercise, std::string_view typed, const Writing& writing = {});

} // namespace lesson
