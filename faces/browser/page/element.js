// Elements of the page, written in one piece.

/// An element with its class and what is in it.
export function make(tag, className, ...children) {
  const element = document.createElement(tag);
  element.className = className;
  if (tag === 'button') element.type = 'button';
  element.append(...children);
  return element;
}
