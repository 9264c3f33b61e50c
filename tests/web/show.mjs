import { Painter } from './page/painter.mjs';
import { Pictures } from './page/pictures.mjs';

// Paints what the scripts take pictures of, and compares it at once with what the desktop has painted. Given are the
// pictures' addresses, those with words on them for each language, and the names of what the desktop has painted.
export class Show {
  constructor(letters, { urls, translated, desktop }) {
    Object.assign(this, { letters, urls, translated, desktop, missing: [], compared: [] });
    this.canvas = document.createElement('canvas');
    this.pen = document.createElement('canvas').getContext('2d', { willReadFrequently: true });
    this.host = {
      language: (code) => {
        this.painter.pictures = this.picturesOf.get(code) ?? this.picturesOf.get('');
      },
      paint: (list, items, itemCount, damage, damageCount) => {
        const [width, height] = [list[damage + 2], list[damage + 3]];
        this.painter.resize(width, height, 1);
        this.painter.paint(list, items, itemCount, damage, damageCount);
      },
      name: (number, text) => {
        this.painter.names[number] = text;
      },
      picture: (name) => {
        const theirs = this.theirs.get(name);
        this.compared.push({ name, isWhole: this.painter.isWhole && this.missing.length === 0,
          ...theirs ? this.difference(theirs) : { mean: 1, far: 1 } });
      },
    };
  }

  async begin(numbers) {
    const settled = async (pictures) => {
      while (pictures.waiting > 0) {
        await new Promise((go) => setTimeout(go, 20));
      }
      return pictures;
    };
    const make = (urls) => new Pictures({ urlOf: (name) => urls[name], letters: this.letters, numbers,
      missing: (name) => this.missing.push(name), arrived: () => {} });
    const base = make(this.urls);
    Object.keys(this.urls).forEach((name) => base.source(name));
    this.picturesOf = new Map([['', await settled(base)]]);
    for (const [code, urls] of Object.entries(this.translated)) {
      const others = make(urls);
      Object.keys(urls).forEach((name) => others.source(name));
      await settled(others);
      base.sources.forEach((source, name) => others.sources.has(name) || others.sources.set(name, source));
      this.picturesOf.set(code, others);
    }
    this.painter = new Painter(this.canvas, base);
    this.theirs = new Map();
    for (const name of this.desktop) {
      const picture = new Image();
      picture.src = `desktop/${name}`;
      await picture.decode().then(() => this.theirs.set(name, picture), () => {});
    }
  }

  // The mean difference of all channels, and the share of pixels of which one is off by more than a
  // quarter; both of 1.
  difference(picture) {
    const { width, height } = this.canvas;
    if (picture.naturalWidth !== width || picture.naturalHeight !== height) {
      return { mean: 1, far: 1 };
    }
    const mine = this.painter.pen.getImageData(0, 0, width, height).data;
    Object.assign(this.pen.canvas, { width, height });
    this.pen.drawImage(picture, 0, 0);
    const theirs = this.pen.getImageData(0, 0, width, height).data;
    let sum = 0;
    let far = 0;
    for (let at = 0; at < theirs.length; at += 4) {
      const red = Math.abs(theirs[at] - mine[at]);
      const green = Math.abs(theirs[at + 1] - mine[at + 1]);
      const blue = Math.abs(theirs[at + 2] - mine[at + 2]);
      sum += red + green + blue;
      far += red > 64 || green > 64 || blue > 64 ? 1 : 0;
    }
    return { mean: sum / (theirs.length / 4 * 3 * 255), far: far / (theirs.length / 4) };
  }
}
