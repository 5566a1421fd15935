// Runs ahead of the modules, in any browser: says in one sentence why there is no game, and sends
// for the files that take longest.
(function () {
  'use strict';

  function say(sentence) {
    document.documentElement.className = 'failed';
    function write() {
      document.getElementById('sentence').textContent = sentence;
    }
    if (document.getElementById('sentence')) write();
    else document.addEventListener('DOMContentLoaded', write);
  }

  function isTooOld() {
    return !('noModule' in document.createElement('script')) ||
      typeof WebAssembly !== 'object' || typeof HTMLDialogElement !== 'function' ||
      !('inert' in HTMLElement.prototype) || !CSS.supports('height', '1dvh');
  }

  // A script or style sheet that does not come tells its element; nothing else hears of it.
  window.addEventListener('error', function (event) {
    var file = event.target && (event.target.src || event.target.href);
    if (file) say('Zelvo could not be loaded: ' + file.split('/').pop() +
      ' did not come. Please look at your connection and load the page again.');
  }, true);

  if (isTooOld()) {
    say('This browser is too old for Zelvo. Please bring it up to date, or try another one.');
    return;
  }

  var asked = new URLSearchParams(location.search).get('suspend');
  var suspends = 'Suspending' in WebAssembly && asked !== 'asyncify';
  window.zelvoStart = {
    say: say,
    suspends: suspends,
    program: fetch(suspends ? 'zelvo.wasm' : 'zelvo-asyncify.wasm'),
    pictures: fetch('first-pictures.json')
  };
  // Whoever awaits them hears of a failure.
  window.zelvoStart.program.catch(function () {});
  window.zelvoStart.pictures.catch(function () {});
})();
