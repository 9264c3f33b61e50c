import { blank, glowOf, pressedOf, setOff, shadowOf } from './effects.mjs';

const mostTextBytes = 8 * 1024 * 1024;
const fewestTexts = 48; // as many as one screen could ever show
const fontName = '"Veyrand Letters"';
const measuringSize = 1000;

// Letters as the canvas draws them, measured at a large size and scaled, so that words keep their
// width against each other at every size.
export class Letters {
  constructor() {
    this.pen = blank(1, 1).getContext('2d');
    this.pen.font = `${measuringSize}px ${fontName}, serif`;
    const metrics = this.pen.measureText('Veyrand');
    this.ascent = metrics.fontBoundingBoxAscent / measuringSize; // in ems
    this.lineHeight = this.ascent + metrics.fontBoundingBoxDescent / measuringSize;
  }

  width(text) {
    return this.pen.measureText(text).width / measuringSize;
  }
}

// The pictures of the game, drawn once for each size in device pixels, with what light does to
// them, and its texts. A picture that is not there yet is null, and announced when it has come; one
// that cannot be had is a plain disc, so that the game can be played.
export class Pictures {
  constructor({ urlOf, letters, numbers, arrived, missing }) {
    Object.assign(this, { urlOf, letters, numbers, arrived, missing });
    this.sources = new Map();
    this.sizes = new Map();
    this.effects = new Map();
    this.texts = new Map(); // the last one asked for last
    this.textBytes = 0;
    this.waiting = 0;
  }

  source(name) {
    if (!this.sources.has(name)) {
      this.sources.set(name, null);
      this.fetchSource(name);
    }
    return this.sources.get(name);
  }

  async fetchSource(name) {
    ++this.waiting;
    let found = 'missing';
    const url = this.urlOf(name);
    if (url !== undefined) {
      const image = new Image();
      image.src = url;
      found = await image.decode().then(() => image, () => 'missing');
    }
    if (found === 'missing') {
      this.missing(name);
    }
    this.sources.set(name, found);
    --this.waiting;
    this.arrived();
  }

  image(name, width, height) {
    const key = `${name} ${width}x${height}`;
    let picture = this.sizes.get(key);
    if (picture === undefined) {
      const source = this.source(name);
      if (source === null) {
        return null;
      }
      picture = blank(width, height);
      const pen = picture.getContext('2d');
      pen.imageSmoothingQuality = 'high';
      if (source === 'missing') {
        pen.fillStyle = '#A9AFB2';
        pen.ellipse(width / 2, height / 2, width / 2, height / 2, 0, 0, 2 * Math.PI);
        pen.fill();
      } else {
        pen.drawImage(source, 0, 0, width, height);
      }
      picture.name = name;
      this.sizes.set(key, picture);
    }
    return picture;
  }

  // For a picture whose size changes from frame to frame: one already drawn that is no smaller, if
  // there is one.
  imageAtLeast(name, width, height) {
    let best = null;
    for (const picture of this.sizes.values()) {
      if (picture.name === name && picture.width >= width && picture.height >= height &&
          (best === null || picture.width < best.width)) {
        best = picture;
      }
    }
    return best ?? this.image(name, width, height);
  }

  effect(kind, make, name, width, height, reach) {
    const key = `${kind}${name} ${width}x${height} ${reach}`;
    let picture = this.effects.get(key);
    if (picture === undefined) {
      const body = this.image(name, width, height);
      if (body === null) {
        return null;
      }
      picture = make(body, reach, this.numbers);
      this.effects.set(key, picture);
    }
    return picture;
  }

  glow(name, width, height, radius) {
    return this.effect('g', glowOf, name, width, height, radius);
  }

  shadow(name, width, height, lift) {
    return this.effect('s', shadowOf, name, width, height, lift);
  }

  pressed(name, width, height) {
    const depth = Math.max(1, Math.floor(height / this.numbers.pressDepths));
    return this.effect('p', pressedOf, name, width, height, depth);
  }

  textMargin(height) {
    return Math.floor(this.numbers.textReach * height);
  }

  // One line of text as high as the size, with a margin all round.
  text(text, color, width, height) {
    const key = `${text}\n${color.join()} ${height.toFixed(2)}`;
    let picture = this.texts.get(key);
    if (picture !== undefined) {
      this.texts.delete(key);
    } else {
      picture = this.drawText(text, color, width, height);
      this.textBytes += 4 * picture.width * picture.height;
    }
    this.texts.set(key, picture);
    for (const [oldest, old] of this.texts) {
      if (this.textBytes <= mostTextBytes || this.texts.size <= fewestTexts) {
        break;
      }
      this.texts.delete(oldest);
      this.textBytes -= 4 * old.width * old.height;
    }
    return picture;
  }

  drawText(text, color, width, height) {
    const margin = this.textMargin(height);
    const letters = blank(Math.ceil(width) + 2 * margin, Math.ceil(height) + 2 * margin);
    const em = height / this.letters.lineHeight;
    const pen = letters.getContext('2d', { willReadFrequently: true });
    pen.font = `${em}px ${fontName}, serif`;
    const [red, green, blue, alpha] = color;
    pen.fillStyle = `rgba(${red * 255}, ${green * 255}, ${blue * 255}, ${alpha})`;
    pen.fillText(text, margin, margin + this.letters.ascent * em);
    return setOff(letters, color, em, this.numbers);
  }

  forgetSources() {
    this.sources.clear();
    this.forgetSizes();
  }

  // What was drawn for sizes that are no longer asked for; the sources stay.
  forgetSizes() {
    this.sizes.clear();
    this.effects.clear();
    this.texts.clear();
    this.textBytes = 0;
  }
}
