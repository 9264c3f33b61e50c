// The numbers of one item of the display list, in the order in which the game packs them. Lengths
// are the page's points, from the lower left corner.
const itemLength = 20;
const [kind, name, x, y, width, height, clipX, clipY, clipWidth, clipHeight, opacity, glow, lift, pressed, moving,
  red, green, blue, alpha, mirror] = Array.from({ length: itemLength }, (_, index) => index);
const [solid, image] = [0, 1];
const leftAndRight = 1; // of what mirror may be; 0 is none

const halfAStep = 0.5 / 255; // what is fainter changes no pixel
const halfWay = 0.001;
const mostParts = 32; // clipping to more costs more than painting what lies between them

// Paints display lists onto the canvas, only where they differ from what is there. What rests lies
// on whole pixels, so that it is the same picture in every place.
export class Painter {
  constructor(canvas, pictures) {
    this.canvas = canvas;
    this.pen = canvas.getContext('2d', { alpha: false });
    this.pictures = pictures;
    this.names = [];
    this.ratio = 1;
    this.framesPainted = 0;
    this.isWhole = false; // every picture of the last frame was there
  }

  resize(pixelWidth, pixelHeight, ratio) {
    this.canvas.width = pixelWidth;
    this.canvas.height = pixelHeight;
    this.ratio = ratio;
    this.pictures.forgetSizes();
  }

  toPixels(list, at) {
    const top = this.canvas.height - (list[at + 1] + list[at + 3]) * this.ratio;
    return { x: list[at] * this.ratio, y: top, width: list[at + 2] * this.ratio, height: list[at + 3] * this.ratio };
  }

  // The smallest rectangle of whole pixels round it, and so many more on every side.
  aligned(rect, more = 0) {
    const left = Math.floor(rect.x) - more;
    const top = Math.floor(rect.y) - more;
    return { x: left, y: top, width: Math.ceil(rect.x + rect.width) + more - left,
      height: Math.ceil(rect.y + rect.height) + more - top };
  }

  paint(list, items, itemCount, damage, damageCount) {
    const { pen } = this;
    const parts = [];
    for (let part = 0; part < damageCount; ++part) {
      // Two pixels more for the rounding of corners, sizes and of twice a height or a radius.
      parts.push(this.aligned(this.toPixels(list, damage + 4 * part), 2));
    }
    const bounds = boundsOf(parts);
    pen.save();
    pen.beginPath();
    for (const part of parts.length > mostParts ? [bounds] : parts) {
      pen.rect(part.x, part.y, part.width, part.height);
    }
    pen.clip();
    this.isWhole = true;
    for (let item = 0; item < itemCount; ++item) {
      const at = items + item * itemLength;
      if (list[at + opacity] > halfAStep) {
        this.paintItem(list, at, bounds);
      }
    }
    pen.restore();
    ++this.framesPainted;
  }

  paintItem(list, at, bounds) {
    const { pen } = this;
    const rect = this.toPixels(list, at + x);
    const reach = 2 * this.ratio * Math.max(list[at + glow], list[at + lift]) + this.pictures.textMargin(rect.height) + 2;
    if (rect.x - reach > bounds.x + bounds.width || rect.y - reach > bounds.y + bounds.height ||
        rect.x + rect.width + reach < bounds.x || rect.y + rect.height + reach < bounds.y) {
      return;
    }
    // Chips that fall off the board must not show in the margins beside it.
    const clip = this.toPixels(list, at + clipX);
    const isClipped = clip.x > rect.x || clip.y > rect.y || clip.x + clip.width < rect.x + rect.width ||
      clip.y + clip.height < rect.y + rect.height;
    if (isClipped) {
      const whole = this.aligned(clip);
      pen.save();
      pen.beginPath();
      pen.rect(whole.x, whole.y, whole.width, whole.height);
      pen.clip();
    }
    pen.globalAlpha = Math.min(1, list[at + opacity]);
    if (list[at + kind] === solid) {
      const whole = this.aligned(rect);
      pen.fillStyle = `rgba(${list[at + red] * 255}, ${list[at + green] * 255}, ${list[at + blue] * 255}, ${list[at + alpha]})`;
      pen.fillRect(whole.x, whole.y, whole.width, whole.height);
    } else if (list[at + kind] === image) {
      this.paintImage(list, at, rect);
    } else {
      const margin = this.pictures.textMargin(rect.height);
      const color = [list[at + red], list[at + green], list[at + blue], list[at + alpha]];
      const text = this.pictures.text(this.names[list[at + name]], color, rect.width, rect.height);
      pen.drawImage(text, Math.round(rect.x) - margin, Math.round(rect.y) - margin);
    }
    if (isClipped) {
      pen.restore();
    }
  }

  paintImage(list, at, rect) {
    const { pen, pictures } = this;
    const called = this.names[list[at + name]];
    const wide = Math.max(1, Math.round(rect.width));
    const high = Math.max(1, Math.round(rect.height));
    // The corner that keeps a picture of the whole size centred where it belongs.
    const left = Math.round(rect.x + rect.width / 2 - wide / 2 - halfWay);
    const top = Math.round(rect.y + rect.height / 2 - high / 2 - halfWay);
    if (list[at + mirror] !== 0) {
      const isAcross = list[at + mirror] === leftAndRight;
      pen.save();
      pen.translate(left + wide / 2, top + high / 2);
      pen.scale(isAcross ? -1 : 1, isAcross ? 1 : -1);
      pen.translate(-left - wide / 2, -top - high / 2);
    }
    const raised = Math.round(list[at + lift] * this.ratio);
    if (raised > 0) {
      this.draw(pictures.shadow(called, wide, high, raised), left - 2 * raised, top - 2 * raised);
    }
    const picture = list[at + pressed] ? pictures.pressed(called, wide, high)
      : list[at + moving] ? pictures.imageAtLeast(called, wide, high) : pictures.image(called, wide, high);
    if (picture !== null && (picture.width !== wide || picture.height !== high)) {
      pen.drawImage(picture, rect.x, rect.y, rect.width, rect.height);
    } else {
      this.draw(picture, left, top);
    }
    const radius = Math.round(list[at + glow] * this.ratio);
    if (radius > 0) {
      pen.globalCompositeOperation = 'lighter';
      this.draw(pictures.glow(called, wide, high, radius), left - 2 * radius, top - 2 * radius);
      pen.globalCompositeOperation = 'source-over';
    }
    if (list[at + mirror] !== 0) {
      pen.restore();
    }
  }

  draw(picture, left, top) {
    if (picture === null) {
      this.isWhole = false; // it is painted when it has come
    } else {
      this.pen.drawImage(picture, left, top);
    }
  }
}

function boundsOf(parts) {
  const left = Math.min(...parts.map((part) => part.x));
  const top = Math.min(...parts.map((part) => part.y));
  return { x: left, y: top, width: Math.max(...parts.map((part) => part.x + part.width)) - left,
    height: Math.max(...parts.map((part) => part.y + part.height)) - top };
}
