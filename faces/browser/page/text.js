// Captions are set in the size of their look, or as much smaller as it takes to show all of them.

const step = 0.95;
const smallest = 0.3;

/// A caption for the screen: its line breaks are single ones there.
export const screenText = (caption) => caption.replaceAll('\r', '');

/// The letters of these elements get smaller until each text lies within its element. All are
/// measured together, so that the page is laid out once a step and not once a text.
export function fit(elements) {
  let tight = elements.filter((element) => element.offsetParent !== null);
  let factor = 1;
  for (const element of tight) element.style.setProperty('--fit', '1');
  while (tight.length > 0 && factor > smallest) {
    tight = tight.filter((element) => !holds(element));
    factor *= step;
    for (const element of tight) element.style.setProperty('--fit', factor.toFixed(3));
  }
}

/// What runs into the padding counts as not held, so the text itself is measured.
function holds(element) {
  const text = element.querySelector('.caption');
  if (text === null || text.textContent === '') return true;
  const style = getComputedStyle(element);
  const width = element.clientWidth - parseFloat(style.paddingLeft) - parseFloat(style.paddingRight);
  const height =
    element.clientHeight - parseFloat(style.paddingTop) - parseFloat(style.paddingBottom);
  const slack = 1;  // both are told in whole pixels
  return text.offsetWidth <= width + slack && text.offsetHeight <= height + slack;
}
