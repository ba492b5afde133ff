// A formula as it is seen and as it is said.
import { type Piece, shifted } from "./pieces";

// Digits behind a letter or a bracket are subscripts; those at the front of a part count it.
export function formulaPieces(formula: string): Piece[] {
    return shifted(formula.replaceAll(".", "·"), /(.*?[A-Za-z)\]])(\d+)|.+/gs, "sub");
}

// "H2SO4" as it is said, "H 2 S O 4".
export function spokenFormula(formula: string): string {
    return formula
        .replace(/[()[\]]/g, " bracket ")
        .replaceAll(".", " dot ")
        .replace(/([A-Z][a-z]?|\d+)/g, " $1 ")
        .replace(/([A-Z])([a-z])/g, "$1 $2")
        .replace(/\s+/g, " ")
        .trim();
}

export function spokenCharge(charge: string): string {
    return charge.replace("+", " plus").replace("-", " minus").trim();
}
