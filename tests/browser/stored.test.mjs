// The game that lies in the browser's storage: killed, cut off, cleared, and beside another tab.

import assert from 'node:assert/strict';
import { mkdtempSync, readdirSync, readFileSync, rmSync, truncateSync, writeFileSync } from 'node:fs';
import { tmpdir } from 'node:os';
import { join } from 'node:path';
import { after, afterEach, before, test } from 'node:test';

import { limit, start, waiting } from './harness.mjs';

let site;
let folder;
before(async () => {
  folder = mkdtempSync(join(tmpdir(), 'zelvo-stored-'));
  site = await start();
});
afterEach(() => site.closePages());
after(async () => {
  await site.stop();
  rmSync(folder, { recursive: true });
});

const at = (id) => `[data-control="${id}"]`;

async function state(page) {
  const seen = JSON.parse(await page.evaluate(() => window.zelvo.play('state'))).state;
  if (seen.windows.GFM) delete seen.windows.GFM.Caption;  // it tells what lies under the mouse
  return seen;
}

/// All that lies in the database, by key; with `changes`, a function's text, after that.
const lies = (page, changes = '() => {}') => page.evaluate((text) => new Promise((tell, fail) => {
  const change = new Function(`return (${text})`)();
  const opening = indexedDB.open('zelvo-game');
  opening.onupgradeneeded = () => opening.transaction.abort();
  opening.onerror = () => tell({});
  opening.onsuccess = () => {
    const looking = opening.result.transaction('parts', 'readwrite');
    const parts = looking.objectStore('parts');
    const at = {};
    change(parts);
    parts.openCursor().onsuccess = ({ target: { result: cursor } }) => {
      if (cursor === null) return;
      at[cursor.key] = cursor.value;
      cursor.continue();
    };
    looking.onabort = fail;
    looking.oncomplete = () => {
      opening.result.close();
      tell(at);
    };
  };
}), changes);

/// Waits until a deed is in the list that is stored.
async function stored(page, deed) {
  const end = Date.now() + limit;
  while (!String((await lies(page))[0]).includes(`${deed}\n`)) assert.ok(Date.now() < end, `${deed} is not stored`);
}

const said = (page, pattern) => page.waitForFunction(
  (source) => new RegExp(source).test(document.querySelector('.word')?.textContent)
    && document.querySelector('[role=status]')?.textContent === document.querySelector('.word').textContent,
  pattern.source, { timeout: limit, polling: 20 });

async function place(page) {
  await page.keyboard.press('Shift+F10');
  const text = await page.textContent('.menu .place');
  await page.keyboard.press('Escape');
  await page.waitForSelector('.menu', { state: 'detached' });
  return text;
}

async function ready(page) {
  page.on('dialog', (dialog) => dialog.accept());
  await waiting(page);
  await page.waitForSelector('body[aria-keyshortcuts]', { state: 'attached' });
  return page;
}

async function begin(page) {
  await ready(page);
  await page.click(at('GST.CMDSTART'));
  await waiting(page, 'GFM');
  return page;
}

const closed = async (page) => {
  const gone = page.waitForEvent('close');
  await page.close({ runBeforeUnload: true });
  await gone;
};

const failures = {
  'a transaction that is aborted': `
    const { transaction } = IDBDatabase.prototype;
    IDBDatabase.prototype.transaction = function begin(...all) {
      const begun = transaction.apply(this, all);
      if (window.fails && all[1] === 'readwrite') begun.abort();
      return begun;
    };`,
  'a write that throws': `
    const { put } = IDBObjectStore.prototype;
    IDBObjectStore.prototype.put = function write(...all) {
      if (window.fails) throw new DOMException('full', 'QuotaExceededError');
      return put.apply(this, all);
    };`,
};
for (const [what, script] of Object.entries(failures)) {
  test(`after ${what} the whole game is stored with the next deed`, async () => {
    const page = await begin(await site.page('', { prepare: (it) => it.addInitScript(script) }));
    await stored(page, 'click GST.CMDSTART');
    await page.evaluate(() => (window.fails = true));
    await page.click(at('GFM.Image1(0)'));
    await said(page, /does not keep the game.*Ctrl\+S keeps it in a file/);
    assert.match(await place(page), /does not keep/);
    await page.evaluate(() => (window.fails = false));
    await page.click(at('GFM.CMDBUILD'));
    await said(page, /is kept in this browser again/);
    assert.equal(await place(page), 'This game is kept in this browser.');
    const game = await state(page);
    await page.reload();
    await waiting(page, 'GFM');
    assert.deepEqual(await state(page), game);
  });
}

test('notes that cannot be written and storage that is cleared lose no game', async () => {
  const page = await begin(await site.page('', {
    prepare: (it) => it.addInitScript(() => {
      Storage.prototype.setItem = () => {
        throw new DOMException('full', 'QuotaExceededError');
      };
    }),
  }));
  await stored(page, 'click GST.CMDSTART');
  await lies(page, '(parts) => parts.clear()');
  await page.click(at('GFM.Image1(0)'));
  await stored(page, 'click GFM.Image1(0)');
  await page.evaluate(() => new Promise((done) => (indexedDB.deleteDatabase('zelvo-game').onsuccess = done)));
  await page.click(at('GFM.CMDBUILD'));
  await stored(page, 'click GFM.CMDBUILD');
  const game = await state(page);
  await page.reload();
  await waiting(page, 'GFM');
  assert.deepEqual(await state(page), game);
  assert.deepEqual(page.wrongs, []);
});

test('storage that is blocked changes nothing but what is said', async () => {
  const page = await begin(await site.page('', {
    prepare: (it) => it.addInitScript(() => {
      for (const name of ['localStorage', 'sessionStorage', 'indexedDB']) {
        Object.defineProperty(window, name, {
          get() {
            throw new DOMException('blocked', 'SecurityError');
          },
        });
      }
    }),
  }));
  await said(page, /does not keep the game/);
  await page.click(at('GFM.CMDEXIT'));
  await waiting(page, 'GST');
  await page.click(at('GST.CMDEXIT'));
  await waiting(page, 'ended');
  assert.deepEqual(page.wrongs, []);
});

test('a second tab tells whose game is stored, and takes over when the other one is closed', async () => {
  const first = await begin(await site.page());
  await first.click(at('GFM.Image1(0)'));
  await stored(first, 'click GFM.Image1(0)');
  const second = await first.context().newPage();
  await second.goto(site.address);
  await begin(second);
  await said(second, /game in another tab is the one that is kept/);
  await second.click(at('GFM.Image1(99)'));
  assert.match((await lies(first))[0], /Image1\(0\)\n$/);
  await closed(first);
  await said(second, /this one is kept in this browser from now on/);
  await stored(second, 'click GFM.Image1(99)');
  assert.equal((await lies(second)).aside, undefined, 'a game that was left needs no place');
  await closed(second);
});

test('a stored game that does not fit is told once, can be had, and is not tried again', async () => {
  const page = await begin(await site.page());
  await stored(page, 'click GST.CMDSTART');
  const bad = 'zelvo-game 1\nclick GFM.CMDGO\n';
  await page.route('**/empty', (route) => route.fulfill({ contentType: 'text/html', body: '' }));
  await page.goto(`${site.address}empty`);
  await lies(page, `(parts) => parts.put(${JSON.stringify(bad)}, 0)`);
  await page.goto(site.address);
  await ready(page);
  assert.match(await page.textContent('[data-window=notice] .text'), /^The game that was under way cannot be gone on with/);
  await page.click('[data-window=notice] .answer:last-child');
  await page.reload();
  await ready(page);
  await begin(page);
  assert.equal(await page.locator('[data-window=notice]').count(), 0);
  await page.keyboard.press('Shift+F10');
  const [download] = await Promise.all([page.waitForEvent('download'), page.click('.menu .item:last-child')]);
  assert.equal(readFileSync(await download.path(), 'utf8'), bad);
  await page.keyboard.press('Shift+F10');
  assert.equal(await page.locator('.menu .item >> text=did not fit').count(), 0);
});

test('what shows no sign is said, a menu leaves nothing, and a file that is too long is not read', async () => {
  const page = await begin(await site.page());
  await page.click(at('GFM.Image1(0)'));
  await stored(page, 'click GFM.Image1(0)');
  assert.equal(await place(page), 'This game is kept in this browser.');
  for (const [key, words] of [['2', /^Waits twice as fast\.$/], ['z', /^Taken back\.$/], ['Shift+z', /^Done again\.$/],
    ['s', /^Kept in game\.zelvo\.$/]]) {
    await page.keyboard.press(`Control+${key}`);
    await said(page, words);
  }
  await page.waitForSelector('.word', { state: 'detached', timeout: limit });

  const session = await page.context().newCDPSession(page);
  await session.send('Performance.enable');
  const held = async () => {
    await session.send('HeapProfiler.collectGarbage');
    const { metrics } = await session.send('Performance.getMetrics');
    return metrics.find(({ name }) => name === 'Nodes').value;
  };
  await place(page);
  const nodes = await held();
  for (let i = 0; i < 8; ++i) await place(page);
  assert.ok(await held() < nodes + 20);  // 25 a menu if they stay

  const large = join(folder, 'large.zelvo');
  writeFileSync(large, '');
  truncateSync(large, 16 * 1024 * 1024 + 1);
  await page.evaluate(() => {
    Blob.prototype.arrayBuffer = () => Promise.reject(new Error('it was read'));
  });
  const [chooser] = await Promise.all([page.waitForEvent('filechooser'), page.keyboard.press('Control+o')]);
  await chooser.setFiles(large);
  assert.equal(await page.textContent('[data-window=notice] .text'), 'large.zelvo cannot be read: it is too long.');

});

test('a frame that allows no downloads says so', async () => {
  const outer = await site.page('', { serviceWorkers: 'block' });
  await outer.route('**/outer', (route) => route.fulfill({
    contentType: 'text/html',
    body: '<iframe src="/inner" sandbox="allow-scripts allow-same-origin" width=1000 height=700></iframe>',
  }));
  await outer.route('**/inner', async (route) => {
    const answer = await route.fetch({ url: site.address });
    await route.fulfill({ response: answer, headers: { 'content-type': 'text/html' } });
  });
  await outer.goto(`${site.address}outer`);
  const frame = outer.frameLocator('iframe');
  await frame.locator('body[aria-keyshortcuts]').waitFor({ state: 'attached', timeout: limit });
  await frame.locator(at('GST.CMDSTART')).press('Control+s');
  assert.match(await frame.locator('.word').textContent(), /^This frame allows no downloads/);
});

/// The processes of a browser with a profile, by a part of their command.
const processes = (profile, part) => readdirSync('/proc').filter((id) => {
  try {
    const command = readFileSync(`/proc/${id}/cmdline`, 'utf8');
    return command.includes(profile) && command.includes(part);
  } catch {
    return false;  // no process, or one that has just ended
  }
});

test('a game is there after its browser or its renderer was killed', async () => {
  const kill = (ids) => ids.forEach((id) => process.kill(Number(id), 'SIGKILL'));
  let context;
  let page;
  const open = async () => {
    context = await site.persistent(folder);
    page = await context.newPage();
    await page.goto(site.address);
  };
  await open();
  await begin(page);
  for (const [id, kills] of [['GFM.Image1(0)', 'browser'], ['GFM.CMDBUILD', 'renderer'], ['GFM.HILTON', 'browser']]) {
    await page.click(at(id));
    await stored(page, `click ${id}`);
    const game = await state(page);
    if (kills === 'browser') {
      kill(processes(folder, ''));
      await context.close().catch(() => {});
      await open();
    } else {
      const crashed = page.waitForEvent('crash');
      (await context.newCDPSession(page)).send('Page.crash').catch(() => {});  // it answers no more
      await crashed;
      page = await context.newPage();
      await page.goto(site.address);
    }
    await ready(page);
    assert.deepEqual(await state(page), game, id);
  }
  await context.close();
});
