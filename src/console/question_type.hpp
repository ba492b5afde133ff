#pragma once

// The kinds of question, by their numbers on the menu. Any integer may be given for one: what is
// not named here stands for a random kind.
enum QuestionType : int {
    randomKind = 0,
    massConcentrationKind = 1,
    dilutionKind = 2,
    neutralisationKind = 3,
    titrationKind = 4,
};
