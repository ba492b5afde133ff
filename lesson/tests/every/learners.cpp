#include "lesson/tests/every/learners.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <utility>

Json Asked::mark(const std::string& typed) const
{
    return markOn(kind, paper, number, typed);
}

std::string Asked::slug() const
{
    return exercise["kind"];
}

std::string Asked::keyText() const
{
    return exercise["key"]["text"];
}

int Asked::figures() const
{
    return std::stoi(exercise["ask"]["figures"].get<std::string>());
}

bool Asked::isMolarMass() const
{
    return exercise["ask"]["quantity"] == "M";
}

Exact Asked::key() const
{
    constexpr int enough = 9; // so that nothing overflows when it is compared
    return Exact::read(exercise["key"]["value"]).toFigures(enough);
}

std::string Asked::prompt() const
{
    return textOf(exercise["prompt"]);
}

std::vector<Asked> firstExercises(const std::string& kind, unsigned count)
{
    constexpr unsigned ofPaper = 9;
    constexpr unsigned most = 5000; // all of them are kept in memory
    std::vector<Asked> all;
    for (unsigned i = 0; i < std::min(count, most); ++i) {
        const unsigned paper = 1 + i / ofPaper;
        const unsigned number = 1 + i % ofPaper;
        all.push_back({kind, paper, number, exerciseAt(kind, paper, number)});
    }
    return all;
}

std::string plainNumber(const Exact& value, int figures)
{
    const Exact rounded = value.toFigures(figures);
    int decimals = 0;
    for (Exact place = rounded.lastPlace(figures); place < Exact(1); place = place * 10) {
        ++decimals;
    }
    Exact scaled = rounded;
    for (int i = 0; i < decimals; ++i) {
        scaled = scaled * 10;
    }
    std::string digits = std::to_string(scaled.floor());
    if (decimals == 0) {
        return digits;
    }
    const auto least = static_cast<std::size_t>(decimals) + 1;
    digits.insert(0, digits.size() < least ? least - digits.size() : 0, '0');
    return digits.insert(digits.size() - static_cast<std::size_t>(decimals), ".");
}

Route numberRoute(const char* name, std::function<std::optional<Exact>(const Asked&)> value,
                  std::vector<const char*> sentences)
{
    auto typed = [value = std::move(value)](const Asked& asked) -> std::optional<std::string> {
        const std::optional<Exact> wrong = value(asked);
        if (!wrong || *wrong <= 0) {
            return std::nullopt;
        }
        const int figures = asked.figures();
        if (passesFor(wrong->toFigures(figures), asked.key(), figures, asked.isMolarMass())) {
            return std::nullopt;
        }
        return plainNumber(*wrong, figures);
    };
    return {name, std::move(typed), std::move(sentences)};
}

namespace
{

struct Told {
    int all = 0;
    int fits = 0;    // a sentence about the mistake
    int another = 0; // the sentence of another mistake
    int close = 0;
    int nothing = 0; // "Not right yet."
    int right = 0;
    std::string example; // of the last three
};

bool isAboutIt(const Route& route, const std::string& sentence)
{
    return std::any_of(route.sentences.begin(), route.sentences.end(),
                       [&](const char* part) { return sentence.find(part) != std::string::npos; });
}

void count(Told& told, const Route& route, const Asked& asked, const std::string& typed)
{
    const Json mark = asked.mark(typed);
    const std::string verdict = mark["verdict"];
    const bool isRight = verdict == "correct" || verdict == "figures";
    const bool fits = !isRight && isAboutIt(route, textOf(mark["sentence"]));
    const bool isAnother = !fits && (verdict == "slip" || verdict == "power-of-ten");
    const bool isClose = !fits && verdict == "close";
    ++told.all;
    told.fits += fits ? 1 : 0;
    told.another += isAnother ? 1 : 0;
    told.close += isClose ? 1 : 0;
    told.right += isRight ? 1 : 0;
    told.nothing += fits || isAnother || isClose || isRight ? 0 : 1;
    if (!fits && (isRight || told.example.empty())) {
        told.example = std::to_string(asked.paper) + "/" + std::to_string(asked.number) + " " +
                       asked.kind + " '" + typed + "' for " + asked.keyText() + ": " + mark.dump();
    }
}

void print(const std::string& kind, const Route& route, const Told& told)
{
    std::printf("%-20s %-44s %4d through: %4d its sentence, %4d another's, %3d close, %4d not yet, "
                "%d right\n",
                kind.c_str(), route.name, told.all, told.fits, told.another, told.close,
                told.nothing, told.right);
}

} // namespace

void checkRoutes(const std::string& kind, const std::vector<Route>& routes)
{
    constexpr unsigned least = 300;
    constexpr unsigned most = 3000;
    constexpr int enough = 10; // a route that few exercises have tells nothing about shares
    const std::vector<Asked> exercises =
        firstExercises(kind, std::clamp(papersToCheck(), least, most));
    int all = 0;
    int told = 0;
    for (const Route& route : routes) {
        Told ofRoute;
        for (const Asked& asked : exercises) {
            if (const std::optional<std::string> typed = route.typed(asked)) {
                count(ofRoute, route, asked, *typed);
            }
        }
        if (ofRoute.all > 0) {
            print(kind, route, ofRoute);
        }
        all += ofRoute.all;
        told += ofRoute.fits + ofRoute.another;
        EXPECT_EQ(ofRoute.right, 0) << kind << ", " << route.name << ": " << ofRoute.example;
        EXPECT_TRUE(ofRoute.all < enough || 2 * ofRoute.fits >= ofRoute.all)
            << kind << ", " << route.name << ": its sentence in " << ofRoute.fits << " of "
            << ofRoute.all << ", for example not " << ofRoute.example;
    }
    EXPECT_GE(10 * told, 9 * all) << kind;
}
