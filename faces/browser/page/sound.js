// The cues. One cuts off the other. The browser makes no sound before the player's first gesture;
// until then every cue is over at once.

const gestures = ['pointerdown', 'pointerup', 'keydown'];

/// The device answers within this many milliseconds, or the cue is silent.
const patience = 500;

export class Sounds {
  #files = new Map();  // the bytes of those that have come
  #context = null;
  #cutOff = () => {};  // ends what plays
  #clock;

  constructor(clock) {
    this.#clock = clock;
    if (!this.canPlay()) return;
    for (const gesture of gestures) addEventListener(gesture, () => this.#wake(), true);
  }

  canPlay() {
    return typeof AudioContext === 'function';
  }

  /// Sends for the files ahead of their use, one after the other. One that is missing is no failure:
  /// its cue is silent.
  async fetchAhead(files) {
    for (const file of files) {
      try {
        const answer = await fetch(`sounds/${file}`);
        if (answer.ok) this.#files.set(file, await answer.arrayBuffer());
      } catch {
        // The next one may come.
      }
    }
  }

  hush() {
    this.#cutOff();
    this.#cutOff = () => {};
  }

  /// Plays a cue and cuts off the one that plays; with `waits` gives a promise of its end, or of the
  /// time when it has lasted long enough for the game's pace.
  play(file, waits) {
    this.hush();
    if (this.#context === null || !this.#files.has(file)) return undefined;
    const end = new Promise((resolve) => this.#start(file, resolve));
    return waits ? this.#clock.held(end) : undefined;
  }

  /// Not every gesture is one to the browser: a finger counts only when it is lifted.
  #wake() {
    if (!navigator.userActivation?.hasBeenActive) return;
    this.#context ??= new AudioContext();
    if (this.#context.state === 'suspended') this.#context.resume();
  }

  async #start(file, over) {
    let source = null;
    let isOver = false;
    const end = () => {
      isOver = true;
      source?.stop();
      over();
    };
    this.#cutOff = end;
    try {
      const late = setTimeout(end, patience);
      await this.#context.resume();
      clearTimeout(late);
      const samples = await this.#context.decodeAudioData(this.#files.get(file).slice(0));
      if (isOver) return;
      source = this.#context.createBufferSource();
      source.buffer = samples;
      source.connect(this.#context.destination);
      source.onended = end;
      source.start();
      // A device that never tells of the end is not waited for any longer than the cue is.
      setTimeout(over, (samples.duration * 1000) / this.#clock.pace);
    } catch {
      end();
    }
  }
}
