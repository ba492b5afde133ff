// A question that comes in the place of the button that was pressed, before something is done that cannot
// be undone. No dialog element: Safari has it from 15.4 on.
import { announce, button, element, isTouched } from "./dom";

export interface Question {
    text: string;
    yes: string;
    no: string;
}

// div.question    a group named by its text
//   p
//   button        what was pressed for
//   button        the harmless one, which gets the focus
// Escape is as good as the harmless one. Without a `no` all is as it was.
export function ask(pressed: HTMLElement, { text, yes, no }: Question, whenYes: () => void, whenNo = () => pressed.focus()): void {
    const harmless = button(no, () => answer(whenNo));
    const sentence = element("p", {}, text);
    const group = element(
        "div",
        { class: "question", role: "group", "aria-label": text },
        sentence,
        button(yes, () => answer(whenYes)),
        harmless,
    );
    const answer = (then: () => void) => {
        group.remove();
        pressed.hidden = false;
        then();
    };
    group.addEventListener("keydown", ({ key }) => key === "Escape" && answer(() => pressed.focus()));
    pressed.after(group);
    pressed.hidden = true;
    harmless.focus();
    // The group's name is told as the focus comes into it; only readers of touch screens may leave it out.
    if (isTouched()) {
        announce(text);
    }
}

// Takes away the question that came in the place of this button, if there is one.
export function withdraw(pressed: HTMLElement): void {
    if (pressed.nextElementSibling?.matches(".question")) {
        pressed.nextElementSibling.remove();
        pressed.hidden = false;
    }
}
