// How large a page is, in millimetres, as paper.css has it.
export interface PaperMeasures {
    across: number;
    room: number; // from the running line down to the lower margin
}

const spare = 5; // for a line that breaks otherwise in print than on the screen

export function paperMeasures(leaf: HTMLElement): PaperMeasures {
    const style = window.getComputedStyle(leaf);
    const measure = (name: string) => Number(style.getPropertyValue(name));
    return { across: measure("--across"), room: measure("--down") - 2 * measure("--block") - measure("--running") - spare };
}
