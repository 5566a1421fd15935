// Dialogs with a sentence: the message boxes of the game, and what the page itself has to tell.

import { make } from './element.js';
import { screenText } from './text.js';

/// The browser has ways of its own to close a dialog; here only the game closes one.
export function holdOpen(dialog, isOpen) {
  dialog.addEventListener('cancel', (event) => event.preventDefault());
  dialog.addEventListener('close', () => {
    if (isOpen() && dialog.isConnected) dialog.showModal();
  });
}

/// A dialog with a text, what kind of one it is (`asks`, `warns` or `tells`), and a button for each
/// answer.
export function makeBox(name, kind, { title, text, answers }) {
  const sentence = make('p', 'text', screenText(text));
  sentence.id = name.replace(' ', '-');
  const buttons = answers.map((answer) => {
    const button = make('button', 'answer', answer);
    button.dataset.answer = answer.toLowerCase();
    return button;
  });
  const box = make('dialog', `window message ${kind}`, make('header', 'bar', make('span', 'title', title)),
    sentence, make('div', 'answers', ...buttons));
  box.dataset.window = name;
  box.setAttribute('aria-label', title);
  box.setAttribute('aria-describedby', sentence.id);
  return box;
}

/// The message box of the game that is open, if one is.
export class MessageBox {
  element = null;

  sync(message) {
    this.element?.remove();
    this.element = null;
    if (message === null) return;
    const { title, text, asks, warns } = message;
    const answers = asks ? ['Yes', 'No'] : ['OK'];
    const box = makeBox('message box', asks ? 'asks' : warns ? 'warns' : 'tells', { title, text, answers });
    holdOpen(box, () => this.element === box);
    document.body.append(box);
    this.element = box;
    box.showModal();
    box.querySelector('.answer').focus();
  }
}
