// The time worked at a set: while an exercise of it that has no result is on the screen. Of a pause without
// a key or a press five minutes count at most, since nobody knows whether it was thought or lunch.
export interface Clock {
    begun: number; // milliseconds since 1970, as all times here
    last: number; // up to when it has counted
    worked: number; // what it has counted
    runs: boolean;
}

export const longestPause = 5 * 60_000;

export function startedAt(now: number): Clock {
    return { begun: now, last: now, worked: 0, runs: false };
}

// A clock of the device that was set back counts nothing.
export function ticked(clock: Clock, now: number): Clock {
    const passed = clock.runs ? Math.min(Math.max(now - clock.last, 0), longestPause) : 0;
    return { ...clock, last: now, worked: clock.worked + passed };
}

export function running(clock: Clock, runs: boolean, now: number): Clock {
    return { ...ticked(clock, now), runs };
}
