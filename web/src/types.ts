// What the parts of the page tell each other. Imports nothing.

// One piece of a line; the library says what it is, so that the page guesses nothing.
export type Span =
    | { text: string }
    | { formula: string }
    | { ion: string; charge: string }
    | { quantity: string; of?: string; index?: string }
    | { number: string }
    | { unit: string }
    | { fraction: [Span[], Span[]] }
    | { name: string };

export type Form = "number" | "formula" | "ion" | "equation" | "solubility";

export interface Ask {
    form: Form;
    quantity?: string;
    of?: string;
    unit?: string;
    figures?: number;
    choices?: string[];
}

export interface GivenQuantity {
    quantity: string;
    of: string;
    value: number;
    unit: string;
    shown: string;
    shownUnit: string;
    role?: "titre" | "aliquot"; // of a titration's volumes
    titres?: number[];
}

export type Given = GivenQuantity | { ion: string; charge: number; name: string } | { compound: string; name: string };

export interface Step {
    say: Span[];
    math?: Span[];
    hint: Span[]; // helps to take the step, and gives nothing of it away
}

export interface Exercise {
    version: number;
    paper: number;
    number: number;
    kind: string;
    level: number;
    prompt: Span[];
    ask: Ask;
    given: Given[];
    equation?: { left: [number, string][]; right: [number, string][] };
    key: { text: string; spans: Span[]; value?: number };
    solution: Step[];
    slips: { text: string; value?: number; sentence: Span[] }[];
}

export type Verdict = "correct" | "figures" | "slip" | "power-of-ten" | "close" | "wrong" | "unreadable";

export interface Mark {
    verdict: Verdict;
    sentence: Span[];
}

export interface KindInfo {
    kind: string;
    version: number; // of its exercises
    title: string;
    levels: string[];
    drawing?: "dilution" | "titration";
    masses: boolean; // whether relative atomic masses may be needed
}

export interface ElementInfo {
    number: number;
    symbol: string;
    name: string;
    mass: string;
    period: number;
    group: number;
}

export interface IonInfo {
    name: string;
    formula: string;
    charge: number;
}

export interface PairInfo {
    cation: string;
    anion: string;
    formula?: string; // where the compound exists
    verdict: "soluble" | "insoluble" | "not asked";
    reason: Span[];
}

// What is learnt of the salts of one anion.
export interface RuleInfo {
    anion: string;
    sentence: Span[];
}

export interface Tables {
    elements: ElementInfo[];
    ions: IonInfo[];
    rules: RuleInfo[];
    pairs: PairInfo[];
}

// The lesson library, which tells and reads all as the reader writes it. `exercise` gives null where the
// address names none.
export interface Lesson {
    kinds(): KindInfo[];
    exercise(paper: number, number: number, kinds: string): Exercise | null;
    mark(paper: number, number: number, kinds: string, typed: string, decimal?: Settings["decimal"]): Mark;
    read(paper: number, number: number, kinds: string, typed: string): Span[]; // empty where nothing is read
    tables(names?: Settings["names"]): Tables;
    // The text of a file, or why there is none.
    exported(paper: number, sheet: string, format: ExportFormat): { file: string } | { error: string };
}

export type ExportFormat = "moodle" | "anki";

export interface PracticeRoute {
    view: "practice";
    paper: number;
    number: number;
    kinds: string; // "titration:1,dilution", "mixed"; or a list, "4*titration:1,1*dilution@7", which is a set
    set: number; // so many exercises and then a summary; 0 without end
    back?: ExerciseLeft; // on a side road: the exercise of the same paper that was left for it
}

export interface ExerciseLeft {
    number: number;
    kinds: string;
}

export interface SheetEntry {
    kind: string;
    level: number;
    count: number;
    first?: number; // the number of the first one where it is not 1
}

// What a teacher prints.
export interface SheetRoute {
    view: "sheet";
    paper: number; // of the first version; the others follow
    entries: SheetEntry[]; // no exercise twice
    versions: number;
    title: string;
    room: "none" | "some" | "much"; // to write, below each exercise
    masses: "shown" | "table"; // those that are needed, or the word that the periodic table has them
    drawings: boolean;
    columns: "auto" | "one"; // short questions and answers, two beside each other where they fit
    marks: boolean; // how many each question is worth, and all of them
    leaf: boolean; // whether what is handed out apart begins on a new leaf, printed on both sides
    parts: "both" | "sheet" | "key";
    key: "line" | "working";
    keys: "together" | "apart"; // of several versions: one after another, or each from a new page on
    size: "A4" | "Letter";
}

export type Route =
    | PracticeRoute
    | SheetRoute
    | { view: "tables" }
    | { view: "notices" }
    | { view: "start" } // nothing is asked for: the reader chooses
    | { view: "none"; of: "sheet" } // no sheet is named: the page chooses
    | { view: "bad"; of: "practice" | "sheet"; message: string };

// How quantities and names are written; chosen by the reader, kept on the device.
export interface Settings {
    volume: "mL" | "cm3";
    per: "slash" | "power"; // mol/L or mol L⁻¹
    decimal: "." | ",";
    names: "british" | "american";
    masses: "shown" | "table"; // below a question that cannot be answered without: the numbers, or where they are
}
