import assert from 'node:assert/strict';
import { after, afterEach, before, test } from 'node:test';

import { expected, hasten, limit, scripted, seen, start, waiting } from './harness.mjs';
import { bringPlayers, playByEvents } from './players.mjs';

let site;
before(async () => (site = await start()));
afterEach(() => site.closePages());
after(() => site.stop());

const at = (id) => `[data-control="${id}"]`;
const deeds = (page) => page.evaluate(() => window.zelvo.deeds);

async function virtualGame(query = '', options = {}) {
  const page = await site.page(`?virtual${query}`, options);
  await waiting(page, 'GST');
  return page;
}

/// Every line of the page, and every element that is to be seen, is what the scripted face has after
/// the same deeds. `views` are the elements after the deeds from `from` on.
async function assertSame(page, views, from = 0) {
  const { deeds: done, lines } = await page.evaluate(() => window.zelvo);
  const commands = done.flatMap((deed) => [deed, 'state']);
  const answers = scripted(commands);
  const toDeeds = [answers[0], ...answers.slice(1).filter((_, i) => i % 2 === 0)];
  assert.deepEqual(lines, toDeeds.slice(0, lines.length));
  assert.equal(lines.length, done.length + 1);
  views.forEach((view, i) => {
    const { state } = JSON.parse(answers[2 * (from + i) + 2]);
    assert.equal(view, expected(state).join('\n'), `after ${done.slice(0, from + i + 1).at(-1)}`);
  });
  assert.deepEqual(page.wrongs, []);
}

for (const [form, player, steps] of [['', 'anything', 400], ['', 'byPolicy', 1300],
  ['&suspend=asyncify', 'anything', 200]]) {
  test(`the page plays as the scripted face does: ${steps} steps of ${player}${form}`, async () => {
    const page = await virtualGame(form);
    await page.evaluate(bringPlayers, steps);
    const views = await page.evaluate(playByEvents,
      { player, steps, seen: String(seen), until: player === 'byPolicy' ? 'WINX' : '' });
    if (player === 'byPolicy') assert.equal(await page.evaluate(() => document.body.dataset.waiting), 'WINX');
    assert.ok(views.length > 100);
    await assertSame(page, views);
  });
}

test('the page plays as the scripted face does: 150 clicks of the mouse', async () => {
  const page = await virtualGame();
  await page.evaluate(bringPlayers, 7);
  let clicks = 0;
  while (clicks < 150) {
    const place = await page.evaluate((policy) => {
      const button = window.zelvoTest[policy ? 'byPolicy' : 'anything']();
      const { left, top, width, height } = button.getBoundingClientRect();
      return { x: left + width / 2, y: top + height / 2, count: window.zelvo.lines.length };
    }, clicks % 2 === 0);
    await page.mouse.click(place.x, place.y);
    await page.waitForFunction((count) => window.zelvo.deeds.slice(count - 1)
      .some((deed) => !deed.startsWith('hover')), place.count, { timeout: limit });
    ++clicks;
  }
  const views = [(await page.evaluate(seen)).join('\n')];
  const done = await deeds(page);
  assert.ok(done.some((deed) => deed.startsWith('hover GFM.Image1')), 'the mouse hovers on its way');
  await assertSame(page, views, done.length - 1);
});

test('a command of scripted play can be carried out on the page', async () => {
  const page = await virtualGame();
  const play = (command) => page.evaluate((text) => window.zelvo.play(text), command);
  const commands = ['click GST.CMDSTART', 'set CurLot 3', 'get CurLot', 'fly', 'click GFM.CMDBUY',
    'later click GFM.CMDGO', 'clock 12:00:30', 'wait 1500', 'set Word "a\\u00e9\\n"', 'get Word', 'state'];
  const lines = [];
  for (const command of commands) lines.push(await play(command));
  assert.deepEqual(lines, scripted(commands).slice(1));
  assert.deepEqual(await deeds(page), []);
  assert.equal(await page.evaluate(() => window.zelvo.lines.length), 1);
});

for (const form of ['', '?suspend=asyncify']) {
  test(`a game in real time is played with the mouse ${form}`, async () => {
    const page = await site.page(form, { prepare: hasten(40) });
    await waiting(page, 'GST');
    await page.evaluate(bringPlayers, 3);
    await page.dblclick(at('GST.CMDSTART'));
    // While the game lays out the board, it takes the clicks and drops them.
    await page.click(at('GFM.Image1(99)'));
    for (let turns = 0; turns < 5;) {
      await waiting(page);
      const place = await page.evaluate(() => {
        const button = window.zelvoTest.byPolicy();
        const { left, top, width, height } = button.getBoundingClientRect();
        return { x: left + width / 2, y: top + height / 2, turn: button.dataset.control === 'GFM.CMDGO' };
      });
      await page.mouse.click(place.x, place.y);
      if (place.turn) ++turns;
    }
    await waiting(page);
    const worth = await page.textContent(`${at('GFM.CNW')} .caption`);
    assert.match(worth, /^-?\$[\d,]{5,}$/, 'the computer has played as well');
    assert.deepEqual(page.wrongs, []);
  });
}

test('the keyboard alone plays, with the keys of the desktop', async () => {
  const page = await virtualGame();
  const press = async (...keys) => {
    for (const key of keys) await page.keyboard.press(key);
  };
  await press('Enter');
  await waiting(page, 'GFM');
  await press('ArrowDown', 'ArrowRight', 'Enter', 'c', 'Control+Enter');
  await waiting(page, 'GFM');
  await press('F1');
  await waiting(page, 'ICF');
  await press('ArrowDown', 'Escape');
  await waiting(page, 'GFM');
  await press('Escape');  // ends no game
  const done = await deeds(page);
  assert.deepEqual(done, ['click GST.CMDSTART', 'hover GFM.Image1(10)', 'hover GFM.Image1(11)',
    'click GFM.Image1(11)', 'hover GFM.Image1(99)', 'click GFM.CMDGO', 'click GFM.CMDHELP',
    'hover ICF.OPT1(1)', 'click ICF.OPT1(1)', 'click ICF.cmdexit']);
  const stops = new Set();
  for (let i = 0; i < 40; ++i) {
    await press('Tab');
    stops.add(await page.evaluate(() => document.activeElement.dataset.control));
  }
  for (const id of ['GFM.CMDGO', 'GFM.Label8', 'GFM.CMDHELP', 'GFM.SUPER']) {
    assert.ok(stops.has(id), `Tab comes to ${id}`);
  }
  assert.equal([...stops].filter((id) => id?.startsWith('GFM.Image1')).length, 1, 'the board is one stop');
});

for (const [width, height] of [[1280, 900], [390, 844]]) {
  test(`the keyboard is where the desktop has it at ${width} by ${height}`, async () => {
    const page = await virtualGame('', { viewport: { width, height } });
    const here = () => page.evaluate(() => document.activeElement.dataset.control);
    const goes = async (ways) => {
      for (const [key, to] of ways) {
        await page.keyboard.press(key);
        await waiting(page);
        assert.equal(await here(), to, key);
      }
    };
    await goes([
      ['Enter', 'GFM.Image1(0)'], ['ArrowUp', 'GFM.Image1(0)'], ['ArrowLeft', 'GFM.Image1(0)'],
      ['Enter', 'GFM.Image1(0)'], ['Tab', 'GFM.CMDBUILD'], ['Enter', 'GFM.BUILDIT'],
      ['Shift+Tab', 'GFM.SUPER'], ['ArrowRight', 'GFM.THRIFTY'], ['ArrowDown', 'GFM.Rest'],
      ['ArrowUp', 'GFM.SUPER'], ['h', 'GFM.HILTON'], ['Shift+Tab', 'GFM.CMDSELL'],
      ['Shift+Tab', 'GFM.Image1(0)'], ['ArrowRight', 'GFM.Image1(1)'], ['ArrowDown', 'GFM.Image1(11)'],
      // A letter that fits no building goes on to the board, also from a button.
      ['Tab', 'GFM.CMDSELL'], ['Tab', 'GFM.HILTON'], ['c', 'GFM.Image1(99)'], ['p', 'GFM.Image1(0)'],
      ['Tab', 'GFM.CMDSELL'], ['C', 'GFM.Image1(99)'], ['q', 'GFM.Image1(99)'],
    ]);
    // Hidden lots are passed over, and the button that goes for a turn is gone back to.
    for (const lot of [98, 97]) {
      await page.evaluate((at) => window.zelvo.play(`set GFM.Image1(${at}).Visible 0`), lot);
    }
    await goes([['ArrowLeft', 'GFM.Image1(96)'], ['ArrowRight', 'GFM.Image1(99)']]);
    await page.focus(at('GFM.CMDGO'));
    await goes([['Enter', 'GFM.CMDGO']]);
    const stray = await page.evaluate(() => [...document.querySelectorAll('*')].filter(({ tabIndex }) => tabIndex > 0).length);
    assert.equal(stray, 0, 'Tab goes by the order of the document');
  });
}

test('what a message box says is said again', async () => {
  const page = await virtualGame();
  for (const command of ['click GST.CMDSTART', 'set GFM.PCredit.Caption "$1,000"', 'set GFM.Image1(6).Tag "O"',
    'set GFM.Image1(6).Picture "ICF.LOPEN"', 'click GFM.Image1(6)', 'click GFM.CMDBUY']) {
    await page.evaluate((text) => window.zelvo.play(text), command);
  }
  await waiting(page, 'message box');
  await page.keyboard.press('F2');
  const text = await page.textContent('.message .text');
  await page.waitForFunction((expected) => document.querySelector('.message .said')?.textContent === expected,
    text, { timeout: limit });
  await page.keyboard.press('Escape');
  await waiting(page, 'GFM');
  assert.equal((await deeds(page)).at(-1), 'answer no');
});

test('a screen reader hears what everything is', async () => {
  const page = await virtualGame();
  await page.evaluate(bringPlayers, 5);
  for (const [steps, until] of [[60, ''], [20, 'GFM']]) {
    await page.evaluate(playByEvents, { player: 'byPolicy', steps, seen: '() => []', until });
  }
  const session = await page.context().newCDPSession(page);
  const { nodes } = await session.send('Accessibility.getFullAXTree');
  const told = nodes.filter((node) => !node.ignored)
    .map((node) => ({ role: node.role?.value, name: node.name?.value ?? '' }));
  const roles = ['button', 'gridcell', 'radio', 'checkbox', 'image', 'textbox', 'dialog', 'grid', 'group'];
  assert.deepEqual(told.filter(({ role, name }) => roles.includes(role) && name === ''), []);
  const lots = told.filter(({ role, name }) => role === 'gridcell' && /^Lot \d/.test(name));
  assert.equal(lots.length, 100);
  for (const { name } of lots) {
    assert.match(name, /^Lot \d+, (player's|computer's|open lot|condemned lot|lot without zoning|golf|park|casino|mall)/);
  }
  assert.ok(told.some(({ name }) => name.startsWith("Player's credit, ")));
  for (const [key, said] of [['F3', /^Player's credit, .* Bank's net worth, /], ['F2', /Lot # +\d+ Opened/]]) {
    await page.keyboard.press(key);
    await page.waitForFunction((pattern) => new RegExp(pattern).test(
      document.querySelector('[role=alert].said')?.textContent), said.source, { timeout: limit });
  }
});

for (const [width, height] of [[360, 640], [390, 844], [640, 360], [844, 390], [768, 1024], [3840, 2160]]) {
  test(`everything can be reached at ${width} by ${height}`, async () => {
    const page = await virtualGame('', { viewport: { width, height }, hasTouch: width < 1000 });
    const hidden = () => page.evaluate(() => [...window.zelvoTest.top().querySelectorAll('button')]
      .filter((button) => {
        const { left, top, right, bottom, width: wide, height: high } = button.getBoundingClientRect();
        if (wide === 0) return false;
        const met = document.elementFromPoint((left + right) / 2, (top + bottom) / 2);
        return left < -1 || top < 0 || right > innerWidth + 1 || bottom > innerHeight + 1
          || !button.contains(met) || Math.min(wide, high) < 24;
      }).map((button) => button.dataset.control ?? button.className));
    await page.evaluate(bringPlayers, 1);
    assert.deepEqual(await hidden(), []);
    for (const id of ['GST.CMDSET', 'ICF.CMDEXP', 'HH.CMDEXIT', 'ICF.cmdexit', 'GST.CMDSTART', 'GFM.Label8',
      'BK.CMDCANCEL', 'GFM.Image1(0)', 'GFM.CMDBUILD', 'GFM.HILTON', 'GFM.BUILDIT', 'HS.CMDAN1(0)']) {
      await page.evaluate((selector) => document.querySelector(selector).click(), at(id));
      await waiting(page);
      assert.deepEqual(await hidden(), [], `after ${id}`);
    }
    if (width > 1000) return;
    const done = (await deeds(page)).length;
    await page.tap(at('GFM.Image1(55)'));
    assert.deepEqual((await deeds(page)).slice(done), ['hover GFM.Image1(55)', 'click GFM.Image1(55)']);
  });
}

test('a second click does not go to what the first one brought up', async () => {
  const page = await virtualGame();
  await page.evaluate((selector) => {
    const button = document.querySelector(selector);
    button.click();
    button.click();
  }, at('GST.CMDSTART'));
  await waiting(page, 'GFM');
  await page.evaluate((selector) => document.querySelector(selector).click(), at('GST.CMDEXIT'));
  assert.deepEqual(await deeds(page), ['click GST.CMDSTART']);
  await assertSame(page, []);
});

test('leaving a game asks first, leaving the start window does not', async () => {
  const asked = async (page) => {
    let dialogs = 0;
    const accept = (dialog) => {
      ++dialogs;
      return dialog.accept();
    };
    page.on('dialog', accept);
    await page.reload();
    await waiting(page, 'GST');
    page.off('dialog', accept);
    return dialogs;
  };
  const page = await virtualGame();
  assert.equal(await asked(page), 0);
  await page.click(at('GST.CMDSTART'));
  await waiting(page, 'GFM');
  assert.equal(await asked(page), 1);
});

test('the policy of the page is in force', async () => {
  const page = await virtualGame();
  const policy = page.answer.headers()['content-security-policy'];
  assert.match(policy, /script-src 'self' 'wasm-unsafe-eval'; style-src 'self';/);
  assert.deepEqual(page.wrongs, []);
  await page.evaluate(() => {
    const script = document.createElement('script');
    script.textContent = 'window.ran = true';
    document.body.append(script);
  });
  await page.waitForFunction(() => !window.ran, null, { timeout: limit });
  assert.match(page.wrongs.join(), /policy: script-src/);
});

test('the game starts without a network once it has been there', async () => {
  const page = await site.page();
  await page.evaluate(async () => {
    const registration = await navigator.serviceWorker.ready;
    while (registration.active.state !== 'activated') await new Promise((next) => setTimeout(next));
  });
  await page.context().setOffline(true);
  await page.goto(`${site.address}?virtual`);
  await waiting(page, 'GST');
  await page.click(at('GST.CMDSTART'));
  await waiting(page, 'GFM');
  const pictures = await page.evaluate(() => fetch('pictures.json').then((answer) => answer.status));
  assert.equal(pictures, 200);
});

test('no sound before the first gesture, and then the cues of the game', async () => {
  const page = await site.page('', {
    prepare: (it) => it.addInitScript(() => {
      window.sounded = 0;
      const begun = AudioBufferSourceNode.prototype.start;
      AudioBufferSourceNode.prototype.start = function begin() {
        ++window.sounded;
        begun.call(this);
      };
    }),
  });
  await waiting(page, 'GST');
  await page.waitForLoadState('networkidle');
  await page.hover(at('GST.CMDSTART'));
  const soundedBefore = await page.evaluate(() => window.sounded);
  await page.click(at('GST.CMDSTART'));
  await page.waitForFunction(() => window.sounded > 0, null, { timeout: limit });
  assert.equal(soundedBefore, 0);
  await waiting(page, 'GFM');
});

for (const [what, prepare, sentence] of [
  ['a file does not come', (page) => page.route('**/zelvo.wasm', (route) => route.abort()), /stop|load/],
  ['a module does not come', (page) => page.route('**/main.js', (route) => route.abort()), /main\.js/],
  ['the browser is too old', (page) => page.addInitScript(() => delete window.WebAssembly), /too old/],
]) {
  test(`one sentence says that ${what}`, async () => {
    const page = await site.page('', { prepare });
    await page.waitForSelector('.failed #sentence', { timeout: limit });
    assert.match(await page.textContent('#sentence'), sentence);
  });
}
