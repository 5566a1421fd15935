// The keyboard: where it is, and what its keys do. The order of stops and what lies which way comes
// with the design.

import { printed } from './keys.js';

const takesFocus = ({ stop, element }) => stop !== null && !element.hidden && !element.disabled;

/// Where Tab enters a stop: where the keyboard was last, else at the option that is selected, else at
/// the first control.
function entryOf({ members, last }, without) {
  const there = members.filter((member) => takesFocus(member) && member !== without);
  return there.find((member) => member === last) ?? there.find((member) => member.shows?.value)
    ?? there[0];
}

/// Tab comes to the entry of a stop only.
function rove(stop) {
  const entry = entryOf(stop);
  for (const member of stop.members) member.element.tabIndex = member === entry ? 0 : -1;
}

export class Keyboard {
  #front;
  #controls;
  #hover;
  #put;
  #ask;
  #say;
  #nothing = '';  // fits a letter, in words
  #stepKeys = [];
  #questions = new Map();  // by key
  #keys = new Set(['Escape']);  // all that press something
  #isWalking = false;  // the focus moves because of a key
  #left = null;  // went away with the focus
  #passedTo = null;  // and this one got it
  #moved = new Set();  // stops whose entry may be another one now

  build({ controls, stepKeys, questions, nothing }) {
    this.#nothing = nothing;
    this.#stepKeys = stepKeys;
    this.#questions = new Map(questions.map(({ key, text }) => [key, text]));
    for (const { key } of [...controls, ...questions]) this.#keys.add(key);
  }

  /// `front` tells what takes input.
  listen({ front, controls, hover, put, ask, say }) {
    this.#front = front;
    this.#controls = controls;
    this.#hover = hover;
    this.#put = put;
    this.#ask = ask;
    this.#say = say;
    document.addEventListener('keydown', (event) => this.#keyPressed(event), true);
    document.addEventListener('keyup', () => (this.#isWalking = false), true);
    document.addEventListener('pointerdown', () => document.body.classList.remove('keys'), true);
    document.addEventListener('focusin', (event) => this.#focused(event));
  }

  // The focus.

  /// The window comes up.
  start(window) {
    this.#left = null;
    window.last = null;
    for (const stop of window.stops) {
      stop.last = null;
      rove(stop);
    }
    this.#firstOf(window)?.element.focus();
  }

  /// A control that goes passes the focus on to what is in hand or to the first stop. If it comes
  /// back while the focus is still there, as the button that ends the turn does, it gets it again.
  leave(control) {
    if (document.activeElement !== control.element) return;
    this.#passedTo = this.#standIn(control.stop.window, control);
    this.#isWalking = false;
    this.#passedTo?.element.focus();
    this.#left = control;
  }

  comeBack(control) {
    if (this.#left === control) control.element.focus();
  }

  /// What the control shows is new.
  changed({ stop }) {
    if (stop !== null) this.#moved.add(stop);
  }

  settle() {
    this.#moved.forEach(rove);
    this.#moved.clear();
  }

  /// The focus that went with a message, or with what it was on under a dialog, comes back to where it
  /// was, or to what stands in for that.
  recover() {
    const { box, window } = this.#front;
    if (box !== null || !window || document.activeElement !== document.body) return;
    if (document.querySelector('.own') !== null) return;
    const { last } = window;
    const to = last && takesFocus(last) ? last : this.#standIn(window);
    this.#isWalking = false;
    to?.element.focus({ preventScroll: true });
  }

  #standIn(window, without) {
    const inHand = window.controls.find(
      (other) => other.shows?.inHand && other !== without && takesFocus(other));
    return inHand ?? this.#firstOf(window, without);
  }

  #firstOf(window, without) {
    return window.stops.map((stop) => entryOf(stop, without)).find(Boolean);
  }

  #focused({ target }) {
    const control = this.#controls.of(target);
    if (control === undefined) return;
    if (control !== this.#passedTo) this.#left = null;
    if (control.stop !== null) {
      control.stop.last = control;
      control.stop.window.last = control;
      rove(control.stop);
    }
    if (this.#isWalking) this.#hover(control);
  }

  // The keys.

  #keyPressed(event) {
    const key = printed(event);
    document.body.classList.add('keys');
    const control = this.#controls.of(document.activeElement);
    const isModified = event.ctrlKey || event.altKey || event.metaKey;
    const isLetter = !isModified && /^\p{L}$/u.test(key);
    const isStep = !isModified && this.#stepKeys.includes(key);
    this.#isWalking = key === 'Tab' || isStep || isLetter;
    if (isStep && control?.design.walked) {
      event.preventDefault();
      this.#walk(control, key);
    } else if (isLetter && this.#front.window) {
      this.#walkToInitial(this.#front.window, control?.stop, key.toLowerCase());
    } else if (key === 'Enter' && event.repeat) {
      event.preventDefault();
    } else {
      this.#pressByKey(event, key);
    }
  }

  /// To the next one that way, as from lot to lot; an option is selected by that.
  #walk(from, key) {
    const { arrangement } = from.stop.window;
    const nextOf = ({ design }) => this.#controls.at(design.steps[arrangement][key]);
    let next = nextOf(from);
    while (next && !takesFocus(next)) next = nextOf(next);
    if (!next) return;
    next.element.focus();
    if (next.design.kind === 'option') next.element.click();
  }

  /// To the next that shows something with that initial, as from one open lot to the next: in the
  /// walked group where the keyboard is, else in the window's first one.
  #walkToInitial({ stops }, stop, initial) {
    const isWalked = (group) => group?.members[0].design.walked;
    const groups = [stop, stops.find(isWalked)].filter(isWalked);
    const next = groups.flatMap((group) => {
      const { members } = group;
      const behind = members.indexOf(entryOf(group)) + 1;
      return [...members.slice(behind), ...members.slice(0, behind)];
    }).find((member) => takesFocus(member) && member.shows.initial === initial);
    if (next) next.element.focus();
    else this.#say(`${this.#nothing}${initial.toUpperCase()}.`);
  }

  #pressByKey(event, printedKey) {
    const modifiers = [['ctrlKey', 'Ctrl+'], ['shiftKey', 'Shift+'], ['altKey', 'Alt+']];
    const key = modifiers.map(([name, text]) => (event[name] ? text : '')).join('') + printedKey;
    if (!this.#keys.has(key)) return;
    event.preventDefault();
    if (event.repeat) return;
    if (this.#questions.has(key)) this.#ask(this.#questions.get(key));
    else if (this.#front.box !== null) this.#leaveBox(key);
    else this.#press(key, this.#front.window);
  }

  #leaveBox(key) {
    if (key === 'Escape') this.#front.box.querySelector('.answer:last-child').click();
  }

  #press(key, window) {
    const control = window?.controls.find((other) => other.design.key === key);
    if (control !== undefined) {
      if (takesFocus(control)) control.element.click();
    } else if (key === 'Escape' && window?.design.dialog && window.design.closes) {
      this.#put(`close ${window.design.id}`);
    }
  }
}
