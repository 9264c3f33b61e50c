// The page's sounds, heard in virtual time: an audio context that renders as fast as it can, and stops
// at every moment at which something is done or listened for.
import { Sounds } from './page/sounds.mjs';

const rate = 8000;
const listening = 2; // seconds: longer than any effect below, and than the longest fade
const silence = 1e-3;

// Whether this browser can stop a context that renders; Firefox cannot.
export const isAudible = 'suspend' in OfflineAudioContext.prototype;

// A tone of so many seconds, as a file.
function tone(seconds, pitch) {
  const wave = 48000;
  const frames = seconds * wave;
  const bytes = new DataView(new ArrayBuffer(44 + 2 * frames));
  const text = (place, letters) => [...letters].forEach((letter, index) => bytes.setUint8(place + index, letter.charCodeAt(0)));
  text(0, 'RIFF');
  bytes.setUint32(4, 36 + 2 * frames, true);
  text(8, 'WAVEfmt ');
  bytes.setUint32(16, 16, true);
  bytes.setUint16(20, 1, true);
  bytes.setUint16(22, 1, true);
  bytes.setUint32(24, wave, true);
  bytes.setUint32(28, 2 * wave, true);
  bytes.setUint16(32, 2, true);
  bytes.setUint16(34, 16, true);
  text(36, 'data');
  bytes.setUint32(40, 2 * frames, true);
  for (let frame = 0; frame < frames; ++frame) {
    bytes.setInt16(44 + 2 * frame, 10000 * Math.sin((2 * Math.PI * pitch * frame) / wave), true);
  }
  return URL.createObjectURL(new Blob([bytes], { type: 'audio/wav' }));
}

// What the page takes for its device: it always runs, and is never told to rest.
function deviceOver(context) {
  const own = { state: 'running', resume: async () => {}, suspend: async () => {}, close: async () => {} };
  return new Proxy(context, {
    get: (target, name) => {
      const value = own[name] ?? target[name];
      return typeof value === 'function' && !(name in own) ? value.bind(target) : value;
    },
    set: () => true,
  });
}

const pause = () => new Promise((go) => setTimeout(go));

// Does what was asked of the sounds, in turn: [method, ...arguments], or ['heard'], which lets a while
// pass. Returns for each 'heard' whether anything was.
export async function listen(steps) {
  const files = { Effect: tone(0.1, 440), Loop: tone(2.5, 220), Other: tone(2.5, 330) };
  const pieces = [[]]; // what is done before each time of listening
  for (const step of steps) {
    if (step[0] === 'heard') {
      pieces.push([]);
    } else {
      pieces.at(-1).push(step);
    }
  }
  const times = pieces.length - 1;
  if (times === 0) {
    return [];
  }
  const context = new OfflineAudioContext(1, times * listening * rate, rate);
  const real = { AudioContext: globalThis.AudioContext, now: performance.now };
  globalThis.AudioContext = function () {
    return deviceOver(context);
  };
  performance.now = () => 1000 * context.currentTime;
  try {
    const faults = [];
    const sounds = new Sounds({ urlsOf: (name) => [files[name]], report: (words) => faults.push(words) });
    await Promise.all(Object.keys(files).map((name) => sounds.fetch(name)));
    sounds.touched();
    const act = async (piece) => {
      piece.forEach(([method, ...values]) => sounds[method](...values));
      await pause();
    };
    await act(pieces[0]);
    for (let time = 1; time < times; ++time) {
      context.suspend(time * listening).then(() => act(pieces[time])).then(() => context.resume());
    }
    const samples = (await context.startRendering()).getChannelData(0);
    if (faults.length > 0) {
      throw new Error(faults.join(' '));
    }
    const heard = [];
    for (let time = 0; time < times; ++time) {
      const part = samples.subarray(time * listening * rate, (time + 1) * listening * rate);
      heard.push(part.some((sample) => Math.abs(sample) > silence));
    }
    return heard;
  } finally {
    globalThis.AudioContext = real.AudioContext;
    performance.now = real.now;
    Object.values(files).forEach((url) => URL.revokeObjectURL(url));
  }
}
