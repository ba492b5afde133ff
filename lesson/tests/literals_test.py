"""Looks for words of a language in the string literals of the folders that have none."""

import pathlib
import re
import sys

library = pathlib.Path(__file__).resolve().parent.parent
FOLDERS = ["chemistry", "kinds", "paper", "numbers", "marking"]
SYMBOLS = {"mol", "aq"}  # of units and states

# Comments, what a static_assert tells the programmer, includes, characters; then the literals.
PASSED_OVER = r"""//[^\n]*|#include[^\n]*|static_assert\(.*?\);|'(?:[^'\\\n]|\\.)*'"""
LITERAL = r'"((?:[^"\\\n]|\\.)*)"'


def literals(source):
    """Each with its line."""
    for found in re.finditer(f"{PASSED_OVER}|{LITERAL}", source, re.DOTALL):
        if found.group(1) is not None:
            yield source.count("\n", 0, found.start()) + 1, found.group(1)


def named_in_texts():
    """What stands in the texts that name an exercise: slugs, fields and their values."""
    page = (library.parent / "docs" / "lesson.md").read_text(encoding="utf-8")
    section = page.split("`exercise` names an exercise")[1].split("`writing` tells")[0]
    quoted = set(re.findall(r"`([^`]+)`", section))
    described = [part for text in quoted for part in re.split("[;=]", text)]
    return quoted.union(described)


def words(literal, named):
    """Of a literal that is no name in such a text."""
    return [] if literal in named else [w for w in re.findall("[a-z]{2,}", literal) if w not in SYMBOLS]


def main():
    named = named_in_texts()
    problems = []
    count = 0
    for folder in FOLDERS:
        for path in sorted((library / folder).rglob("*.[ch]pp")):
            for line, literal in literals(path.read_text(encoding="utf-8")):
                count += 1
                if words(literal, named):
                    problems.append(f'{path.relative_to(library)}:{line}: "{literal}"')
    print(f"{count} literals of {len(FOLDERS)} folders, {len(problems)} with words")
    print("\n".join(problems))
    return 1 if problems or count < 100 else 0


sys.exit(main())
