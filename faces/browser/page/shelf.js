// The place in the browser where the game that is under way lies, and what the page finds there when it
// comes. What throws the page away (the system in the background, a crash, a reload) throws away no
// game. Whoever ends a game, or leaves its tab for good, finds a new one the next time.
//
// The list lies in parts, and in the same database a note tells which page put it there and how much
// it is. The page that is left says so beside it, as there is no time for more then; a tab that comes
// back, as after a reload, says who it was.

const name = 'zelvo-game';  // of all that is kept: a database, a lock, two notes
const formerly = 'under way';  // the note of a page that put none into the database
const patience = 1000;  // milliseconds for the page that was here before to let go of the game

export class Shelf {
  name = name;
  page = `${Date.now()}-${Math.random()}`;  // who puts something here
  isOurs = false;  // one page at a time keeps its game, for as long as it is there
  letGo;
  found = null;  // the game that was interrupted, as bytes of its text; null if there is none
  misfit;  // one that could not be gone on with, the same way
  before;  // the page that put it there
  #database;

  async read() {
    try {
      const before = sessionStorage.getItem(name);
      const left = localStorage.getItem(name);
      const found = await this.#look();
      const { page, aside, misfit } = found;
      let { list } = found;
      this.misfit = misfit;
      if (before !== null && aside?.page === before) {
        ({ list } = aside);
      } else {
        const isBack = before === page || (left === page) === (page === formerly);
        if (list === '' || !isBack || !await this.hold(AbortSignal.timeout(patience))) return;
        localStorage.removeItem(name);  // it is not left any more
        ({ list, page: this.before } = await this.#look());  // as that page has put it there
      }
      this.found = new TextEncoder().encode(list);
    } catch (error) {
      console.warn(error);  // a browser that stores nothing for us still plays
    }
  }

  /// True if this page is the one that keeps its game, from now on. Waits until the others have let
  /// go, or for a signal to end that.
  hold(signal) {
    return new Promise((resolve, reject) => {
      navigator.locks.request(name, { signal }, () => {
        this.isOurs = true;
        resolve(true);
        return new Promise((letGo) => (this.letGo = letGo));
      }).catch((error) => (signal?.aborted ? resolve(false) : reject(error)));
    });
  }

  async open() {
    if (this.#database) return this.#database;
    const opening = indexedDB.open(name);
    opening.onupgradeneeded = () => opening.result.createObjectStore('parts');
    const database = await finished(opening);
    // Storage that is cleared is let go of, and made anew with what comes next.
    database.onversionchange = database.onclose = () => this.close();
    this.#database = database;
    return database;
  }

  close() {
    this.#database?.close();
    this.#database = null;
  }

  async #look() {
    const parts = (await this.open()).transaction('parts').objectStore('parts');
    const [keys, values] = await Promise.all([finished(parts.getAllKeys()), finished(parts.getAll())]);
    const at = (key) => values[keys.indexOf(key)];
    const list = values.filter((_, i) => typeof keys[i] === 'number').join('');
    return { list, page: at('note')?.page ?? formerly, aside: at('aside'), misfit: at('misfit') };
  }
}

function finished(request) {
  return new Promise((resolve, reject) => {
    request.onsuccess = () => resolve(request.result);
    request.onerror = () => reject(request.error);
  });
}
