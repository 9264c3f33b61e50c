import { say } from './words.mjs';

// The player's texts in the browser's database: one object store, names to texts. What changes in one task, a gesture
// or a whole game that is imported, is one transaction, which the browser is asked to bring to the disk at once: all of
// it is kept, or nothing.

const format = 1; // of what is written here
const formatName = ' format'; // no text is called so
const texts = 'texts';

function answer(request) {
  return new Promise((resolve, reject) => {
    request.onsuccess = () => resolve(request.result);
    request.onerror = () => reject(request.error);
  });
}

function open(name) {
  const request = indexedDB.open(name, 1);
  request.onupgradeneeded = () => {
    request.result.createObjectStore(texts);
  };
  return answer(request);
}

export class Store {
  constructor(name = 'veyrand') {
    this.name = name;
    this.database = null;
    this.failed = () => {};
    this.pending = 0;
    this.current = null; // the transaction of this task
  }

  // What was kept: { texts: Map, isLater }. A later version's texts are not to be written.
  async load() {
    this.database = await open(this.name);
    this.database.onversionchange = () => this.database.close();
    const kept = new Map();
    const shelf = this.database.transaction(texts).objectStore(texts);
    const [names, values] = await Promise.all([answer(shelf.getAllKeys()), answer(shelf.getAll())]);
    names.forEach((text, index) => kept.set(text, values[index]));
    const isLater = (kept.get(formatName) ?? format) > format;
    kept.delete(formatName);
    return { texts: kept, isLater };
  }

  // Null for a text that is to go.
  put(name, text) {
    this.change((shelf) => {
      shelf.put(format, formatName);
      if (text === null) {
        shelf.delete(name);
      } else {
        shelf.put(text, name);
      }
    });
  }

  // All of them or none: what stood there goes.
  replace(all) {
    return new Promise((resolve, reject) => {
      this.change((shelf) => {
        shelf.clear();
        shelf.put(format, formatName);
        for (const [name, text] of all) {
          shelf.put(text, name);
        }
      }, resolve, reject);
    });
  }

  transaction() {
    if (this.current === null) {
      this.current = this.database.transaction(texts, 'readwrite', { durability: 'strict' });
      queueMicrotask(() => {
        this.current = null;
      });
    }
    return this.current;
  }

  change(steps, done = () => {}, failed = (words) => this.failed(words)) {
    ++this.pending;
    const end = (call, words) => {
      --this.pending;
      call(words);
    };
    try {
      const change = this.transaction();
      steps(change.objectStore(texts));
      change.addEventListener('complete', () => end(done));
      change.addEventListener('abort', () => end(failed, wordsFor(change.error)));
    } catch (error) {
      end(failed, wordsFor(error));
    }
  }
}

export function wordsFor(error) {
  if (error?.name === 'QuotaExceededError') {
    return say('there is no room left for what this page stores');
  }
  return error?.message || error?.name || say('the browser does not say why');
}

// Whether this page is the only one that plays: the first holds a lock for as long as it lives.
// Where there are no locks (a page that did not come by HTTPS) the others are asked.
export async function isOnlyPage(name = 'veyrand') {
  if (navigator.locks) {
    return new Promise((resolve) => {
      navigator.locks.request(name, { ifAvailable: true }, (lock) => {
        resolve(lock !== null);
        return lock === null ? undefined : new Promise(() => {});
      }).catch(() => resolve(true));
    });
  }
  return askOthers(name);
}

function askOthers(name) {
  const patience = 300; // milliseconds
  const question = String(Math.random());
  return new Promise((resolve) => {
    try {
      let isSettled = false;
      addEventListener('storage', (event) => {
        if (event.key === `${name}-here` && event.newValue === question) {
          resolve(false);
        } else if (event.key === `${name}-who` && event.newValue !== null && isSettled) {
          localStorage.setItem(`${name}-here`, event.newValue);
        }
      });
      localStorage.setItem(`${name}-who`, question);
      setTimeout(() => {
        isSettled = true;
        resolve(true);
      }, patience);
    } catch {
      resolve(true);
    }
  });
}
