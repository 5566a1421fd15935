// Games that are kept, gone on with, taken back and done again on the page in real time.

import assert from 'node:assert/strict';
import { mkdtempSync, readFileSync, rmSync } from 'node:fs';
import { tmpdir } from 'node:os';
import { join } from 'node:path';
import { after, afterEach, before, test } from 'node:test';

import { hasten, limit, scripted, start, waiting } from './harness.mjs';

let site;
let folder;
before(async () => {
  folder = mkdtempSync(join(tmpdir(), 'zelvo-kept-'));
  site = await start();
});
afterEach(() => site.closePages());
after(async () => {
  await site.stop();
  rmSync(folder, { recursive: true });
});

const at = (id) => `[data-control="${id}"]`;
const stateIn = (line) => JSON.parse(line).state;
/// The state, without the board's title: it tells what lies under the mouse.
async function now(page) {
  return belowTitle(stateIn(await page.evaluate(() => window.zelvo.play('state'))));
}
function belowTitle(state) {
  if (state.windows.GFM) delete state.windows.GFM.Caption;
  return state;
}
const inScriptedFace = (file) => stateIn(scripted(['state'], '--game', file)[1]);

/// Has `zelvoState` hold the state at each moment at which the player keeps the game.
const noteStates = (page) => page.addInitScript(() => {
  const note = ({ key, target }) => {
    const isKept = key === 's' || target.closest?.('[data-command="Ctrl+S"]');
    if (isKept) window.zelvoState = window.zelvo.play('state');
  };
  for (const event of ['keydown', 'click']) addEventListener(event, note, true);
});

async function realGame() {
  const page = await site.page('', {
    prepare: async (it) => {
      await hasten(4)(it);
      await noteStates(it);
    },
  });
  page.on('dialog', (dialog) => dialog.accept());  // that asks before the page is left
  page.on('filechooser', () => {});  // so that the driver is told of them from the beginning
  await waiting(page, 'GST');
  await page.waitForSelector('body[aria-keyshortcuts]', { state: 'attached' });  // menu and keys come behind the first window
  return page;
}

/// Loads the page anew when a deed has come into the browser's storage.
async function reload(page, deed) {
  await page.waitForFunction((line) => new Promise((tell) => {
    const opening = indexedDB.open('zelvo-game');
    opening.onupgradeneeded = () => opening.transaction.abort();  // nothing is stored yet
    opening.onerror = () => tell(false);
    opening.onsuccess = () => {
      const parts = opening.result.transaction('parts').objectStore('parts').getAll();
      parts.onsuccess = () => tell(parts.result.join('').includes(line));
      opening.result.close();
    };
  }), `${deed}\n`, { timeout: limit, polling: 100 });
  await page.reload();
}

/// Keeps the game by what `asks` does; what is in the file is the game that the page shows.
async function keep(page, asks) {
  const [download] = await Promise.all([page.waitForEvent('download'), asks()]);
  assert.match(download.suggestedFilename(), /^(game|scripted)\.zelvo$/);
  const file = join(folder, 'kept.zelvo');
  await download.saveAs(file);
  const state = stateIn(await page.evaluate(() => window.zelvoState));
  assert.deepEqual(inScriptedFace(file), state);
  return readFileSync(file, 'utf8');
}

async function byMenu(page, on) {
  await page.click(on, { button: 'right' });
  await page.click('[data-command="Ctrl+S"]');
}

async function open(page, name, text) {
  const [chooser] = await Promise.all([page.waitForEvent('filechooser'), page.keyboard.press('Control+o')]);
  await chooser.setFiles({ name, mimeType: 'application/x-zelvo-game', buffer: Buffer.from(text) });
}

test('a game by clicks is kept, and comes back when the page is loaded anew', async () => {
  const page = await realGame();
  await page.keyboard.press('Control+5');
  await page.click(at('GST.CMDSTART'));
  await waiting(page, 'GFM');
  for (const id of ['GFM.Image1(0)', 'GFM.CMDBUILD', 'GFM.HILTON', 'GFM.BUILDIT', 'HS.CMDAN1(0)']) {
    await page.click(at(id));
  }
  await keep(page, () => page.keyboard.press('Control+s'));
  await page.evaluate(() => window.zelvoSpeed(0.2));
  await page.click(at('GFM.CMDGO'));
  await page.waitForFunction(() => document.body.dataset.waiting === '', null, { timeout: limit });
  await page.click(at('GFM.CMDHELP'));  // while the computer plays
  await waiting(page, 'ICF');
  await page.evaluate(() => window.zelvoSpeed(0.001));  // hardly a timer ticks
  await page.click(at('ICF.OPT1(2)'));
  await keep(page, () => byMenu(page, at('ICF.Label1')));

  const inSetup = await now(page);
  await reload(page, 'click ICF.OPT1(2)');
  await waiting(page, 'ICF');
  assert.deepEqual(await now(page), inSetup);
  await page.evaluate(() => window.zelvoSpeed(20));
  await page.click(at('ICF.cmdexit'));
  await reload(page, 'click ICF.cmdexit');  // in the middle of the computer's turn
  await waiting(page, 'GFM');
  const list = await keep(page, () => byMenu(page, at('GFM.Image1(0)')));
  assert.match(list, /click GFM.CMDGO\n(.*\n)*click GFM.CMDHELP\n(.*\n)*click ICF.cmdexit\n(.*\n)*tick GFM.Timer1\n/,
    'the setup was opened in a wait, which then went on');

  // Whoever closes the page, or ends the game, has left it.
  const other = await page.context().newPage();
  await page.close({ runBeforeUnload: true });
  await page.waitForEvent('close');
  other.on('dialog', (dialog) => dialog.accept());
  await other.goto(site.address);
  await waiting(other, 'GST');
  await other.click(at('GST.CMDSTART'));
  await waiting(other, 'GFM');
  await reload(other, 'click GST.CMDSTART');
  await waiting(other, 'GFM');
  await other.click(at('GFM.CMDEXIT'));
  await waiting(other, 'GST');
  await other.click(at('GST.CMDEXIT'));
  await waiting(other, 'ended');
  await other.reload();
  await waiting(other, 'GST');
  assert.deepEqual(page.wrongs, []);
});

test('a file of another face goes on, deeds are taken back in a message box, and no bad file harms', async () => {
  const file = join(folder, 'scripted.zelvo');
  const lines = scripted(['click GST.CMDSTART', 'click GFM.Image1(0)', 'click GFM.CMDBUILD', 'click GFM.HILTON',
    'click GFM.BUILDIT', 'click HS.CMDAN1(0)', 'click GFM.CMDGO', 'click GFM.Image1(94)', 'click GFM.CMDBUY',
    'click GFM.CMDBUILD', 'click GFM.HILTON', 'click GFM.BUILDIT', 'click HS.CMDAN1(1)', 'click GFM.CMDGO',
    'click GFM.Image1(6)', 'click GFM.CMDBUY', `keep ${file}`, 'state']);
  const [, beforeKept, , kept] = lines.slice(-4);
  assert.equal(JSON.parse(beforeKept).waiting, 'message box');
  const text = readFileSync(file, 'utf8');

  const page = await realGame();
  await open(page, 'scripted.zelvo', `${text}click GF`);  // its end is torn off
  await waiting(page, 'message box');
  assert.deepEqual(await now(page), belowTitle(stateIn(kept)));
  await page.keyboard.press('Control+z');
  await waiting(page, 'GFM');
  const unasked = await now(page);
  assert.equal(unasked.controls['GFM.CMDBUY'].Visible, -1);
  await page.keyboard.press('Control+Shift+z');
  await waiting(page, 'message box');
  assert.deepEqual(await now(page), belowTitle(stateIn(kept)));
  await page.click('[data-answer=yes]');
  await waiting(page, 'BK');
  await keep(page, () => byMenu(page, at('BK.CMDOK')));
  for (const _ of 'aa') await page.keyboard.press('Control+z');
  await waiting(page, 'GFM');
  assert.deepEqual(await now(page), unasked);

  for (const [bad, why] of [
    ['', 'it is cut off in its first line'],
    ['PNG', 'it is no kept game'],
    ['zelvo-game 9\n', 'it was kept by a later version of the game'],
    [text.replace('GFM.BUILDIT', 'GFM.CMDBUY'), 'its line \\d+ does not fit the game: click GFM.CMDBUY'],
  ]) {
    await open(page, 'bad.zelvo', bad);
    const sentence = await page.textContent('[data-window=notice] .text');
    assert.match(sentence, new RegExp(`^bad\\.zelvo cannot be gone on with: ${why}\\.$`));
    await page.keyboard.press('Enter');
    await page.waitForSelector('[data-window=notice]', { state: 'detached' });
    assert.deepEqual(await now(page), unasked);
  }
  assert.deepEqual(page.wrongs, []);
});
