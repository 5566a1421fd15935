// The windows on the page, built from their design and kept as the game last told them. There is no
// code for a particular window here.

import { make } from './element.js';
import { fit } from './text.js';

/// A control that is hidden stays gone for this many milliseconds, even if it is shown again at
/// once: the lot that the game points at twitches too shortly for any screen.
const goneFor = 90;

const arrows = {
  ArrowLeft: [-1, 0],
  ArrowRight: [1, 0],
  ArrowUp: [0, -1],
  ArrowDown: [0, 1],
};

/// A caption for the screen: its line breaks are single ones there.
const screenText = (caption) => caption.replaceAll('\r', '');
const oneLine = (text) => text.replace(/\s+/g, ' ').trim();

export class View {
  #windows = [];  // each its design, element, client area, title and whether it is open
  #controls = [];  // each its design, element and what it shows
  #stack = [];  // open windows, the latest last
  #pictures = new Map();  // addresses by file
  #twitches;
  #put = () => {};
  #ask = () => {};
  #message = null;  // the dialog of the open message box
  #said = null;  // what was said last
  #left = null;  // went away with the focus
  #passedTo = null;  // and this one got it
  #tight = new Set();  // elements whose text is still to be fitted
  #walking = false;  // the focus moves because of a key
  #hovered = null;  // what the mouse was last over, unless the game has changed since

  /// Without `twitches` what comes back at once is there at once.
  constructor(twitches) {
    this.#twitches = twitches;
  }

  /// Takes pairs of a picture's file and its address. What waits for them is drawn.
  bringPictures(pairs) {
    for (const [file, address] of pairs) this.#pictures.set(file, address);
    for (const { element } of this.#controls) {
      if (element.dataset.picture) this.#drawPicture(element, element.dataset.picture);
    }
  }

  /// Hands what the player does to a function, as commands of scripted play, from now on, and what
  /// he wants to hear to another.
  listen(put, ask) {
    this.#put = put;
    this.#ask = ask;
    document.addEventListener('click', (event) => this.#clicked(event));
    document.addEventListener('pointerover', (event) => this.#moved(event));
    document.addEventListener('pointermove', (event) => this.#moved(event));
    document.addEventListener('keydown', (event) => this.#keyPressed(event), true);
    document.addEventListener('keyup', () => (this.#walking = false), true);
    document.addEventListener('pointerdown', () => document.body.classList.remove('keys'), true);
    document.addEventListener('focusin', (event) => this.#focused(event));
    addEventListener('resize', () => this.#arrangeAll());
  }

  /// What takes input, a new object each time something comes up.
  get scene() {
    return this.#message ?? this.#top()?.scene ?? null;
  }

  /// True while more than the first window is open.
  get isUnderWay() {
    return this.#stack.length > 1 && document.body.dataset.waiting !== 'ended';
  }

  // What the game tells.

  build(design) {
    this.#windows = design.windows.map((window) => this.#makeWindow(window));
    this.#controls = design.controls.map((control, at) => this.#makeControl(control, at));
    this.#windows.forEach((window) => this.#putControls(window));
  }

  show(change) {
    for (const { at, title } of change.titles ?? []) this.#windows[at].title.textContent = title;
    const opened = 'stack' in change ? this.#syncStack(change.stack) : [];
    for (const told of change.controls ?? []) this.#syncControl(told);
    for (const window of opened) this.#come(window);
    if ('message' in change) this.#syncMessage(change.message);
    if ('said' in change) this.#say(change.said);
    if ('busy' in change) document.body.classList.toggle('busy', change.busy);
    if ('focus' in change) this.#controls[change.focus]?.element.focus();
    if ('waiting' in change) document.body.dataset.waiting = change.waiting;
    if (change.waiting === 'ended') this.#end();
    if (this.#tight.size > 0) fit([...this.#tight]);
    this.#tight.clear();
    this.#hovered = null;
  }

  /// Has a screen reader say something, wherever the focus is. What is under a dialog is not heard.
  #say(text) {
    this.#said?.remove();
    this.#said = make('div', 'spoken said');
    this.#said.setAttribute('role', 'alert');
    (this.#message ?? this.#top()?.element)?.append(this.#said);
    this.#said.textContent = text;
  }

  // Windows.

  #top() {
    return this.#stack.at(-1);
  }

  #makeWindow(design) {
    const client = make('div', 'client');
    client.style.backgroundColor = design.ground;
    const element = make(design.dialog ? 'dialog' : 'section', 'window');
    element.dataset.window = design.id;
    element.setAttribute('aria-label', design.name);
    const title = make('span', 'title');
    if (design.titled) element.append(this.#makeTitleBar(design, title));
    element.append(client);
    if (design.dialog) this.#holdOpen(element, () => window.open);
    else element.hidden = true;
    document.body.append(element);
    const window = { design, element, client, title, open: false, controls: [],
      lastFocused: new Map() };
    return window;
  }

  #makeTitleBar(design, title) {
    const bar = make('header', 'bar', title);
    if (!design.closes) return bar;
    const close = make('button', 'close');
    close.dataset.close = design.id;
    close.setAttribute('aria-label', 'Close');
    bar.append(close);
    return bar;
  }

  /// The browser has ways of its own to close a dialog; here only the game closes one.
  #holdOpen(dialog, isOpen) {
    dialog.addEventListener('cancel', (event) => event.preventDefault());
    dialog.addEventListener('close', () => {
      if (isOpen() && dialog.isConnected) dialog.showModal();
    });
  }

  /// Closes what is gone and gives what has come up.
  #syncStack(told) {
    const before = this.#stack;
    this.#stack = told.map(({ at, clearOf }) => {
      this.#windows[at].clearOf = this.#controls[clearOf];
      return this.#windows[at];
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

  #come(window) {
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
    for (const control of window.controls) this.#tight.add(control.element);
    this.#left = null;
    window.lastFocused.clear();
    for (const control of window.controls) if (control.listens) this.#rove(control);
    this.#stops(window)[0]?.element.focus();
  }

  /// A dialog stands in the middle, or beside what the player is to see while it is open.
  #keepClear({ element, clearOf }) {
    element.style.translate = '';
    if (clearOf === undefined) return;
    const spot = clearOf.element.getBoundingClientRect();
    const place = element.getBoundingClientRect();
    const gap = spot.width / 4;
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
    for (const window of this.#stack) {
      if (!window.design.dialog) window.element.inert = window !== this.#topOfPage();
    }
  }

  #topOfPage() {
    return this.#stack.findLast((window) => !window.design.dialog);
  }

  /// Takes the arrangement of the window's parts in which it is larger on this screen.
  #arrange(window) {
    const { design, element } = window;
    const room = (width, height) => Math.min(innerWidth / width, innerHeight / height);
    const tall = design.tall && innerHeight > innerWidth
      && room(design.tall[0], design.tall[1]) > room(design.width, design.height);
    const [width, height] = tall ? design.tall : [design.width, design.height];
    element.style.setProperty('--width', width);
    element.style.setProperty('--height', height);
    if (!design.dialog) {
      document.documentElement.style.setProperty('--page-width', width);
      document.documentElement.style.setProperty('--page-height', height);
    }
    for (const control of window.controls) this.#place(control, tall);
  }

  #arrangeAll() {
    for (const window of this.#stack) {
      this.#arrange(window);
      fit(window.controls.map((control) => control.element));
      if (window.design.dialog) this.#keepClear(window);
    }
  }

  #end() {
    const again = make('button', 'answer', 'Play again');
    again.addEventListener('click', () => location.reload());
    const end = make('section', 'end', make('p', '', 'The game is over.'), again);
    for (const window of this.#windows) window.element.remove();
    document.body.append(end);
    again.focus();
  }

  // Message boxes.

  #syncMessage(message) {
    this.#message?.remove();
    this.#message = null;
    if (message === null) return;
    const text = make('p', 'text', screenText(message.text));
    text.id = 'message';
    const answers = (message.asks ? ['Yes', 'No'] : ['OK']).map((answer) => {
      const button = make('button', 'answer', answer);
      button.dataset.answer = answer.toLowerCase();
      return button;
    });
    const icon = message.asks ? 'asks' : message.warns ? 'warns' : 'tells';
    const dialog = make('dialog', `window message ${icon}`,
      make('header', 'bar', make('span', 'title', message.title)), text,
      make('div', 'answers', ...answers));
    dialog.dataset.window = 'message box';
    dialog.setAttribute('aria-label', message.title);
    dialog.setAttribute('aria-describedby', text.id);
    this.#holdOpen(dialog, () => this.#message === dialog);
    document.body.append(dialog);
    this.#message = dialog;
    dialog.showModal();
    answers[0].focus();
  }

  // Controls.

  #makeControl(design, at) {
    const listens = design.clicks || design.kind === 'textbox' || design.walked;
    const tag = design.kind === 'textbox' ? 'textarea' : design.clicks ? 'button' : 'div';
    const element = make(tag, `control ${design.kind} border-${design.look.border}`);
    element.dataset.control = design.id;
    if (tag === 'textarea') element.readOnly = true;
    const { look } = design;
    element.style.zIndex = at;
    element.style.color = look.ink;
    element.style.backgroundColor = look.ground;
    element.style.setProperty('--letters', look.letterHeight);
    element.style.setProperty('--rest', 1 - look.textShare / 100);
    element.classList.add(look.align);
    element.classList.toggle('bold', look.bold);
    element.classList.toggle('vertical', look.vertical);
    element.classList.toggle('ground', look.ground !== '');
    element.classList.toggle('listens', design.clicks);
    element.hidden = true;
    const caption = make('span', 'caption');
    const spoken = make('span', 'spoken');
    if (tag !== 'textarea') element.append(spoken, caption);
    if (design.kind === 'option') element.setAttribute('role', 'radio');
    if (design.kind === 'checkbox') element.setAttribute('role', 'checkbox');
    if (design.kind === 'image' && !design.clicks) element.setAttribute('role', 'img');
    if (design.speech === 'news') element.setAttribute('aria-live', 'polite');
    const control =
      { at, design, element, caption, spoken, listens, goneUntil: 0, timer: 0, shows: null };
    const window = this.#windows[design.window];
    window.controls.push(control);
    return control;
  }

  #putControls(window) {
    const groups = new Map();
    for (const control of window.controls) {
      const { group } = control.design;
      if (group === undefined) {
        window.client.append(control.element);
        continue;
      }
      if (!groups.has(group)) {
        const element = make('div', 'group');
        element.setAttribute('aria-label', group);
        window.client.append(element);
        groups.set(group, { element, members: [] });
      }
      groups.get(group).members.push(control);
    }
    for (const { element, members } of groups.values()) this.#putGroup(element, members);
    // The keyboard goes by levels, and through one as it was placed.
    const stops = window.controls.filter((control) => control.listens);
    stops.sort((a, b) => a.design.level - b.design.level || a.at - b.at);
    stops.forEach((control, rank) => (control.rank = rank + 1));
    const news = window.controls.filter((control) => control.design.speech === 'news');
    if (!window.design.dialog) return;
    for (const { element, at } of news) element.id = `control-${at}`;
    window.element.setAttribute('aria-describedby', news.map(({ at }) => `control-${at}`).join(' '));
  }

  /// Pictures in rows are a grid, options are a choice, and other things that belong together a
  /// group.
  #putGroup(element, members) {
    const { walked, kind } = members[0].design;
    const rows = new Map(members.map((member) => [member.design.box[1], []]));
    for (const member of members) rows.get(member.design.box[1]).push(member);
    if (!walked || kind !== 'image' || rows.size === 1) {
      element.setAttribute('role', walked && kind === 'option' ? 'radiogroup' : 'group');
      element.append(...members.map((member) => member.element));
      return;
    }
    element.setAttribute('role', 'grid');
    for (const row of rows.values()) {
      const cells = row.map((member) => {
        member.element.setAttribute('role', 'gridcell');
        return member.element;
      });
      const line = make('div', 'group', ...cells);
      line.setAttribute('role', 'row');
      element.append(line);
    }
  }

  #place({ design, element }, tall) {
    const [left, top, width, height] = tall ? design.tall : design.box;
    element.style.setProperty('--left', left);
    element.style.setProperty('--top', top);
    element.style.setProperty('--wide', width);
    element.style.setProperty('--high', height);
  }

  #syncControl(told) {
    const control = this.#controls[told.at];
    const { design, element, caption, spoken } = control;
    const before = control.shows;
    control.shows = told;
    const changed = (name) => before === null || before[name] !== told[name];
    if (changed('caption')) caption.textContent = screenText(told.caption);
    if (changed('text') && design.kind === 'textbox') {
      element.value = screenText(told.text);
      element.setSelectionRange(0, 0);
    }
    if (changed('picture')) this.#drawPicture(element, told.picture);
    if (changed('name')) this.#name(control);
    if (changed('enabled') && 'disabled' in element) {
      if (!told.enabled) this.#leave(control);
      element.disabled = !told.enabled;
    }
    const marked = ['option', 'checkbox'].includes(design.kind);
    if (changed('value') && marked) element.setAttribute('aria-checked', told.value);
    if (changed('inHand')) element.classList.toggle('in-hand', told.inHand);
    if (changed('visible')) this.#becomeVisible(control);
    if (changed('caption') || changed('visible')) this.#tight.add(element);
    if (control.listens) this.#rove(control);
  }

  /// What can be pressed or seen but not read gets its name as a label; a text that is not what is
  /// to be said stays for the eye only.
  #name({ design, element, caption, spoken, shows }) {
    const { name } = shows;
    const labelled = design.clicks || design.walked || ['image', 'textbox'].includes(design.kind);
    if (labelled) {
      element.setAttribute('aria-label', name);
      element.toggleAttribute('aria-hidden', name === '' && !design.clicks);
      return;
    }
    const readable = name === oneLine(shows.caption);
    spoken.textContent = readable ? '' : name;
    caption.toggleAttribute('aria-hidden', false);
    if (!readable) caption.setAttribute('aria-hidden', 'true');
  }

  #drawPicture(element, file) {
    element.dataset.picture = file;
    element.classList.toggle('pictured', file !== '');
    const address = this.#pictures.get(file);
    element.style.setProperty('--picture', address === undefined ? 'none' : `url("${address}")`);
  }

  #becomeVisible(control) {
    const { element, shows } = control;
    const now = performance.now();
    if (!shows.visible) {
      this.#leave(control);
      element.hidden = true;
      control.goneUntil = now + goneFor;
      return;
    }
    element.hidden = false;
    if (this.#twitches && control.goneUntil > now && !element.classList.contains('gone')) {
      element.classList.add('gone');
      setTimeout(() => element.classList.remove('gone'), control.goneUntil - now);
    }
    if (this.#left === control) element.focus();
  }

  // The keyboard's way.

  #takesFocus({ listens, element }) {
    return listens && !element.hidden && !element.disabled;
  }

  #groupOf(control) {
    const { window, group } = control.design;
    return this.#windows[window].controls.filter((other) => other.design.group === group);
  }

  /// A control that goes passes the focus on to what is in hand or to the first stop. If it comes
  /// back while the focus is still there, as the button that ends the turn does, it gets it again.
  #leave(control) {
    if (document.activeElement !== control.element) return;
    const window = this.#windows[control.design.window];
    const inHand = window.controls.find((other) => other.shows?.inHand && this.#takesFocus(other));
    const stops = this.#stops(window);
    this.#passedTo = inHand ?? stops.find((other) => other !== control) ?? null;
    this.#passedTo?.element.focus();
    this.#left = control;
  }

  /// A walked group is one stop: where the keyboard was last, else the option that is selected,
  /// else the first.
  #entryOf(control) {
    const { window, group } = control.design;
    const members = this.#groupOf(control).filter((member) => this.#takesFocus(member));
    const last = this.#windows[window].lastFocused.get(group);
    if (members.includes(last)) return last;
    return members.find((member) => member.shows?.value) ?? members[0];
  }

  #rove(control) {
    const members = control.design.walked ? this.#groupOf(control) : [control];
    const entry = control.design.walked ? this.#entryOf(control) : control;
    const rank = Math.min(...members.map((member) => member.rank));
    for (const member of members) member.element.tabIndex = member === entry ? rank : -1;
  }

  #stops(window) {
    return window.controls
      .filter((control) => this.#takesFocus(control) && control.element.tabIndex > 0)
      .sort((a, b) => a.element.tabIndex - b.element.tabIndex);
  }

  /// The nearest of the same group in a direction, as from lot to lot.
  #walk(from, [x, y]) {
    const middle = ({ element }) => {
      const { left, top, width, height } = element.getBoundingClientRect();
      return [left + width / 2, top + height / 2];
    };
    const [fromX, fromY] = middle(from);
    let nearest = null;
    let shortest = Infinity;
    for (const member of this.#groupOf(from)) {
      if (!this.#takesFocus(member)) continue;
      const [toX, toY] = middle(member);
      const ahead = (toX - fromX) * x + (toY - fromY) * y;
      if (ahead <= 1) continue;
      // What lies straight ahead is nearer than all that lies aside.
      const aside = Math.abs((toX - fromX) * y) + Math.abs((toY - fromY) * x);
      const distance = aside <= ahead / 2 ? ahead : ahead + 100 * aside;
      if (distance >= shortest) continue;
      nearest = member;
      shortest = distance;
    }
    if (nearest === null) return;
    nearest.element.focus();
    if (nearest.design.kind === 'option') nearest.element.click();
  }

  /// The next of the same group that shows something with that initial, as from one open lot to the
  /// next.
  #walkToInitial(from, initial) {
    const members = this.#groupOf(from).filter((member) => this.#takesFocus(member));
    const here = members.indexOf(from) + 1;
    const next = [...members.slice(here), ...members.slice(0, here)].find(
      (member) => member.shows.content.toLowerCase().startsWith(initial.toLowerCase()));
    next?.element.focus();
  }

  #controlAt(element) {
    const id = element?.closest?.('[data-control]')?.dataset.control;
    return this.#controls.find((control) => control.design.id === id);
  }

  #focused({ target }) {
    const control = this.#controlAt(target);
    if (control === undefined) return;
    if (control !== this.#passedTo) this.#left = null;
    const { window, group, walked } = control.design;
    if (walked) {
      this.#windows[window].lastFocused.set(group, control);
      this.#rove(control);
    }
    if (this.#walking) this.#hover(control);
  }

  #keyPressed(event) {
    const { key } = event;
    document.body.classList.add('keys');
    const control = this.#controlAt(document.activeElement);
    const modified = event.ctrlKey || event.altKey || event.metaKey;
    const letter = !modified && /^\p{L}$/u.test(key);
    this.#walking = key === 'Tab' || key in arrows || letter;
    if (key in arrows && !modified && control?.design.walked) {
      event.preventDefault();
      this.#walk(control, arrows[key]);
    } else if (letter && control?.design.walked) {
      this.#walkToInitial(control, key);
    } else if (key === 'Enter' && event.repeat) {
      event.preventDefault();
    } else {
      this.#pressByKey(event);
    }
  }

  #pressByKey(event) {
    const modifiers = [['ctrlKey', 'Ctrl+'], ['shiftKey', 'Shift+'], ['altKey', 'Alt+']];
    const name = modifiers.map(([key, text]) => (event[key] ? text : '')).join('') + event.key;
    if (!['Escape', 'Ctrl+Enter', 'F1', 'F2', 'F3'].includes(name)) return;
    event.preventDefault();
    if (event.repeat) return;
    if (name === 'F3') {
      this.#ask('say standing');
      return;
    }
    if (this.#message !== null) {
      if (name === 'Escape') this.#message.querySelector('.answer:last-child').click();
      if (name === 'F2') this.#say(this.#message.querySelector('.text').textContent);
      return;
    }
    if (name === 'F2') {
      this.#ask('say news');
      return;
    }
    const window = this.#top();
    const control = window?.controls.find((other) => other.design.key === name);
    if (control !== undefined) {
      if (this.#takesFocus(control)) control.element.click();
    } else if (name === 'Escape' && window?.design.dialog && window.design.closes) {
      this.#put(`close ${window.design.id}`);
    }
  }

  // The mouse, or a finger.

  /// A click that a program makes can meet what is covered; a player's cannot.
  #isOnTop(element) {
    return (this.#message ?? this.#top()?.element)?.contains(element);
  }

  #clicked({ target }) {
    if (!this.#isOnTop(target)) return;
    const pressed = target.closest('[data-answer], [data-close], [data-control]');
    if (pressed === null) {
      const under = this.#top();
      if (target === under?.client && under.design.clicks) this.#put(`click ${under.design.id}`);
    } else if (pressed.dataset.answer) {
      this.#put(`answer ${pressed.dataset.answer}`);
    } else if (pressed.dataset.close) {
      this.#put(`close ${pressed.dataset.close}`);
    } else if (this.#controlAt(pressed).design.clicks) {
      this.#put(`click ${pressed.dataset.control}`);
    }
  }

  #moved({ target }) {
    if (!this.#isOnTop(target)) return;
    const control = this.#controlAt(target);
    const window = this.#top();
    if (control !== undefined) this.#hover(control);
    else if (target === window?.client) this.#hover(window);
  }

  /// A further move over the same thing tells the game nothing new, unless it has changed.
  #hover(thing) {
    if (thing === this.#hovered) return;
    if (thing.design.hovers) this.#put(`hover ${thing.design.id}`);
    this.#hovered = thing;
  }
}
