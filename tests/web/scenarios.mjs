// Plays the scenarios named in list.json on this page, and posts what came of each.
import createScenario from './bin/veyrand-scenario.mjs';
import { Letters } from './page/pictures.mjs';
import { Show } from './show.mjs';

function same(a, b) {
  if (typeof a === 'number' && typeof b === 'number') {
    return a === b || Math.abs(a - b) <= 1e-6 * Math.max(1, Math.abs(a), Math.abs(b));
  }
  if (a === null || b === null || typeof a !== 'object' || typeof b !== 'object') {
    return a === b;
  }
  const keysOfA = Object.keys(a).sort();
  const keysOfB = Object.keys(b).sort();
  return Array.isArray(a) === Array.isArray(b) && keysOfA.length === keysOfB.length &&
    keysOfA.every((key, i) => key === keysOfB[i] && same(a[key], b[key]));
}

const shown = (value) => (value === undefined ? 'undefined' : JSON.stringify(value));

function passText(program, text, call) {
  const length = program.lengthBytesUTF8(text) + 1;
  const place = program._malloc(length);
  program.stringToUTF8(text, place, length);
  try {
    return call(place);
  } finally {
    program._free(place);
  }
}

function makeGame(program) {
  const game = {};
  JSON.parse(program.UTF8ToString(program._scenario_operations())).forEach((name, index) => {
    game[name] = (...passed) => {
      const told = passText(program, JSON.stringify(passed), (place) =>
        JSON.parse(program.UTF8ToString(program._scenario_call(index, place))));
      if ('error' in told) {
        throw new Error(told.error);
      }
      return told.value;
    };
  });
  return game;
}

function play(program, name, text) {
  const result = { name, passed: 0, failures: [] };
  const report = (passed, message) => {
    if (passed) {
      ++result.passed;
    } else {
      result.failures.push(message);
    }
  };
  const equal = (actual, expected, label) => report(same(actual, expected),
    `${label || 'equal'}: is ${shown(actual)}, should be ${shown(expected)}`);
  const ok = (condition, label) => report(Boolean(condition), label || 'ok');
  program._scenario_begin();
  try {
    new Function('game', 'equal', 'ok', text)(makeGame(program), equal, ok);
  } catch (error) {
    result.failures.push(String(error));
  }
  return result;
}

// The script with the ones that it includes in their places.
async function whole(url) {
  let text = await (await fetch(url)).text();
  for (const [line, name] of text.matchAll(/^include\("([^"]+)"\);$/gm)) {
    const shared = await whole(new URL(name, new URL(url, location.href)).href);
    text = text.replace(line, () => shared);
  }
  return text;
}

async function run() {
  await document.fonts.load('100px "Veyrand Letters"');
  const letters = new Letters();
  const { scenarios, resources, pictures } = await (await fetch('list.json')).json();
  const show = pictures ? new Show(letters, pictures) : null;
  const host = new Proxy({ textWidth: (text) => letters.width(text), lineHeight: () => letters.lineHeight,
    ...show?.host }, { get: (known, name) => known[name] ?? (() => 0) });
  const program = await createScenario({ host });
  await show?.begin(JSON.parse(program.UTF8ToString(program._scenario_effects())));
  for (const [name, url] of Object.entries(resources)) {
    const bytes = new Uint8Array(await (await fetch(url)).arrayBuffer());
    const place = program._malloc(bytes.length);
    program.HEAPU8.set(bytes, place);
    passText(program, name, (text) => program._scenario_add_resource(text, place, bytes.length));
    program._free(place);
  }
  const results = [];
  for (const url of scenarios) {
    await fetch('begun', { method: 'POST', body: url });
    results.push(play(program, url.split('/').pop(), await whole(url)));
  }
  if (show) {
    results[0].pictures = show.compared;
  }
  return results;
}

globalThis.results = null;
run().then((results) => results, (error) => [{ name: 'the runner', passed: 0, failures: [String(error)] }])
  .then((results) => {
    globalThis.results = results;
    document.getElementById('state').textContent = 'Done';
    return fetch('results', { method: 'POST', body: JSON.stringify(results) });
  });
