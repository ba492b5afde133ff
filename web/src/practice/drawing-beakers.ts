// A beaker as a shape, for the eye alone.
import { svg } from "../shared/dom";

// Width of a beaker that holds the larger volume, and how high the liquid stands in it.
const beakerWidth = 68;
const beakerHeight = 74;
const filled = 0.78;

const ground = 80; // on which both beakers stand

// Two vessels of one shape, so wide that their areas are as the volumes: 20 and 80 -> 0.5 and 1.
export function widthsByArea(first: number, second: number): [number, number] {
    const largest = Math.max(first, second);
    return [Math.sqrt(first / largest), Math.sqrt(second / largest)];
}

// A beaker of the usual shape, `width` times as wide and as high as the largest.
export function beaker(width: number, strength: "strong" | "weak"): SVGElement {
    const corner = 5 * width;
    const [left, right] = [1 + corner, 1 + corner + beakerWidth * width];
    const [rim, surface] = [ground - beakerHeight * width, ground - beakerHeight * filled * width];
    const bottom = `V${ground - corner} Q${left} ${ground} ${left + corner} ${ground} H${right - corner} Q${right} ${ground} ${right} ${ground - corner}`;
    return svg(
        "svg",
        { viewBox: "0 0 80 82", "aria-hidden": "true", class: "shape" },
        svg("path", { d: `M${left} ${surface} ${bottom} V${surface} Z`, class: `liquid ${strength}` }),
        svg("path", { d: `M${left} ${surface} H${right}`, class: "glass fine" }),
        svg("path", {
            d: `M${left - corner} ${rim} Q${left} ${rim} ${left} ${rim + corner} ${bottom} V${rim + corner} Q${right} ${rim} ${right + corner} ${rim}`,
            class: "glass",
        }),
    );
}
