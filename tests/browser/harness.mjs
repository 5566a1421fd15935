// The real page in a real browser, and the scripted face beside it.

import { spawn, spawnSync } from 'node:child_process';
import { mkdirSync, mkdtempSync, rmSync, writeFileSync } from 'node:fs';
import { createRequire } from 'node:module';
import { tmpdir } from 'node:os';
import { join, resolve } from 'node:path';
import readline from 'node:readline';

export const root = resolve(import.meta.dirname ?? new URL('.', import.meta.url).pathname, '../..');
export const require = createRequire(join(root, 'build/browser/tests/'));
const { chromium } = require('playwright-core');

const headless = process.env.ZELVO_HEADLESS ?? join(root, 'build/release/zelvo-headless');
const site = join(root, 'build/browser/site');

/// How long a condition is waited for. No test depends on how soon it comes true.
export const limit = 60_000;

/// Starts the server and a browser with a profile of its own; `stop` ends both.
export async function start() {
  const server = spawn(join(root, 'tools/serve-site'), [site], { stdio: ['ignore', 'pipe', 'inherit'] });
  const [address] = await new Promise((done) => {
    readline.createInterface({ input: server.stdout }).once('line', (line) => done([line]));
  });
  const profile = mkdtempSync(join(tmpdir(), 'zelvo-browser-'));
  const options = {
    executablePath: process.env.CHROMIUM ?? '/usr/bin/chromium',
    args: ['--no-sandbox', '--disable-gpu', '--disable-quic', '--no-first-run', '--window-size=1280,1000',
      '--disable-background-networking', '--disable-component-update', '--disable-sync'],
    env: { ...process.env, HOME: profile },
  };
  const browser = await chromium.launch(options);
  return {
    address,
    /// A new page with a profile of its own. What goes wrong in it is gathered in `page.wrongs`.
    async page(query = '', { prepare, ...options } = {}) {
      const context = await browser.newContext({ viewport: { width: 1280, height: 900 }, ...options });
      const page = await context.newPage();
      page.wrongs = [];
      page.on('pageerror', (error) => page.wrongs.push(error.message));
      page.on('console', (told) => told.type() === 'error' && page.wrongs.push(told.text()));
      await page.addInitScript(() => addEventListener('securitypolicyviolation',
        (event) => console.error(`policy: ${event.violatedDirective} ${event.blockedURI}`)));
      await prepare?.(page);
      page.answer = await page.goto(address + query);
      return page;
    },
    /// A page in a browser of its own that a player has set up: `preferences` are what the browser
    /// would have written down of it.
    async pageSetUp(preferences, query) {
      const folder = mkdtempSync(join(profile, 'set-up-'));
      mkdirSync(join(folder, 'Default'));
      writeFileSync(join(folder, 'Default/Preferences'), JSON.stringify(preferences));
      const context = await chromium.launchPersistentContext(folder, { ...options, viewport: null });
      const page = await context.newPage();
      await page.goto(address + query);
      return page;
    },
    /// A browser of its own, whose profile lies in a folder and stays.
    persistent: (folder) => chromium.launchPersistentContext(folder, options),
    async closePages() {
      for (const context of browser.contexts()) await context.close();
    },
    async stop() {
      await browser.close();
      server.kill();
      rmSync(profile, { recursive: true, force: true });
    },
  };
}

/// Time runs so many times as fast for the page as for the test; `zelvoSpeed(times)` changes that,
/// also for the page when it is loaded anew.
export const hasten = (times) => (page) => page.addInitScript((initial) => {
  const now = performance.now.bind(performance);
  const later = window.setTimeout.bind(window);
  let speed = Number(sessionStorage.getItem('zelvoSpeed') ?? initial);
  let begin = 0;
  let passed = 0;
  performance.now = () => passed + (now() - begin) * speed;
  window.setTimeout = (task, delay = 0, ...rest) => later(task, delay / speed, ...rest);
  window.zelvoSpeed = (changed) => {
    passed = performance.now();
    begin = now();
    speed = changed;
    sessionStorage.setItem('zelvoSpeed', speed);
  };
}, times);

/// Waits until the game waits for the player in a window, or in any.
export const waiting = (page, name) => page.waitForFunction(
  (wanted) => (wanted ? document.body.dataset.waiting === wanted : document.body.dataset.waiting !== ''),
  name, { timeout: limit });

/// The lines of the scripted face, called with these options, to a list of commands.
export function scripted(commands, ...options) {
  const run = spawnSync(headless, options, { input: commands.join('\n') + '\n', maxBuffer: 1 << 30 });
  return run.stdout.toString().trimEnd().split('\n');
}

/// What the page shows of every control that is to be seen, a line each.
export function seen() {
  const rows = [];
  for (const window of document.querySelectorAll('.window:not(.message)')) {
    if (window.hidden || (window.tagName === 'DIALOG' && !window.open)) continue;
    const title = window.querySelector('.title');
    if (title !== null) rows.push(`${window.dataset.window} ${title.textContent}`);
    for (const element of window.querySelectorAll('[data-control]')) {
      if (element.hidden) continue;
      rows.push([element.dataset.control, element.querySelector('.caption')?.textContent ?? '',
        element.matches('.image') ? element.dataset.picture : '', element.value ?? '', element.disabled ? 'off' : '',
        element.getAttribute('aria-checked') ?? ''].join('|'));
    }
  }
  return rows.sort();
}

/// The same as the scripted face's state has it.
export function expected({ windows, controls }) {
  const screen = (text = '') => text.replaceAll('\r', '');
  const file = (owner) => owner && `${owner.toLowerCase().replace(/[.(]/g, '-').replace(')', '')}.svg`;
  const shown = (id) => windows[id.split('.')[0]].state === 'shown';
  const outside = (id) => /^BK\.Image1\(/.test(id);
  const rows = Object.entries(controls)
    .filter(([id, control]) => shown(id) && control.Visible && !('Interval' in control) && !outside(id))
    .map(([id, control]) => [id, screen(control.Caption), file(control.Picture) ?? null,
      screen(control.Text), control.Enabled === 0 ? 'off' : '',
      'Value' in control ? String(control.Value === -1) : ''].join('|'));
  const untitled = 'ICF';
  const titles = Object.entries(windows).filter(([id, { state }]) => state === 'shown' && id !== untitled)
    .map(([id, window]) => `${id} ${window.Caption}`);
  return [...rows, ...titles].sort();
}
