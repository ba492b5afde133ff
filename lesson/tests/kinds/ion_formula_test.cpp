#include <gtest/gtest.h>

#include <cstdlib>
#include <map>
#include <set>
#include <string>

#include "lesson/tests/support/salt_exercise.hpp"

namespace lesson
{

namespace
{

constexpr unsigned pool[] = {27, 12, 47};

std::vector<Exercise> wholePool(int level)
{
    return saltExercises(12, &ionFormulaKind, level, pool[level - 1]);
}

Exercise exerciseAbout(const std::string& key)
{
    for (const Exercise& exercise : wholePool(3)) {
        if (exercise.key == key) {
            return exercise;
        }
    }
    ADD_FAILURE() << key << " is not asked";
    return {};
}

std::set<std::string> keysOf(int level)
{
    std::set<std::string> keys;
    for (const Exercise& exercise : wholePool(level)) {
        keys.insert(exercise.key);
    }
    return keys;
}

TEST(IonFormulaExerciseTest, TheIonsOfEachLevel)
{
    const std::set<std::string> oneAtom = {
        "H^+",   "Li^+",  "Na^+",  "K^+",   "Ag^+",  "Mg^2+", "Ca^2+", "Ba^2+", "Mn^2+",
        "Fe^2+", "Co^2+", "Ni^2+", "Cu^2+", "Zn^2+", "Sn^2+", "Pb^2+", "Al^3+", "Cr^3+",
        "Fe^3+", "F^-",   "Cl^-",  "Br^-",  "I^-",   "O^2-",  "S^2-",  "N^3-",  "P^3-"};
    const std::set<std::string> common = {"NH4^+",    "OH^-",   "NO3^-",  "HCO3^-",
                                          "CH3COO^-", "SO4^2-", "CO3^2-", "PO4^3-",
                                          "NO2^-",    "SO3^2-", "HSO4^-", "MnO4^-"};
    std::set<std::string> all = {"Cr2O7^2-", "CrO4^2-", "ClO3^-",  "S2O3^2-",
                                 "HSO3^-",   "HPO4^2-", "H2PO4^-", "CN^-"};
    all.insert(oneAtom.begin(), oneAtom.end());
    all.insert(common.begin(), common.end());
    EXPECT_EQ(keysOf(1), oneAtom);
    EXPECT_EQ(keysOf(2), common);
    EXPECT_EQ(keysOf(3), all);
}

TEST(IonFormulaExerciseTest, TheIonIsGivenAndTheLastStepShowsTheKey)
{
    for (const int level : {1, 2, 3}) {
        for (const Exercise& exercise : wholePool(level)) {
            EXPECT_EQ(exercise.ask.form, Form::ion);
            ASSERT_EQ(exercise.given.size(), 1U);
            EXPECT_EQ(givenIons(exercise), exercise.key);
            EXPECT_EQ(textOf(exercise.solution.back().math), exercise.key);
            EXPECT_EQ(textOf(exercise.solution.front().math),
                      exercise.key.substr(0, exercise.key.find('^')));
            EXPECT_NE(textOf(exercise.prompt).find(givenIon(exercise, 0).name), std::string::npos);
        }
    }
}

// Half of what is asked first at level 3 are groups that level 2 has not; of single atoms positive
// and negative ones come equally often at level 1.
TEST(IonFormulaExerciseTest, NoSortOfIonsCrowdsOutTheOthers)
{
    const std::set<std::string> levelTwo = keysOf(2);
    std::map<std::string, int> groups;
    std::map<std::string, int> signs;
    for (unsigned paper = 1; paper <= 3000; ++paper) {
        const Exercise three = makeExercise({paper, 1, &ionFormulaKind, 3});
        const bool isNew = givenIon(three, 0).isGroup && levelTwo.count(three.key) == 0;
        ++groups[isNew ? "new group" : "known ion"];
        const Exercise one = makeExercise({paper, 1, &ionFormulaKind, 1});
        ++signs[givenIon(one, 0).charge < 0 ? "negative" : "positive"];
    }
    expectEqualShares(groups, 2);
    expectEqualShares(signs, 2);
}

TEST(IonFormulaExerciseTest, SolutionsTellWhereTheChargeComesFrom)
{
    struct Row {
        const char* key;
        const char* first;
        const char* second;
    };
    const Row rows[] = {
        {"SO4^2-", "Sulfate is one sulfur and four oxygens.",
         "The group as a whole has the charge 2−."},
        {"CH3COO^-", "Ethanoate is two carbons, three hydrogens and two oxygens.",
         "The group as a whole has the charge 1−."},
        {"MnO4^-", "Manganate(VII) is one manganese and four oxygens.",
         "The group as a whole has the charge 1−. The Roman numeral is not the charge of the ion."},
        {"Al^3+", "Take the symbol of aluminium.",
         "Aluminium is in group 13 (3): its atom loses three electrons."},
        {"Na^+", "Take the symbol of sodium.",
         "Sodium is in group 1: its atom loses one electron."},
        {"H^+", "Take the symbol of hydrogen.", "The atom loses its only electron."},
        {"Fe^3+", "Take the symbol of iron.", "The Roman numeral tells the charge: 3+."},
        {"Zn^2+", "Take the symbol of zinc.",
         "There is no Roman numeral, because it always has the same charge: 2+."},
        {"Ag^+", "Take the symbol of silver.",
         "There is no Roman numeral, because it always has the same charge: 1+."},
        {"S^2-", "Sulfide is an ion of sulfur.",
         "Sulfur is in group 16 (6): its atom takes up two electrons."},
        {"Cl^-", "Chloride is an ion of chlorine.",
         "Chlorine is in group 17 (7): its atom takes up one electron."},
    };
    for (const Row& row : rows) {
        const Exercise exercise = exerciseAbout(row.key);
        ASSERT_EQ(exercise.solution.size(), 2U);
        EXPECT_EQ(textOf(exercise.solution[0].say), row.first);
        EXPECT_EQ(textOf(exercise.solution[1].say), row.second);
    }
}

// An ion of one atom has so many electrons as the noble gas before or behind it.
TEST(IonFormulaExerciseTest, GroupsOfThePeriodicTableGiveTheCharge)
{
    for (const Exercise& exercise : wholePool(1)) {
        const std::string say = textOf(exercise.solution[1].say);
        const std::size_t place = say.find("group ");
        if (place != std::string::npos) {
            const int group = std::atoi(say.c_str() + place + 6);
            const int charge = group < 3 ? group : group == 13 ? 3 : group - 18;
            EXPECT_EQ(givenIon(exercise, 0).charge, charge) << say;
            const std::string old = " (" + std::to_string(group - 10) + "):";
            EXPECT_EQ(say.find(old) != std::string::npos, group > 12) << say;
        }
    }
}

// A hint helps before the step is shown: it is no copy of it, and tells nothing of its result.
TEST(IonFormulaExerciseTest, EachStepHasAHintThatGivesNothingAway)
{
    for (const int level : {1, 2, 3}) {
        for (const Exercise& exercise : wholePool(level)) {
            for (const Step& step : exercise.solution) {
                const std::string hint = textOf(step.hint);
                EXPECT_GT(hint.size(), 20U) << textOf(step.say);
                EXPECT_NE(hint, textOf(step.say));
                EXPECT_EQ((hint + " ").find(" " + textOf(step.math) + " "), std::string::npos)
                    << hint;
            }
        }
    }
}

bool contains(const std::string& text, const std::string& part)
{
    return text.find(part) != std::string::npos;
}

// The sentence on oxygen that a hint begins or ends with is true of the formula, and one on an
// ending is about the ending of the name.
void expectTrueOfOxygen(const IonRow& ion, const std::string& hint)
{
    const std::string name(ion.name);
    const bool hasOxygen = contains(std::string(ion.formula), "O");
    const std::string told = "ending -" + name.substr(name.size() - 3);
    EXPECT_EQ(contains(hint, "tells of oxygen"), contains(hint, told) && hasOxygen) << hint;
    EXPECT_EQ(contains(hint, "no oxygen"), contains(hint, told) && ion.isGroup && !hasOxygen)
        << hint;
    EXPECT_FALSE(contains(hint, "The ending") && !contains(hint, told)) << name << ": " << hint;
}

// What stands behind the hydrogens in front, with the charge that they have left.
void expectTrueOfHydrogen(const IonRow& ion, const std::string& hint)
{
    const bool isTold = contains(hint, "Hydrogen comes first.");
    EXPECT_EQ(isTold, contains(std::string(ion.name), "hydrogen") && ion.isGroup) << hint;
    if (isTold) {
        const bool hasTwo = ion.formula.substr(0, 2) == "H2";
        const IonRow* const rest =
            findIon(ion.formula.substr(hasTwo ? 2 : 1), ion.charge - (hasTwo ? 2 : 1));
        EXPECT_NE(rest, nullptr) << ion.name;
        EXPECT_EQ(contains(hint, "di- means two"), hasTwo) << hint;
    }
}

// Of an acid that is told, each hydrogen that is given away is one of the charge.
void expectTrueOfAcid(const IonRow& ion, const std::string& hint)
{
    const std::map<std::string, std::string> acids = {{"nitric acid", "HNO3"},
                                                      {"sulfuric acid", "H2SO4"},
                                                      {"carbonic acid", "H2CO3"},
                                                      {"phosphoric acid", "H3PO4"},
                                                      {"the acid in vinegar", "HCH3COO"}};
    const std::string begin = "Each hydrogen ion that ";
    const std::string end = " gives away leaves a charge of 1\u2212 behind.";
    if (!contains(hint, begin)) {
        return;
    }
    const std::size_t place = hint.find(begin) + begin.size();
    const auto acid = acids.find(hint.substr(place, hint.find(end) - place));
    ASSERT_NE(acid, acids.end()) << hint;
    const std::string number = ion.charge == -1 ? "" : std::to_string(-ion.charge);
    EXPECT_EQ(acid->second, "H" + number + std::string(ion.formula)) << hint;
}

// "Its charge is that of …"
void expectTrueOfCharge(const IonRow& ion, const std::string& hint)
{
    const std::string begin = "Its charge is that of ";
    if (contains(hint, begin)) {
        const std::string other = hint.substr(begin.size(), hint.size() - begin.size() - 1);
        const IonRow* const like = findIon(other);
        ASSERT_NE(like, nullptr) << hint;
        EXPECT_EQ(like->charge, ion.charge) << ion.name << ": " << hint;
    }
}

TEST(IonFormulaExerciseTest, TheHintsAreTrueOfTheIon)
{
    for (const int level : {1, 2, 3}) {
        for (const Exercise& exercise : wholePool(level)) {
            const IonRow& ion = givenIon(exercise, 0);
            ASSERT_EQ(exercise.solution.size(), 2U);
            const std::string atoms = textOf(exercise.solution[0].hint);
            const std::string charge = textOf(exercise.solution[1].hint);
            if (ion.isGroup) {
                expectTrueOfOxygen(ion, atoms);
            }
            expectTrueOfHydrogen(ion, atoms);
            expectTrueOfAcid(ion, charge);
            expectTrueOfCharge(ion, charge);
            EXPECT_FALSE(contains(charge, "its acid")) << "which acid? " << ion.name;
        }
    }
}

TEST(IonFormulaExerciseTest, HintsOfIonsThatAreBuiltAlikeAreAlike)
{
    const std::string first = "Hydrogen comes first. What is the ion without it?";
    const std::string charge =
        "What is the charge without the hydrogen, and what does a hydrogen ion add?";
    for (const char* const key : {"HCO3^-", "HSO4^-", "HSO3^-", "HPO4^2-"}) {
        const Exercise exercise = exerciseAbout(key);
        EXPECT_EQ(textOf(exercise.solution[0].hint), first) << key;
        EXPECT_EQ(textOf(exercise.solution[1].hint), charge) << key;
    }
    EXPECT_EQ(textOf(exerciseAbout("H2PO4^-").solution[0].hint),
              "The beginning di- means two. " + first);
    EXPECT_EQ(textOf(exerciseAbout("CN^-").solution[0].hint),
              "The ending -ide: there is no oxygen in it. It has two elements, one atom of each.");
    EXPECT_EQ(textOf(exerciseAbout("SO4^2-").solution[1].hint),
              "Each hydrogen ion that sulfuric acid gives away leaves a charge of 1\u2212 behind.");
}

TEST(IonFormulaExerciseTest, TheCommonSlipsAreListed)
{
    struct Row {
        const char* key;
        const char* slip;
        const char* sentence;
    };
    const Row rows[] = {
        {"SO4^2-", "SO4", "An ion carries a charge."},
        {"SO4^2-", "SO42",
         "That number counts atoms. Write the number and the sign of the charge together."},
        {"SO4^2-", "SO4^2+", "Is this ion positive or negative?"},
        {"SO4^2-", "SO4^-", "The sign is right. Check the size of the charge."},
        {"SO4^2-", "SO3^2-", "Which one has more oxygen: -ite or -ate?"},
        {"SO4^2-", "S^2-", "The ending tells you whether there is oxygen."},
        {"SO4^2-", "HSO4^-", "Sulfate and hydrogensulfate are two different ions."},
        {"SO4^2-", "SO5^2-", "Check the number of oxygen atoms."},
        {"NO2^-", "NO^-", "Check the number of oxygen atoms."},
        {"Fe^3+", "Fe^2+", "The Roman numeral tells the size of the charge."},
        {"Fe^3+", "Fe3",
         "That number counts atoms. Write the number and the sign of the charge together."},
        {"K^+", "P^+", "Check this symbol: P."},
        {"NH4^+", "NH3", "That is ammonia. The ammonium ion has one hydrogen more."},
        {"NH4^+", "NH3^+", "That is ammonia. The ammonium ion has one hydrogen more."},
        {"H^+", "OH^-", "That is the hydroxide ion, which bases have."},
        {"SO3^2-", "SO4^2-", "Which one has more oxygen: -ite or -ate?"},
        {"NO2^-", "NO3^-", "Which one has more oxygen: -ite or -ate?"},
        {"PO4^3-", "HPO4^2-", "Phosphate and hydrogenphosphate are two different ions."},
        {"H^+", "H3O^+", "That is a hydrogen ion joined to a water molecule."},
        {"MnO4^-", "MnO4^7+",
         "The Roman numeral is the oxidation number of manganese, not the charge of the ion."},
        {"Cr2O7^2-", "CrO4^2-", "That is chromate. What does di- tell you?"},
        {"CrO4^2-", "Cr2O7^2-", "Chromate and dichromate are two different ions."},
        {"ClO3^-", "ClO2^-", "Which one has more oxygen: -ite or -ate?"},
        {"ClO3^-", "Cl^-", "The ending tells you whether there is oxygen."},
        {"ClO3^-", "ClO4^-", "Check the number of oxygen atoms."},
        {"S2O3^2-", "SO4^2-", "Thio- stands for a sulfur in the place of an oxygen."},
        {"S2O3^2-", "SO3^2-", "Thio- stands for a sulfur in the place of an oxygen."},
        {"HSO3^-", "SO3^2-", "Sulfite and hydrogensulfite are two different ions."},
        {"HSO3^-", "HSO4^-", "Which one has more oxygen: -ite or -ate?"},
        {"HSO3^-", "HSO3^2-", "Hydrogen brings a charge of its own."},
        {"HPO4^2-", "H2PO4^-", "How many hydrogens has a hydrogenphosphate?"},
        {"HPO4^2-", "HPO4^3-", "Hydrogen brings a charge of its own."},
        {"H2PO4^-", "HPO4^2-", "What does di- tell you?"},
        {"H2PO4^-", "H2PO4^3-", "Hydrogen brings a charge of its own."},
        {"CN^-", "CNO^-", "The ending tells you whether there is oxygen."},
        {"CN^-", "CN", "An ion carries a charge."},
    };
    for (const Row& row : rows) {
        const std::string page = pageOf(exerciseAbout(row.key));
        EXPECT_NE(page.find(std::string("! ") + row.slip + "  " + row.sentence + "\n"),
                  std::string::npos)
            << row.slip << "\n"
            << page;
    }
}

} // namespace

} // namespace lesson
