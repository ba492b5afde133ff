#pragma once

// Draws that tell the bounds of `random` apart, although it gives the lower one nearly always: for
// 2^k times an odd number of steps, k from 1 to 5, the draw 2^(31 - k) gives one less. So what
// stays the same for all of these has an odd number of steps.
constexpr int tellingDraws[] = {0, 1 << 26, 1 << 27, 1 << 28, 1 << 29, 1 << 30, 2147483647};
