import assert from "node:assert/strict";
import { beforeEach, test } from "node:test";
import { routeOf } from "../../src/address";
import { clearSet, clearSets, type Done, keepInSet, keptSet, keptSets } from "../../src/practice/kept-sets";
import type { PracticeRoute } from "../../src/types";

// As much of a browser as the stores need.
function storeOf(): Storage {
    const entries = new Map<string, string>();
    const store = {
        getItem: (key: string) => entries.get(key) ?? null,
        setItem: (key: string, text: string) => entries.set(key, text),
        removeItem: (key: string) => entries.delete(key),
    };
    return new Proxy(store, {
        ownKeys: () => [...entries.keys()],
        getOwnPropertyDescriptor: () => ({ enumerable: true, configurable: true }),
    }) as unknown as Storage;
}

beforeEach(() => {
    Object.assign(globalThis, { window: { localStorage: storeOf(), sessionStorage: storeOf() } });
});

const at = (address: string) => routeOf(address) as PracticeRoute;
const first: Done = { failed: 0, marked: "1.5", decimal: ".", steps: 0, result: "first" };
const spent = (now: number, worked = 1000) => ({ begun: 100, worked, now });

const addresses = [
    "#practice/777/3/molar-mass:1?set=7",
    "#practice/1/1/mixed?set=99",
    "#practice/4821/3/4*titration:2,1*dilution?set=5",
    "#practice/999999/2/titration:3,dilution,ion-formula:2?set=2&v=1",
];

for (const address of addresses) {
    test(`${address}: what is kept is found again at each of its exercises`, () => {
        keepInSet(at(address), first, spent(5000));
        for (const number of [1, 2]) {
            const kept = keptSet({ ...at(address), number });
            assert.deepEqual([...(kept?.exercises ?? [])], [[at(address).number, first]]);
            assert.deepEqual([kept?.begun, kept?.touched, kept?.worked], [100, 5000, 1000]);
        }
        assert.deepEqual(
            keptSets().map(({ route }) => route),
            [{ ...at(address), number: 1 }],
        );
    });
}

test("another paper, another choice, another length is another set", () => {
    keepInSet(at("#practice/777/3/molar-mass:1?set=7"), first, spent(5000));
    for (const other of ["#practice/778/3/molar-mass:1?set=7", "#practice/777/3/molar-mass?set=7", "#practice/777/3/molar-mass:1?set=8"]) {
        assert.equal(keptSet(at(other)), null, other);
    }
});

test("the oldest of fifty goes first, which is the one not worked at for longest", () => {
    const setOf = (paper: number) => at(`#practice/${paper}/1/mixed?set=5`);
    for (let paper = 1; paper <= 50; ++paper) {
        keepInSet(setOf(paper), first, spent(paper));
    }
    keepInSet({ ...setOf(1), number: 2 }, first, spent(60));
    keepInSet(setOf(51), first, spent(61));
    const expected = [51, 1, ...Array.from({ length: 48 }, (_, at) => 50 - at)];
    assert.deepEqual(
        keptSets().map(({ route }) => route.paper),
        expected,
    );
});

test("the time worked is never more than has passed", () => {
    const set = at(addresses[0]!);
    keepInSet(set, first, { begun: 1000, worked: 400, now: 2000 });
    keepInSet({ ...set, number: 4 }, first, { begun: 1500, worked: 900, now: 2100 });
    assert.equal(keptSet(set)?.worked, 1100);
    assert.equal(keptSet(set)?.begun, 1000);
});

test("sets are cleared one by one, or all", () => {
    addresses.forEach((address) => keepInSet(at(address), first, spent(5000)));
    clearSet(at(addresses[0]!));
    assert.equal(keptSet(at(addresses[0]!)), null);
    assert.equal(keptSets().length, addresses.length - 1);
    clearSets();
    assert.deepEqual(keptSets(), []);
});

const key = "chempractice.set.#practice/777/1/molar-mass:1?set=7&v=1";
const damaged: [string, Done | null][] = [
    ["7", null],
    ["not JSON", null],
    ['{"exercises":[]}', null],
    ['{"exercises":{"8":{"result":"first"},"0":{"result":"first"},"x":{"result":"first"}}}', null],
    ['{"exercises":{"3":{"result":"best","failed":-2}}}', null],
    ['{"exercises":{"3":7,"4":{"result":"later"}}}', null],
    [
        '{"exercises":{"3":{"result":"later","failed":"2","marked":{}}}}',
        { failed: 0, marked: null, decimal: ".", steps: 0, result: "later" },
    ],
    [
        '{"begun":"<b>","touched":null,"exercises":{"3":{"steps":2,"failed":1e99,"marked":"x"}}}',
        { failed: 0, marked: "x", decimal: ".", steps: 2, result: null },
    ],
];

for (const [text, expected] of damaged) {
    test(`of ${text} there is what can be read`, () => {
        window.localStorage.setItem(key, text);
        const kept = keptSet(at("#practice/777/3/molar-mass:1?set=7"));
        assert.deepEqual(kept?.exercises.get(3) ?? null, expected);
        assert.equal(kept?.begun ?? 0, 0);
    });
}

test("what is another's, or of another version, is no set", () => {
    for (const address of ["#practice/1/1/mixed?set=5&v=0", "#tables", "#practice/1/1/mixed", "<img>"]) {
        window.localStorage.setItem(`chempractice.set.${address}`, '{"exercises":{"1":{"result":"first"}}}');
    }
    assert.deepEqual(keptSets(), []);
});
