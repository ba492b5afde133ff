// Numbers of the page's own as the reader writes them, and units as plain text and as they are said.
import type { Settings } from "../types";
import { unitWords } from "../words/unit-words";

export function localNumber(number: string, { decimal }: Settings): string {
    return number.replace(".", decimal);
}

export function spokenUnit(unit: string, { names }: Settings): string {
    return unitWords[names][unit] ?? unit;
}

// For a label or a drawing: "mol dm-3" -> "mol dm⁻³".
export function plainUnit(unit: string): string {
    return unit
        .replace("-3", "⁻³")
        .replace("-1", "⁻¹")
        .replace(/([a-z])3/, "$1³");
}
