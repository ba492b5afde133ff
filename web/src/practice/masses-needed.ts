// The relative atomic masses that exercises cannot be worked out without.
import type { ElementInfo, Exercise, Given, GivenQuantity } from "../types";

// In the order of the periodic table; none where each molar mass is given.
export function massesNeeded(exercises: Exercise[], elements: ElementInfo[]): ElementInfo[] {
    const symbols = new Set(exercises.flatMap(formulasToWeigh).flatMap((formula) => formula.match(/[A-Z][a-z]?/g) ?? []));
    return elements.filter((element) => symbols.has(element.symbol));
}

// Tells so without the elements, which take a while to get.
export function needsMasses(exercise: Exercise): boolean {
    return formulasToWeigh(exercise).length > 0;
}

// Of the substances whose molar mass is asked for, or needed and not told.
function formulasToWeigh({ ask, given }: Exercise): string[] {
    const hidden = given.filter((one): one is GivenQuantity => isMolarMass(one) && one.shown === "");
    return ask.quantity === "M" ? [ask.of ?? ""] : hidden.map((one) => one.of);
}

function isMolarMass(given: Given): given is GivenQuantity {
    return "quantity" in given && given.quantity === "M";
}
