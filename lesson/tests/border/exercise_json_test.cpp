#include "lesson/border/exercise_json.hpp"
#include "lesson/kinds/kinds.hpp"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <string>

#include "lesson/tests/support/plain.hpp"
#include "lesson/words/say.hpp"

namespace lesson
{

namespace
{

using Json = nlohmann::ordered_json;

Exercise titration()
{
    Exercise exercise;
    exercise.place = {4821, 3, &titrationKind, 2};
    exercise.description = "titration;titre=21.70";
    exercise.prompt = line("Titrated with ", measure("0.105", "mol/L"), " ", formula("HCl"), ".");
    exercise.ask = {Form::number, "c", "Na2CO3", "mol/L", 3, {}};
    GivenQuantity titre = {"V", "HCl", ratio(217, 10000), "L", "21.70", "mL"};
    titre.titres = {2210, 2170, 2175};
    titre.role = VolumeRole::titre;
    exercise.given = {
        GivenQuantity{"c", "HCl", ratio(105, 1000), "mol/L", "0.105", "mol/L"},
        titre,
        GivenQuantity{"V", "Na2CO3", ratio(25, 1000), "L", "25.0", "mL", {}, VolumeRole::aliquot},
        GivenQuantity{"M", "HCl", ratio(36458, 1000), "g/mol", "", ""},
    };
    exercise.equation =
        Equation{{{2, "HCl"}, {1, "Na2CO3"}}, {{2, "NaCl"}, {1, "H2O"}, {1, "CO2"}}};
    exercise.key = measure("0.0456", "mol/L");
    exercise.answer = NumberAnswer{ratio(45570, 1000000)};
    exercise.solution = {{line("Ratio."), line(quantity("n", "HCl"), " = ", number("2.28e-3")),
                          line("How many react with one?")},
                         {line("Check."), {}}};
    exercise.slips = {{"0.182 mol/L", ratio(18228, 100000), line("Look at the numbers.")}};
    return exercise;
}

TEST(ExerciseJsonTest, ATitrationInItsOrder)
{
    const char* const expected =
        R"({"version":1,"paper":4821,"number":3,"kind":"titration","level":2,
        "description":"titration;titre=21.70",
        "prompt":[{"text":"Titrated with "},{"number":"0.105"},{"unit":"mol/L"},{"text":" "},
                  {"formula":"HCl"},{"text":"."}],
        "ask":{"form":"number","quantity":"c","of":"Na2CO3","unit":"mol/L","figures":3},
        "given":[{"quantity":"c","of":"HCl","value":0.105,"unit":"mol/L","shown":"0.105","shownUnit":"mol/L"},
                 {"quantity":"V","of":"HCl","value":0.0217,"unit":"L","shown":"21.70","shownUnit":"mL",
                  "titres":[22.10,21.70,21.75],"role":"titre"},
                 {"quantity":"V","of":"Na2CO3","value":0.025,"unit":"L","shown":"25.0","shownUnit":"mL",
                  "role":"aliquot"},
                 {"quantity":"M","of":"HCl","value":36.458,"unit":"g/mol","shown":"","shownUnit":""}],
        "equation":{"left":[[2,"HCl"],[1,"Na2CO3"]],"right":[[2,"NaCl"],[1,"H2O"],[1,"CO2"]]},
        "key":{"text":"0.0456 mol/L","spans":[{"number":"0.0456"},{"unit":"mol/L"}],"value":0.04557},
        "solution":[{"say":[{"text":"Ratio."}],
                     "math":[{"quantity":"n","of":"HCl"},{"text":" = "},{"number":"2.28e-3"}],
                     "hint":[{"text":"How many react with one?"}]},
                    {"say":[{"text":"Check."}],"math":[],"hint":[]}],
        "slips":[{"text":"0.182 mol/L","value":0.18228,"sentence":[{"text":"Look at the numbers."}]}]})";
    EXPECT_EQ(Json::parse(exerciseJson(titration(), Writing())).dump(1),
              Json::parse(expected).dump(1));
    EXPECT_NE(exerciseJson(titration(), Writing()).find("[22.10,21.70,21.75]"), std::string::npos)
        << "titres keep their two decimals";
}

TEST(ExerciseJsonTest, IonsCompoundsAndChoices)
{
    Exercise exercise;
    exercise.place = {1, 1, &solubilityKind, 1};
    exercise.ask = {Form::solubility, "", "", "", 0, {Sentence::answerYes, Sentence::answerNo}};
    exercise.given = {
        GivenIon{findIon("SO4", -2)}, GivenIon{findIon("aluminium")},
        GivenCompound{"CuSO4.5H2O", nameOf(*findIon("copper(II)"), *findIon("sulfate"), 5)}};
    exercise.key = {say<Sentence::answerYes>()};
    exercise.answer = SolubilityAnswer{true, line("rule")};
    exercise.slips = {{"Al2SO43", {}, line("sentence")}};
    const Json json = Json::parse(exerciseJson(exercise, Writing()));
    EXPECT_EQ(json["ask"].dump(), R"({"form":"solubility","choices":["yes","no"]})");
    EXPECT_EQ(json["given"].dump(),
              R"([{"ion":"SO4","charge":-2,"name":"sulfate"},)"
              R"({"ion":"Al","charge":3,"name":"aluminium"},)"
              R"({"compound":"CuSO4.5H2O","name":"copper(II) sulfate pentahydrate"}])");
    EXPECT_EQ(json["key"].dump(), R"({"text":"yes","spans":[{"text":"yes"}]})");
    EXPECT_EQ(json["slips"].dump(), R"([{"text":"Al2SO43","sentence":[{"text":"sentence"}]}])");
    EXPECT_FALSE(json.contains("equation"));
}

TEST(ExerciseJsonTest, EverySpanHasTheMembersThatApply)
{
    struct Case {
        Span span;
        const char* text;
    };
    const Case cases[] = {
        {line("words").front(), R"({"text":"words"})"},
        {formula("Ca(OH)2"), R"({"formula":"Ca(OH)2"})"},
        {ionSpan("SO4", "2-"), R"({"ion":"SO4","charge":"2-"})"},
        {quantity("V"), R"({"quantity":"V"})"},
        {quantity("V", "HCl"), R"({"quantity":"V","of":"HCl"})"},
        {quantity("V", "", "1"), R"({"quantity":"V","index":"1"})"},
        {quantity("V", "HCl", "1"), R"({"quantity":"V","of":"HCl","index":"1"})"},
        {number("5.00e-5"), R"({"number":"5.00e-5"})"},
        {unit("mL"), R"({"unit":"mL"})"},
        {fraction(line(quantity("m")), line(quantity("M"), " ", fraction(line("a"), {}))),
         R"({"fraction":[[{"quantity":"m"}],[{"quantity":"M"},{"text":" "},)"
         R"({"fraction":[[{"text":"a"}],[]]}]]})"},
        {name(nameOf(*findIon("aluminium"))), R"({"name":"aluminium"})"},
        {say<Sentence::answerYes>(), R"({"text":"yes"})"},
    };
    for (const Case& one : cases) {
        Exercise exercise;
        exercise.place = {1, 1, &molarMassKind, 1};
        exercise.prompt = {one.span};
        EXPECT_EQ(Json::parse(exerciseJson(exercise, Writing()))["prompt"][0].dump(), one.text);
    }
}

TEST(ExerciseJsonTest, EveryForm)
{
    struct Case {
        Form form;
        const char* name;
    };
    const Case cases[] = {{Form::number, "number"},
                          {Form::formula, "formula"},
                          {Form::ion, "ion"},
                          {Form::equation, "equation"},
                          {Form::solubility, "solubility"}};
    for (const Case& one : cases) {
        Exercise exercise;
        exercise.place = {1, 1, &molarMassKind, 1};
        exercise.ask.form = one.form;
        EXPECT_EQ(Json::parse(exerciseJson(exercise, Writing()))["ask"]["form"], one.name);
    }
}

TEST(ReadJsonTest, SpansOrNone)
{
    EXPECT_EQ(readJson(line(number("4.5e-2"), unit("mol/L")), Writing()),
              R"({"read":[{"number":"4.5e-2"},{"unit":"mol/L"}]})");
    EXPECT_EQ(readJson(line(ionSpan("SO4", "2-")), Writing()),
              R"({"read":[{"ion":"SO4","charge":"2-"}]})");
    EXPECT_EQ(readJson(std::nullopt, Writing()), R"({"read":[]})");
}

TEST(MarkJsonTest, EveryVerdict)
{
    struct Case {
        Verdict verdict;
        const char* text;
    };
    const Case cases[] = {
        {Verdict::correct, R"({"verdict":"correct","sentence":[{"text":"s"}]})"},
        {Verdict::figures, R"({"verdict":"figures","sentence":[{"text":"s"}]})"},
        {Verdict::slip, R"({"verdict":"slip","sentence":[{"text":"s"}]})"},
        {Verdict::powerOfTen, R"({"verdict":"power-of-ten","sentence":[{"text":"s"}]})"},
        {Verdict::close, R"({"verdict":"close","sentence":[{"text":"s"}]})"},
        {Verdict::wrong, R"({"verdict":"wrong","sentence":[{"text":"s"}]})"},
        {Verdict::unreadable, R"({"verdict":"unreadable","sentence":[{"text":"s"}]})"},
    };
    for (const Case& one : cases) {
        EXPECT_EQ(markJson({one.verdict, line("s")}, Writing()), one.text);
    }
}

} // namespace

} // namespace lesson
