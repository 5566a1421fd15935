// The mouse, or a finger.

export class Pointer {
  #front;
  #controls;
  #put;
  #hovered = null;  // what it was last over, unless the game has changed since

  /// `front` tells what takes input.
  listen({ front, controls, put }) {
    this.#front = front;
    this.#controls = controls;
    this.#put = put;
    document.addEventListener('click', (event) => this.#clicked(event));
    for (const move of ['pointerover', 'pointermove']) {
      document.addEventListener(move, (event) => this.#moved(event));
    }
  }

  /// A further move over the same thing tells the game nothing new, unless it has changed.
  hover(thing) {
    if (thing === this.#hovered) return;
    if (thing.design.hovers) this.#put(`hover ${thing.design.id}`);
    this.#hovered = thing;
  }

  changed() {
    this.#hovered = null;
  }

  #clicked({ target }) {
    if (!this.#front.holds(target)) return;
    const pressed = target.closest('[data-answer], [data-close], [data-control]');
    if (pressed === null) {
      const { window } = this.#front;
      if (target === window?.client && window.design.clicks) this.#put(`click ${window.design.id}`);
    } else if (pressed.dataset.answer) {
      this.#put(`answer ${pressed.dataset.answer}`);
    } else if (pressed.dataset.close) {
      this.#put(`close ${pressed.dataset.close}`);
    } else if (this.#controls.of(pressed).design.clicks) {
      this.#put(`click ${pressed.dataset.control}`);
    }
  }

  #moved({ target }) {
    if (!this.#front.holds(target)) return;
    const control = this.#controls.of(target);
    const { window } = this.#front;
    if (control !== undefined) this.hover(control);
    else if (target === window?.client) this.hover(window);
  }
}
