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

/// By the styles of the game's message boxes; those of the others have none.
const icons = { 36: '?', 48: '!' };

/// A dialog with a text, an icon if it is to have one, and a button for each answer.
export function makeBox(name, icon, { title, text, answers }) {
  const sentence = make('p', 'text', screenText(text));
  sentence.id = name.replace(' ', '-');
  const buttons = answers.map((answer) => {
    const button = make('button', 'answer', answer);
    button.dataset.answer = answer.toLowerCase();
    return button;
  });
  const box = make('dialog', 'window message', make('header', 'bar', make('h1', 'title', title)),
    make('div', 'told', sentence), make('div', 'answers', ...buttons));
  if (icon) {
    const sign = make('span', 'icon', icon);
    sign.setAttribute('aria-hidden', true);
    sentence.before(sign);
  }
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
    const { title, text, style } = message;
    const answers = icons[style] === '?' ? ['Yes', 'No'] : ['OK'];
    const box = makeBox('message box', icons[style], { title, text, answers });
    holdOpen(box, () => this.element === box);
    document.body.append(box);
    this.element = box;
    box.showModal();
    box.querySelector('.answer').focus();
  }
}
