import { Painter } from './page/painter.mjs';
import { Pictures } from './page/pictures.mjs';

// Paints what the scripts take pictures of, and compares it with what the desktop has painted.
export class Show {
  constructor(letters, urls) {
    Object.assign(this, { letters, urls, taken: new Map() });
    this.canvas = document.createElement('canvas');
    this.host = {
      paint: (list, items, itemCount, damage, damageCount) => {
        const [width, height] = [list[damage + 2], list[damage + 3]];
        this.painter.resize(width, height, 1);
        this.painter.paint(list, items, itemCount, damage, damageCount);
      },
      name: (number, text) => {
        this.painter.names[number] = text;
      },
      picture: (name) => {
        const { width, height } = this.canvas;
        const pixels = this.painter.pen.getImageData(0, 0, width, height);
        this.taken.set(name, { pixels, isWhole: this.painter.isWhole });
      },
    };
  }

  async begin(numbers) {
    this.missing = [];
    this.pictures = new Pictures({ urlOf: (name) => this.urls[name], letters: this.letters, numbers,
      missing: (name) => this.missing.push(name), arrived: () => {} });
    this.painter = new Painter(this.canvas, this.pictures);
    Object.keys(this.urls).forEach((name) => this.pictures.source(name));
    while (this.pictures.waiting > 0) {
      await new Promise((go) => setTimeout(go, 20));
    }
  }

  async compared() {
    const all = [];
    for (const [name, { pixels, isWhole }] of this.taken) {
      const theirs = new Image();
      theirs.src = `desktop/${name}`;
      const found = await theirs.decode().then(() => true, () => false);
      all.push({ name, isWhole: isWhole && this.missing.length === 0, ...found ? difference(pixels, theirs) : { mean: 1, far: 1 } });
    }
    return all;
  }
}

// The mean difference of all channels, and the share of pixels of which one is off by more than a
// quarter; both of 1.
function difference(mine, picture) {
  const canvas = document.createElement('canvas');
  Object.assign(canvas, { width: mine.width, height: mine.height });
  if (picture.naturalWidth !== mine.width || picture.naturalHeight !== mine.height) {
    return { mean: 1, far: 1 };
  }
  const pen = canvas.getContext('2d');
  pen.drawImage(picture, 0, 0);
  const theirs = pen.getImageData(0, 0, mine.width, mine.height).data;
  let sum = 0;
  let far = 0;
  for (let at = 0; at < theirs.length; at += 4) {
    const off = [0, 1, 2].map((channel) => Math.abs(theirs[at + channel] - mine.data[at + channel]));
    sum += off[0] + off[1] + off[2];
    far += Math.max(...off) > 64 ? 1 : 0;
  }
  return { mean: sum / (theirs.length / 4 * 3 * 255), far: far / (theirs.length / 4) };
}
