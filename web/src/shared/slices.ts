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
    function run(until: number): void {
        if (!isWanted()) {
            isOver = true;
            return;
        }
        while (!isOver && performance.now() < until) {
            isOver = steps.next().done === true;
        }
        if (isOver) {
            done();
        } else {
            timer = window.setTimeout(() => run(performance.now() + slice));
        }
    }

    run(performance.now() + slice);
    return {
        finish() {
            window.clearTimeout(timer);
            if (!isOver) {
                run(Infinity);
            }
        },
        stop() {
            window.clearTimeout(timer);
            isOver = true;
        },
    };
}
