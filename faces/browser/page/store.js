// The list of the game that is under way, in the browser's storage: what throws the page away (the
// system in the background, a crash, a reload) throws away no game. Whoever ends a game, or leaves
// its tab for good, finds a new one the next time.

const name = 'zelvo-game';  // of all that is kept: a database, a lock, a note
const underWay = 'under way';
const left = 'left';
const patience = 1000;  // milliseconds for the page that was here before to let go of the game
const longestPart = 16_384;

export class Store {
  #holding = null;  // tells whether this page is the one that keeps its game
  #database = null;
  #part = 0;  // the list lies in parts, of which the last one grows
  #text = '';
  #anew = false;
  #isDirty = false;
  #isWriting = false;
  #isOver = false;

  /// The text of the game that was interrupted, as bytes; null if there is none.
  async read() {
    try {
      const note = localStorage.getItem(name);
      const isBack = note === underWay || (note === left && sessionStorage.getItem(name) !== null);
      if (!isBack || !await this.#hold()) return null;
      const store = this.#database.transaction('parts').objectStore('parts');
      const parts = await finished(store.getAll());
      return parts.length === 0 ? null : new TextEncoder().encode(parts.join(''));
    } catch (error) {
      console.warn(error);  // a browser that stores nothing for us still plays
      return null;
    }
  }

  /// Adds to the list, or puts another one in its place.
  async put(text, anew) {
    if (anew) {
      this.#anew = true;
      this.#part = 0;
      this.#text = '';
    }
    this.#text += text;
    this.#isDirty = true;
    if (this.#isWriting) return;
    this.#isWriting = true;
    try {
      if (await this.#hold()) await this.#write();
      else this.#text = '';
      this.#isWriting = false;
    } catch (error) {
      console.warn(error);  // from here on nothing more is stored
    }
  }

  /// The player has left the game.
  leave() {
    if (this.#database !== null) localStorage.setItem(name, left);
  }

  /// The game is over.
  forget() {
    this.#isOver = true;
    this.leave();
    sessionStorage.removeItem(name);
  }

  async #write() {
    while (this.#isDirty) {
      const writing = this.#database.transaction('parts', 'readwrite');
      const store = writing.objectStore('parts');
      if (this.#anew) store.clear();
      store.put(this.#text, this.#part);
      if (this.#text.length > longestPart) {
        ++this.#part;
        this.#text = '';
      }
      this.#anew = this.#isDirty = false;
      await new Promise((resolve, reject) => {
        writing.oncomplete = resolve;
        writing.onabort = () => reject(writing.error);
      });
      if (this.#isOver) return;
      localStorage.setItem(name, underWay);
      sessionStorage.setItem(name, underWay);
    }
  }

  /// One page at a time keeps its game, for as long as it is there. False if another one does.
  #hold() {
    this.#holding ??= new Promise((resolve, reject) => {
      const options = { signal: AbortSignal.timeout(patience) };
      const forEver = new Promise(() => {});
      navigator.locks.request(name, options, () => {
        this.#open().then(() => resolve(true), reject);
        return forEver;
      }).catch(() => resolve(false));
    });
    return this.#holding;
  }

  async #open() {
    const opening = indexedDB.open(name);
    opening.onupgradeneeded = () => opening.result.createObjectStore('parts');
    this.#database = await finished(opening);
  }
}

function finished(request) {
  return new Promise((resolve, reject) => {
    request.onsuccess = () => resolve(request.result);
    request.onerror = () => reject(request.error);
  });
}
