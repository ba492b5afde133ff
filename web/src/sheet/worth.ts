// How many marks an exercise is worth on a test, from the lines of its solution.
import type { Exercise, Span, Step } from "../types";

const relation = "relation";

// A formula or a word is worth one, an equation one for its formulas and one for balancing them where
// that is to be done. A calculation is worth one for each quantity that is worked out and for an equation
// or a relation that it begins with, and none for converting units or for a check.
export function marksOf({ ask, equation, solution }: Exercise): number {
    switch (ask.form) {
        case "number":
            return gainsOf(solution).size;
        case "equation":
            return [...(equation?.left ?? []), ...(equation?.right ?? [])].some(([count]) => count > 1) ? 2 : 1;
        default:
            return 1;
    }
}

// Whether a value that is worked out is used to work out another one.
export function goesOn({ ask, solution }: Exercise): boolean {
    return ask.form === "number" && [...gainsOf(solution)].filter((gain) => gain !== relation).length > 1;
}

function gainsOf(solution: Step[]): Set<string> {
    return new Set(solution.flatMap(({ math }) => gainOf(math ?? [])));
}

// What a line is worth a mark for, at most one; a check works out what an earlier line has.
function gainOf(math: Span[]): string[] {
    const units = math.filter((span) => "unit" in span).length;
    const signs = math.flatMap((span) => ("text" in span ? span.text.trim() : []));
    const isRelation = units === 0 && (signs.includes("=") || signs.includes("→"));
    return isRelation ? [relation] : units === 1 ? [JSON.stringify(math[0])] : [];
}
