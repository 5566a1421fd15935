// Brings the game and the page together.

import { load } from './loader.js';
import { Queue } from './queue.js';
import { Sounds } from './sound.js';
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
function makeHost(memory, view, queue, sounds, scripted) {
  const decoder = new TextDecoder();
  const encoder = new TextEncoder();
  const bytes = (start, length) => new Uint8Array(memory().buffer, start, length);
  const text = (start, length) => decoder.decode(bytes(start, length));
  return {
    wait: (milliseconds) => queue.wait(milliseconds),
    pause: (milliseconds) => new Promise((resolve) => setTimeout(resolve, milliseconds)),
    now: () => performance.now(),
    secondOfDay() {
      const now = new Date();
      return (now.getHours() * 60 + now.getMinutes()) * 60 + now.getSeconds();
    },
    takeInput(start, room) {
      const input = queue.take();
      if (input === null) return -1;
      scripted.begin(input);
      return encoder.encodeInto(input.text, bytes(start, room)).written;
    },
    design(start, length) {
      const design = JSON.parse(text(start, length));
      view.build(design);
      afterFirstPaint(() => sounds.fetchAhead(design.cues));
    },
    show: (start, length) => view.show(JSON.parse(text(start, length))),
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

async function main() {
  const scripted = new Script();
  const view = new View(await fetchPictures(), !isVirtual);
  const queue = new Queue(() => view.scene);
  const sounds = new Sounds();
  const play = await load(program, suspends,
    (memory) => makeHost(memory, view, queue, sounds, scripted));
  view.listen((command) => queue.put(command));
  if (isVirtual) {
    window.zelvo = {
      deeds: scripted.deeds,
      lines: scripted.lines,
      play: (command) => new Promise((resolve) => queue.order(command, resolve)),
    };
  }
  addEventListener('beforeunload', (event) => {
    if (view.isUnderWay) event.preventDefault();
  });
  afterFirstPaint(() => navigator.serviceWorker?.register('worker.js'));
  await play(Number(isVirtual));
}

main().catch((error) => {
  console.error(error);
  say(`Zelvo had to stop: ${error.message}. Please load the page again.`);
});
