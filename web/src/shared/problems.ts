// What is wrong in a form, told at the field where it is.
import { announce, element } from "./dom";

export interface Problem {
    field: HTMLInputElement; // with an id, in a box of the class `asked`, below which the sentence goes
    sentence: string;
    where?: string; // said in front of the sentence, which does not tell of which field it is
}

// Gives what shows the problems of now in place of those before, and announces some: what is new, if it is
// not told which.
export function problemMarks(): (problems: Problem[], told?: Problem[]) => void {
    let present: Problem[] = [];
    let lines: HTMLElement[] = [];
    return (problems, told) => {
        present.forEach(({ field }) => unmark(field));
        lines.forEach((line) => line.remove());
        lines = linesOf(problems);
        const news =
            told ?? problems.filter(({ field, sentence }) => !present.some((old) => old.field === field && old.sentence === sentence));
        present = problems;
        if (news.length > 0) {
            announce([...new Set(news.map(spoken))].join(" "));
        }
    };
}

function spoken({ field, sentence, where }: Problem): string {
    return where === undefined || field === document.activeElement ? sentence : `${where}: ${sentence}`;
}

// One for all fields of a box that have the same thing wrong.
function linesOf(problems: Problem[]): HTMLElement[] {
    const lines: HTMLElement[] = [];
    for (const { field, sentence } of problems) {
        const box = field.closest(".asked")!;
        let line = lines.find((one) => one.parentElement === box && one.textContent === sentence);
        if (line === undefined) {
            line = element("p", { class: "problem", id: `${field.id}${ending}` }, sentence);
            box.append(line);
            lines.push(line);
        }
        mark(field, line.id);
    }
    return lines;
}

const ending = "-problem";

function mark(field: HTMLInputElement, line: string): void {
    field.setAttribute("aria-invalid", "true");
    field.setAttribute("aria-describedby", [...describedBy(field), line].join(" "));
}

function unmark(field: HTMLInputElement): void {
    field.removeAttribute("aria-invalid");
    const others = describedBy(field);
    if (others.length === 0) {
        field.removeAttribute("aria-describedby");
    } else {
        field.setAttribute("aria-describedby", others.join(" "));
    }
}

// Without the problem's line.
function describedBy(field: HTMLInputElement): string[] {
    return (field.getAttribute("aria-describedby") ?? "").split(" ").filter((id) => id !== "" && !id.endsWith(ending));
}
