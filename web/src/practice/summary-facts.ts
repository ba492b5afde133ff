// A set in rows and facts: what its summary shows, prints and saves.

import type { PracticeRoute } from "../types";
import { texts } from "../words/texts";
import type { Done, KeptSet } from "./kept-sets";

export interface Row {
    number: number;
    kind: string;
    tries: number;
    result: string;
}

export interface Summary {
    facts: [string, string][]; // each with its name
    rows: Row[];
}

export function summaryOf(kept: KeptSet, length: number, kindOf: (number: number) => string): Summary {
    const rows = Array.from({ length }, (_, at) => rowOf(at + 1, kindOf(at + 1), kept.exercises.get(at + 1)));
    const times: [string, number][] = [
        [texts.begun, kept.begun],
        [texts.lastWorked, kept.touched],
    ];
    // A time that could not be read is none.
    const dates = times.filter(([, time]) => time > 0).map(([name, time]): [string, string] => [name, dateAndTime(time)]);
    const worked = texts.duration(Math.round(kept.worked / 60_000));
    return { facts: [...dates, [texts.total, totalOf(kept, length)], [texts.worked, worked]], rows };
}

function rowOf(number: number, kind: string, done: Done | undefined): Row {
    const result = done?.result ?? null;
    return { number, kind, tries: done === undefined ? 0 : triesOf(done), result: result === null ? texts.notDone : texts.results[result] };
}

// With the one that solved it.
export function triesOf({ failed, result }: Done): number {
    return failed + (result === null || result === "shown" ? 0 : 1);
}

function totalOf({ exercises }: KeptSet, length: number): string {
    const results = [...exercises.values()].map(({ result }) => result);
    const solved = results.filter((result) => result !== null && result !== "shown");
    return texts.totalOf(solved.length, length, results.filter((result) => result === "first").length);
}

export function dateAndTime(time: number): string {
    const date = new Date(time);
    const day = date.toLocaleDateString("en-GB", { day: "numeric", month: "long", year: "numeric" });
    return `${day}, ${date.toLocaleTimeString("en-GB", { hour: "2-digit", minute: "2-digit" })}`;
}

// As plain text, with the address that leads to it.
export function textOf({ facts, rows }: Summary, route: PracticeRoute, address: string): string {
    const named = facts.map(([name, fact]) => `${name}: ${fact}`);
    const lines = rows.map(({ number, kind, tries, result }) => `${number}. ${kind}: ${result}, ${texts.tries(tries)}`);
    return [texts.title, texts.summaryOf(route.paper), `${texts.nameBlank}: `, ...named, "", ...lines, "", address, ""].join("\n");
}
