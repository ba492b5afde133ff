// The link to a set: to copy, or to select where the browser does not let a page copy.
import { addressOfSet } from "../address";
import { announce, button, element, show } from "../shared/dom";
import type { PracticeRoute } from "../types";
import { texts } from "../words/texts";

// div.link
//   button
//   p.hint     what the link is
//   input      the address, where it was not copied
//   p          what came of it
export function linkPanel(route: PracticeRoute, copyIt: string = texts.copyLink, whatItIs: string = texts.linkIsSet): HTMLElement {
    const field = element("input", { type: "text", readonly: true, "aria-label": texts.linkField, hidden: true });
    const outcome = element("p", { hidden: true });
    const press = () => void copied(linkTo(route)).then((isCopied) => tell(isCopied));
    const tell = (isCopied: boolean) => {
        const sentence = isCopied ? texts.linkCopied : texts.linkNotCopied;
        outcome.hidden = false;
        show(outcome, sentence);
        announce(sentence);
        field.hidden = isCopied;
        if (!isCopied) {
            field.value = linkTo(route);
            field.focus();
            field.select();
        }
    };
    const hint = element("p", { class: "hint" }, [whatItIs, ...(isFile() ? [texts.linkOfFile] : [])].join(" ").trim());
    return element("div", { class: "link" }, button(copyIt, press), hint, field, outcome);
}

// Missing where the page came without encryption; refused by some browsers to files.
async function copied(text: string): Promise<boolean> {
    try {
        await navigator.clipboard.writeText(text);
        return true;
    } catch {
        return false;
    }
}

function isFile(): boolean {
    return location.protocol === "file:";
}

// From a disk the whole address would tell no more than whose disk it is.
function linkTo(route: PracticeRoute): string {
    return isFile() ? addressOfSet(route) : location.href.replace(/#.*/, "") + addressOfSet(route);
}
