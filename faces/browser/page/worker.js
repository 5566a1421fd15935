// Keeps a whole version of the game for days without a network. A new version is fetched as a whole
// beside the old one, and takes its place when no page plays the old one any more.

const version = 'VERSION';
const files = ['FILES'];
const name = `zelvo-${version}`;

async function keep() {
  const cache = await caches.open(name);
  await cache.addAll(files.map((file) => new Request(file, { cache: 'no-cache' })));
}

async function forgetOthers() {
  const names = await caches.keys();
  await Promise.all(names.filter((other) => other !== name).map((other) => caches.delete(other)));
}

/// Of a page's address only the folder counts, not what is asked of it behind.
async function answer(request) {
  const cache = await caches.open(name);
  return await cache.match(request, { ignoreSearch: request.mode === 'navigate' })
    ?? fetch(request);
}

self.addEventListener('install', (event) => event.waitUntil(keep()));
self.addEventListener('activate', (event) => event.waitUntil(forgetOthers()));
self.addEventListener('fetch', (event) => event.respondWith(answer(event.request)));
