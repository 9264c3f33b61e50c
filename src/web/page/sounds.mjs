import { audioStep } from './audio-state.mjs';

const sameMoment = 0.04; // seconds
const roll = 'CymbalRoll';
const rollLasts = 4.5; // until its stroke has rung out
const stepBack = 0.631; // 4 dB
const fades = { down: 1.5, up: 1.4, in: 1.5, change: 0.15, out: 0.6 };
const rate = 48000;
const guard = 1; // second of itself before the loop's start and after its end
const crossFade = 0.05;

// A slider's percents as a factor: half of the way sounds about half as loud.
const factorOf = (percent) => (Math.min(100, Math.max(0, percent)) / 100) ** 2;

// The game's sounds by the browser's audio. Files are fetched after the first frame, in the format
// that this browser turns out to decode; nothing sounds before the first press.
export class Sounds {
  constructor({ urlsOf, report }) {
    this.urlsOf = urlsOf; // of a sound, best format first
    this.report = report;
    this.decoded = new Map(); // promises of buffers
    this.playedAt = new Map();
    this.volumes = { music: 1, effects: 1 };
    this.loop = null;
    this.context = null;
    this.isTouched = false;
    this.rollUntil = 0;
  }

  fetch(name) {
    if (!this.decoded.has(name)) {
      this.decoded.set(name, this.decode(name));
    }
    return this.decoded.get(name);
  }

  async decode(name) {
    const decoder = new OfflineAudioContext(2, 1, rate);
    for (const url of this.urlsOf(name)) {
      try {
        const answer = await fetch(url);
        if (answer.ok) {
          return await decoder.decodeAudioData(await answer.arrayBuffer());
        }
      } catch {
        // The next format may do.
      }
    }
    this.report(`The sound ${name} cannot be played.`);
    return null;
  }

  // To be called whenever the player has pressed something, and whenever the page is seen again.
  touched() {
    this.isTouched = true;
    this.settle();
  }

  settle() {
    const step = audioStep({ state: this.context?.state ?? 'closed', isVisible: !document.hidden,
      isTouched: this.isTouched, isNeeded: true });
    if (step === 'renew') {
      this.begin();
    } else if (step === 'resume') {
      this.context.resume().catch(() => {});
    } else if (step === 'suspend') {
      this.context.suspend().catch(() => {});
    }
  }

  begin() {
    try {
      if (navigator.audioSession) {
        navigator.audioSession.type = 'ambient'; // the switch that mutes a phone mutes the game
      }
      this.context = new AudioContext({ latencyHint: 'interactive' });
    } catch {
      return; // the game is silent
    }
    this.context.onstatechange = () => this.settle();
    this.effects = this.gain(this.volumes.effects, this.context.destination);
    this.ducked = this.gain(1, this.context.destination);
    if (this.loop) {
      this.startSource();
    }
  }

  gain(value, next) {
    const node = this.context.createGain();
    node.gain.value = value;
    node.connect(next);
    return node;
  }

  ramp(parameter, value, seconds, from = this.context.currentTime) {
    parameter.cancelScheduledValues(from);
    parameter.setValueAtTime(parameter.value, from);
    parameter.linearRampToValueAtTime(value, from + seconds);
  }

  async play(name) {
    const now = performance.now() / 1000;
    if (now - (this.playedAt.get(name) ?? -1) < sameMoment || this.volumes.effects === 0) {
      return;
    }
    this.playedAt.set(name, now);
    const buffer = await this.fetch(name);
    if (buffer === null || this.context?.state !== 'running') {
      return;
    }
    if (name === roll) {
      this.duck();
    }
    const source = this.context.createBufferSource();
    source.buffer = buffer;
    source.connect(this.effects);
    source.start();
  }

  // The music steps back while the roll has the word.
  duck() {
    const { gain } = this.ducked;
    const now = this.context.currentTime;
    this.ramp(gain, stepBack, fades.down);
    gain.setValueAtTime(stepBack, now + rollLasts);
    gain.linearRampToValueAtTime(1, now + rollLasts + fades.up);
  }

  startLoop(name, volume) {
    this.stopLoop();
    this.loop = { name, volume, source: null, gain: null };
    if (this.context) {
      this.startSource();
    }
  }

  async startSource() {
    const { loop } = this;
    const buffer = await this.fetch(loop.name);
    if (buffer === null || this.loop !== loop || loop.source || !this.context) {
      return;
    }
    fadeSeam(buffer);
    loop.source = this.context.createBufferSource();
    loop.source.buffer = buffer;
    loop.source.loop = true;
    loop.source.loopStart = guard;
    loop.source.loopEnd = buffer.duration - guard;
    loop.gain = this.gain(0, this.ducked);
    loop.source.connect(loop.gain);
    loop.source.start(0, guard);
    this.fadeLoop(fades.in);
  }

  // The loop's own volume and that of music are one, so that while both change neither is heard through the other.
  fadeLoop(seconds) {
    if (this.loop?.gain) {
      this.ramp(this.loop.gain.gain, this.loop.volume * this.volumes.music, seconds);
    }
  }

  loopVolume(volume) {
    if (this.loop) {
      this.loop.volume = volume;
      this.fadeLoop(fades.change);
    }
  }

  stopLoop() {
    const { loop } = this;
    this.loop = null;
    if (loop?.source) {
      this.ramp(loop.gain.gain, 0, fades.out);
      loop.source.stop(this.context.currentTime + fades.out);
    }
  }

  volume(isMusic, percent) {
    this.volumes[isMusic ? 'music' : 'effects'] = factorOf(percent);
    if (isMusic) {
      this.fadeLoop(fades.change);
    } else if (this.context) {
      this.ramp(this.effects.gain, this.volumes.effects, fades.change);
    }
  }

  silence() {
    this.stopLoop();
    this.context?.close().catch(() => {});
    this.context = null;
    this.isTouched = false;
  }
}

// Lossy formats leave a step at the seam: the last frames fade into what comes before the start.
function fadeSeam(buffer) {
  const frames = Math.floor(crossFade * buffer.sampleRate);
  const start = Math.floor(guard * buffer.sampleRate);
  const end = Math.floor((buffer.duration - guard) * buffer.sampleRate);
  for (let channel = 0; channel < buffer.numberOfChannels; ++channel) {
    const samples = buffer.getChannelData(channel);
    for (let frame = 0; frame < frames && end - frames > start; ++frame) {
      const share = (frame + 1) / frames;
      samples[end - frames + frame] = (1 - share) * samples[end - frames + frame] + share * samples[start - frames + frame];
    }
  }
}
