// The windows on the page: made from their design, stacked and arranged. There is no code for a
// particular window here.

import { holdOpen } from './dialogs.js';
import { make } from './element.js';
import { Screen } from './screen.js';

export class Windows {
  #all = [];  // each its design, element, client area, title, controls and stops of the keyboard
  #stack = [];  // open windows, the latest last
  #clearance = 0;
  #controls;
  #keyboard;
  #screen = new Screen();

  constructor(controls, keyboard) {
    this.#controls = controls;
    this.#keyboard = keyboard;
  }

  /// A dialog stands `clearance` twips away from what is to be seen.
  build(designs, clearance) {
    this.#clearance = clearance;
    this.#screen.measure();
    this.#all = designs.map((design) => this.#make(design));
    for (const window of this.#all) this.#putControls(window);
  }

  get top() {
    return this.#stack.at(-1);
  }

  get count() {
    return this.#stack.length;
  }

  title(told) {
    for (const { at, title, name } of told) {
      this.#all[at].title.textContent = title;
      this.#all[at].title.setAttribute('aria-label', title || name);
      this.#all[at].element.setAttribute('aria-label', name);
    }
  }

  /// Closes what is gone and gives what is to come up.
  sync(told) {
    const before = this.#stack;
    this.#stack = told.map(({ at, clearOf }) => {
      this.#all[at].clearOf = this.#controls.at(clearOf);
      return this.#all[at];
    });
    for (const window of before) {
      if (this.#stack.includes(window)) continue;
      window.open = false;
      if (window.design.dialog) window.element.close();
      else window.element.hidden = true;
    }
    this.#cover();
    return this.#stack.filter((window) => !window.open);
  }

  come(window) {
    const { design, element } = window;
    window.open = true;
    window.scene = {};
    this.#arrange(window);
    if (!design.dialog) {
      document.body.append(element);
      element.hidden = false;
    } else {
      element.showModal();
      this.#keepClear(window);
    }
    this.#cover();
    this.#controls.refit(window.controls);
    this.#keyboard.start(window);
  }

  /// The screen has another size.
  arrange() {
    this.#screen.measure();
    for (const window of this.#stack) {
      this.#arrange(window);
      this.#controls.refit(window.controls);
      if (window.design.dialog) this.#keepClear(window);
    }
    this.#controls.fitTexts();
  }

  end() {
    const again = make('button', 'answer', 'Play again');
    again.addEventListener('click', () => location.reload());
    for (const window of this.#all) window.element.remove();
    document.body.append(make('main', 'end', make('h1', '', 'The game is over.'), again));
    again.focus();
  }

  #make(design) {
    const client = make('div', 'client');
    client.style.backgroundColor = design.ground;
    const element = make(design.dialog ? 'dialog' : 'main', 'window', client);
    element.dataset.window = design.id;
    const title = make('h1', design.titled ? 'title' : 'spoken');
    element.append(design.titled ? this.#makeTitleBar(design, title) : title);
    const controls = design.order.map((at) => this.#controls.at(at));
    const window = { design, element, client, title, controls, open: false };
    window.stops = design.stops.map((places) => this.#makeStop(window, places));
    if (design.dialog) holdOpen(element, () => window.open);
    else element.hidden = true;
    document.body.append(element);
    return window;
  }

  /// The bar stands above the client area, and the keyboard comes to it behind that.
  #makeTitleBar(design, title) {
    const bar = make('header', 'bar', title);
    if (!design.closes) return bar;
    const close = make('button', 'close');
    close.dataset.close = design.id;
    close.setAttribute('aria-label', 'Close');
    bar.append(close);
    return bar;
  }

  /// What Tab stops at once.
  #makeStop(window, places) {
    const members = places.map((at) => this.#controls.at(at));
    const stop = { window, members, last: null };
    for (const control of members) control.stop = stop;
    return stop;
  }

  /// In the order of the keyboard. What belongs together follows one another there.
  #putControls({ design, element, client, controls }) {
    let members = [];
    controls.forEach((control, i) => {
      const { group } = control.design;
      if (group === undefined) {
        client.append(control.element);
        return;
      }
      members.push(control);
      if (controls[i + 1]?.design.group === group) return;
      client.append(makeGroup(group, members));
      members = [];
    });
    if (!design.dialog) return;
    const news = controls.filter((control) => control.design.speech === 'news');
    for (const control of news) control.element.id = `control-${control.at}`;
    element.setAttribute('aria-describedby', news.map(({ at }) => `control-${at}`).join(' '));
  }

  /// A dialog stands in the middle, or beside what the player is to see while it is open.
  #keepClear({ element, clearOf }) {
    element.style.translate = '';
    if (clearOf === undefined) return;
    const spot = clearOf.element.getBoundingClientRect();
    const place = element.getBoundingClientRect();
    const gap = (spot.width / clearOf.place[2]) * this.#clearance;
    const ways = [
      [spot.left - gap - place.right, 0], [spot.right + gap - place.left, 0],
      [0, spot.top - gap - place.bottom], [0, spot.bottom + gap - place.top],
    ];
    const fits = ([x, y]) => place.left + x >= 0 && place.right + x <= innerWidth
      && place.top + y >= 0 && place.bottom + y <= innerHeight;
    const covers = place.left < spot.right + gap && place.right > spot.left - gap
      && place.top < spot.bottom + gap && place.bottom > spot.top - gap;
    if (!covers) return;
    const [way] = ways.filter(fits).sort((a, b) => Math.hypot(...a) - Math.hypot(...b));
    if (way !== undefined) element.style.translate = `${way[0]}px ${way[1]}px`;
  }

  /// What lies under another window takes no input; the browser sees to it under a dialog.
  #cover() {
    const top = this.#stack.findLast((window) => !window.design.dialog);
    for (const window of this.#stack) {
      if (window.design.dialog) continue;
      const comesBack = window === top && window.element.inert;
      window.element.inert = window !== top;
      if (comesBack) this.#keyboard.start(window);
    }
  }

  /// Takes the arrangement of the window's parts for this shape of a screen, unless the window gets
  /// smaller by it.
  #arrange(window) {
    const { design, element } = window;
    const other = innerHeight > innerWidth ? 'tall' : 'low';
    const isOther = design[other] !== null
      && this.#screen.room(design[other]) >= this.#screen.room(design.box);
    window.arrangement = isOther ? other : 'box';
    const size = design[window.arrangement];
    const [width, height] = size;
    element.style.setProperty('--width', width);
    element.style.setProperty('--height', height);
    if (!design.dialog) this.#screen.show(size);
    for (const control of window.controls) this.#controls.place(control, window.arrangement);
  }
}

/// Pictures in rows are a grid, options are a choice, and other things that belong together a
/// group.
function makeGroup(name, members) {
  const group = make('div', 'group');
  group.setAttribute('aria-label', name);
  const { walked, kind } = members[0].design;
  const rows = new Map(members.map((member) => [member.design.box[1], []]));
  for (const member of members) rows.get(member.design.box[1]).push(member.element);
  if (!walked || kind !== 'image' || rows.size === 1) {
    group.setAttribute('role', walked && kind === 'option' ? 'radiogroup' : 'group');
    group.append(...members.map((member) => member.element));
    return group;
  }
  group.setAttribute('role', 'grid');
  for (const cells of rows.values()) {
    for (const cell of cells) cell.setAttribute('role', 'gridcell');
    const row = make('div', 'group', ...cells);
    row.setAttribute('role', 'row');
    group.append(row);
  }
  return group;
}
