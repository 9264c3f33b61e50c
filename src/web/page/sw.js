// The offline copy: all that a version consists of, kept when it is first met. A new version waits
// until no page of the old one is open, so that nobody meets it in the middle of a puzzle.
const version = 'veyrand-@VERSION@';
const files = '@FILES@';

self.addEventListener('install', (event) => {
  event.waitUntil(caches.open(version).then((copy) => copy.addAll(files)));
});

self.addEventListener('activate', (event) => {
  event.waitUntil(caches.keys().then((names) => Promise.all(
    names.filter((name) => name.startsWith('veyrand-') && name !== version).map((name) => caches.delete(name)))));
});

let opened; // once, for a page asks for a score of files at a time

async function answer(request) {
  opened ??= caches.open(version);
  const copy = await opened;
  const kept = await copy.match(request.mode === 'navigate' ? './' : request);
  if (kept) {
    return kept;
  }
  const fresh = await fetch(request);
  if (fresh.ok && fresh.status === 200 && request.url.includes('/assets/')) {
    copy.put(request, fresh.clone());
  }
  return fresh;
}

self.addEventListener('fetch', (event) => {
  const { request } = event;
  const isOurs = request.url.startsWith(self.registration.scope);
  if (request.method === 'GET' && isOurs) {
    event.respondWith(answer(request));
  }
});
