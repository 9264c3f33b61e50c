import { openFile, saveFile } from './exchange.mjs';
import { isForAWeek } from './keeping.mjs';
import { MenuBar } from './menu.mjs';
import { ask, askLine, end, mention, tell } from './notices.mjs';
import { Painter } from './painter.mjs';
import { Phone } from './phone.mjs';
import { Letters, Pictures } from './pictures.mjs';
import { Reader } from './reader.mjs';
import { SettingsPanel } from './settings.mjs';
import { Sounds } from './sounds.mjs';
import { Store, isOnlyPage, wordsFor } from './store.mjs';
import { say, speak } from './words.mjs';

const cursors = { arrow: 'default', pointing: 'pointer', open: 'grab', closed: 'grabbing' };

// Keys as the game's menu spells them; empty for what is only held.
export function keysOf(event) {
  const names = { ' ': 'Space', Enter: 'Return', Escape: 'Esc', Delete: 'Del', PageUp: 'PgUp', PageDown: 'PgDown',
    Control: '', Shift: '', Alt: '', AltGraph: '', Meta: '', Dead: '' };
  const key = names[event.key] ?? (event.key.length === 1 ? event.key.toUpperCase() : event.key.replace(/^Arrow/, ''));
  const held = [event.ctrlKey || event.metaKey ? 'Ctrl' : '', event.altKey ? 'Alt' : '',
    event.shiftKey ? 'Shift' : ''];
  return key === '' ? '' : [...held, key].filter((part) => part !== '').join('+');
}

// The page round the game: hands on what the browser tells, and does what the game asks.
export class Game {
  constructor(files) {
    this.files = files;
    this.canvas = document.getElementById('board');
    this.store = new Store();
    this.sounds = new Sounds({ urlsOf: (name) => files.sounds[name] ?? [], report: (words) => console.warn(words) });
    this.timer = 0;
    this.heldPointer = null;
    this.isOver = false;
    this.host = this.makeHost();
  }

  // What Host.h declares.
  makeHost() {
    const { sounds, store } = this;
    const random = new Uint32Array(1);
    return {
      now: () => performance.now(),
      callAfter: (milliseconds) => {
        clearTimeout(this.timer);
        this.timer = setTimeout(() => this.tell('call_due'), milliseconds);
      },
      callFrame: () => requestAnimationFrame(() => this.tell('frame')),
      random: () => crypto.getRandomValues(random)[0],
      today: () => daysTo(new Date()),
      copy: (text) => navigator.clipboard?.writeText(text).catch(() => {}),
      paste: () => this.paste(),
      textWidth: (text) => this.letters.width(text),
      lineHeight: () => this.letters.lineHeight,
      paint: (list, items, itemCount, damage, damageCount) =>
        this.painter.paint(list, items, itemCount, damage, damageCount),
      name: (number, text) => {
        this.painter.names[number] = text;
      },
      cursor: (name) => {
        this.canvas.style.cursor = cursors[name];
      },
      play: (name) => sounds.play(name),
      startLoop: (name, volume) => sounds.startLoop(name, volume),
      loopVolume: (volume) => sounds.loopVolume(volume),
      stopLoop: () => sounds.stopLoop(),
      volume: (isMusic, percent) => sounds.volume(isMusic, percent),
      store: (name, text) => store.put(name, text),
      fullScreen: (on) => this.setFullScreen(on),
      alert: (json) => this.showAlert(JSON.parse(json)),
      menu: (item) => this.chosen(item),
      saveFile: (name, text) => saveFile(name, text),
      openFile: (mostBytes) => this.openFile(mostBytes),
      tree: (json) => this.told(JSON.parse(json)),
      announce: (sentence) => this.reader.announce(sentence),
      quit: () => this.quit(),
      language: (code) => this.speak(code),
      report: (words) => tell(words),
      damaged: (name) => tell(say('What this browser has kept of the settings and the score cannot be read. ' +
        'It is kept as {name}. The game starts anew.', { name })),
      log: (line) => console.info(line),
      giveUp: (words) => this.giveUp(words),
    };
  }

  // Calls the program: numbers and texts go in, true comes out where it says so.
  tell(name, ...values) {
    if (!this.isOver) {
      return this.call(name, ...values);
    }
    return 0;
  }

  call(name, ...values) {
    const { program } = this;
    const texts = [];
    const passed = values.map((value) => {
      if (typeof value !== 'string') {
        return Number(value);
      }
      const length = program.lengthBytesUTF8(value) + 1;
      const place = program._malloc(length);
      program.stringToUTF8(value, place, length);
      texts.push(place);
      return place;
    });
    try {
      return program[`_veyrand_${name}`](...passed);
    } finally {
      texts.forEach((place) => program._free(place));
    }
  }

  askText(name, ...values) {
    return this.program.UTF8ToString(this.call(name, ...values));
  }

  async start(program, resources) {
    this.program = program;
    this.letters = new Letters();
    const missing = (name) => {
      console.warn(`The picture ${name} cannot be shown.`);
      mention(say('Some pictures could not be fetched. The game can be played all the same.'));
    };
    this.pictures = new Pictures({ urlOf: (name) => this.pictureUrl(name), letters: this.letters,
      numbers: JSON.parse(this.askText('effects')), missing, arrived: () => this.tell('repaint') });
    this.painter = new Painter(this.canvas, this.pictures);
    for (const [name, bytes] of resources) {
      const place = program._malloc(bytes.length);
      program.HEAPU8.set(bytes, place);
      this.call('add_resource', name, place, bytes.length);
      program._free(place);
    }
    navigator.languages.forEach((code) => this.call('add_language', code));
    this.watchMotion();
    await this.loadStore();
    this.reader = new Reader({ root: document.getElementById('reader'), spoken: document.getElementById('spoken'),
      canvas: this.canvas, act: (id, action) => this.tell('act', id, action) });
    this.phone = new Phone({ area: this.canvas.parentElement, canvas: this.canvas, wood: () => this.pictureUrl('WoodBackground'),
      press: (action) => this.pressThumb(action) });
    const size = this.fit();
    const fault = this.askText('start', screen.width, screen.height, size.width, size.height);
    if (fault !== '') {
      throw new Error(say('The game cannot be played: {fault}', { fault }));
    }
    this.listen();
    this.bar = new MenuBar(document.getElementById('bar'), {
      menus: () => JSON.parse(this.askText('menu')),
      choose: (number) => this.tell('choose', number),
      closed: () => this.canvas.focus(),
      hasFullScreen: Boolean(document.documentElement.requestFullscreen),
    });
    this.settings = new SettingsPanel({
      list: () => JSON.parse(this.askText('settings')),
      set: (number, value) => this.tell('set', number, value),
      reset: () => this.tell('reset_settings'),
      closed: () => this.canvas.focus(),
    });
    this.canvas.focus();
    this.openPuzzleOfAddress();
    if (isForAWeek(navigator)) {
      this.tellOfKeeping();
    }
    const whenIdle = globalThis.requestIdleCallback ?? ((call) => setTimeout(call, 300)); // Safari knows none
    requestAnimationFrame(() => whenIdle(() => this.fetchTheRest(), { timeout: 2000 }));
  }

  // An address may name a puzzle: "#" and its code.
  openPuzzleOfAddress() {
    const code = decodedPart(location.hash.slice(1));
    if (code !== '') {
      history.replaceState(null, '', location.pathname + location.search); // loaded anew, it is not asked for again
      this.tell('open', code);
    }
  }

  watchMotion() {
    const wish = matchMedia('(prefers-reduced-motion: reduce)');
    wish.onchange = () => this.tell('wish_less_motion', wish.matches);
    wish.onchange();
  }

  // What was copied, if the browser lets the page have it; otherwise the player is asked to put it here.
  async paste() {
    const text = await navigator.clipboard?.readText?.().catch(() => null) ??
      await askLine({ title: say('The code of the puzzle') });
    this.canvas.focus();
    if (text !== null) {
      this.tell('pasted', text);
    }
  }

  // Words on pictures are drawn for each language that has them.
  speak(code) {
    document.documentElement.lang = code === 'pseudo' ? 'en' : code;
    speak(code);
    document.getElementById('bar').setAttribute('aria-label', say('Menu'));
    this.canvas.setAttribute('aria-label', say('The board'));
    if (code !== this.language) {
      this.language = code;
      this.pictures.forgetSources();
      this.bar?.rebuild();
      this.settings?.rebuild();
    }
  }

  pictureUrl(name) {
    const file = this.files.translated[this.language]?.[name] ?? this.files.pictures[name];
    return Array.isArray(file) ? file[devicePixelRatio * innerWidth > 1930 ? 1 : 0] : file;
  }

  // Fetched before anybody asks, so that nothing is late.
  fetchTheRest() {
    Object.keys(this.files.pictures).forEach((name) => this.pictures.source(name));
    Object.keys(this.files.sounds).forEach((name) => this.sounds.fetch(name));
  }

  async loadStore() {
    this.store.failed = (words) => {
      this.tell('store_failed', words);
      if (!this.hasToldLoss) {
        this.hasToldLoss = true;
        tell(say('What has changed cannot be kept in this browser: {reason}.', { reason: words }));
      }
    };
    let kept;
    try {
      kept = await this.store.load();
    } catch (error) {
      this.call('close_store');
      tell(say('Nothing that happens here can be kept, for this browser stores nothing for this page: {reason}.',
        { reason: wordsFor(error) }));
      return;
    }
    this.hasFoundNothing = kept.texts.size === 0 && !kept.isLater;
    for (const [name, text] of kept.texts) {
      if (typeof text === 'string') {
        this.call('load', name, text);
      }
    }
    if (kept.isLater) {
      this.call('close_store');
      tell(say('A later version of Veyrand has kept the game in this browser. It is left as it is; what happens here is not kept.'));
    } else if (!await isOnlyPage()) {
      this.call('close_store');
      tell(say('Veyrand is already open in another tab. You can play here as well, but nothing that happens in this tab will be kept.'));
    }
  }

  // Gives the canvas as many pixels as it has on the screen; its size in points.
  fit(pixels) {
    const ratio = devicePixelRatio || 1;
    const box = this.canvas.getBoundingClientRect();
    // The browser knows its pixels to the last one; but where it only pretends to have others, as its
    // tools for developers do, it tells of those of the machine.
    const isTold = pixels && Math.abs(pixels.inlineSize - box.width * ratio) < 2;
    const width = isTold ? pixels.inlineSize : Math.round(box.width * ratio);
    const height = isTold ? pixels.blockSize : Math.round(box.height * ratio);
    this.painter.resize(Math.max(1, width), Math.max(1, height), ratio);
    return { width: width / ratio, height: height / ratio };
  }

  listen() {
    const { canvas } = this;
    const watcher = new ResizeObserver(([entry]) => {
      const size = this.fit(entry.devicePixelContentBoxSize?.[0]);
      this.tell('resize', size.width, size.height);
    });
    try {
      watcher.observe(canvas, { box: 'device-pixel-content-box' });
    } catch {
      watcher.observe(canvas);
    }
    canvas.addEventListener('pointerdown', (event) => this.pressed(event));
    canvas.addEventListener('pointermove', (event) => this.moved(event));
    canvas.addEventListener('pointerup', (event) => this.released(event));
    canvas.addEventListener('pointercancel', (event) => this.cancelled(event));
    canvas.addEventListener('lostpointercapture', (event) => this.cancelled(event));
    canvas.addEventListener('pointerleave', () => {
      if (this.heldPointer === null) {
        this.tell('leave');
      }
    });
    canvas.addEventListener('contextmenu', (event) => event.preventDefault());
    addEventListener('keydown', (event) => this.key(event));
    addEventListener('pointerdown', () => this.sounds.touched(), true);
    addEventListener('pointerup', () => this.sounds.touched(), true);
    addEventListener('blur', () => this.letGo());
    addEventListener('hashchange', () => this.openPuzzleOfAddress());
    document.addEventListener('visibilitychange', () => {
      this.sounds.settle();
      if (document.hidden) {
        this.letGo();
      }
    });
    document.addEventListener('fullscreenchange', () =>
      this.tell('full_screen_changed', document.fullscreenElement !== null));
  }

  place(event) {
    const box = this.canvas.getBoundingClientRect();
    return [event.clientX - box.left, event.clientY - box.top];
  }

  // A finger is told apart from a mouse and a pen: it is wide, and hovers over nothing.
  pressed(event) {
    event.preventDefault(); // no second press by a mouse that is none
    this.canvas.focus();
    if (event.button === 2 && this.heldPointer === null) {
      this.tell('right_press', ...this.place(event), isModified(event));
    }
    if (event.button !== 0 || this.heldPointer !== null) {
      return;
    }
    this.heldPointer = event.pointerId;
    this.isFinger = event.pointerType === 'touch';
    this.canvas.setPointerCapture(event.pointerId);
    if (this.isFinger) {
      this.tell('touch_began', ...this.place(event));
    } else {
      this.tell('press', ...this.place(event), isModified(event));
    }
  }

  moved(event) {
    if (this.heldPointer === null ? event.pointerType === 'touch' : event.pointerId !== this.heldPointer) {
      return;
    }
    if (event.pointerType === 'touch') {
      this.tell('touch_moved', ...this.place(event));
    } else {
      this.tell('move', ...this.place(event), this.heldPointer !== null, isModified(event));
    }
  }

  released(event) {
    if (event.pointerId !== this.heldPointer || (event.button !== 0 && event.pointerType === 'mouse')) {
      return;
    }
    this.heldPointer = null;
    if (this.isFinger) {
      this.tell('touch_ended', ...this.place(event));
    } else {
      this.tell('release', ...this.place(event), isModified(event));
    }
  }

  cancelled(event) {
    if (event.pointerId === this.heldPointer) {
      this.letGo();
    }
  }

  letGo() {
    if (this.heldPointer !== null) {
      this.heldPointer = null;
      this.tell(this.isFinger ? 'touch_cancelled' : 'cancel_gesture');
    }
  }

  key(event) {
    this.sounds.touched();
    const keys = keysOf(event);
    if (keys === '' || event.isComposing || event.target.closest?.('dialog, #bar, #curtain, #settings')) {
      return;
    }
    if (keys === 'F10') {
      this.bar.focus();
      event.preventDefault();
    } else if (this.tell('key', keys, event.repeat)) {
      event.preventDefault();
    }
  }

  async setFullScreen(on) {
    try {
      if (on) {
        await document.documentElement.requestFullscreen();
      } else if (document.fullscreenElement) {
        await document.exitFullscreen();
      }
    } catch {
      this.tell('full_screen_changed', document.fullscreenElement !== null);
    }
  }

  async openFile(mostBytes) {
    this.letGo();
    const file = await openFile(mostBytes, { tooLarge: say('it is larger than 1 MB'),
      unreadable: say('the browser cannot read it') });
    this.canvas.focus();
    const kind = file === null ? 0 : file.fault === undefined ? 1 : 2;
    this.tell('file_chosen', kind, file?.name ?? '', file?.text ?? '', file?.fault ?? '');
  }

  // What is on the board, for readers and for thumbs.
  told(board) {
    this.reader.show(board);
    this.phone.show(Object.fromEntries(Object.entries(thumbs).map(([action, { id }]) =>
      [action, id ? board.tree.children.find((node) => node.id === id && node.actions.length > 0)?.name : board[action]])));
  }

  pressThumb(action) {
    const { id, keys } = thumbs[action];
    if (id) {
      this.tell('act', id, 'press');
    } else {
      this.tell('key', keys, 0);
    }
  }

  // Where the browser throws away what a page has kept, the player is told before he has lost anything,
  // and not left to wonder where it is when he has.
  async tellOfKeeping() {
    if (!this.hasFoundNothing) {
      mention(say('This browser deletes what is kept here when it was not visited for seven days: Game > Export keeps it in a file.'));
      return;
    }
    const chosen = await ask({ title: say('Nothing of yours is here'), text: [
      say('This browser deletes what a page has kept when it was not visited for seven days. A game on the home screen is ' +
        'kept: Share, then Add to Home Screen.'),
      say('Game > Export keeps all that you have in a file. If you have one, it can be brought in now.')],
      buttons: [say('Import'), say('Begin')] });
    this.canvas.focus();
    if (chosen.button === 0) {
      const item = JSON.parse(this.askText('menu')).flatMap((menu) => menu.items).find((each) => each.import);
      this.tell('choose', item.number);
    }
  }

  async showAlert(alert) {
    this.letGo();
    // The last one is what closing the box comes to.
    const buttons = [alert.default, alert.other, alert.alternate].filter((words) => words !== '');
    const answer = await ask({ title: alert.message, text: alert.text, buttons,
      box: alert.box ? say('Do not ask me again') : undefined });
    this.canvas.focus();
    const places = ['default', 'other', 'alternate'];
    const chosen = places.findIndex((place) => alert[place] === buttons[answer.button]);
    this.tell('answer', chosen, answer.isTicked);
  }

  chosen(item) {
    if (item === 'about') {
      this.showAbout();
    } else if (item === 'settings') {
      this.settings.open();
    }
  }

  async showAbout() {
    await ask({ title: `Veyrand ${this.files.version}`, buttons: [say('OK')], text: [
      say('A puzzle game of rewrite moves.'),
      say('The program is free software under the MIT licence; its artwork and sounds are under CC BY 4.0. Both belong ' +
        'to the Veyrand developers.'),
      say('It runs on ICU (Unicode licence), was compiled by Emscripten (MIT licence), and is lettered in Linux Biolinum ' +
        '(GPL 2 with font exception, or OFL). Their licences lie beside this page in licences.txt.')] });
    this.canvas.focus();
  }

  quit() {
    this.isOver = true;
    this.sounds.silence();
    if (document.fullscreenElement) {
      document.exitFullscreen().catch(() => {});
    }
    document.getElementById('bar').hidden = true;
    this.settings.close();
    end({ title: 'Veyrand', button: say('Play'), chosen: () => location.reload() });
  }

  giveUp(words) {
    this.isOver = true;
    this.sounds.silence();
    end({ title: say('Veyrand cannot go on: {reason}.', { reason: words }),
      text: say('What you did until then has been kept.'), button: say('Start Again'), chosen: () => location.reload() });
  }
}

// What the address spells otherwise; as it stands where it makes no sense.
function decodedPart(text) {
  try {
    return decodeURIComponent(text);
  } catch {
    return text;
  }
}

// Whole days from 1 January 1970 to the date, by the player's own time zone.
export function daysTo(date) {
  return Math.round(Date.UTC(date.getFullYear(), date.getMonth(), date.getDate()) / 86_400_000);
}

// What a thumb can do: to a thing on the board, or by keys.
const thumbs = {
  undo: { keys: 'Ctrl+Z' },
  redo: { keys: 'Ctrl+Shift+Z' },
  hint: { id: 'button-lightbulbon' },
  moves: { id: 'button-movesbuttonon' },
  menu: { id: 'button-menubuttonon' },
};

const isModified = (event) => event.shiftKey || event.ctrlKey || event.altKey || event.metaKey;
