// Wires the page together; imported by none.
import lesson from "lesson.bin";
import notices from "notices.bin";
import { instantiate, type LessonModule } from "../../lesson/border/module.mjs";
import { addressOf, knowVersions, mainRoad, routeOf } from "./address";
import { lessonOf } from "./lesson/lesson";
import { withLists } from "./lesson/listed-exercises";
import { showNotices } from "./notices";
import { choiceIn } from "./practice/chosen-kinds";
import { keepFieldInView } from "./practice/field-in-view";
import { nameOf } from "./practice/head";
import { showPractice } from "./practice/practice";
import { showStart } from "./practice/start";
import { showSummary } from "./practice/summary";
import * as working from "./practice/time-worked";
import { announce, byId, element, show } from "./shared/dom";
import { showMessage } from "./shared/message";
import type { Page } from "./shared/page";
import { randomPaper } from "./shared/paper";
import * as storage from "./shared/storage";
import { unpacked } from "./shared/unpacked";
import { usualSheet } from "./sheet/sheet";
import { showSheets } from "./sheet/sheets";
import { showTables } from "./tables/tables";
import type { PracticeRoute, Route, SheetRoute } from "./types";
import { texts } from "./words/texts";

type Focus = () => void;

const main = byId("main");
// Where "Practice" and "Sheets" lead back to, after a reload as well.
let practised: PracticeRoute | null = null;
let printed: SheetRoute | null = null;

function rememberPlaces(): void {
    const practice = routeOf(storage.placeLeft("practice"));
    const sheet = routeOf(storage.placeLeft("sheet"));
    practised = practice.view === "practice" ? practice : null;
    printed = sheet.view === "sheet" ? sheet : null;
}

function keepPlaces(): void {
    if (practised !== null) {
        storage.keepPlaceLeft("practice", addressOf(practised));
        storage.keepLastKinds(practised.kinds);
    }
    if (printed !== null) {
        storage.keepPlaceLeft("sheet", addressOf(printed));
    }
}

function pageOf(module: LessonModule): Page {
    const lesson = withLists(lessonOf(module, () => page.settings));
    const page: Page = {
        lesson,
        get kinds() {
            return lesson.kinds();
        },
        settings: storage.settings(),
        go(address) {
            if (location.hash === address) {
                open(page);
            } else {
                location.hash = address;
            }
        },
        stay(route) {
            history.replaceState(null, "", addressOf(route));
            keepSheet(route);
        },
        step(route) {
            if (location.hash !== addressOf(route)) {
                history.pushState(null, "", addressOf(route));
            }
            keepSheet(route);
        },
    };
    return page;
}

function keepSheet(route: SheetRoute): void {
    printed = route;
    showViews(route);
}

// Shows the present address from its beginning, for a reader who has asked for it.
function open(page: Page): void {
    announce(""); // What was told of another address is not read at the end of this one.
    const focus = render(page);
    window.scrollTo({ top: 0, behavior: "instant" });
    focus();
}

function newPaper(page: Page): string {
    return addressOf({ view: "practice", paper: randomPaper(), number: 1, kinds: usualKinds(page), set: 0 });
}

// What was practised last in this tab, or else on this device.
function usualKinds({ lesson, kinds: all }: Page): string {
    const kinds = choiceIn(practised?.kinds ?? storage.lastKinds(), all);
    return lesson.exercise(1, 1, kinds) === null ? "mixed" : kinds;
}

function newSheet(): string {
    return addressOf({ ...(printed ?? usualSheet), paper: randomPaper() });
}

// Shows the view of the present address.
function render(page: Page): Focus {
    const route = routeOf(location.hash);
    if (route.view === "none") {
        history.replaceState(null, "", newSheet());
        return render(page);
    }
    working.rest();
    const focus = showView(route, page);
    showViews(route);
    return focus;
}

function showView(route: Exclude<Route, { view: "none" }>, page: Page): Focus {
    switch (route.view) {
        case "start":
            return showStart(main, { left: practised, kinds: usualKinds(page) }, page);
        case "practice":
            return showExercise(route, page) ?? showBad("practice", texts.badAddress, page);
        case "tables":
            return showTables(main, page);
        case "notices":
            return showNotices(main, notices);
        case "sheet":
            return showSheet(route, page) ?? showBad("sheet", texts.badSheet, page);
        case "bad":
            return showBad(route.of, route.message, page);
    }
}

function showBad(of: "practice" | "sheet", message: string, page: Page): Focus {
    return of === "sheet"
        ? showMessage(main, message, texts.startSheet, () => page.go(newSheet()))
        : showMessage(main, message, texts.startAnew, () => page.go(newPaper(page)));
}

// Null for kinds that the library does not know. Behind the last exercise of a set is its summary.
function showExercise(route: PracticeRoute, page: Page): Focus | null {
    const exercise = page.lesson.exercise(route.paper, isSummary(route) ? route.set : route.number, route.kinds);
    if (exercise === null || !leadsBack(route, page)) {
        return null;
    }
    practised = mainRoad(route);
    return isSummary(route) ? showSummary(main, route, page) : showPractice(main, route, exercise, page);
}

function leadsBack({ paper, back }: PracticeRoute, page: Page): boolean {
    return back === undefined || page.lesson.exercise(paper, back.number, back.kinds) !== null;
}

function isSummary(route: PracticeRoute): boolean {
    return route.set > 0 && route.number > route.set;
}

function showSheet(route: SheetRoute, page: Page): Focus | null {
    const focus = showSheets(main, route, page);
    printed = focus === null ? printed : route;
    return focus;
}

function showViews(route: Route): void {
    document.documentElement.dataset.view = route.view;
    const links = [
        { text: texts.practice, href: practised === null ? "#" : addressOf(practised), view: practised === null ? "start" : "practice" },
        { text: texts.sheets, href: printed === null ? "#sheet" : addressOf(printed), view: "sheet" },
        { text: texts.tables, href: "#tables", view: "tables" },
    ];
    const items = links.map(({ text, href, view }) =>
        element("a", { href, "aria-current": route.view === view ? "page" : undefined }, text),
    );
    show(byId("views"), ...items);
    show(byId("foot"), element("a", { href: "#notices", "aria-current": route.view === "notices" ? "page" : undefined }, texts.notices));
    keepPlaces();
    document.title = route.view === "start" ? texts.title : `${titleOf(route)} – ${texts.title}`;
}

function titleOf(route: Route): string {
    switch (route.view) {
        case "practice":
            return isSummary(route)
                ? texts.summaryOf(route.paper)
                : `${nameOf({ ...route, set: 0 })} of ${texts.paper(route.paper).toLowerCase()}`;
        case "sheet":
            return texts.sheetOf(route.paper);
        case "tables":
            return texts.tables;
        case "notices":
            return texts.notices;
        default:
            return texts.practice;
    }
}

function keepClock(): void {
    document.addEventListener("visibilitychange", () => working.see(document.visibilityState === "visible"));
    window.addEventListener("pagehide", () => working.see(false));
    window.addEventListener("pageshow", () => working.see(true));
    document.addEventListener("keydown", () => working.touch());
    document.addEventListener("pointerdown", () => working.touch());
}

// The page lives as long as its window, so nothing is ever taken off again.
async function start(): Promise<void> {
    const instantiated = instantiate(await unpacked(lesson));
    storage.open(); // while the module is compiled
    const page = pageOf(await instantiated);
    knowVersions(page.kinds);
    rememberPlaces();
    show(byId("home"), texts.title);
    render(page);
    window.addEventListener("hashchange", () => open(page));
    keepClock();
    // What a tablet's keyboard leaves of the window has to show the field.
    window.visualViewport?.addEventListener("resize", keepFieldInView);
    byId("skip").addEventListener("click", (event) => {
        event.preventDefault();
        main.focus();
    });
}

start().catch((reason: unknown) => {
    show(main, element("p", {}, texts.broken), element("p", {}, String(reason)));
});
