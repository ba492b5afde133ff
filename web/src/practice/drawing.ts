// A drawing where a look says more than a sentence. The labels are ordinary text beside the shapes.
import { kindInfo, type Page } from "../shared/page";
import type { Exercise } from "../types";
import { dilution } from "./drawing-dilution";
import { titration } from "./drawing-titration";

const drawings = { dilution, titration };

export function drawingOf(exercise: Exercise, page: Page): HTMLElement | null {
    const drawing = kindInfo(page, exercise.kind)?.drawing;
    return drawing === undefined ? null : drawings[drawing](exercise, page.settings);
}
