// Players for the page in virtual time. Each runs inside the page and does one thing a step.

/// Puts `zelvoTest` into the page: what can be done now, a generator of numbers, and two players.
export function bringPlayers(seed) {
  let state = seed;
  const random = (below) => {
    state = (Math.imul(state, 1664525) + 1013904223) >>> 0;
    return Math.floor((state / 2 ** 32) * below);
  };
  const top = () => document.querySelector('.message')
    ?? document.querySelector(`[data-window="${document.body.dataset.waiting}"]`);
  const live = () => [...top().querySelectorAll('button')]
    .filter((button) => !button.hidden && !button.disabled);
  const named = (name) => live().find((button) => button.dataset.control === name);

  /// Anything, but seldom what ends the game.
  function anything() {
    const choices = live().filter((button) => {
      const ends = /CMDEXIT/.test(button.dataset.control) || button.dataset.close;
      return !ends || document.body.dataset.waiting.match(/WINX|HH|RB|ABT/);
    });
    const inDialog = document.body.dataset.waiting !== 'GFM';
    return inDialog || random(3) > 0 ? choices[random(choices.length)] : named('GFM.CMDGO');
  }

  const cash = () => Number(
    document.querySelector('[data-control="GFM.PCredit"] .caption').textContent.replace(/[$,]/g, ''));
  let plan = [];
  let isNewTurn = true;

  /// Once a turn builds the dearest that can be paid for on a lot of its own, or on one it can buy.
  function byPolicy() {
    if (document.body.dataset.waiting !== 'GFM') {
      plan = [];
      const ways = ['[data-control$=CMDSTART]', '[data-answer=no]', '[data-control="ML.CMD1(0)"]',
        '[data-control="HS.CMDAN1(0)"]', '[data-control="HS.CMDAN1(1)"]', '[data-control$=CMDCANCEL]',
        '[data-control="CHN.CMDOK"]', '[data-control="CHN.Image1(1)"]', '[data-control$=CMDOK]',
        '[data-close]', 'button'];
      return ways.map((way) => live().find((each) => each.matches(way))).find(Boolean);
    }
    while (plan.length > 0) {
      const next = named(plan.shift());
      if (next !== undefined) return next;
    }
    const lot = ['icf-player.svg', 'icf-lopen.svg'].map((picture) =>
      live().find((button) => button.dataset.picture === picture)).find(Boolean);
    if (isNewTurn && cash() > 150_000 && lot !== undefined) {
      isNewTurn = false;
      const building = cash() > 600_000 ? 'HILTON' : cash() > 300_000 ? 'RAMADA' : 'QUALITY';
      plan = ['GFM.CMDBUY', lot.dataset.control, 'GFM.CMDBUILD', `GFM.${building}`, 'GFM.BUILDIT'];
      return lot;
    }
    isNewTurn = true;
    return named('GFM.CMDGO');
  }

  window.zelvoTest = { anything, byPolicy, top };
}

/// Carries out steps of a player by events on the elements, and looks at the page after each.
export async function playByEvents({ player, steps, seen, until }) {
  const look = new Function(`return (${seen})()`);
  // Timers in a row come ever later, messages do not.
  const { port1, port2 } = new MessageChannel();
  const turn = () => new Promise((next) => {
    port1.onmessage = next;
    port2.postMessage(null);
  });
  const views = [];
  for (let i = 0; i < steps && document.body.dataset.waiting !== until; ++i) {
    const { lines } = window.zelvo;
    const before = lines.length;
    window.zelvoTest[player]().click();
    while (lines.length === before) await turn();
    if (document.body.dataset.waiting === 'ended') break;
    views.push(look().join('\n'));
  }
  return views;
}
