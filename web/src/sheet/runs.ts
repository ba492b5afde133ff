// What a version is printed from: its exercises and answers as elements, each measured once.

import { element } from "../shared/dom";
import type { Page } from "../shared/page";
import type { SheetRoute } from "../types";
import { agreedFigures, type Group, groupsOf } from "./common-words";
import { type Row, rowsOf } from "./page-breaks";
import { exerciseItem, keyItem } from "./printed-exercise";
import { frameHead, keyHead, keyHeadAgain, sheetHead, type Version } from "./printed-heads";

// An element and how high it is on paper, in millimetres; whether another can stand beside it.
interface Item {
    element: HTMLElement;
    height: number;
    isHalf: boolean;
}

// Items under headings, and what stands above those on a further page.
export interface Run {
    head: Item[];
    again: Item[];
    items: Item[];
    rows: Row[];
    first: number; // of its items, counted from 0
}

type Measure = (elements: HTMLElement[]) => Item[];

export const atOnce = 25; // exercises that are made and measured in one step

const oneLine = 11; // millimetres; an item of the key that is higher has two

// What is not printed is not made.
export function* runsOf(version: Version, route: SheetRoute, measure: Measure, page: Page): Generator<void, { sheet: Run[]; key: Run }> {
    const groups = groupsOf(version.exercises, route);
    const heads: Item[] = [];
    const sheet: Item[] = [];
    const key: Item[] = [];
    for (let from = 0; from < version.exercises.length; from += atOnce) {
        const headings = from > 0 ? [] : headingsOf(version, groups, route, page);
        const asked = route.parts === "key" ? [] : askedItems(version, groups, from, route, page);
        const answered =
            route.parts === "sheet" ? [] : version.exercises.slice(from, from + atOnce).map((exercise) => keyItem(exercise, route, page));
        const items = measure([...headings, ...asked, ...answered]);
        heads.push(...items.splice(0, headings.length));
        sheet.push(...items.splice(0, asked.length));
        key.push(...items.map(alone));
        yield;
    }
    const [keyAtFirst, keyAgain, head, ...frames] = heads;
    return { sheet: sheetRuns(groups, head!, frames, sheet), key: runOf([keyAtFirst!], [keyAgain!], key, 0) };
}

// Those of the key, that of the sheet, and the words of each group that shares some.
function headingsOf(version: Version, groups: Group[], route: SheetRoute, page: Page): HTMLElement[] {
    const framed = groups.filter(({ frame }) => frame !== null);
    return [
        keyHead(version, route, page),
        keyHeadAgain(version, route),
        sheetHead(version, route, page),
        ...framed.map((group) => frameHead(group, version, route, page)),
    ];
}

function askedItems({ exercises }: Version, groups: Group[], from: number, route: SheetRoute, page: Page): HTMLElement[] {
    const saysFigures = agreedFigures(exercises) === null;
    return exercises.slice(from, from + atOnce).map((exercise, at) => {
        const group = groups.find(({ to }) => to > from + at)!;
        return exerciseItem(exercise, { isFramed: group.frame !== null, saysFigures }, route, page);
    });
}

function sheetRuns(groups: Group[], head: Item, frames: Item[], items: Item[]): Run[] {
    const left = [...frames];
    return groups.map(({ from, to, frame }, at) => {
        const own = frame === null ? [] : left.splice(0, 1);
        return runOf(at === 0 ? [head, ...own] : own, own, items.slice(from, to), from);
    });
}

function runOf(head: Item[], again: Item[], items: Item[], first: number): Run {
    return { head, again, items, rows: rowsOf(items), first };
}

// Where half of the width is not enough for one line, it has the whole.
function alone(item: Item): Item {
    if (!item.isHalf || item.height <= oneLine) {
        return item;
    }
    item.element.classList.remove("half");
    return { ...item, isHalf: false };
}

export function measureIn(measuring: HTMLElement, width: number): Measure {
    return (elements) => {
        const isHalf = (one: HTMLElement) => one.className === "half";
        const whole = element("ol", {}, ...elements.filter((one) => one.localName === "li" && !isHalf(one)));
        const halves = element("ol", { class: "narrow" }, ...elements.filter(isHalf));
        measuring.replaceChildren(...elements.filter((one) => one.localName !== "li"), whole, halves);
        const millimetre = measuring.getBoundingClientRect().width / width;
        return elements.map((one) => ({ element: one, height: one.getBoundingClientRect().height / millimetre, isHalf: isHalf(one) }));
    };
}
