// How units are said, each as it is shown, in a language.
type Words = { [unit: string]: string };

const british: Words = {
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

const american: Words = {
    ...british,
    "mL": "milliliters",
    "cm3": "cubic centimeters",
    "L": "liters",
    "dm3": "cubic decimeters",
    "g/L": "grams per liter",
    "g L-1": "grams per liter",
    "g/dm3": "grams per cubic decimeter",
    "g dm-3": "grams per cubic decimeter",
    "mol/L": "moles per liter",
    "mol L-1": "moles per liter",
    "mol/dm3": "moles per cubic decimeter",
    "mol dm-3": "moles per cubic decimeter",
};

export const unitWords = { british, american };
