import type { Span } from "../types";

// "c2" is c with the index 2.
export function quantityOf(symbol: string, of?: string): Span {
    const index = symbol.slice(1);
    return { quantity: symbol.slice(0, 1), ...(of === undefined ? {} : { of }), ...(index === "" ? {} : { index }) };
}
