// The two solutions of a dilution.
import { element } from "../shared/dom";
import { quantityOf } from "../text/quantity";
import type { Exercise, Settings, Span } from "../types";
import { texts } from "../words/texts";
import { beaker, widthsByArea } from "./drawing-beakers";
import { label, lineOf, quantitiesOf, sought } from "./drawing-labels";

// figure
//   div.side      the beaker, its label; before and after
//   figcaption    whether they are to scale
export function dilution(exercise: Exercise, settings: Settings): HTMLElement | null {
    const quantities = quantitiesOf(exercise);
    const of = quantities[0]?.of;
    if (of === undefined) {
        return null;
    }
    const side = (index: string, place: string) => {
        const lines = quantities.filter((given) => given.quantity.endsWith(index)).map(lineOf);
        return label(place, of, [...lines, ...soughtAt(index, exercise)], settings);
    };
    const [first, second] = ["V1", "V2"].map((volume) => quantities.find(({ quantity }) => quantity === volume)?.value);
    const isToScale = first !== undefined && second !== undefined;
    // Where a volume is to be found the drawing must not give it away.
    const [before, after] = isToScale ? widthsByArea(first, second) : widthsByArea(1, 3);
    return element(
        "figure",
        { class: "drawing dilution", "aria-label": texts.drawings.dilution },
        element("div", { class: "side" }, beaker(before, "strong"), side("1", texts.before)),
        element("div", { class: "side" }, beaker(after, "weak"), side("2", texts.after)),
        element("figcaption", { class: "place" }, isToScale ? texts.drawings.toScale : texts.drawings.notToScale),
    );
}

// What is asked stands with the solution that it belongs to; water that is added is in the second one.
function soughtAt(index: string, exercise: Exercise): Span[][] {
    const { quantity = "", of } = exercise.ask;
    if (quantity === "V") {
        return index === "2" ? [[quantityOf("V", of), { text: ` = ${texts.unknown}` }]] : [];
    }
    return quantity.endsWith(index) ? [sought(exercise)] : [];
}
