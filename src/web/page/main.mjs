import createVeyrand from './veyrand.mjs';
import { files } from './files.mjs';
import { Game } from './game.mjs';
import { end } from './notices.mjs';
import { learn, say } from './words.mjs';

// What keeps the game from being played, in words.
function giveUp(words) {
  end({ title: say('Veyrand cannot be played here'), text: words, button: say('Try Again'), chosen: () => location.reload() });
}

async function fetched(url) {
  let answer;
  try {
    answer = await fetch(url);
  } catch {
    throw new Error(say('{file} could not be fetched: is the network there?', { file: url }));
  }
  if (!answer.ok) {
    throw new Error(say('{file} could not be fetched: the server answers {status}.', { file: url, status: answer.status }));
  }
  return answer.arrayBuffer();
}

// The texts that lie one after the other: names and bytes.
function partsOf(texts, parts) {
  let end = 0;
  return parts.map(([name, length]) => {
    end += length;
    return [name, new Uint8Array(texts, end - length, length)];
  });
}

async function start() {
  if (typeof WebAssembly !== 'object') {
    throw new Error(say('This browser does not know WebAssembly. A newer one will do.'));
  }
  const game = new Game(files);
  globalThis.veyrand = game; // for whoever looks at the page from outside
  const program = fetched(files.program).then((wasmBinary) =>
    createVeyrand({ wasmBinary, host: game.host }).catch(() => {
      throw new Error(say('This browser cannot run the program. A newer one will do.'));
    }));
  const resources = fetched(files.resources.file).then((texts) => partsOf(texts, files.resources.parts));
  const font = document.fonts.load('100px "Veyrand Letters"').catch(() => []);
  await game.start(await program, await resources, await font);
  document.getElementById('curtain').hidden = true;
  if ('serviceWorker' in navigator && !files.isTest) {
    navigator.serviceWorker.register('sw.js').catch(() => {});
  }
}

learn(files.words);
document.getElementById('opening').textContent = say('Veyrand is being fetched.');
start().catch((error) => giveUp(error.message));
