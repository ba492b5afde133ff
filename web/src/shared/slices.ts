// Long work in slices, between which the page can be used.

const slice = 40; // milliseconds; after a twentieth of a second a key press feels late

export interface Work {
    finish(): void; // does at once what is left
    stop(): void;
}

// Takes one step after another while they are wanted, the first slice at once; then says that it is done.
export function inSlices(steps: Iterator<unknown>, isWanted: () => boolean, done: () => void): Work {
    let timer = 0;
    let isOver = false;
    // Whether they are wanted can only change between slices.
    const run = (until: number) => {
        const isStill = isWanted();
        isOver = !isStill || areTaken(steps, until);
        if (!isOver) {
            timer = window.setTimeout(() => run(performance.now() + slice));
        } else if (isStill) {
            done();
        }
    };
    const stop = () => {
        window.clearTimeout(timer);
        isOver = true;
    };
    const finish = () => {
        window.clearTimeout(timer);
        if (!isOver) {
            run(Infinity);
        }
    };
    run(performance.now() + slice);
    return { finish, stop };
}

// Takes steps until then; whether there are no more.
function areTaken(steps: Iterator<unknown>, until: number): boolean {
    while (performance.now() < until) {
        if (steps.next().done === true) {
            return true;
        }
    }
    return false;
}
