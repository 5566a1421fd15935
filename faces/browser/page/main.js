// Brings the game and the page together.

import { Clock } from './clock.js';
import { load } from './loader.js';
import { Queue } from './queue.js';
import { Sounds } from './sound.js';
import { Store } from './store.js';
import { View } from './view.js';

const { say, suspends, program, pictures } = window.zelvoStart;
const isVirtual = new URLSearchParams(location.search).has('virtual');

async function fetchPictures() {
  const answer = await pictures;
  if (!answer.ok) throw new Error('pictures.json did not come');
  const drawings = Object.entries(await answer.json());
  return Object.fromEntries(drawings.map(([file, drawing]) =>
    [file, URL.createObjectURL(new Blob([drawing], { type: 'image/svg+xml' }))]));
}

/// What the program calls. It suspends in `wait`, `pause` and `playCue` only.
function makeHost(memory, { view, queue, clock, sounds, scripted, store, whole, kept }) {
  const decoder = new TextDecoder();
  const encoder = new TextEncoder();
  const bytes = (start, length) => new Uint8Array(memory().buffer, start, length);
  const text = (start, length) => decoder.decode(bytes(start, length));
  return {
    wait: (milliseconds) => queue.wait(milliseconds),
    pause: (milliseconds) =>
      clock.held(new Promise((resolve) => setTimeout(resolve, milliseconds))),
    now: () => clock.now(),
    secondOfDay() {
      const now = new Date();
      return (now.getHours() * 60 + now.getMinutes()) * 60 + now.getSeconds();
    },
    takeInput(start, room) {
      const input = queue.take();
      if (input === null) return -1;
      scripted.begin(input);
      if (input.file) kept = input.file;
      return encoder.encodeInto(input.text, bytes(start, room)).written;
    },
    design(start, length) {
      const design = JSON.parse(text(start, length));
      view.build(design);
      whole.then((commands) => commands.build(design.commands));
      afterFirstPaint(() => sounds.fetchAhead(design.cues));
    },
    show(start, length) {
      const change = JSON.parse(text(start, length));
      view.show(change);
      if ('can' in change || 'notice' in change) whole.then((commands) => commands.show(change));
      if (change.waiting === 'ended') store.forget();
    },
    store: (start, length, anew) => void store.put(text(start, length), anew !== 0),
    keep(start, length) {
      const list = text(start, length);
      whole.then((commands) => commands.download(list));
    },
    keptLength: () => kept?.length ?? 0,
    takeKept(start) {
      bytes(start, kept.length).set(kept);
      kept = null;
    },
    print: (start, length) => scripted.answer(text(start, length)),
    canPlay: () => Number(sounds.canPlay()),
    playCue: (start, length, waits) => sounds.play(text(start, length), waits !== 0),
  };
}

/// Keeps what was done and what the scripted face says to it, for those who drive the page.
class Script {
  deeds = [];
  lines = [];
  #input = null;

  begin(input) {
    this.#input?.answered?.('');
    this.#input = input;
    if (input.seen) this.deeds.push(input.text);
  }

  answer(line) {
    const ordered = this.#input?.answered;
    this.#input = null;
    if (ordered) ordered(line);
    else this.lines.push(line);
  }
}

function afterFirstPaint(task) {
  requestAnimationFrame(() => setTimeout(task));
}

/// What the player does with the game as a whole comes when the page stands.
function fetchCommands(...parts) {
  return new Promise((resolve) => afterFirstPaint(async () => {
    const { Commands } = await import('./commands.js');
    resolve(new Commands(...parts));
  }));
}

async function main() {
  const clock = new Clock();
  const scripted = new Script();
  const store = new Store();
  const interrupted = isVirtual ? null : store.read();
  const view = new View(await fetchPictures(), !isVirtual);
  const queue = new Queue(() => view.scene, clock);
  const sounds = new Sounds(clock);
  const whole = fetchCommands(queue, clock, sounds);
  const kept = await interrupted;
  const play = await load(program, suspends, (memory) =>
    makeHost(memory, { view, queue, clock, sounds, scripted, store, whole, kept }));
  view.listen((command) => queue.put(command), (question) => queue.order(question));
  window.zelvo = {
    deeds: scripted.deeds,
    lines: scripted.lines,
    play: (command) => new Promise((resolve) => queue.order(command, { answered: resolve })),
  };
  addEventListener('beforeunload', (event) => {
    if (view.isUnderWay) event.preventDefault();
  });
  addEventListener('pagehide', () => store.leave());
  afterFirstPaint(() => navigator.serviceWorker?.register('worker.js'));
  await play(Number(isVirtual));
}

main().catch((error) => {
  console.error(error);
  say(`Zelvo had to stop: ${error.message}. Please load the page again.`);
});
