// All that the page shows, as the game tells it.

import { Controls } from './controls.js';
import { MessageBox } from './dialogs.js';
import { make } from './element.js';
import { Keyboard } from './keyboard.js';
import { Pointer } from './pointer.js';
import { screenText } from './text.js';
import { Windows } from './windows.js';

/// What takes input: the message box that is open, else the window on top.
class Front {
  #windows;
  #message;

  constructor(windows, message) {
    this.#windows = windows;
    this.#message = message;
  }

  get box() {
    return this.#message.element;
  }

  get window() {
    return this.box === null ? this.#windows.top : undefined;
  }

  get element() {
    return this.box ?? this.window?.element;
  }

  /// A click that a program makes can meet what is covered; a player's cannot.
  holds(element) {
    return this.element?.contains(element);
  }
}

export class View {
  #keyboard = new Keyboard();
  #pointer = new Pointer();
  #message = new MessageBox();
  #controls;
  #windows;
  #front;
  #said = null;  // what was said last

  /// Without `twitches` what comes back at once is there at once.
  constructor(twitches) {
    this.#controls = new Controls(this.#keyboard, twitches);
    this.#windows = new Windows(this.#controls, this.#keyboard);
    this.#front = new Front(this.#windows, this.#message);
  }

  bringPictures(pairs) {
    this.#controls.bringPictures(pairs);
  }

  /// Hands what the player does to a function, as commands of scripted play, from now on, and what
  /// he wants to hear to another.
  listen(put, ask) {
    const hover = (thing) => this.#pointer.hover(thing);
    const say = (text) => this.#say(text);
    const needs = { front: this.#front, controls: this.#controls, hover, put, ask, say };
    this.#pointer.listen(needs);
    this.#keyboard.listen(needs);
    addEventListener('resize', () => this.#windows.arrange());
  }

  /// What takes input, a new object each time something comes up.
  get scene() {
    return this.#front.box ?? this.#front.window?.scene ?? null;
  }

  /// True while more than the first window is open.
  get isUnderWay() {
    return this.#windows.count > 1 && document.body.dataset.waiting !== 'ended';
  }

  build(design) {
    this.#controls.build(design.controls, design.goneFor);
    this.#windows.build(design.windows, design.clearance);
    this.#keyboard.build(design);
  }

  show(change) {
    this.#windows.title(change.titles ?? []);
    const opened = 'stack' in change ? this.#windows.sync(change.stack) : [];
    for (const told of change.controls ?? []) this.#controls.sync(told);
    this.#keyboard.settle();
    for (const window of opened) this.#windows.come(window);
    if ('message' in change) this.#message.sync(change.message);
    if ('said' in change) this.#say(change.said);
    if ('busy' in change) document.body.classList.toggle('busy', change.busy);
    if ('focus' in change) this.#controls.at(change.focus)?.element.focus();
    if ('waiting' in change) document.body.dataset.waiting = change.waiting;
    if (change.waiting === 'ended') this.#windows.end();
    this.#keyboard.recover();
    this.#controls.fitTexts();
    this.#pointer.changed();
  }

  /// Has a screen reader say something, wherever the focus is. What is under a dialog is not heard.
  #say(text) {
    this.#said?.remove();
    this.#said = make('div', 'spoken said');
    this.#said.setAttribute('role', 'alert');
    this.#front.element?.append(this.#said);
    this.#said.textContent = screenText(text);
  }
}
