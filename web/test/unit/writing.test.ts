import assert from "node:assert/strict";
import { test } from "node:test";
import { writingOf } from "../../src/lesson/lesson";
import { usualSettings } from "../../src/shared/storage";
import type { Settings } from "../../src/types";

const cases: [Partial<Settings>, string][] = [
    [{}, "en-GB"],
    [{ names: "american" }, "en-US"],
    [{ decimal: "," }, "en-GB;decimal=,"],
    [{ volume: "cm3" }, "en-GB;volume=cm3"],
    [{ per: "power" }, "en-GB;per=power"],
    [{ masses: "table" }, "en-GB"],
    [{ names: "american", decimal: ",", volume: "cm3", per: "power" }, "en-US;decimal=,;volume=cm3;per=power"],
];

for (const [chosen, writing] of cases) {
    test(`the library is asked to write ${writing} for ${JSON.stringify(chosen)}`, () => {
        assert.equal(writingOf({ ...usualSettings, ...chosen }), writing);
    });
}
