// The server of the page, asked as other programs than a browser ask it.

import assert from 'node:assert/strict';
import { spawn } from 'node:child_process';
import { join } from 'node:path';
import readline from 'node:readline';
import { text } from 'node:stream/consumers';
import test, { after, before } from 'node:test';

import { root } from './harness.mjs';

let address;
let server;
let said;

before(async () => {
  server = spawn(join(root, 'tools/serve-site'), [join(root, 'build/browser/site')]);
  said = text(server.stderr);
  address = await new Promise((done) => readline.createInterface({ input: server.stdout }).once('line', done));
});

after(() => server.kill());

const told = (answer) => Object.fromEntries([...answer.headers].filter(([name]) => name !== 'date'));

test('HEAD is told what GET is told, without the body', async () => {
  for (const path of ['', 'index.html', 'zelvo.wasm', 'none.js']) {
    for (const headers of [{}, { 'Accept-Encoding': 'br' }]) {
      const whole = await fetch(address + path, { headers });
      const head = await fetch(address + path, { method: 'HEAD', headers });
      assert.equal(head.status, whole.status, path);
      assert.deepEqual(told(head), told(whole), path);
      assert.notEqual((await whole.arrayBuffer()).byteLength, 0, path);
      assert.equal((await head.arrayBuffer()).byteLength, 0, path);
      const tag = whole.headers.get('ETag');
      if (tag === null) continue;
      for (const method of ['GET', 'HEAD']) {
        const again = await fetch(address + path, { method, headers: { ...headers, 'If-None-Match': tag } });
        assert.equal(again.status, 304, path);
      }
    }
  }
});

test('an address that is too long is answered, and nobody is alarmed', async () => {
  for (const [path, status] of [['a'.repeat(5000), 414], ['a/'.repeat(2500), 414],
    [`${'a'.repeat(300)}.html`, 404], ['%00.html', 404]]) {
    for (const method of ['GET', 'HEAD']) {
      assert.equal((await fetch(address + path, { method })).status, status, path.slice(0, 20));
    }
  }
  server.kill();
  assert.equal(await said, '');
});
