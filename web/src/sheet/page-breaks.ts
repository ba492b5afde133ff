// Which items come beside each other, and which on which page. Nothing here knows what an item is: only
// how high, and whether it is half as wide as the page.

// The items from `from` up to, not with, `to`: one, or two halves beside each other.
export interface Row {
    from: number;
    to: number;
    height: number;
}

// In order, so that the numbers run across and then down.
export function rowsOf(items: { height: number; isHalf: boolean }[]): Row[] {
    const rows: Row[] = [];
    items.forEach(({ height, isHalf }, at) => {
        const last = rows[rows.length - 1];
        const hasRoom = last !== undefined && last.to - last.from === 1 && items[last.from]!.isHalf;
        if (isHalf && hasRoom) {
            last.to = at + 1;
            last.height = Math.max(last.height, height);
        } else {
            rows.push({ from: at, to: at + 1, height });
        }
    });
    return rows;
}

// Items, or rows of them, under a heading. Where they go on over a page, another heading may stand above the rest.
export interface Heights {
    head: number;
    again: number;
    items: number[];
}

// The items from `from` up to, not with, `to` of one run, on one page.
export interface Part {
    run: number;
    from: number;
    to: number;
}

// Each page is filled as long as the next item fits. No heading stands without an item; an item that is
// higher than a page has one of its own.
export function fill(runs: Heights[], capacity: number): Part[][] {
    const pages: Part[][] = [];
    let room = -1;
    runs.forEach((heights, run) => {
        let part: Part | null = null;
        heights.items.forEach((height, at) => {
            const needed = height + (part === null ? heights.head : 0);
            if (needed > room) {
                pages.push([]);
                part = null;
                room = capacity - (at === 0 ? heights.head : heights.again) - height;
            } else {
                room -= needed;
            }
            if (part === null) {
                part = { run, from: at, to: at };
                pages[pages.length - 1]!.push(part);
            }
            part.to = at + 1;
        });
    });
    return pages;
}
