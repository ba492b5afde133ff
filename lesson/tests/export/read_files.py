#!/usr/bin/env python3
"""Reads the exported files as Moodle and Anki read them, and answers every question by the file alone.

    read_files.py PRINT_JSON [EMULATOR…]

PRINT_JSON is the program that prints the files, and beside them the same exercises as JSON, which
say what the answers are. Nothing here is from the library: the XML and the lines are read by Python's
own readers, numbers are exact fractions, and what agrees with a value is worked out anew. Prints what
is wrong, and ends with status 1 if anything is.
"""
import csv
import html.parser
import io
import json
import re
import subprocess
import sys
import unicodedata
import xml.etree.ElementTree as xml
from fractions import Fraction

CARD_FORMS = ("formula", "ion", "solubility")
COUNT = 40
PAPERS = (1, 4821)

BEFORE_TYPE = ["name", "questiontext", "generalfeedback", "defaultgrade", "penalty", "hidden",
               "idnumber"]
OF_TYPE = {
    "numerical": ["answer", "units", "unitgradingtype", "unitpenalty", "showunits", "unitsleft"],
    "shortanswer": ["usecase", "answer"],
    "multichoice": ["single", "shuffleanswers", "answernumbering", "answer"],
    "cloze": [],
}
# A kind of powers of ten in every spelling that is typed, each with its exponent below and above.
POWERS = ("e{n}", "E{n}", "x10^{n}", " x 10^{n}", "*10^{n}", "×10^{n}", " × 10{r}", "×10{r}",
          " x 10{r}", "·10^{n}", " · 10{r}", "X10^{n}", " X 10^{n}", "x10^{{{n}}}", " x 10^{{{n}}}")
MILLIMOLES = ("mmol/L", "mmol/dm3", "mmol/dm^3", "mmol L-1", "mmol L^-1", "mmol L⁻¹", "mmol dm-3",
              "mmol dm^-3", "mmol dm⁻³", "mmol·L⁻¹", "mmol·dm⁻³", "mmol.dm-3", "mM")
UNITS = {"mol/L": ("mol/L", "mol/dm3", "mol dm-3", "mol dm⁻³", "mol L-1", "M"), "mL": ("mL", "cm3"),
         "g": ("g",), "g/mol": ("g/mol", "g mol-1")}
TYPES = {"number": "numerical", "formula": "shortanswer", "ion": "shortanswer", "equation": "cloze"}

NOT_YET = "Not right yet. Write down what you know."
NOT_YET_IN_SYMBOLS = "Not right yet. Check each symbol and each number."

problems = []
tried = 0  # right numbers that were typed


def check(is_right, *what):
    if not is_right:
        problems.append(" ".join(str(part) for part in what))


def printed(*arguments):
    return subprocess.run([*sys.argv[2:], sys.argv[1], *arguments], check=True,
                          stdout=subprocess.PIPE).stdout.decode("utf-8")


SHEET = [(row["kind"], level) for row in json.loads(printed("kinds"))
         for level in range(1, len(row["levels"]) + 1)]


def exercises_of(paper):
    """Each exercise of the sheet, in its order."""
    for kind, level in SHEET:
        lines = printed("exercises", f"{kind}:{level}", str(paper), str(COUNT))
        for line in lines.splitlines():
            yield json.loads(line)


def plain(line):
    """Spans as they stand in a sentence: 25.0 mL, SO4^2-, V1(HCl)."""
    text = ""
    for before, span in zip([{}, *line], line):
        text += " " if "number" in before and "unit" in span else ""
        if "ion" in span:
            text += f"{span['ion']}^{span['charge']}"
        elif "quantity" in span:
            text += span["quantity"] + span.get("index", "") + (f"({span['of']})" if "of" in span else "")
        else:
            text += next(span[name] for name in ("text", "number", "unit", "name", "formula") if name in span)
    return text


def sheet(count):
    return ",".join(f"{count}*{kind}:{level}" for kind, level in SHEET)


# ------------------------------------------------------------------------------------ texts as HTML


class Words(html.parser.HTMLParser):
    """The words of a piece of HTML, which has to be well formed and plain."""
    ALLOWED = {"p", "ol", "li", "b", "i", "sub", "sup", "br"}

    def __init__(self, piece):
        super().__init__()
        self.words = ""
        self.open = []
        self.feed(piece)
        self.close()
        check(not self.open, "open tags", self.open, "in", piece)

    def handle_starttag(self, tag, attrs):
        check(tag in self.ALLOWED and not attrs, "tag", tag, attrs)
        if tag == "sup":
            self.words += "^"
        if tag != "br":
            self.open.append(tag)

    def handle_endtag(self, tag):
        check(self.open and self.open.pop() == tag, "end tag", tag)

    def handle_data(self, data):
        self.words += data


def words_of(piece):
    return Words(piece).words


def words_of_line(spans):
    """The same of a line of spans without fractions."""
    words, was_number = "", False
    for span in spans:
        if "unit" in span:
            words += ("\u202f" if was_number else "") + span["unit"]
        elif "formula" in span:
            words += span["formula"].replace(".", "·")
        elif "ion" in span:
            words += span["ion"] + "^" + span["charge"].replace("-", "−")
        elif "quantity" in span:
            words += span["quantity"] + span.get("index", "")
        else:
            words += span.get("text") or span.get("number") or span.get("name") or "?"
        was_number = "number" in span
    return words


# -------------------------------------------------------------------------------- marked as Moodle


def answers_of(question):
    """Fraction, text, tolerance and sentence of each answer."""
    return [(int(answer.get("fraction")), answer.findtext("text"), answer.findtext("tolerance"),
             answer.findtext("feedback/text")) for answer in question.findall("answer")]


def number_and_unit(response):
    """As Moodle takes a response apart: blanks go, the powers of ten that it knows are an e, and what
    is behind the number is the unit."""
    response = response.replace(" ", "")
    response = re.sub(r"(?:e|E|(?:x|\*|×)10(?:\^|\*\*))([+-]?[0-9]+)", r"e\1", response)
    match = re.match(r"[+-]?(?:\d+(?:\.\d*)?|\.\d+)(?:[eE][-+]?\d+)?", response)
    return Fraction(match.group()), response[match.end():]


def marked_number(question, response):
    """The first answer within its tolerance, in the asked unit; a star takes every one."""
    value, unit = number_and_unit(response)
    for row in question.findall("units/unit"):
        if row.findtext("unit_name") == unit:
            value /= Fraction(row.findtext("multiplier"))
    for fraction, text, tolerance, sentence in answers_of(question):
        if text == "*" or abs(value - Fraction(text)) <= Fraction(tolerance):
            return fraction, sentence
    return 0, None


def marked_text(question, response):
    """The first answer that is the same, in which a star stands for anything."""
    ignores_case = question.findtext("usecase") == "0"
    for fraction, text, _, sentence in answers_of(question):
        pattern = ".*".join(re.escape(part) for part in re.split(r"(?<!\\)\*", text))
        if re.fullmatch(pattern, response.strip(), re.IGNORECASE if ignores_case else 0):
            return fraction, sentence
    return 0, None


# ------------------------------------------------------------------------------------- each type


def step_of(text):
    """One unit in the last figure: 0.0456 -> 0.0001."""
    decimals = len(text.partition(".")[2])
    return Fraction(1, 10**decimals)


def with_powers(key, unit):
    """A number in scientific notation, as it is typed: 0.258 -> 2.58×10⁻¹, 25.8 × 10⁻², …"""
    digits = key.replace(".", "").lstrip("0")
    own = len(str(int(Fraction(key)))) - 1 if Fraction(key) >= 1 else -len(
        re.match(r"0\.(0*)", key).group(1)) - 1
    for shift in (0, 1, 2):
        power = own - shift
        typed = digits[:shift + 1] + "." + (digits[shift + 1:] or "0")
        for pattern in POWERS + (("x10{n}", " x 10{n}") if power < 0 else ()):
            response = typed + pattern.format(n=power, r=str(power).translate(HIGH))
            if power != 0 or pattern[0] in "eE":
                yield response
                if shift == 0 and "10⁻" not in response.replace("×10", ""):
                    yield from (f"{response}{blank}{name}" for name in UNITS[unit] for blank in ("", " "))


def check_number(question, exercise, where):
    value = Fraction(str(exercise["key"]["value"]))
    key, unit = exercise["key"]["text"].split()
    figures = exercise["ask"]["figures"]
    # A whole number may end with zeros that are no figures.
    step = step_of(key) * (10**(len(key) - figures) if "." not in key else 1)
    check(answers_of(question)[0][1] == key, where, "the first answer is not", key)
    right = [f"{key} {unit}", f"{key}", f" {key}{unit} "]
    for steps in range(-12, 13):
        typed = Fraction(key) + steps * step
        is_near = abs(steps) <= 1
        is_near |= exercise["kind"] != "molar-mass" and abs(typed - value) <= value / 200
        decimal = f"{float(typed):.{max(0, len(key.partition('.')[2]))}f}"
        if is_near:
            right.append(decimal)
        elif abs(typed - value) > value / 100:
            fraction, told = marked_number(question, decimal)
            is_mass = told is not None and "rounded atomic masses" in told
            check(fraction < 100 or is_mass, where, decimal, "is right")
    small_units = {"mol/L": MILLIMOLES, "g": ("mg",)}.get(unit, ())
    right += [f"{float(Fraction(key) * 1000):.9g} {small}" for small in small_units]
    large_units = {"mL": ("L", "dm3", "dm^3"), "g": ("kg",)}.get(unit, ())
    right += [f"{float(Fraction(key) / 1000):.9g} {large}" for large in large_units]
    right += with_powers(key, unit)
    global tried
    tried += len(right)
    for response in right:
        check(marked_number(question, response)[0] == 100, where, response, "is not right")
    for factor in (Fraction(98, 100), Fraction(102, 100)):
        typed = f"{float(value * factor):.8g}"
        fraction, sentence = marked_number(question, typed)
        is_mass = sentence is not None and "rounded atomic masses" in sentence
        has_few_figures = len(typed.strip("0.")) < figures
        check(fraction == 0 or is_mass or has_few_figures, where, typed, "gets", fraction)
    slips = {}
    for slip in exercise["slips"]:
        typed = slip["text"].split()[0]
        sentence = plain(slip["sentence"])
        slips[Fraction(typed)] = sentence
        check(marked_number(question, typed) == (0, sentence), where, typed, "gets",
              marked_number(question, typed), "and not", sentence)
        check(marked_number(question, slip["text"]) == (0, sentence), where, slip["text"])
    has_volumes = exercise["kind"] != "molar-mass"
    for power in (-3, -2, -1, 1, 2, 3):
        typed = Fraction(key) * Fraction(10)**power
        fraction, told = marked_number(question, f"{float(typed):.12f}")
        sentence = "Right digits, wrong size."
        if has_volumes and abs(power) == 3 and not (unit == "g" and told == sentence):
            sentence += " Check each volume: mL or L?"
        check(fraction == 0 and (told == sentence or told in slips.values()), where, float(typed),
              "gets", fraction, told)
    units = [(row.findtext("unit_name"), row.findtext("multiplier"))
             for row in question.findall("units/unit")]
    check(units[0] == (unit, "1"), where, "the first unit is", units[0])
    # Moodle's table of units has no two that differ by capitals alone.
    names = {unicodedata.normalize("NFKC", name).casefold() for name, _ in units}
    check(len(names) == len(units), where, "a unit stands twice")
    check(marked_number(question, "7.77e-17") == (0, NOT_YET), where, "of anything else is said",
          marked_number(question, "7.77e-17"))


LOW = str.maketrans("0123456789", "₀₁₂₃₄₅₆₇₈₉")
HIGH = str.maketrans("0123456789+-", "⁰¹²³⁴⁵⁶⁷⁸⁹⁺⁻")


def spellings_of(key):
    """A formula, or an ion "SO4^2-", as people type it."""
    formula, has_charge, charge = key.partition("^")
    if not has_charge:
        return [key, key.translate(LOW)]
    size, sign = charge[:-1], charge[-1]
    return [formula + charge, f"{formula}^{charge}", f"{formula}^{{{charge}}}", f"{formula} {charge}",
            f"{formula}{sign}{size}", f"{formula}^{sign}{size}", formula + charge.translate(HIGH),
            formula.translate(LOW) + charge.translate(HIGH), f"{formula}{size or 1}{sign}",
            f"{formula}^{size or 1}{sign}", formula + sign * int(size or 1)]


def check_text(question, exercise, where):
    key = exercise["key"]["text"]
    *answers, anything_else = answers_of(question)
    check(anything_else == (0, "*", None, NOT_YET_IN_SYMBOLS), where, "the last answer")
    check(answers[0][:2] == (100, key), where, "the first answer is", answers[0])
    check(question.findtext("usecase") == ("0" if key == "none" else "1"), where, "usecase")
    check(all(text.strip() == text and text and not set(text) & set("*\\") for _, text, _, _ in
              answers), where, "an answer cannot be typed")
    check(len({text for _, text, _, _ in answers}) == len(answers), where, "an answer stands twice")
    right = [key]
    if key == "none":
        right += ["None", "NO", "nothing", "no precipitate", "No precipitate"]
    else:
        right += spellings_of(key)
    for response in right:
        check(marked_text(question, response)[0] == 100, where, response, "is not right")
    for slip in exercise["slips"]:
        check(marked_text(question, slip["text"]) == (0, plain(slip["sentence"])), where, slip["text"],
              "gets", marked_text(question, slip["text"]))
    if key != "none":
        check(marked_text(question, "none")[0] == 0, where, "none is right")
        for zeros in {key.replace("O", "0"), key.replace("O", "0", 1)} - {key}:
            told = marked_text(question, zeros)
            check(told[0] == 0 and "zero" in told[1], where, zeros, "gets", told)


def check_choice(question, exercise, where):
    answers = answers_of(question)
    check(question.findtext("single") == "true", where, "more than one answer may be chosen")
    check([text for _, text, _, _ in answers] == exercise["ask"]["choices"], where, "choices")
    right = [text for fraction, text, _, _ in answers if fraction == 100]
    check(right == [exercise["key"]["text"]], where, "right is", right)
    for _, _, _, sentence in answers:
        check("soluble" in sentence, where, "no rule in", sentence)


GAP = (r"\{1:NUMERICAL:=(\d+):0~%0%(\d+):0#Are all doubled\? Use the smallest whole numbers\."
       r"([^{}]*)\}")


def check_gaps(question, exercise, where):
    text = question.findtext("questiontext/text")
    gaps = re.findall(r"\{1:NUMERICAL:=(\d+):0~", text)
    for gap, doubled, others in re.findall(GAP, text):
        check(int(doubled) == 2 * int(gap), where, gap, "is not doubled to", doubled)
        check((f"~%0%{int(gap) / 2}:0#Use whole numbers." if int(gap) % 2 else "") == others, others)
    text = re.sub(GAP, r"{\1}", text)
    sides = exercise["equation"]["left"] + exercise["equation"]["right"]
    check([int(gap) for gap in gaps] == [count for count, _ in sides], where, "gaps", gaps)
    check(text.count("{") == len(gaps) == text.count("}"), where, "other brackets")
    line = next(part for part in text.split("</p>") if "{" in part)
    filled = re.sub(r"\{(\d+)\} ", r"\1", words_of(line + "</p>"))
    key = exercise["key"]["text"].replace("->", "→")
    check(re.sub(r"\b1(?=[A-Z(])", "", filled) == key, where, filled, "is not", key)


CHECKS = {"numerical": check_number, "shortanswer": check_text, "multichoice": check_choice,
          "cloze": check_gaps}


# ------------------------------------------------------------------------------------ whole files


def check_order(question, where):
    """The elements stand in the order in which Moodle writes them."""
    kind = question.get("type")
    order = [tag for tag in BEFORE_TYPE if kind != "cloze" or tag != "defaultgrade"]
    order += OF_TYPE[kind] + ["hint", "tags"]
    found = []
    for element in question:
        if not found or found[-1] != element.tag:
            found.append(element.tag)
    check(found == order, where, "has", found)


def check_question(question, exercise, names):
    kind, level, number = exercise["kind"], exercise["level"], exercise["number"]
    name = question.findtext("name/text")
    where = f"{name}:"
    check(name == f"Paper {exercise['paper']}, {kind}, level {level}, number {number}", where)
    check(name not in names, where, "stands twice")
    names.add(name)
    check(question.findtext("idnumber") == f"{exercise['paper']}-{kind}-{level}-{number}", where, "id")
    check([tag.text for tag in question.findall("tags/tag/text")] == [kind, f"level {level}"], where)
    expected = TYPES.get(exercise["ask"]["form"]) or (
        "multichoice" if "choices" in exercise["ask"] else "shortanswer")
    check(question.get("type") == expected, where, "is", question.get("type"))
    check_order(question, where)
    check({fraction for fraction, *_ in answers_of(question)} <= {100, 50, 0}, where, "fractions")
    for answer in question.findall("answer"):
        check(answer.findtext("feedback/text"), where, "an answer without a sentence")
    text = question.findtext("questiontext/text")
    check(words_of(text.split("</p>")[0] + "</p>") == words_of_line(exercise["prompt"]), where, text)
    words_of(text)
    solution = words_of(question.findtext("generalfeedback/text"))
    for step in exercise["solution"]:
        check(words_of_line(step["say"]) in solution, where, "the solution lacks", step["say"])
    check_hints(question, exercise, where)
    file = xml.tostring(question, encoding="unicode")
    check("Show a step" not in file and "button" not in file, where, "names a button")
    CHECKS[question.get("type")](question, exercise, where)


def check_hints(question, exercise, where):
    """One try more than hints: what helps with the first step, then the steps before the answer's."""
    steps = exercise["solution"]
    is_number = exercise["ask"]["form"] == "number"
    key = exercise["key"]["text"].replace("->", "→").replace(" ", "\u202f" if is_number else " ")
    results = [i for i, step in enumerate(steps)
               if exercise["ask"]["form"] in ("number", "equation")
               and words_of_line(step["math"]).endswith(key)]
    expected = [steps[0]["hint"]] if steps[0]["hint"] else []
    expected += [step["say"] for step in steps[:min(results + [len(steps) - 1])]]
    hints = question.findall("hint")
    check(len(hints) == len(expected) > 0, where, "has", len(hints), "hints")
    for hint in hints:
        if is_number or question.get("type") == "cloze":
            check(key not in words_of(hint.findtext("text")), where, "a hint tells the answer", hint)
    for hint, line in zip(hints, expected):
        check(hint.get("format") == "html", where, "the format of a hint")
        check(words_of_line(line) in words_of(hint.findtext("text")), where, "hint", hint)
        for option in ("shownumcorrect", "clearwrong"):
            check((hint.find(option) is not None) == (question.get("type") == "cloze"), where, option)


def check_moodle():
    names = set()
    for paper in PAPERS:
        file = printed("export", "moodle", str(paper), sheet(COUNT))
        category, *questions = xml.fromstring(file.encode("utf-8"))
        check(category.get("type") == "category" and category.findtext("category/text") ==
              f"top/Chemical calculations practice/Paper {paper}", "the category")
        exercises = list(exercises_of(paper))
        check(len(questions) == len(exercises) == COUNT * len(SHEET), "the number of questions")
        for question, exercise in zip(questions, exercises):
            check_question(question, exercise, names)


def check_anki():
    for paper in PAPERS:
        lines = printed("export", "anki", str(paper), sheet(COUNT)).splitlines()
        header = [line for line in lines if line.startswith("#")]
        check(lines[:len(header)] == header, "the header is not in front")
        check(header[:5] == ["#separator:Tab", "#html:true", "#notetype:Basic",
                             "#deck:Chemical calculations practice", "#tags column:3"], header)
        cards = list(csv.reader(io.StringIO("\n".join(lines[len(header):])), delimiter="\t",
                                strict=True))
        asked = {}
        others = 0
        for exercise in exercises_of(paper):
            if exercise["ask"]["form"] in CARD_FORMS:
                asked.setdefault(words_of_line(exercise["prompt"]), exercise)
            else:
                others += 1
        again = COUNT * len(SHEET) - others - len(asked)
        told = [int(re.match(r"# (\d+) [^:]*\.$", line).group(1)) for line in header[5:]]
        check(told == [others, again], "left out are", [others, again], "and not", told)
        check([words_of(card[0]) for card in cards] == list(asked), "the fronts of the cards")
        check(len({re.sub("<[^>]*>", "", card[0]) for card in cards}) == len(cards), "fronts twice")
        for card, exercise in zip(cards, asked.values()):
            check_card(card, exercise, paper)


def check_card(card, exercise, paper):
    where = f"card of paper {paper}, {card}:"
    check(len(card) == 3 and '"' not in "".join(card), where, "fields")
    key = re.match("<b>(.*?)</b>", card[1]).group(1)
    check(words_of(key).replace("−", "-") == exercise["key"]["text"], where, key)
    check(words_of(card[1]), where)
    check(card[2].split() == [exercise["kind"], f"level-{exercise['level']}", f"paper-{paper}"], where)


check_moodle()
check_anki()
for problem in problems[:20]:
    print(problem)
print(f"{tried} right numbers typed, {len(problems)} problems")
sys.exit(1 if problems else 0)
