import assert from "node:assert/strict";
import { test } from "node:test";
import { withStep } from "../../src/practice/mark";
import type { Verdict } from "../../src/types";
import { texts } from "../../src/words/texts";

test("a step is offered behind the sentence of a mistake that is not known, and behind no other", () => {
    for (const verdict of ["correct", "figures", "slip", "power-of-ten", "close", "wrong", "unreadable"] as Verdict[]) {
        const said = withStep({ verdict, sentence: [{ text: "Not right yet." }] }).sentence;
        assert.equal(said.length, verdict === "wrong" ? 2 : 1, verdict);
    }
    assert.match(texts.orStep, new RegExp(texts.showStep), "by the button's name");
});
