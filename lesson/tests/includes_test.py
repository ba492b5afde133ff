"""Compares what the sources of the library include with the table of its README."""

import pathlib
import re
import sys

library = pathlib.Path(__file__).resolve().parent.parent


def allowed():
    """Of each folder those that it may include, itself among them."""
    row = re.compile(r"^\| `(\w+)` \|.*\| ([^|]*) ?\|$", re.MULTILINE)
    rows = row.findall((library / "README.md").read_text(encoding="utf-8"))
    return {folder: {folder, *re.findall(r"`(\w+)`", others)} for folder, others in rows}


def includes(path):
    return re.findall(r'^#include "([^"]+)"', path.read_text(encoding="utf-8"), re.MULTILINE)


def problem(folder, included, rooms):
    """What is wrong with one line; none for the headers that are for all."""
    if included in ("lesson/exercise.hpp", "lesson/lesson.h", "lesson/words/sentences.hpp"):
        return None
    parts = included.split("/")
    if parts[0] != "lesson":
        return "is not of the library"
    return None if parts[1] in rooms[folder] else f"{folder} may not include {parts[1]}"


def main():
    rooms = allowed()
    problems = []
    count = 0
    for folder in rooms:
        for path in sorted((library / folder).rglob("*.[ch]pp")):
            for included in includes(path):
                count += 1
                wrong = problem(folder, included, rooms)
                if wrong:
                    problems.append(f"{path.relative_to(library)}: {included}: {wrong}")
    print(f"{count} includes of {len(rooms)} folders, {len(problems)} problems")
    print("\n".join(problems))
    return 1 if problems or count < 100 else 0


sys.exit(main())
