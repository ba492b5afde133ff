// The relative atomic masses that exercises cannot be worked out without.
import { kindInfo, type Page } from "../shared/page";
import type { ElementInfo, Exercise, Given, GivenQuantity } from "../types";

// In the order of the periodic table; none where each molar mass is given.
export function massesNeeded(exercises: Exercise[], page: Page): ElementInfo[] {
    const formulas = exercises.flatMap((exercise) => formulasToWeigh(exercise, page));
    const symbols = new Set(formulas.flatMap((formula) => formula.match(/[A-Z][a-z]?/g) ?? []));
    // The elements take a while to get.
    return symbols.size === 0 ? [] : page.lesson.tables().elements.filter(({ symbol }) => symbols.has(symbol));
}

// Of the substances whose molar mass is asked for, or needed and not told.
function formulasToWeigh({ kind, ask, given }: Exercise, page: Page): string[] {
    if (kindInfo(page, kind)?.masses !== true) {
        return [];
    }
    const hidden = given.filter((one): one is GivenQuantity => isMolarMass(one) && one.shown === "");
    return ask.quantity === "M" ? [ask.of ?? ""] : hidden.map((one) => one.of);
}

function isMolarMass(given: Given): given is GivenQuantity {
    return "quantity" in given && given.quantity === "M";
}
