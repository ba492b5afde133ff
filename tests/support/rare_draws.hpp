#pragma once

// Draws by which a test can tell how many steps `random` has between its bounds, although it gives
// the lower bound for nearly all draws: where the number of steps is 2^k times an odd number, the
// draw 2^(31 - k) gives one less. A quantity that stays the same for all of these draws has an odd
// number of steps.
constexpr int tellingDraws[] = {0, 1 << 26, 1 << 27, 1 << 28, 1 << 29, 1 << 30, 2147483647};
