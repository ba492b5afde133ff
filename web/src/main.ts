// Wires the page together; imported by none.
import compressed from "lesson.bin";
import { addressOf, routeOf } from "./address";
import { byId, element, show } from "./dom";
import { lessonOf } from "./engine/lesson";
import { instantiate } from "./engine/memory";
import { namesOf } from "./sentence";
import * as storage from "./storage";
import { texts } from "./texts";
import type { Lesson, PracticeRoute, Route } from "./types";
import { keepFieldInView } from "./views/answer";
import { showMessage } from "./views/message";
import { type Page, randomPaper } from "./views/page";
import { showPractice } from "./views/practice";
import { showSummary } from "./views/summary";
import { showTables } from "./views/tables";

type Focus = () => void;

const main = byId("main");
// Where "Practice" leads back to.
let practised: PracticeRoute | null = null;

function pageOf(lesson: Lesson): Page {
    const tables = lesson.tables();
    return {
        lesson,
        kinds: lesson.kinds(),
        names: namesOf([...tables.ions, ...tables.elements]),
        settings: storage.settings(),
        go: (address) => (location.hash = address),
    };
}

function newPaper(): string {
    return addressOf({ view: "practice", paper: randomPaper(), number: 1, kinds: practised?.kinds ?? "mixed", set: 0 });
}

// Shows the view of the present address.
function render(page: Page): Focus {
    const route = routeOf(location.hash);
    if (route.view === "none") {
        history.replaceState(null, "", newPaper());
        return render(page);
    }
    const focus = showView(route, page);
    showViews(route);
    return focus;
}

function showView(route: Exclude<Route, { view: "none" }>, page: Page): Focus {
    const goOn = () => page.go(newPaper());
    switch (route.view) {
        case "practice":
            return showExercise(route, page) ?? showMessage(main, texts.badAddress, goOn);
        case "tables":
            return showTables(main, page);
        case "sheet":
            return showMessage(main, texts.noSheets, goOn);
        case "bad":
            return showMessage(main, route.message, goOn);
    }
}

// Null for kinds that the library does not know. Behind the last exercise of a set is its summary.
function showExercise(route: PracticeRoute, page: Page): Focus | null {
    const exercise = page.lesson.exercise(route.paper, route.number, route.kinds);
    if (exercise === null) {
        return null;
    }
    practised = route;
    const isBehind = route.set > 0 && route.number > route.set;
    return isBehind ? showSummary(main, route, page) : showPractice(main, route, exercise, page);
}

function showViews(route: Route): void {
    const links = [
        { text: texts.practice, href: practised === null ? "#" : addressOf(practised), view: "practice" },
        { text: texts.sheets, href: "#sheet", view: "sheet" },
        { text: texts.tables, href: "#tables", view: "tables" },
    ];
    const items = links.map(({ text, href, view }) => element("a", { href, "aria-current": route.view === view ? "page" : undefined }, text));
    show(byId("views"), ...items);
    document.title = `${titleOf(route)} – ${texts.title}`;
}

function titleOf(route: Route): string {
    switch (route.view) {
        case "practice":
            return `${texts.exercise(route.number)} of ${texts.paper(route.paper).toLowerCase()}`;
        case "sheet":
            return texts.sheets;
        case "tables":
            return texts.tables;
        default:
            return texts.practice;
    }
}

// The page lives as long as its window, so nothing is ever taken off again.
async function start(): Promise<void> {
    const page = pageOf(lessonOf(await instantiate(compressed)));
    render(page);
    window.addEventListener("hashchange", () => {
        const focus = render(page);
        window.scrollTo({ top: 0, behavior: "instant" });
        focus();
    });
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
