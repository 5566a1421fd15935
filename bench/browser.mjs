#!/usr/bin/env node
// Measures the page in a real browser and prints a table; nothing here passes or fails. bench/browser
// builds what it needs.

import { spawnSync } from 'node:child_process';

import { headless, start, waiting } from '../tests/browser/harness.mjs';

const site = await start();
const rows = [];
const tell = (what, value) => rows.push(`| ${what} | ${value} |`);
const median = (numbers) => [...numbers].sort((a, b) => a - b)[Math.floor(numbers.length / 2)];
const kilobytes = (bytes) => `${(bytes / 1000).toFixed(1)} KB`;

/// Opens the page and waits until its start window is painted.
async function painted(query) {
  const page = await site.page(query);
  await waiting(page, 'GST');
  await page.waitForFunction(() => performance.getEntriesByName('first-contentful-paint').length > 0);
  return page;
}

/// The files without sounds, and those of them that had come when the start window was painted.
async function weigh(form) {
  const page = await painted(`?virtual${form}`);
  const files = await page.evaluate(() => {
    const painted = performance.getEntriesByName('first-contentful-paint')[0].startTime;
    return [...performance.getEntriesByType('navigation'), ...performance.getEntriesByType('resource')]
      .filter(({ name }) => !/sounds|worker|icon|webmanifest/.test(name))
      .map((entry) => [entry.encodedBodySize, entry.decodedBodySize, entry.responseEnd <= painted]);
  });
  const sum = (list, i) => list.reduce((total, entry) => total + entry[i], 0);
  const early = files.filter((file) => file[2]);
  const name = form || 'promise integration';
  tell(`before the start window is painted, ${name}`, `${kilobytes(sum(early, 0))} (${kilobytes(sum(early, 1))} raw)`);
  tell(`in all but sounds and icons, ${name}`, `${kilobytes(sum(files, 0))} (${kilobytes(sum(files, 1))} raw)`);
  await site.closePages();
}

async function firstPaint(runs) {
  const times = [];
  for (let i = 0; i < runs; ++i) {
    const page = await painted('');
    times.push(await page.evaluate(() => performance.getEntriesByName('first-contentful-paint')[0].startTime));
    await site.closePages();
  }
  tell(`first paint, cold, median of ${runs}`, `${median(times).toFixed(0)} ms (${Math.min(...times).toFixed(0)} to ${Math.max(...times).toFixed(0)})`);
}

async function clickToPaint(clicks) {
  const page = await site.page('?virtual');
  await waiting(page, 'GST');
  await page.click('[data-control="GST.CMDSTART"]');
  await waiting(page, 'GFM');
  await page.evaluate(() => {
    window.times = [];
    const channel = new MessageChannel();
    let begun = 0;
    channel.port1.onmessage = () => window.times.push(performance.now() - begun);
    addEventListener('click', (event) => {
      begun = event.timeStamp;
      requestAnimationFrame(() => channel.port2.postMessage(null));
    }, true);
  });
  for (let i = 0; i < clicks; ++i) {
    await page.click(`[data-control="GFM.Image1(${(i * 37) % 100})"]`);
    await page.waitForFunction((count) => window.times.length === count, i + 1);
  }
  const times = await page.evaluate(() => window.times);
  tell(`click to paint, median of ${clicks}`, `${median(times).toFixed(1)} ms`);
  await site.closePages();
}

/// Plays commands in the page's program with nothing drawn; gives the milliseconds.
async function playUndrawn({ commands, suspends }) {
  const { load } = await import('./loader.js');
  const inputs = [...commands, 'quit'];
  const program = fetch(suspends ? 'zelvo.wasm' : 'zelvo-asyncify.wasm');
  const none = () => {};
  let next = 0;
  const play = await load(program, suspends, (memory) => ({
    wait: none, pause: none, playCue: none, design: none, show: none, print: none,
    now: () => performance.now(), secondOfDay: () => 0, canPlay: () => 1,
    takeInput: (start, room) => new TextEncoder()
      .encodeInto(inputs[next++], new Uint8Array(memory().buffer, start, room)).written,
  }));
  const begun = performance.now();
  await play(1);
  return performance.now() - begun;
}

/// The same commands in the program for a terminal, in the page's two programs, and in the page as
/// it is, which draws after each.
async function turns(count) {
  const turn = ['click GFM.CMDGO', 'click ML.CMD1(1)', 'click CHN.Image1(0)', 'click CHN.CMDOK',
    'click SV.CMDOK', 'answer no'];
  const script = (length) => ['click GST.CMDSTART', ...Array(length).fill(turn).flat()];
  const begun = performance.now();
  spawnSync(headless, { input: script(count).join('\n'), maxBuffer: 1 << 30 });
  const native = (count / (performance.now() - begun)) * 1000;
  tell('turns a second by script, native', native.toFixed(0));
  const page = await painted('?virtual');
  for (const suspends of [true, false]) {
    const took = await page.evaluate(playUndrawn, { commands: script(count), suspends });
    const speed = (count / took) * 1000;
    tell(`turns a second by script, ${suspends ? 'promise integration' : 'Asyncify'}, nothing drawn`,
      `${speed.toFixed(0)}, ${(speed / native).toFixed(2)} of native`);
  }
  const drawn = 100;
  const took = await page.evaluate(async (commands) => {
    const start = performance.now();
    await Promise.all(commands.map((command) => window.zelvo.play(command)));
    return performance.now() - start;
  }, script(drawn));
  tell('turns a second by script, all drawn', ((drawn / took) * 1000).toFixed(0));
  await site.closePages();
}

async function rest(seconds) {
  const page = await site.page('', { prepare: (it) => it.addInitScript(() => {
    window.woken = 0;
    for (const name of ['setTimeout', 'setInterval', 'requestAnimationFrame']) {
      const real = window[name].bind(window);
      window[name] = (task, ...others) => real((...values) => {
        ++window.woken;
        task(...values);
      }, ...others);
    }
  }) });
  await waiting(page, 'GST');
  await page.waitForLoadState('networkidle');
  const session = await page.context().newCDPSession(page);
  await session.send('Performance.enable');
  const work = async () => (await session.send('Performance.getMetrics')).metrics.find(({ name }) => name === 'TaskDuration').value;
  const woken = await page.evaluate(() => window.woken);
  const before = await work();
  await new Promise((done) => setTimeout(done, seconds * 1000));
  const after = await work();
  tell(`work in ${seconds} s at rest`, `${((after - before) * 1000).toFixed(1)} ms, ${await page.evaluate(() => window.woken) - woken} wake-ups`);
}

await weigh('');
await weigh('&suspend=asyncify');
await firstPaint(7);
await clickToPaint(40);
await turns(5000);
await rest(8);
await site.stop();
console.log(`| what | measured |\n| --- | --- |\n${rows.join('\n')}`);
