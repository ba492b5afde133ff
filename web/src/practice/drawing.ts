// A drawing where a look says more than a sentence. The labels are ordinary text beside the shapes.
import type { Exercise, Settings } from "../types";
import { dilution } from "./drawing-dilution";
import { titration } from "./drawing-titration";

export function drawingOf(exercise: Exercise, settings: Settings): HTMLElement | null {
    switch (exercise.kind) {
        case "titration":
            return titration(exercise, settings);
        case "dilution":
            return dilution(exercise, settings);
        default:
            return null;
    }
}
