// What the player does waits here until the game takes it.

/// A queue of inputs, as commands of scripted play. `scene` tells what takes input now; an input that
/// was made in another scene is dropped, so that a second click does not go to what the first one
/// brought up.
export class Queue {
  #inputs = [];
  #scene;
  #wake = null;
  #clock;
  #channel = new MessageChannel();

  constructor(scene, clock) {
    this.#scene = scene;
    this.#clock = clock;
    this.#channel.port1.onmessage = () => this.#wake?.();
  }

  /// An input that the player made with what he sees.
  put(text) {
    this.#add({ text, seen: true, scene: this.#scene() });
  }

  /// A command, whatever is to be seen. `answered` gets its line; `file` holds the bytes that it is
  /// about.
  order(text, { answered, file } = {}) {
    this.#add({ text, seen: false, answered, file });
  }

  /// The next input, null if there is none.
  take() {
    while (this.#inputs.length > 0) {
      const input = this.#inputs.shift();
      if (!input.seen || input.scene === this.#scene()) return input;
    }
    return null;
  }

  /// Waits until there is an input or that many milliseconds of the game are over; 0 gives the page its turn,
  /// and less than 0 is for ever.
  wait(milliseconds) {
    if (this.#inputs.length > 0 && !this.#clock.isStopped) return undefined;
    return this.#clock.held(new Promise((resolve) => {
      let timer = 0;
      this.#wake = () => {
        this.#wake = null;
        clearTimeout(timer);
        resolve();
      };
      if (milliseconds === 0) this.#channel.port2.postMessage(null);
      if (milliseconds > 0) timer = setTimeout(this.#wake, milliseconds / this.#clock.pace);
      if (this.#inputs.length > 0) this.#wake();
    }));
  }

  #add(input) {
    this.#inputs.push(input);
    this.#wake?.();
  }
}
