#!/usr/bin/env node
// Measures the page in a real browser and prints a table; nothing here passes or fails. bench/browser
// builds what it needs.

import { spawnSync } from 'node:child_process';
import { readFileSync } from 'node:fs';
import { join } from 'node:path';

import { root, start, waiting } from '../tests/browser/harness.mjs';

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
    const shown = performance.getEntriesByName('first-contentful-paint')[0].startTime;
    return [...performance.getEntriesByType('navigation'), ...performance.getEntriesByType('resource')]
      .filter(({ name }) => !/sounds|worker|icon|webmanifest/.test(name))
      .map((entry) => [entry.encodedBodySize, entry.decodedBodySize, entry.responseEnd <= shown]);
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

/// The same turns in the native program and in the page's two programs, as fast as each plays them
/// at its best, with nothing around the rules.
async function turns() {
  const run = spawnSync(join(root, 'build/bench/zelvo-bench'), ['--benchmark_filter=^BuildingTurns$',
    '--benchmark_min_time=0.02', '--benchmark_repetitions=60', '--benchmark_format=json']);
  const native = Math.max(...JSON.parse(run.stdout).benchmarks
    .filter((row) => row.run_type === 'iteration').map((row) => row.items_per_second));
  tell('turns a second, native', native.toFixed(0));
  const page = await painted('?virtual');
  for (const form of ['', '-asyncify']) {
    const program = readFileSync(join(root, `build/browser-bench/zelvo-bench${form}.wasm`)).toString('base64');
    const speed = await page.evaluate(playTurns, program);
    tell(`turns a second, ${form === '' ? 'promise integration' : 'Asyncify'}`,
      `${speed.toFixed(0)}, ${(speed / native).toFixed(2)} of native`);
  }
  await site.closePages();
}

async function playTurns(base64) {
  const bytes = Uint8Array.from(atob(base64), (each) => each.charCodeAt(0));
  const host = new Proxy({}, { get: () => () => 0 });  // nothing of it is called
  const { instance } = await WebAssembly.instantiate(bytes, { host });
  instance.exports._initialize();
  instance.exports.playTurns(5000);
  let best = 0;
  for (let i = 0; i < 200; ++i) {
    const begun = performance.now();
    instance.exports.playTurns(400);
    best = Math.max(best, (400 / (performance.now() - begun)) * 1000);
  }
  return best;
}

/// With lines, and all that each command changes on the page.
async function drawnTurns(count) {
  const turn = ['click GFM.CMDGO', 'click ML.CMD1(1)', 'click CHN.Image1(0)', 'click CHN.CMDOK',
    'click SV.CMDOK', 'answer no'];
  const page = await painted('?virtual');
  const took = await page.evaluate(async (commands) => {
    const begun = performance.now();
    await Promise.all(commands.map((command) => window.zelvo.play(command)));
    return performance.now() - begun;
  }, ['click GST.CMDSTART', ...Array(count).fill(turn).flat()]);
  tell('turns a second by script, all drawn', ((count / took) * 1000).toFixed(0));
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
await turns();
await drawnTurns(100);
await rest(8);
await site.stop();
console.log(`| what | measured |\n| --- | --- |\n${rows.join('\n')}`);
