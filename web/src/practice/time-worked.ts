// The clock of the set that this tab works at. It goes on from one exercise of the set to the next, and
// stands still while there is nothing to solve on the screen.
import { addressOfSet } from "../address";
import type { PracticeRoute } from "../types";
import { type Clock, running, startedAt, ticked } from "./clock";
import { addTime, type Spent } from "./kept-sets";

let present: { route: PracticeRoute; clock: Clock } | null = null;
let isOpen = false; // an exercise of the set, without a result
let isSeen = true;

// An exercise of a set is shown, which has no result yet where it is open.
export function workAt(route: PracticeRoute, open: boolean, now = Date.now()): void {
    if (present === null || addressOfSet(present.route) !== addressOfSet(route)) {
        present = { route, clock: startedAt(now) };
    }
    isOpen = open;
    run(now);
}

export function rest(now = Date.now()): void {
    isOpen = false;
    run(now);
    keepTime(now);
}

export function see(seen: boolean, now = Date.now()): void {
    isSeen = seen;
    run(now);
    keepTime(now);
}

// A key or a press: the reader is there.
export function touch(now = Date.now()): void {
    if (present !== null) {
        present.clock = ticked(present.clock, now);
    }
}

// What the clock has counted, which it then begins anew.
export function spend(now = Date.now()): Spent {
    touch(now);
    const { begun, worked } = present?.clock ?? startedAt(now);
    if (present !== null) {
        present.clock = { ...present.clock, worked: 0 };
    }
    return { begun, worked, now };
}

function run(now: number): void {
    if (present !== null) {
        present.clock = running(present.clock, isOpen && isSeen, now);
    }
}

// What was counted before anything of the set is kept waits for that.
function keepTime(now: number): void {
    if (present !== null && present.clock.worked > 0) {
        const { begun, worked } = present.clock;
        const isKept = addTime(present.route, { begun, worked, now });
        present.clock = { ...present.clock, worked: isKept ? 0 : worked };
    }
}
