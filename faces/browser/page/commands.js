// What the player can do with the game as a whole: the menu of it, its keys, and the files of kept
// games. The game stands still while something of this is open.

import { makeBox } from './dialogs.js';
import { make } from './element.js';
import { printed } from './keys.js';
import { Word } from './word.js';

export { Store } from './store.js';

const longTouch = 600;  // milliseconds
const slip = 10;  // pixels that a finger may move meanwhile
const longestFile = 16 * 1024 * 1024;  // bytes, the games of a year
const suffix = '.zelvo';

const texts = {
  noDownloads: 'This frame allows no downloads: nothing was kept in a file. Open Zelvo in a tab of its own.',
  ifAllowed: ', if this frame allows downloads. If no file comes, open Zelvo in a tab of its own.',
};

/// A key as helpers know it.
const shortcut = ({ key }) => key.replace('Ctrl', 'Control');

/// Whether a download comes to the player; undefined where only the page around this one knows.
function allowsDownloads() {
  if (window.parent === window) return true;
  const frame = window.frameElement;
  if (frame === null) return undefined;
  return frame.hasAttribute('sandbox') ? frame.sandbox.contains('allow-downloads') : undefined;
}

function download(list, file) {
  const link = document.createElement('a');
  link.href = URL.createObjectURL(new Blob([list], { type: 'application/x-zelvo-game' }));
  link.download = file;
  link.click();
  setTimeout(() => URL.revokeObjectURL(link.href), 60_000);
}

function makeItem(name, key) {
  const item = make('button', 'item', make('span', '', name), make('kbd', '', key));
  item.setAttribute('role', 'menuitem');
  item.setAttribute('aria-label', name);
  return item;
}

export class Commands {
  #store;
  #queue;
  #clock;
  #sounds;
  #word = new Word();
  #file = `game${suffix}`;  // the name that a file with this game gets
  #designs = [];
  #can = { takeBack: false, doAgain: false };
  #touch = 0;  // a timer, while a finger may stay for long
  #touched = [0, 0];

  constructor(store, queue, clock, sounds) {
    this.#store = store;
    this.#queue = queue;
    this.#clock = clock;
    this.#sounds = sounds;
  }

  build(designs) {
    this.#designs = designs;
    if (designs.length === 0) return;
    const style = document.createElement('link');
    style.rel = 'stylesheet';
    style.href = 'commands.css';
    document.head.append(style);
    document.body.setAttribute('aria-keyshortcuts', designs.map(shortcut).join(' '));
    // Ahead of all that the game's own windows do with keys and clicks.
    addEventListener('keydown', (event) => this.#keyPressed(event), true);
    addEventListener('contextmenu', (event) => this.#menuAsked(event), true);
    addEventListener('pointerdown', (event) => this.#fingerDown(event), true);
    addEventListener('pointermove', (event) => this.#fingerMoved(event), true);
    for (const end of ['pointerup', 'pointercancel']) {
      addEventListener(end, () => clearTimeout(this.#touch), true);
    }
    addEventListener('resize', () => document.querySelector('.menu')?.close());
    addEventListener('dragover', (event) => event.preventDefault());
    addEventListener('drop', (event) => {
      event.preventDefault();
      if (event.dataTransfer.files.length > 0) this.#goOnWith(event.dataTransfer.files[0]);
    });
  }

  show({ can, notice, misfit, word, file }) {
    if (can !== undefined) [this.#can.takeBack, this.#can.doAgain] = can;
    if (word !== undefined) this.say(word);
    if (file !== undefined) this.#file = file.endsWith(suffix) ? file : file + suffix;
    if (notice !== undefined) this.#warn(notice);
    if (misfit !== undefined) {
      this.#store.setAside();
      this.#warn(misfit, 'Keep it in a file');
    }
  }

  /// Says what the player would not see otherwise.
  say(sentence) {
    this.#word.say(sentence);
  }

  /// The player gets the list in a file.
  keep(list) {
    const allows = allowsDownloads();
    if (allows !== false) download(list, this.#file);
    this.say(allows === false ? texts.noDownloads : `Kept in ${this.#file}${allows ? '.' : texts.ifAllowed}`);
  }

  #downloadMisfit() {
    if (allowsDownloads() === false) this.say(texts.noDownloads);
    else download(this.#store.takeMisfit(), `misfit${suffix}`);
  }

  get #isOpen() {
    return document.querySelector('.own') !== null;
  }

  #canDo({ does }) {
    return this.#can[does] ?? document.body.dataset.waiting !== 'ended';
  }

  #do(design) {
    if (!this.#canDo(design)) return;
    if (design.does === 'setPace') {
      this.#clock.setPace(design.pace);
      this.say(`${design.name}.`);
    } else if (design.does === 'goOn') {
      this.#chooseFile();
    } else {
      this.#order(design.does);
    }
  }

  #order(text, file) {
    this.#sounds.hush();
    this.#queue.order(text, { file });
  }

  // Files.

  #chooseFile() {
    const input = make('input', '');
    input.type = 'file';
    input.accept = suffix;
    input.addEventListener('change', () => this.#goOnWith(input.files[0]));
    input.click();
  }

  async #goOnWith(file) {
    try {
      if (file.size > longestFile) throw new Error('it is too long');
      this.#order(`goOn ${file.name}`, new Uint8Array(await file.arrayBuffer()));
    } catch (error) {
      this.#warn(`${file.name} cannot be read: ${error.message}.`);
    }
  }

  // Windows of the page's own.

  /// Shows a dialog; the clock goes on when it is closed.
  #open(dialog) {
    document.body.append(dialog);
    dialog.addEventListener('close', () => {
      dialog.remove();
      if (!this.#isOpen) this.#clock.goOn();
    });
    this.#clock.stop();
    dialog.showModal();
  }

  /// Tells the player something, and offers him what can be done about it.
  #warn(sentence, offer) {
    const answers = offer === undefined ? ['OK'] : [offer, 'OK'];
    const notice = makeBox('notice', '!', { title: 'Zelvo', text: sentence, answers });
    notice.classList.add('own');
    for (const answer of notice.querySelectorAll('.answer')) {
      answer.addEventListener('click', () => {
        notice.close();
        if (answer.textContent === offer) this.#downloadMisfit();
      });
    }
    this.#open(notice);
  }

  #openMenu(left, top) {
    if (this.#isOpen || document.body.dataset.waiting === 'ended') return;
    const list = make('div', '');
    list.setAttribute('role', 'menu');
    const place = make('p', 'place', this.#store.place);
    place.id = 'place';
    list.setAttribute('aria-describedby', place.id);
    const menu = make('dialog', 'menu own', place, list);
    for (const named of [menu, list]) named.setAttribute('aria-label', 'Game');
    for (const design of this.#designs) {
      if (design.pace === 1) list.append(document.createElement('hr'));
      list.append(this.#makeItem(design));
    }
    if (this.#store.hasMisfit) {
      const item = makeItem('Keep the game that did not fit in a file...', '');
      item.addEventListener('click', () => this.#downloadMisfit());
      list.append(document.createElement('hr'), item);
    }
    menu.addEventListener('click', ({ target }) => target.closest('.item') && menu.close());
    this.#listenTo(menu);
    this.#open(menu);
    const { width, height } = menu.getBoundingClientRect();
    menu.style.left = `${Math.max(0, Math.min(left, innerWidth - width))}px`;
    menu.style.top = `${Math.max(0, Math.min(top, innerHeight - height))}px`;
  }

  /// A click beside the menu closes it. The finger that has opened it does nothing by going away.
  #listenTo(menu) {
    let isPressed = false;
    menu.addEventListener('pointerdown', () => (isPressed = true));
    menu.addEventListener('click', (event) => {
      const { left, top, right, bottom } = menu.getBoundingClientRect();
      const { clientX: x, clientY: y, detail } = event;
      if (detail === 0) return;  // by the keyboard
      if (!isPressed) event.stopPropagation();
      else if (x < left || x > right || y < top || y > bottom) menu.close();
    }, true);
  }

  #makeItem(design) {
    const item = makeItem(design.name, design.key);
    if (design.pace !== 0) {
      item.setAttribute('role', 'menuitemradio');
      item.setAttribute('aria-checked', design.pace === this.#clock.pace);
    }
    item.setAttribute('aria-keyshortcuts', shortcut(design));
    item.dataset.command = design.key;
    item.disabled = !this.#canDo(design);
    item.addEventListener('click', () => this.#do(design));
    return item;
  }

  /// Up and down in the menu; what else there is of keys, the browser does.
  #walk(event) {
    event.stopPropagation();
    const items = [...document.querySelectorAll('.menu .item:enabled')];
    const here = items.indexOf(document.activeElement);
    const ways = { ArrowDown: here + 1, ArrowUp: here - 1, Home: 0, End: -1 };
    if (items.length === 0 || !(event.key in ways)) return undefined;
    event.preventDefault();
    return items.at(ways[event.key] % items.length).focus();
  }

  // The player.

  #keyPressed(event) {
    if (this.#isOpen) return this.#walk(event);
    if (event.key === 'ContextMenu' || (event.key === 'F10' && event.shiftKey)) {
      this.#menuAsked(event);
      return undefined;
    }
    const held = [[event.ctrlKey || event.metaKey, 'Ctrl+'], [event.shiftKey, 'Shift+'],
      [event.altKey, 'Alt+']];
    const key = held.map(([isHeld, name]) => (isHeld ? name : '')).join('')
      + printed(event);
    const design = this.#designs.find((each) => each.key.toUpperCase() === key.toUpperCase());
    if (design === undefined) return undefined;
    event.preventDefault();
    event.stopPropagation();
    return this.#do(design);
  }

  /// By the right mouse button, a key, or a finger that the browser itself finds to stay for long.
  #menuAsked(event) {
    event.preventDefault();
    event.stopPropagation();
    clearTimeout(this.#touch);
    if (event.clientX > 0 || event.clientY > 0) return this.#openMenu(event.clientX, event.clientY);
    const { left, bottom } = document.activeElement.getBoundingClientRect();
    return this.#openMenu(left, bottom);
  }

  #fingerDown({ pointerType, isPrimary, clientX, clientY }) {
    clearTimeout(this.#touch);
    if (pointerType !== 'touch' || !isPrimary) return;
    this.#touched = [clientX, clientY];
    this.#touch = setTimeout(() => this.#openMenu(clientX, clientY), longTouch);
  }

  #fingerMoved({ clientX, clientY }) {
    const [x, y] = this.#touched;
    if (Math.hypot(clientX - x, clientY - y) > slip) clearTimeout(this.#touch);
  }
}
