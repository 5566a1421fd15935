// How large things are to be: as large as the screen has room for, times what the player has the
// browser enlarge.

/// The steps by which browsers enlarge a page.
const steps = [1.1, 1.2, 1.25, 1.33, 1.5, 1.7, 1.75, 2, 2.4, 2.5, 3, 4, 5];
const frame = 40;  // pixels that the browser takes beside the page at most
const smallestLetters = 96;  // twips, of what is set narrowest in the game's windows
const style = document.documentElement.style;

export class Screen {
  zoom = 1;
  bar = 0;  // height of a title bar, pixels
  #least = 0;  // pixels, the smallest letters that the browser sets

  /// Takes the measures anew.
  measure() {
    const isZoom = (step) => innerWidth * step < outerWidth + step && innerHeight * step <= outerHeight
      && innerWidth * step > outerWidth - frame;
    this.zoom = steps.findLast(isZoom) ?? 1;
    this.#least = parseFloat(getComputedStyle(document.getElementById('least')).fontSize);
    const short = Math.min(innerWidth, innerHeight) * this.zoom;
    this.bar = Math.max(24, this.#least * 1.25, Math.min(short / 25, 56));
    style.setProperty('--bar', `${this.bar}px`);
    this.#enlarge();
  }

  /// Pixels to a twip in a window of that size.
  room([width, height]) {
    return Math.min(innerWidth * this.zoom / width, (innerHeight * this.zoom - this.bar) / height);
  }

  /// A page of that size is to be seen. Where the browser sets no letters as small as some on it,
  /// all gets larger with them.
  show(size) {
    style.setProperty('--page-width', size[0]);
    style.setProperty('--page-height', size[1]);
    if (this.#least > 9) this.#enlarge(this.#least / smallestLetters / this.room(size));
  }

  #enlarge(times = 1) {
    const zoom = this.zoom * Math.max(1, times);
    style.setProperty('--zoom', zoom);
    document.documentElement.classList.toggle('zoomed', zoom > 1);
  }
}
