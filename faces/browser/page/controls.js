// The controls of the windows: made from their design, and drawn as the game last told of them.

import { make } from './element.js';
import { fit, screenText } from './text.js';

const oneLine = (text) => text.replace(/\s+/g, ' ').trim();

export class Controls {
  #all = [];  // each its design, element, place and what it shows
  #byId = new Map();
  #pictures = new Map();  // addresses by file
  #tight = new Set();  // elements whose text is still to be fitted
  #keyboard;
  #twitches;
  #goneFor = 0;

  /// The keyboard hears what comes and goes. Without `twitches` what comes back at once is there at
  /// once.
  constructor(keyboard, twitches) {
    this.#keyboard = keyboard;
    this.#twitches = twitches;
  }

  /// A control that is hidden stays gone for `goneFor` milliseconds.
  build(designs, goneFor) {
    this.#goneFor = goneFor;
    this.#all = designs.map((design, at) => this.#make(design, at));
    this.#byId = new Map(this.#all.map((control) => [control.design.id, control]));
  }

  at(place) {
    return this.#all[place];
  }

  /// The control that an element is a part of.
  of(element) {
    return this.#byId.get(element?.closest?.('[data-control]')?.dataset.control);
  }

  /// Takes pairs of a picture's file and its address. What waits for them is drawn.
  bringPictures(pairs) {
    for (const [file, address] of pairs) this.#pictures.set(file, address);
    for (const { element } of this.#all) {
      if (element.dataset.picture) this.#drawPicture(element, element.dataset.picture);
    }
  }

  place(control, arrangement) {
    const { design, element } = control;
    control.place = design[arrangement];
    ['--left', '--top', '--wide', '--high']
      .forEach((name, i) => element.style.setProperty(name, control.place[i]));
  }

  sync(told) {
    const control = this.#all[told.at];
    const { design, element, caption } = control;
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
      if (!told.enabled) this.#keyboard.leave(control);
      element.disabled = !told.enabled;
    }
    const marked = ['option', 'checkbox'].includes(design.kind);
    if (changed('value') && marked) element.setAttribute('aria-checked', told.value);
    if (changed('inHand')) {
      element.classList.toggle('in-hand', told.inHand);
      if (element.matches('[role=gridcell]')) element.setAttribute('aria-selected', told.inHand);
    }
    if (changed('visible')) this.#becomeVisible(control);
    if (changed('caption') || changed('visible')) this.#tight.add(element);
    this.#keyboard.changed(control);
  }

  /// The texts of these are fitted with those of all that has changed.
  refit(controls) {
    for (const { element } of controls) this.#tight.add(element);
  }

  fitTexts() {
    if (this.#tight.size > 0) fit([...this.#tight]);
    this.#tight.clear();
  }

  #make(design, at) {
    const tag = design.kind === 'textbox' ? 'textarea' : design.clicks ? 'button' : 'div';
    const element = make(tag, `control ${design.kind} border-${design.look.border}`);
    element.dataset.control = design.id;
    if (tag === 'textarea') element.readOnly = true;
    const { look } = design;
    element.style.zIndex = at;  // the document's order is the keyboard's
    element.style.color = look.ink;
    element.style.backgroundColor = look.ground;
    element.style.setProperty('--letters', look.letterHeight);
    element.style.setProperty('--rest', 1 - look.textShare / 100);
    element.classList.add(look.align);
    element.classList.toggle('bold', look.bold);
    element.classList.toggle('vertical', look.vertical);
    element.classList.toggle('ground', look.ground !== '');
    element.classList.toggle('listens', design.clicks);
    // A finger's tap goes to what listens nearby, unless this does.
    if (!design.clicks) element.onclick = () => {};
    element.hidden = true;
    const caption = make('span', 'caption');
    const spoken = make('span', 'spoken');
    if (tag !== 'textarea') element.append(spoken, caption);
    if (design.kind === 'option') element.setAttribute('role', 'radio');
    if (design.kind === 'checkbox') element.setAttribute('role', 'checkbox');
    if (design.kind === 'image' && !design.clicks) element.setAttribute('role', 'img');
    if (design.speech === 'news') element.setAttribute('aria-live', 'polite');
    return { at, design, element, caption, spoken, goneUntil: 0, shows: null, stop: null };
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
      this.#keyboard.leave(control);
      element.hidden = true;
      control.goneUntil = now + this.#goneFor;
      return;
    }
    element.hidden = false;
    if (this.#twitches && control.goneUntil > now && !element.classList.contains('gone')) {
      element.classList.add('gone');
      setTimeout(() => element.classList.remove('gone'), control.goneUntil - now);
    }
    this.#keyboard.comeBack(control);
  }
}
