// How high a liquid stands in a drawing, in the drawing's own units. Imports nothing.

// A burette of 50 mL as it is drawn: its marks from 0 at the top down to 50.
export const burette = { full: 50, at0: 22, perMillilitre: 2.5 };

// The lower edge of the meniscus: 0 -> 22, 50 -> 147. A reading that no such burette has gives none.
export function heightOf(reading: number): number | null {
    return reading >= 0 && reading <= burette.full ? burette.at0 + reading * burette.perMillilitre : null;
}

// Two vessels of one shape, so wide that their areas are as the volumes: 20 and 80 -> 0.5 and 1.
export function widthsByArea(first: number, second: number): [number, number] {
    const largest = Math.max(first, second);
    return [Math.sqrt(first / largest), Math.sqrt(second / largest)];
}
