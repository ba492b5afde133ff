import type { KindInfo, Lesson, Settings, SheetRoute } from "../types";

// What every view gets from the page around it.
export interface Page {
    readonly lesson: Lesson;
    readonly kinds: KindInfo[]; // in the reader's words of now
    settings: Settings;
    // Goes to another address, which the reader can leave with Back.
    go(address: string): void;
    // Gives the present address another sheet, which is shown already.
    stay(route: SheetRoute): void;
    // The same, and Back brings the sheet before it.
    step(route: SheetRoute): void;
}

export function titleOf(page: Page, kind: string): string {
    return kindInfo(page, kind)?.title ?? kind;
}

export function kindInfo(page: Page, kind: string): KindInfo | undefined {
    return page.kinds.find((info) => info.kind === kind);
}
