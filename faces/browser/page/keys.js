// What a key of any keyboard means.

/// What is printed on a key; but the place of a key counts where the keyboard has no Latin letters, or
/// no digits without Shift.
export function printed({ key, code }) {
  const isOfPlace = /^Key.$/.test(code) ? /^\p{L}$/u.test(key) : /^Digit.$/.test(code) && key.length === 1;
  return isOfPlace && !/^[a-z\d]$/i.test(key) ? code.at(-1).toLowerCase() : key;
}
