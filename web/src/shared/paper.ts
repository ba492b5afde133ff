// The number of a paper.
import { isCount } from "./exercise-list";

export const greatestPaper = 999999;

export function isPaper(text: string): boolean {
    return isCount(text, greatestPaper);
}

export function randomPaper(): number {
    return 1 + Math.floor(Math.random() * greatestPaper);
}
