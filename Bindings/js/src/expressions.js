// The functions of the expressions in arguments.tsv, over numbers that are whole, and far too large to be a length before
// they are no longer exact.

// The missing value of the library.
export const MISSING = -1.79769313486231e308;

export const quotient = (a, b) => (b === 0 ? 0 : Math.trunc(a / b));
export const remainder = (a, b) => (b === 0 ? 0 : a % b);
export const choose = (condition, a, b) => (condition !== 0 ? a : b);
export const span = (first, last) => Math.max(last - first + 1, 0);
export const packed = (n) => (n > 0 ? (n * (n + 1)) / 2 : 0);

// Of arrays, whose lengths were checked before.

export const value = (cells) => cells[0];

export function largest(cells, n) {
  let most = 0;
  for (let i = 0; i < n; ++i) most = Math.max(most, cells[i]);
  return most;
}

export function sum(cells, n) {
  let total = 0;
  for (let i = 0; i < n; ++i) if (cells[i] !== MISSING) total += cells[i];
  return total > -2147483649 && total < 2147483648 ? Math.trunc(total) : -2147483648;
}

export function clampedSum(cells, n, most) {
  let total = 0;
  for (let i = 0; i < n && most > 0; ++i) if (cells[i] >= 1) total += Math.min(Math.floor(cells[i]), most);
  return total;
}
