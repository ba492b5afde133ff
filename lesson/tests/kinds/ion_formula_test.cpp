#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <map>
#include <set>
#include <sstream>
#include <string>
#include <vector>

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
        if (plain(exercise.key) == key) {
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
        keys.insert(plain(exercise.key));
    }
    return keys;
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
        const bool isNew = givenIon(three, 0).isGroup && levelTwo.count(plain(three.key)) == 0;
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

bool contains(const std::string& text, const std::string& part)
{
    return text.find(part) != std::string::npos;
}

// The sentence on oxygen that a hint begins or ends with is true of the formula, and one on an
// ending is about the ending of the name.
void expectTrueOfOxygen(const IonRow& ion, const std::string& hint)
{
    const std::string name = british(nameAlone(ion));
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
    EXPECT_EQ(isTold, contains(british(nameOf(ion)), "hydrogen") && ion.isGroup) << hint;
    if (isTold) {
        const bool hasTwo = ion.formula.substr(0, 2) == "H2";
        const IonRow* const rest =
            findIon(ion.formula.substr(hasTwo ? 2 : 1), ion.charge - (hasTwo ? 2 : 1));
        EXPECT_NE(rest, nullptr) << british(nameOf(ion));
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
        EXPECT_EQ(like->charge, ion.charge) << british(nameOf(ion)) << ": " << hint;
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
            EXPECT_FALSE(contains(charge, "its acid")) << "which acid? " << british(nameOf(ion));
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

// What is written for an ion, the commoner before the rarer ones: first its own mistakes, then its
// charge, other ions, other symbols, and an oxygen too few or too many.
class SlipsByHand
{
public:
    explicit SlipsByHand(const std::string& key)
        : formula{key.substr(0, key.find('^'))}, sign{key.back()},
          size{std::max(1, std::atoi(key.c_str() + key.find('^') + 1))}, texts{key}
    {
    }

    void add(const std::string& text, const std::string& sentence)
    {
        if (texts.insert(text).second) {
            page += "! " + text + "  " + sentence + "\n";
        }
    }

    void addCharges(bool isTold)
    {
        add(formula, "An ion carries a charge.");
        if (size > 1) {
            add(formula + std::to_string(size),
                "That number counts atoms. Write the number and the "
                "sign of the charge together.");
        }
        add(formula + charge(size, sign == '-' ? '+' : '-'), "Is this ion positive or negative?");
        for (const int other : {1, 2, 3}) {
            add(formula + charge(other, sign),
                isTold ? "The Roman numeral tells the size of the charge."
                       : "The sign is right. Check the size of the charge.");
        }
    }

    void addSymbols(const std::string& symbols)
    {
        std::istringstream words(symbols);
        for (std::string symbol; words >> symbol;) {
            add(symbol + charge(size, sign), "Check this symbol: " + symbol + ".");
        }
    }

    void addOxygens()
    {
        const std::size_t last = formula.size() - 1;
        if (last == 0 || formula[last - 1] != 'O' || formula[last] > '9') {
            return;
        }
        const int oxygens = formula[last] - '0';
        for (const int count : {oxygens - 1, oxygens + 1}) {
            const std::string number = count == 1 ? "" : std::to_string(count);
            add(formula.substr(0, last) + number + charge(size, sign),
                "Check the number of oxygen atoms.");
        }
    }

    std::string page;

private:
    static std::string charge(int size, char sign)
    {
        return "^" + (size == 1 ? "" : std::to_string(size)) + sign;
    }

    std::string formula;
    char sign;
    int size;
    std::set<std::string> texts;
};

struct Mistake {
    const char* text;
    std::string sentence;
};

struct Mistaken {
    const char* key;
    std::vector<Mistake> own;
    std::vector<Mistake> others;
    const char* symbols;
};

const std::string ending = "The ending tells you whether there is oxygen.";
const std::string moreOxygen = "Which one has more oxygen: -ite or -ate?";
const std::string hydrogens = "Check the number of hydrogen atoms.";
const std::string carbons = "Check the number of carbon atoms.";
const std::string ownCharge = "Hydrogen brings a charge of its own.";
const std::string thio = "Thio- stands for a sulfur in the place of an oxygen.";
const std::string ammonia = "That is ammonia. The ammonium ion has one hydrogen more.";
const std::string oxidation =
    "The Roman numeral is the oxidation number of manganese, not the charge of the ion.";

std::string twoIons(const std::string& one, const std::string& other)
{
    return one + " and " + other + " are two different ions.";
}

// As teachers know them, ion by ion.
const std::vector<Mistaken>& mistaken()
{
    // clang-format off
    static const std::vector<Mistaken> all = {
        {"H^+", {{"H3O^+", "That is a hydrogen ion joined to a water molecule."},
                 {"OH^-", "That is the hydroxide ion, which bases have."}}, {}, ""},
        {"Li^+", {}, {}, "L"},
        {"Na^+", {}, {}, "S So"},
        {"K^+", {}, {}, "P Po"},
        {"NH4^+", {{"NH3", ammonia}, {"NH2^+", hydrogens}}, {{"NH3^+", ammonia}}, "Am"},
        {"Ag^+", {}, {}, "S Si"},
        {"Mg^2+", {}, {}, "Mn M"},
        {"Ca^2+", {}, {}, "C"},
        {"Ba^2+", {}, {}, "B"},
        {"Mn^2+", {}, {}, "Mg"},
        {"Fe^2+", {}, {}, "I Ir"},
        {"Co^2+", {}, {}, "C"},
        {"Ni^2+", {}, {}, "N"},
        {"Cu^2+", {}, {}, "C Co"},
        {"Zn^2+", {}, {}, "Z"},
        {"Sn^2+", {}, {}, "T Ti"},
        {"Pb^2+", {}, {}, "L Le"},
        {"Al^3+", {}, {}, "A"},
        {"Cr^3+", {}, {}, "C Ch"},
        {"Fe^3+", {}, {}, "I Ir"},
        {"F^-", {}, {}, "Fl"},
        {"Cl^-", {}, {{"ClO3^-", ending}}, "C Ch"},
        {"Br^-", {}, {{"BrO3^-", ending}}, "B"},
        {"I^-", {}, {{"IO3^-", ending}}, "Io"},
        {"O^2-", {{"O2^2-", "That is the peroxide ion, which has two atoms."}},
                 {{"OH^-", twoIons("Oxide", "hydroxide")}}, "Ox"},
        {"S^2-", {}, {{"SO4^2-", ending}, {"SO3^2-", ending}}, "Su"},
        {"N^3-", {}, {{"NO3^-", ending}, {"NO2^-", ending}}, "Ni"},
        {"P^3-", {}, {{"PO4^3-", ending}, {"PO3^3-", ending}}, "Ph"},
        {"OH^-", {}, {{"O^2-", twoIons("Oxide", "hydroxide")}}, ""},
        {"NO3^-", {}, {{"N^3-", ending}, {"NO2^-", moreOxygen}}, ""},
        {"NO2^-", {}, {{"N^3-", ending}, {"NO3^-", moreOxygen}}, ""},
        {"HCO3^-", {{"HCO3^2-", ownCharge}},
                   {{"CO3^2-", twoIons("Carbonate", "hydrogencarbonate")}}, ""},
        {"CO3^2-", {}, {{"HCO3^-", twoIons("Carbonate", "hydrogencarbonate")}}, ""},
        {"CH3COO^-", {{"HCOO^-", carbons}, {"C2H5COO^-", carbons}, {"CH3CH2COO^-", carbons},
                      {"CH3COOH", "That is the acid, which is no ion."}}, {}, ""},
        {"SO4^2-", {}, {{"S^2-", ending}, {"SO3^2-", moreOxygen},
                        {"HSO4^-", twoIons("Sulfate", "hydrogensulfate")}}, ""},
        {"SO3^2-", {}, {{"S^2-", ending}, {"SO4^2-", moreOxygen},
                        {"HSO3^-", twoIons("Sulfite", "hydrogensulfite")}}, ""},
        {"HSO4^-", {{"HSO4^2-", ownCharge}},
                   {{"SO4^2-", twoIons("Sulfate", "hydrogensulfate")}, {"HSO3^-", moreOxygen}}, ""},
        {"HSO3^-", {{"HSO3^2-", ownCharge}},
                   {{"SO3^2-", twoIons("Sulfite", "hydrogensulfite")}, {"HSO4^-", moreOxygen}}, ""},
        {"S2O3^2-", {}, {{"SO4^2-", thio}, {"SO3^2-", thio}}, ""},
        {"PO4^3-", {}, {{"P^3-", ending}, {"PO3^3-", moreOxygen},
                        {"HPO4^2-", twoIons("Phosphate", "hydrogenphosphate")},
                        {"H2PO4^-", twoIons("Phosphate", "dihydrogenphosphate")}}, ""},
        {"HPO4^2-", {{"HPO4^3-", ownCharge}},
                    {{"PO4^3-", twoIons("Phosphate", "hydrogenphosphate")},
                     {"H2PO4^-", "How many hydrogens has a hydrogenphosphate?"}}, ""},
        {"H2PO4^-", {{"H2PO4^3-", ownCharge}},
                    {{"PO4^3-", twoIons("Phosphate", "dihydrogenphosphate")},
                     {"HPO4^2-", "What does di- tell you?"}}, ""},
        {"MnO4^-", {{"MnO4^7+", oxidation}, {"MnO4^7-", oxidation}}, {}, ""},
        {"CrO4^2-", {}, {{"Cr2O7^2-", twoIons("Chromate", "dichromate")}}, ""},
        {"Cr2O7^2-", {{"CrO4^2-", "That is chromate. What does di- tell you?"}}, {}, ""},
        {"ClO3^-", {}, {{"Cl^-", ending}, {"ClO2^-", moreOxygen}}, ""},
        {"CN^-", {}, {{"CNO^-", ending}, {"OCN^-", ending}}, ""},
    };
    // clang-format on
    return all;
}

std::string slipsOf(const Exercise& exercise)
{
    const std::string page = pageOf(exercise);
    const std::size_t first = page.find("\n! ");
    return first == std::string::npos ? "" : page.substr(first + 1);
}

TEST(IonFormulaExerciseTest, EveryIonHasTheSlipsThatTeachersKnow)
{
    EXPECT_EQ(mistaken().size(), wholePool(3).size());
    for (const Mistaken& row : mistaken()) {
        const Exercise exercise = exerciseAbout(row.key);
        const std::string prompt = textOf(exercise.prompt);
        SlipsByHand slips(row.key);
        for (const Mistake& own : row.own) {
            slips.add(own.text, own.sentence);
        }
        slips.addCharges(prompt.find("(II") != std::string::npos);
        for (const Mistake& other : row.others) {
            slips.add(other.text, other.sentence);
        }
        slips.addSymbols(row.symbols);
        slips.addOxygens();
        EXPECT_EQ(slipsOf(exercise), slips.page) << prompt;
    }
}

} // namespace

} // namespace lesson
