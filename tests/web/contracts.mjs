// The ports' contracts on the browser's adapters, and the page's own parts that need a browser: each
// case adds what failed, in words.
import createContracts from './bin/contracts.mjs';
import { isAudible, listen } from './audible.mjs';
import { audioStep } from './page/audio-state.mjs';
import { keysOf, daysTo } from './page/game.mjs';
import { Store, isOnlyPage } from './page/store.mjs';
import { learn, say } from './page/words.mjs';

const result = { name: 'contracts', passed: 0, failures: [] };

function check(good, words) {
  if (good) {
    ++result.passed;
  } else {
    result.failures.push(words);
  }
}

const same = (actual, expected, words) =>
  check(JSON.stringify(actual) === JSON.stringify(expected),
    `${words}: is ${JSON.stringify(actual)}, should be ${JSON.stringify(expected)}`);

async function contracts() {
  const known = await cases('-*SoundsContract*', {});
  check(known.ran >= 44, `only ${known.ran} contracts were checked`);
  if (!isAudible) {
    return;
  }
  const asked = []; // of the sounds, by each case
  const note = (...step) => asked.at(-1).push(step);
  const players = Object.fromEntries(['play', 'startLoop', 'loopVolume', 'stopLoop', 'volume']
    .map((name) => [name, (...values) => note(name, ...values)]));
  await cases('*SoundsContract*', { ...players, beginSounds: () => asked.push([]), isHeard: () => note('heard') }, true);
  const answers = [];
  for (const steps of asked) {
    answers.push(await listen(steps));
  }
  let answer = null;
  const heard = await cases('*SoundsContract*', {
    beginSounds: () => {
      answer = answers.shift();
    },
    isHeard: () => answer.shift(),
  });
  check(heard.ran === asked.length && heard.ran >= 11, `only ${heard.ran} cases of sounds were checked`);
}

// Runs the contracts that the filter names, on a page that answers with these functions too.
async function cases(filter, functions, isTrial = false) {
  let due = null;
  const texts = new Map();
  const host = new Proxy({
    texts,
    now: () => performance.now(),
    callAfter: (milliseconds) => {
      due = performance.now() + milliseconds;
    },
    timer: () => (due === null ? -1 : Math.max(0, due - performance.now())),
    store: (name, text) => (text === null ? texts.delete(name) : texts.set(name, text)),
    load: (program, store) => texts.forEach((text, name) => passTexts(program, [name, text], (...places) =>
      program._contracts_loaded(store, ...places))),
    ...functions,
  }, { get: (known, name) => known[name] ?? (() => 0) });
  const program = await createContracts({ host, print: () => {}, printErr: () => {} });
  let answer = null;
  passTexts(program, [filter], (place) => {
    answer = JSON.parse(program.UTF8ToString(program._contracts_run(place)));
  });
  if (!isTrial) {
    result.passed += answer.ran - Math.min(answer.ran, answer.failures.length);
    result.failures.push(...answer.failures);
  }
  return answer;
}

function passTexts(program, passed, call) {
  const places = passed.map((text) => {
    const length = program.lengthBytesUTF8(text) + 1;
    const place = program._malloc(length);
    program.stringToUTF8(text, place, length);
    return place;
  });
  call(...places);
  places.forEach((place) => program._free(place));
}

// Every case there is.
function audio() {
  const wanted = {
    running: { seen: 'nothing', unseen: 'suspend', needless: 'suspend' },
    suspended: { seen: 'resume', unseen: 'nothing', needless: 'nothing' },
    interrupted: { seen: 'resume', unseen: 'nothing', needless: 'nothing' }, // a call, or a lock
    closed: { seen: 'renew', unseen: 'nothing', needless: 'nothing' },
  };
  for (const [state, answers] of Object.entries(wanted)) {
    for (const isTouched of [false, true]) {
      for (const [isVisible, isNeeded, answer] of [[true, true, answers.seen], [false, true, answers.unseen],
        [true, false, answers.needless], [false, false, state === 'running' ? 'suspend' : 'nothing']]) {
        same(audioStep({ state, isVisible, isTouched, isNeeded }), isTouched ? answer : 'nothing',
          `audio ${state}, ${isVisible ? '' : 'not '}seen, ${isTouched ? '' : 'not '}touched, ${isNeeded ? '' : 'not '}needed`);
      }
    }
  }
}

function keys() {
  const cases = [[{ key: 'z', ctrlKey: true }, 'Ctrl+Z'], [{ key: 'Z', ctrlKey: true, shiftKey: true }, 'Ctrl+Shift+Z'],
    [{ key: 'z', metaKey: true }, 'Ctrl+Z'], [{ key: ' ' }, 'Space'], [{ key: 'Enter' }, 'Return'], [{ key: 'Escape' }, 'Esc'],
    [{ key: 'ArrowLeft' }, 'Left'], [{ key: 'Home' }, 'Home'], [{ key: 'Tab', shiftKey: true }, 'Shift+Tab'],
    [{ key: 'F1' }, 'F1'], [{ key: 'h' }, 'H'], [{ key: 'Control', ctrlKey: true }, ''], [{ key: 'Shift', shiftKey: true }, ''],
    [{ key: 'Dead' }, ''], [{ key: '1' }, '1'], [{ key: 'Backspace' }, 'Backspace'], [{ key: ',', ctrlKey: true }, 'Ctrl+,']];
  for (const [event, expected] of cases) {
    same(keysOf({ ctrlKey: false, metaKey: false, altKey: false, shiftKey: false, ...event }), expected, `the key ${event.key}`);
  }
}

function words() {
  learn({ de: { 'Hello {name}': 'Guten Tag, {name}' }, fr: {} }, ['pt-BR', 'de-AT', 'en']);
  same(say('Hello {name}', { name: '$& {x}' }), 'Guten Tag, $& {x}', 'a text with a mark');
  same(say('Unknown'), 'Unknown', 'a text that nobody has translated');
  learn({ de: { Hello: 'Guten Tag' } }, ['en-GB', 'de']);
  same(say('Hello'), 'Hello', 'English before German');
  same(daysTo(new Date(1970, 0, 1, 0, 0)), 0, 'the first day');
  same(daysTo(new Date(2026, 10, 21, 23, 59, 59)), 20778, 'the last second of a day');
}

async function store() {
  const name = `test-${Math.random()}`;
  const first = new Store(name);
  same([...(await first.load()).texts], [], 'an empty store');
  first.put('a', 'one');
  first.put('b', 'two');
  first.put('a', 'three \u{1F30A}');
  first.put('b', null);
  await first.replace([['c', 'x'.repeat(1 << 20)], ['d', '']]);
  const second = new Store(name);
  const kept = await second.load();
  same([[...kept.texts].map(([key, text]) => [key, text.length]), kept.isLater], [[['c', 1 << 20], ['d', 0]], false],
    'what was stored');
  same([first.pending, second.pending], [0, 0], 'what is under way');
  // The database has gone: the fault is told in words, and nothing is thrown.
  let told = '';
  second.failed = (fault) => {
    told = fault;
  };
  second.database.close();
  second.put('e', 'lost');
  check(told.length > 5, 'a fault that nobody tells');
  // What a later version has written is known for it.
  await new Promise((done) => first.change((shelf) => shelf.put(99, ' format'), done));
  const third = new Store(name);
  same((await third.load()).isLater, true, 'a later version');
  // A transaction that cannot hold what it should leaves all as it was.
  let fault = '';
  third.failed = (words_) => {
    fault = words_;
  };
  third.put('f', () => 'a function cannot be stored');
  await new Promise((go) => setTimeout(go, 50));
  check(fault !== '', 'a text that cannot be stored is told');
  const fourth = new Store(name);
  same([...(await fourth.load()).texts.keys()], ['c', 'd'], 'after the fault');
  // What one task changes is kept whole or not at all, and has nothing to do with the next one.
  const fifth = new Store(name);
  await fifth.load();
  let faults = 0;
  fifth.failed = () => {
    ++faults;
  };
  fifth.put('g', 'one');
  fifth.put('h', 'two');
  fifth.current.abort();
  await null;
  fifth.put('i', 'three');
  await new Promise((go) => setTimeout(go, 100));
  same([faults, fifth.pending], [2, 0], 'both are told to have failed');
  same([...(await new Store(name).load()).texts.keys()], ['c', 'd', 'i'], 'and neither is kept');
  // Where the browser refuses, loading fails with its reason.
  const real = indexedDB.open;
  IDBFactory.prototype.open = () => {
    throw new DOMException('no', 'SecurityError');
  };
  same(await new Store(name).load().then(() => 'loaded', (error) => error.name), 'SecurityError', 'a browser that refuses');
  IDBFactory.prototype.open = real;
  same([await isOnlyPage(name), await isOnlyPage(name)], [true, false], 'the lock of the first page');
}

globalThis.results = null;
(async () => {
  for (const part of [contracts, audio, keys, words, store]) {
    try {
      await part();
    } catch (error) {
      result.failures.push(`${part.name}: ${error?.stack ?? error}`);
    }
  }
  globalThis.results = [result];
  await fetch('results', { method: 'POST', body: JSON.stringify(globalThis.results) });
})();
