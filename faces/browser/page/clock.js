// The game's time. It stands still while the player looks at something of the page's own, and runs
// faster if the player wants it to.

export class Clock {
  pace = 1;
  #time = 0;  // up to when it was last looked at
  #seen = performance.now();
  #goOn = null;  // while it stands still
  #going = null;

  /// Milliseconds of the game's time.
  now() {
    const now = performance.now();
    if (!this.isStopped) this.#time += (now - this.#seen) * this.pace;
    this.#seen = now;
    return this.#time;
  }

  get isStopped() {
    return this.#goOn !== null;
  }

  /// Everything that the game waits for ends no sooner than the clock goes on.
  stop() {
    if (this.isStopped) return;
    this.now();
    this.#going = new Promise((resolve) => (this.#goOn = resolve));
  }

  goOn() {
    if (!this.isStopped) return;
    this.now();
    this.#goOn();
    this.#goOn = null;
  }

  setPace(pace) {
    this.now();
    this.pace = pace;
  }

  /// A wait of the game, and then for as long as the clock stands still.
  async held(wait) {
    await wait;
    while (this.isStopped) await this.#going;
  }
}
