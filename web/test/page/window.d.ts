// What tests keep in the page.
interface Window {
    axe: { run(options?: object): Promise<{ violations: { id: string; help: string; nodes: { html: string }[] }[] }> };
    copied: string;
    heard: string[];
    hit: number;
    lesson: import("../../../lesson/border/module.mjs").LessonModule;
    links: Element[];
    moved: Promise<void>;
    printed: string;
    ran: boolean;
    read: string[];
    said: string[];
    stops: string[];
    toldAtFocus: string;
}
