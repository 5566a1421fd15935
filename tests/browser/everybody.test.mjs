// The page for people who use a screen reader, a finger, large letters, colours of their own or a
// keyboard of another script.

import assert from 'node:assert/strict';
import { readFileSync } from 'node:fs';
import { after, afterEach, before, test } from 'node:test';

import { hasten, limit, require, start, waiting } from './harness.mjs';

let site;
before(async () => (site = await start()));
afterEach(() => site.closePages());
after(() => site.stop());

const at = (id) => `[data-control="${id}"]`;
const deeds = (page) => page.evaluate(() => window.zelvo.deeds);
const here = (page) => page.evaluate(() => document.activeElement.dataset.control ?? document.activeElement.tagName);

async function virtualGame(options = {}) {
  const page = await site.page('?virtual', options);
  await waiting(page, 'GST');
  return page;
}

async function play(page, ...commands) {
  for (const command of commands) await page.evaluate((text) => window.zelvo.play(text), command);
}

const toLoanOffer = ['click GST.CMDSTART', 'set GFM.PCredit.Caption "$1,000"', 'set GFM.Image1(6).Tag "O"',
  'set GFM.Image1(6).Picture "ICF.LOPEN"', 'click GFM.Image1(6)', 'click GFM.CMDBUY'];
const onAllLots = (...sets) => Array.from({ length: 100 },
  (_, lot) => sets.map((each) => `set GFM.Image1(${lot}).${each}`)).flat();

// Screen readers.

const axe = () => readFileSync(require.resolve('axe-core/axe.min.js'), 'utf8');

/// What axe finds on the page as it stands, a line each.
const faults = (page) => page.evaluate(async () => {
  const { violations } = await window.axe.run(document);
  return violations.flatMap(({ id, nodes }) => nodes.map(({ html }) => `${id}: ${html.slice(0, 120)}`));
});

/// That, and the names of what is open.
async function assertClean(page, what) {
  assert.deepEqual(await faults(page), [], what);
  const nameless = await page.evaluate(() => [...document.querySelectorAll('main, dialog')]
    .filter((window) => window.matches('.window') && !window.hidden && (window.open ?? true) && !window.getAttribute('aria-label')).length);
  assert.equal(nameless, 0, `${what} has a name`);
}

test('axe finds nothing in the windows and boxes of a game', async () => {
  const page = await virtualGame();
  page.on('dialog', (dialog) => dialog.accept());  // that asks before the page is left
  await page.evaluate(axe());
  const seen = new Set();
  const look = async () => {
    const name = await page.evaluate(() => document.body.dataset.waiting);
    if (seen.has(name)) return;
    seen.add(name);
    await assertClean(page, name);
  };
  await look();
  for (const command of ['click GST.CMDSET', 'click ICF.CMDEXP', 'click HH.CMDEXIT', 'click ICF.CMDABOUT', 'close ABT',
    'click ICF.cmdexit', 'click GST.CMDSTART', 'click GFM.Image1(0)', 'click GFM.CMDBUILD', 'click GFM.HILTON',
    'click GFM.BUILDIT', 'click HS.CMDCANCEL', ...toLoanOffer, 'answer yes', 'click BK.CMDCANCEL']) {
    await play(page, command);
    await look();
  }
  // A mall comes by chance.
  for (let step = 0; step < 900 && !seen.has('ML'); ++step) {
    const name = await page.evaluate(async ([deeds, second]) => {
      await window.zelvo.play(`clock 12:00:${second}`);
      for (const deed of deeds) await window.zelvo.play(deed);
      return document.body.dataset.waiting;
    }, [['click ML.CMD1(1)', 'click CHN.Image1(1)', 'click CHN.CMDOK', 'answer no', 'click HS.CMDCANCEL',
      'click BK.CMDCANCEL', 'close RB', 'click SV.CMDOK', 'click GFM.CMDGO'], String((step * 13) % 60).padStart(2, '0')]);
    if (name === 'ML') await look();
  }
  for (const position of [['set ChanceWait 20', 'click GFM.CMDGO'], ['set LotValue(0) 200000000', 'set YearTurn 5', 'click GFM.CMDGO'],
    [...onAllLots('Tag "PHH"', 'Picture "ICF.HILTON"'), 'clock 12:00:22', 'click GFM.CMDGO'],
    [...onAllLots('Tag "O"', 'Picture "ICF.LOPEN"'), 'click GFM.Image1(10)', 'click GFM.CMDBUY', 'click GFM.CMDBUILD',
      'click GFM.SUPER', 'click GFM.BUILDIT']]) {
    await page.reload();
    await waiting(page, 'GST');
    await page.evaluate(axe());
    await play(page, 'click GST.CMDSTART', ...position);
    await look();
  }
  for (const name of ['GST', 'ICF', 'HH', 'ABT', 'GFM', 'HS', 'BK', 'SV', 'RB', 'ML', 'CHN', 'WINX', 'message box']) {
    assert.ok(seen.has(name), `${name} was seen among ${[...seen]}`);
  }
});

test('axe finds nothing at tax time, in the menu, in a notice and at the end', async () => {
  const page = await site.page('', { prepare: async (it) => {
    await hasten(40)(it);
    await it.addInitScript(() => addEventListener('DOMContentLoaded', () => {
      new MutationObserver(() => document.querySelector('[data-window=TT][open]') && window.zelvoSpeed(0.0001))
        .observe(document.body, { subtree: true, attributeFilter: ['open'] });
    }));
  } });
  page.on('filechooser', () => {});
  await waiting(page, 'GST');
  await page.waitForSelector('body[aria-keyshortcuts]', { state: 'attached' });
  await page.evaluate(axe());
  await page.keyboard.press('Shift+F10');
  await assertClean(page, 'the menu');
  const [chooser] = await Promise.all([page.waitForEvent('filechooser'), page.click('[data-command="Ctrl+O"]')]);
  await chooser.setFiles({ name: 'letter.txt', mimeType: 'text/plain', buffer: Buffer.from('Dear all') });
  await page.waitForSelector('[data-window=notice]');
  await assertClean(page, 'a notice');
  await page.keyboard.press('Enter');
  await page.click(at('GST.CMDSTART'));
  while (await page.locator('[data-window=TT][open]').count() === 0) {
    await page.evaluate((go) => document.querySelector(go).click(), at('GFM.CMDGO'));
    await page.evaluate(() => new Promise((next) => requestAnimationFrame(next)));
  }
  await assertClean(page, 'tax time');
  await page.close();
  const other = await virtualGame();
  await other.evaluate(axe());
  await other.click(at('GST.CMDEXIT'));
  await waiting(other, 'ended');
  await assertClean(other, 'the end');
});

test('the lot in hand and what a message says are told, and nothing else', async () => {
  const page = await virtualGame();
  await play(page, ...toLoanOffer);
  await waiting(page, 'message box');
  const tree = async (role) => {
    const session = await page.context().newCDPSession(page);
    const { nodes } = await session.send('Accessibility.getFullAXTree');
    return nodes.filter((node) => node.role?.value === role);
  };
  const [box] = await tree('dialog');
  assert.equal(box.description.value.trim(), (await page.textContent('.message .text')).replace(/\s+/g, ' ').trim());
  await play(page, 'answer no');
  const selected = (await tree('gridcell'))
    .filter(({ properties }) => properties.some(({ name, value }) => name === 'selected' && value.value));
  assert.deepEqual(selected.map(({ name }) => name.value), ['Lot 6, open lot']);
});

test('a box of style 0 has no icon, for the eye or the ear; a question has one for the eye', async () => {
  const page = await virtualGame();
  const box = () => page.evaluate(() => document.querySelector('.message .told').innerText.trim());
  await play(page, ...toLoanOffer);
  assert.match(await box(), /^\?\s+\w/);
  await play(page, 'answer no', ...onAllLots('Tag "CHH"', 'Picture "ICF.HILTON"'), 'set GFM.CCredit.Caption "$1"',
    'clock 12:00:22', 'click GFM.CMDGO');
  assert.match(await box(), /^Computer building # +\d+ was condemed$/);
});

// Fingers.

for (const [width, height] of [[390, 844], [844, 390]]) {
  test(`a tap is for what is under it at ${width} by ${height}`, async () => {
    const page = await virtualGame({ viewport: { width, height }, hasTouch: true, isMobile: true });
    await play(page, 'click GST.CMDSTART');
    const session = await page.context().newCDPSession(page);
    const tap = async (id, x, y) => {
      const box = await page.locator(at(id)).boundingBox();
      const point = { x: box.x + box.width * x, y: box.y + box.height * y, radiusX: 20, radiusY: 20, force: 1 };
      await session.send('Input.dispatchTouchEvent', { type: 'touchStart', touchPoints: [point] });
      await session.send('Input.dispatchTouchEvent', { type: 'touchEnd', touchPoints: [] });
    };
    const clicks = async () => (await deeds(page)).filter((deed) => !deed.startsWith('hover'));
    for (const [id, x, y] of [['GFM.Label10', 0.3, 0.05], ['GFM.Label9', 0.97, 0.5], ['GFM.Label9', 0.5, 0.03],
      ['GFM.Label7(1)', 0.6, 0.5], ['GFM.PSHOW', 0.9, 0.97]]) await tap(id, x, y);
    // What a tap does comes in turn: when this one has been heard, so have the others.
    await tap('GFM.Image1(55)', 0.5, 0.5);
    await page.waitForFunction(() => window.zelvo.deeds.includes('click GFM.Image1(55)'), null, { timeout: limit });
    assert.deepEqual(await clicks(), ['click GFM.Image1(55)']);
    const letters = await page.evaluate(() => [...document.querySelectorAll('.border-road .caption:not(:empty)')]
      .map((caption) => parseFloat(getComputedStyle(caption).fontSize)));
    assert.equal(letters.length, 8);
    assert.ok(Math.min(...letters) >= 9, `letters of ${letters}`);
  });
}

// Eyes.

/// How wide a twip is on the board, in pixels of the screen; how far the page can be scrolled; and what
/// is cut off.
const seenLarge = () => {
  const cut = [...document.querySelectorAll('.control')].filter((element) => {
    const caption = element.querySelector('.caption');
    if (!caption?.textContent || element.offsetParent === null || element.closest('[inert]')) return false;
    return caption.offsetWidth > element.clientWidth + 1 || caption.offsetHeight > element.clientHeight + 1;
  });
  const board = document.querySelector('main:not([inert]) .client').getBoundingClientRect();
  const { scrollWidth, scrollHeight, clientWidth, clientHeight } = document.documentElement;
  return {
    width: board.width * devicePixelRatio, cut: cut.map((element) => element.dataset.control),
    scrolls: scrollWidth > clientWidth && scrollHeight > clientHeight,
  };
};

test("the browser's zoom enlarges, and letters of 24 pixels are not cut off", async () => {
  const measured = [];
  for (const preferences of [{}, { partition: { default_zoom_level: { x: Math.log(2) / Math.log(1.2) } } },
    { webkit: { webprefs: { minimum_font_size: 24 } } }]) {
    const page = await site.pageSetUp(preferences, '?virtual');
    await waiting(page, 'GST');
    const cut = [];
    for (const command of ['get Word', 'click GST.CMDSET', 'click ICF.cmdexit', 'click GST.CMDSTART', 'click GFM.Image1(0)',
      'click GFM.CMDBUILD', 'click GFM.HILTON', 'click GFM.BUILDIT', 'click HS.CMDAN1(0)', 'click GFM.Label8']) {
      await play(page, command);
      cut.push(...(await page.evaluate(seenLarge)).cut);
    }
    measured.push({ ...(await page.evaluate(seenLarge)), cut });
    await page.context().close();
  }
  const [plain, zoomed, large] = measured;
  assert.deepEqual(measured.map(({ cut, scrolls }) => ({ cut, scrolls })), [{ cut: [], scrolls: false },
    { cut: [], scrolls: true }, { cut: [], scrolls: true }]);
  assert.ok(Math.abs(zoomed.width / plain.width - 2) < 0.02, `${zoomed.width} is twice ${plain.width}`);
  assert.ok(large.width > plain.width);
});

test("every mark is seen in the player's own colours", async () => {
  const page = await site.page('', { forcedColors: 'active' });
  await waiting(page, 'GST');
  await page.waitForSelector('body[aria-keyshortcuts]', { state: 'attached' });
  /// How many pixels a picture of the element has that are not its most frequent colour.
  const marks = async (element, style) => {
    const shot = async () => (await element.screenshot()).toString('base64');
    const whole = await shot();
    await page.evaluate((text) => {
      const sheet = new CSSStyleSheet();
      sheet.replaceSync(text);
      document.adoptedStyleSheets = [sheet];
    }, style);
    const without = await shot();
    await page.evaluate(() => (document.adoptedStyleSheets = []));
    return whole !== without;
  };
  assert.ok(await marks(page.locator('main:not([hidden]) .close'), '.close::before { visibility: hidden }'), 'the close box');
  await page.keyboard.press('Shift+F10');
  assert.ok(await marks(page.locator('.item[aria-checked=true]'), '.item::before { visibility: hidden }'), 'the pace');
  await page.keyboard.press('ArrowDown');
  const focused = page.locator('.item:focus');
  assert.equal(await focused.count(), 1);
  assert.ok(await marks(focused, '.item:focus { outline: none !important }'), 'the focus in the menu');
});

// Keyboards.

/// Presses a key of another layout, as the browser tells of it.
async function pressKey(page, session, key, code, modifiers) {
  const virtualCode = code.at(-1).charCodeAt(0);
  const pressed = { key, code, modifiers, windowsVirtualKeyCode: virtualCode };
  await session.send('Input.dispatchKeyEvent', { type: 'rawKeyDown', ...pressed });
  await session.send('Input.dispatchKeyEvent', { type: 'keyUp', ...pressed });
}

test('keys count by what is printed on them, and else by their place', async () => {
  const page = await site.page('', { prepare: hasten(40) });
  await waiting(page, 'GST');
  await page.waitForSelector('body[aria-keyshortcuts]', { state: 'attached' });
  await page.keyboard.press('Enter');
  await waiting(page, 'GFM');
  const session = await page.context().newCDPSession(page);
  const [ctrl, ctrlShift] = [2, 10];
  const pace = async () => {
    await page.keyboard.press('Shift+F10');
    const checked = await page.getAttribute('.item[aria-checked=true]', 'data-command');
    await page.keyboard.press('Escape');
    await page.waitForSelector('.menu', { state: 'detached' });
    return checked;
  };
  await pressKey(page, session, 'é', 'Digit2', ctrl);
  assert.equal(await pace(), 'Ctrl+2', 'French');
  await pressKey(page, session, '&', 'Digit1', ctrl);
  assert.equal(await pace(), 'Ctrl+1', 'French');
  const [download] = await Promise.all([page.waitForEvent('download'), pressKey(page, session, 'σ', 'KeyS', ctrl)]);
  assert.equal(download.suggestedFilename(), 'game.zelvo', 'Greek');
  await pressKey(page, session, 'y', 'KeyZ', ctrl);  // German: what is printed counts, and nothing is taken back
  assert.equal(await page.evaluate(() => document.body.dataset.waiting), 'GFM');
  await pressKey(page, session, 'я', 'KeyZ', ctrl);
  await waiting(page, 'GST');
  await pressKey(page, session, 'Я', 'KeyZ', ctrlShift);
  await waiting(page, 'GFM');
});

test('a letter by its place goes to the board, and one that fits nothing is told so', async () => {
  const page = await virtualGame();
  await play(page, 'click GST.CMDSTART', 'set GFM.Image1(6).Picture "ICF.MALL"');
  const session = await page.context().newCDPSession(page);
  await page.focus(at('GFM.SUPER'));
  await pressKey(page, session, 'ь', 'KeyM', 0);
  assert.equal(await here(page), 'GFM.Image1(6)');
  await pressKey(page, session, 'q', 'KeyQ', 0);
  assert.equal(await here(page), 'GFM.Image1(6)');
  assert.equal(await page.textContent('[role=alert].said'), 'Nothing here begins with Q.');
});

test('the focus is never lost', async () => {
  const page = await virtualGame();
  const goes = async (to, ...keys) => {
    for (const key of keys) await page.keyboard.press(key);
    await waiting(page);
    assert.equal(await here(page), to, keys.join());
  };
  await goes('GFM.Image1(0)', 'Enter');
  await page.focus(at('GFM.CMDEXIT'));
  await goes('GST.CMDSTART', 'Enter');
  await goes('GFM.Image1(0)', 'Enter');
  await play(page, ...toLoanOffer.slice(1, 4));
  await page.focus(at('GFM.Image1(6)'));
  await goes('GFM.CMDBUY', 'Enter', 'Tab');
  await goes('BUTTON', 'Enter');
  await goes('GFM.CMDBUY', 'Escape');
  // Not even where it was on something that is gone when the message is.
  await goes('BUTTON', 'Enter');
  await play(page, 'set GFM.CMDBUY.Visible 0');
  await goes('GFM.Image1(6)', 'Escape');
});
