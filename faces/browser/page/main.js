// Brings the game and the page together.

import { Clock } from './clock.js';
import { load } from './loader.js';
import { Queue } from './queue.js';
import { Shelf } from './shelf.js';
import { Sounds } from './sound.js';
import { View } from './view.js';

const { say, suspends, program, pictures } = window.zelvoStart;
// What the first window can do without waits until that is painted.
let isShown;
const painted = new Promise((resolve) => (isShown = resolve))
  .then(() => new Promise((resolve) => requestAnimationFrame(() => setTimeout(resolve))));
const isVirtual = new URLSearchParams(location.search).has('virtual');

/// The addresses of the pictures that a file holds.
async function addresses(fetched) {
  const answer = await fetched;
  if (!answer.ok) throw new Error(`${answer.url.split('/').pop()} did not come`);
  const drawings = Object.entries(await answer.json());
  return drawings.map(([file, drawing]) =>
    [file, URL.createObjectURL(new Blob([drawing], { type: 'image/svg+xml' }))]);
}

/// What is told to those whom the first window waits for.
const forCommands = ['can', 'notice', 'misfit', 'word', 'file'];

/// What the program calls. It suspends in `wait`, `pause` and `playCue` only.
function makeHost(memory, { view, queue, clock, sounds, scripted, whole, kept }) {
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
      whole.then(({ commands }) => commands.build(design.commands));
      painted.then(() => sounds.fetchAhead(design.cues));
    },
    show(start, length) {
      const change = JSON.parse(text(start, length));
      view.show(change);
      isShown();
      if (forCommands.some((what) => what in change)) whole.then(({ commands }) => commands.show(change));
      if (change.waiting === 'ended') whole.then(({ store }) => store.forget());
    },
    store(start, length, anew) {
      const lines = text(start, length);
      whole.then(({ store }) => store.put(lines, anew !== 0));
    },
    keep(start, length) {
      const list = text(start, length);
      whole.then(({ commands }) => commands.keep(list));
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

/// What the player does with the game as a whole, and what stores it, comes when the page stands.
async function fetchCommands(shelf, ...parts) {
  await painted;
  const { Commands, Store } = await import('./commands.js');
  const store = new Store(shelf, (sentence) => commands.say(sentence));
  const commands = new Commands(store, ...parts);
  return { commands, store };
}

async function main() {
  const clock = new Clock();
  const scripted = new Script();
  const shelf = new Shelf();
  const interrupted = isVirtual ? null : shelf.read();
  const view = new View(!isVirtual);
  view.bringPictures(await addresses(pictures));
  const queue = new Queue(() => view.scene, clock);
  const sounds = new Sounds(clock);
  const whole = fetchCommands(shelf, queue, clock, sounds);
  await interrupted;
  const kept = shelf.found;
  const bringOthers = async () => view.bringPictures(await addresses(fetch('pictures.json')));
  // A game that goes on is seen at once as it was.
  if (kept === null) painted.then(bringOthers).catch(stop);
  else await bringOthers();
  const play = await load(program, suspends, (memory) =>
    makeHost(memory, { view, queue, clock, sounds, scripted, whole, kept }));
  view.listen((command) => queue.put(command), (question) => queue.order(question));
  window.zelvo = {
    deeds: scripted.deeds,
    lines: scripted.lines,
    play: (command) => new Promise((resolve) => queue.order(command, { answered: resolve })),
  };
  addEventListener('beforeunload', (event) => {
    if (view.isUnderWay) event.preventDefault();
  });
  painted.then(() => navigator.serviceWorker?.register('worker.js'));
  await play(Number(isVirtual));
}

function stop(error) {
  console.error(error);
  say(`Zelvo had to stop: ${error.message}. Please load the page again.`);
}

main().catch(stop);
