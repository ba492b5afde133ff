// Numbers and units as the reader writes them, and units as they are said.
import type { Settings } from "../types";

export function localNumber(number: string, settings: Settings): string {
    return number.replace(".", settings.decimal);
}

// "mol/L" with the reader's volume and fraction line: "mol dm-3".
export function localUnit(unit: string, settings: Settings): string {
    const volumes = settings.volume === "cm3" ? unit.replace("mL", "cm3").replace(/L$/, "dm3") : unit;
    const [above = "", below] = volumes.split("/");
    if (below === undefined || settings.per === "slash") {
        return volumes;
    }
    return below.endsWith("3") ? `${above} ${below.slice(0, -1)}-3` : `${above} ${below}-1`;
}

const spokenUnits: Record<string, string> = {
    "mL": "millilitres",
    "cm3": "cubic centimetres",
    "L": "litres",
    "dm3": "cubic decimetres",
    "g": "grams",
    "mol": "moles",
    "g/mol": "grams per mole",
    "g mol-1": "grams per mole",
    "g/L": "grams per litre",
    "g L-1": "grams per litre",
    "g/dm3": "grams per cubic decimetre",
    "g dm-3": "grams per cubic decimetre",
    "mol/L": "moles per litre",
    "mol L-1": "moles per litre",
    "mol/dm3": "moles per cubic decimetre",
    "mol dm-3": "moles per cubic decimetre",
};

export function spokenUnit(unit: string): string {
    return spokenUnits[unit] ?? unit;
}

// As plain text, for a label or a file: "mol dm⁻³".
export function plainUnit(unit: string, settings: Settings): string {
    return localUnit(unit, settings)
        .replace("-3", "⁻³")
        .replace("-1", "⁻¹")
        .replace(/([a-z])3/, "$1³");
}
