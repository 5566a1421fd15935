// Puts the list of the game that is under way on its shelf, deed by deed, and tells the player when
// it does not lie there.

const longestPart = 16_384;
const patience = 1000;  // milliseconds until the player hears that another page keeps its game
const texts = {
  none: 'There is nothing to keep yet.',
  kept: 'This game is kept in this browser.',
  again: 'This game is kept in this browser again.',
  other: 'The game in another tab is the one that is kept. This one will be when that is closed;'
    + ' Ctrl+S keeps it in a file.',
  takenOver: 'The other game is closed: this one is kept in this browser from now on.',
  failed: 'This browser does not keep the game: when the page closes, it is gone. Ctrl+S keeps it in a file.',
};

export class Store {
  place = texts.none;  // where the game is kept, as a sentence
  #shelf;
  #tell;
  #parts = [''];  // the whole list; the last part grows
  #lies = null;  // what was put there last: how many parts that grow no more, and letters in all
  #isDirty = false;
  #isBusy = false;
  #isOver = false;

  /// `tell` gets a sentence for the player.
  constructor(shelf, tell) {
    this.#shelf = shelf;
    this.#tell = tell;
    addEventListener('pagehide', ({ persisted }) => {
      if (!persisted && shelf.isOurs) write('localStorage', shelf.name, shelf.page);  // it is left
    });
  }

  /// Adds to the list, or puts another one in its place.
  put(text, anew) {
    if (this.#isOver) return;
    if (anew) {
      this.#parts = [''];
      this.#lies = null;
    }
    if (this.#parts.at(-1).length > longestPart) this.#parts.push('');
    this.#parts[this.#parts.length - 1] += text;
    this.#work();
  }

  /// The game is over.
  forget() {
    this.#isOver = true;
    this.#isDirty = false;
    const { isOurs, name, page } = this.#shelf;
    if (!isOurs) return;
    write('sessionStorage', name, '');
    write('localStorage', name, page);
    this.#work();
  }

  get hasMisfit() {
    return this.#shelf.misfit !== undefined;
  }

  /// What was found does not fit the game: it makes room for the next one, and lies there until the
  /// player takes it.
  setAside() {
    const { found, isOurs } = this.#shelf;
    this.#shelf.misfit = found;
    this.#change((parts) => {
      parts.put(found, 'misfit');
      if (isOurs) clear(parts);
      else parts.delete('aside');
    }).catch(console.warn);
  }

  takeMisfit() {
    const { misfit } = this.#shelf;
    this.#shelf.misfit = undefined;
    this.#change((parts) => parts.delete('misfit')).catch(console.warn);
    return misfit;
  }

  async #work() {
    this.#isDirty = true;
    if (this.#isBusy) return;
    this.#isBusy = true;
    try {
      await this.#hold();
      while (this.#isDirty) {
        this.#isDirty = false;
        await this.#write().catch((error) => this.#writeAgain(error));
        if (!this.#isOver) this.#wrote();
      }
    } catch (error) {
      console.warn(error);
      this.#say(texts.failed);  // and tries again with the next deed
    } finally {
      this.#isBusy = false;
    }
    if (this.#isOver) this.#shelf.letGo?.();
  }

  async #hold() {
    if (this.#shelf.isOurs) return;
    const late = setTimeout(() => this.#say(texts.other), patience);
    try {
      await this.#shelf.hold();
    } finally {
      clearTimeout(late);
    }
  }

  #writeAgain(error) {
    console.warn(error);
    this.#shelf.close();
    return this.#write();
  }

  async #write() {
    if (this.#isOver) {
      await this.#change(clear);
      return;
    }
    const { page } = this.#shelf;
    const whole = this.#parts;
    const list = [...whole];
    const letters = list.reduce((sum, part) => sum + part.length, 0);
    await this.#change((parts, lies) => {
      const isThere = lies?.page === page && lies.letters === this.#lies?.letters;
      if (!isThere) this.#makeRoom(parts, lies?.page);
      for (let at = isThere ? this.#lies.parts : 0; at < list.length; ++at) parts.put(list[at], at);
      parts.put({ page, letters }, 'note');
    });
    if (this.#parts === whole) this.#lies = { parts: list.length - 1, letters };
  }

  /// A page that was thrown away while this one was beside it finds its game aside when it comes back.
  #makeRoom(parts, page) {
    const shelf = this.#shelf;
    if (![undefined, shelf.page, shelf.before, read('localStorage', shelf.name)].includes(page)) {
      parts.getAll(numbers()).onsuccess = ({ target }) =>
        parts.put({ page, list: target.result.join('') }, 'aside');
    }
    clear(parts);
  }

  /// Does something in one transaction, with the parts and the note that lies there. What it did has
  /// come to the disk, or nothing of it.
  async #change(task) {
    const database = await this.#shelf.open();
    const changing = database.transaction('parts', 'readwrite', { durability: 'strict' });
    const parts = changing.objectStore('parts');
    parts.get('note').onsuccess = ({ target }) => task(parts, target.result);
    await new Promise((resolve, reject) => {
      changing.oncomplete = resolve;
      changing.onabort = () => reject(changing.error ?? new Error('the browser has given it up'));
    });
  }

  #wrote() {
    const before = this.place;
    if (before === texts.kept) return;
    this.place = texts.kept;
    write('sessionStorage', this.#shelf.name, this.#shelf.page);  // a tab that comes back goes on
    if (before === texts.other) this.#tell(texts.takenOver);
    if (before === texts.failed) this.#tell(texts.again);
  }

  #say(sentence) {
    if (this.place === sentence) return;
    this.place = sentence;
    this.#tell(sentence);
  }
}

const numbers = () => IDBKeyRange.bound(0, Infinity);

function clear(parts) {
  parts.delete(numbers());
  parts.delete('note');
}

// Notes beside the database, in a storage that the browser may not give.

function read(storage, name) {
  try {
    return window[storage].getItem(name);
  } catch {
    return null;
  }
}

function write(storage, name, text) {
  try {
    window[storage].setItem(name, text);
  } catch (error) {
    console.warn(error);
  }
}
