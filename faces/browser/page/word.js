// A word that says what was done where nothing else shows it: it is seen above everything, spoken, and
// gone again.

import { make } from './element.js';

const shortest = 3000;  // milliseconds
const perLetter = 60;  // milliseconds, at an easy pace of reading

export class Word {
  #seen = null;
  #spoken = null;
  #gone = 0;  // a timer

  constructor() {
    // A dialog that opens comes above it.
    document.addEventListener('toggle', ({ target }) => {
      if (target !== this.#seen) this.#raise();
    }, true);
  }

  say(sentence) {
    this.#remove();
    this.#seen = make('div', 'word', sentence);
    this.#seen.setAttribute('aria-hidden', true);
    this.#seen.popover = 'manual';
    document.body.append(this.#seen);
    this.#raise();
    // What is under a dialog is not heard, and what is new in a place that was there is.
    this.#spoken = make('div', 'spoken');
    this.#spoken.setAttribute('role', 'status');
    (document.activeElement?.closest('dialog[open]') ?? document.body).append(this.#spoken);
    this.#gone = setTimeout(() => this.#remove(), Math.max(shortest, sentence.length * perLetter));
    requestAnimationFrame(() => this.#spoken?.append(sentence));
  }

  #raise() {
    this.#seen?.hidePopover?.();
    this.#seen?.showPopover?.();
  }

  #remove() {
    clearTimeout(this.#gone);
    this.#seen?.remove();
    this.#spoken?.remove();
    this.#seen = this.#spoken = null;
  }
}
