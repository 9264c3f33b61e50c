// What pictures do with light, from the table of numbers that every front end reads. All lengths
// are device pixels; the glow and the shadow reach past every edge by twice the radius and twice
// the height.

export const blurReach = 2; // times the radius
const passes = 3;

export function blank(width, height) {
  const canvas = document.createElement('canvas');
  canvas.width = width;
  canvas.height = height;
  return canvas;
}

function context(canvas) {
  return canvas.getContext('2d', { willReadFrequently: true });
}

function withMargin(picture, margin) {
  const body = blank(picture.width + 2 * margin, picture.height + 2 * margin);
  context(body).drawImage(picture, margin, margin);
  return body;
}

// The picture's shape in one colour.
function inColor(picture, color) {
  const shape = withMargin(picture, 0);
  const pen = context(shape);
  pen.globalCompositeOperation = 'source-in';
  pen.fillStyle = color;
  pen.fillRect(0, 0, shape.width, shape.height);
  return shape;
}

// One row or column of one channel: every pixel becomes the mean of its neighbours, nothing past
// both ends.
function blurLine(line, result, length, reach) {
  const width = 2 * reach + 1;
  let sum = 0;
  for (let at = 0; at < Math.min(reach, length); ++at) {
    sum += line[at];
  }
  for (let at = 0; at < length; ++at) {
    sum += at + reach < length ? line[at + reach] : 0;
    sum -= at - reach - 1 >= 0 ? line[at - reach - 1] : 0;
    result[at] = sum / width;
  }
}

function blurAlong(values, start, step, length, radius, spare) {
  let [line, result] = spare;
  for (let at = 0; at < length; ++at) {
    line[at] = values[start + at * step];
  }
  for (let pass = 0; pass < passes; ++pass) {
    // The passes' reaches add up to no more than the blur may spread.
    const reach = Math.floor((blurReach * radius + pass) / passes);
    if (reach > 0) {
      blurLine(line, result, length, reach);
      [line, result] = [result, line];
    }
  }
  for (let at = 0; at < length; ++at) {
    values[start + at * step] = line[at];
  }
}

// The picture softened as if seen out of focus, three box blurs standing for a bell curve. Colours
// are weighed by their density, as light is.
function blurred(picture, radius, gain = 1) {
  const { width, height } = picture;
  const soft = blank(width, height);
  const pen = context(soft);
  const pixels = context(picture).getImageData(0, 0, width, height);
  const bytes = pixels.data;
  const count = width * height;
  const spare = [new Float32Array(Math.max(width, height)), new Float32Array(Math.max(width, height))];
  const channels = [0, 1, 2, 3].map(() => new Float32Array(count));
  for (let at = 0; at < count; ++at) {
    const alpha = bytes[4 * at + 3];
    channels[3][at] = alpha;
    for (let channel = 0; channel < 3; ++channel) {
      channels[channel][at] = bytes[4 * at + channel] * alpha / 255;
    }
  }
  for (const values of channels) {
    for (let y = 0; y < height; ++y) {
      blurAlong(values, y * width, 1, width, radius, spare);
    }
    for (let x = 0; x < width; ++x) {
      blurAlong(values, x, width, height, radius, spare);
    }
  }
  for (let at = 0; at < count; ++at) {
    const alpha = channels[3][at];
    for (let channel = 0; channel < 3; ++channel) {
      bytes[4 * at + channel] = alpha > 0 ? channels[channel][at] / alpha * 255 : 0;
    }
    bytes[4 * at + 3] = Math.min(255, alpha * gain); // denser, so that thin strokes show too
  }
  pen.putImageData(pixels, 0, 0);
  return soft;
}

const black = (alpha) => `rgba(0, 0, 0, ${alpha})`;

// The light that a picture gives off when it is lit from within: to be added over it.
export function glowOf(picture, radius, numbers) {
  const margin = blurReach * radius;
  const body = withMargin(picture, margin);
  const inner = withMargin(body, 0);
  const x = margin + picture.width * numbers.gatheredX;
  const y = margin + picture.height * numbers.gatheredY;
  const reach = Math.max(picture.width, picture.height) * numbers.gatheredReach;
  const pen = context(inner);
  const light = pen.createRadialGradient(x, y, 0, x, y, reach);
  for (const [place, density] of numbers.light) {
    light.addColorStop(place, black(density));
  }
  pen.globalCompositeOperation = 'destination-in';
  pen.fillStyle = light;
  pen.fillRect(0, 0, inner.width, inner.height);

  const glow = blurred(body, radius);
  const over = context(glow);
  over.globalCompositeOperation = 'destination-out';
  over.globalAlpha = numbers.haloOutside;
  over.drawImage(body, 0, 0);
  over.globalAlpha = 1;
  over.globalCompositeOperation = 'lighter';
  over.drawImage(inner, 0, 0);
  return glow;
}

// The soft shadow of a picture that is lifted by the height; none lies under the picture itself.
export function shadowOf(picture, height, numbers) {
  const body = withMargin(picture, 2 * height);
  const soft = blurred(inColor(body, black(numbers.darkness)), Math.max(1, Math.floor(height / 2)));
  const shadow = blank(body.width, body.height);
  const pen = context(shadow);
  pen.drawImage(soft, Math.round(numbers.fallRight * height), Math.round(numbers.fallDown * height));
  pen.globalCompositeOperation = 'destination-out';
  pen.drawImage(body, 0, 0);
  return shadow;
}

// The picture of a button that is pushed in as far as the depth.
export function pressedOf(picture, depth, numbers) {
  const margin = blurReach * depth;
  const board = blank(picture.width + 2 * margin, picture.height + 2 * margin);
  const hole = context(board);
  hole.fillStyle = 'black';
  hole.fillRect(0, 0, board.width, board.height);
  hole.globalCompositeOperation = 'destination-out';
  hole.drawImage(picture, margin, margin);
  const pressed = withMargin(picture, 0);
  const pen = context(pressed);
  pen.globalCompositeOperation = 'source-atop';
  pen.fillStyle = black(numbers.shade);
  pen.fillRect(0, 0, pressed.width, pressed.height);
  pen.globalAlpha = numbers.edgeShadow;
  pen.drawImage(blurred(board, depth), depth - margin, depth - margin);
  return pressed;
}

// Letters with what sets them off from any ground: a shadow under light ones, a pale halo round
// dark ones.
export function setOff(letters, [red, green, blue, alpha], em, numbers) {
  const lightness = 0.2126 * red + 0.7152 * green + 0.0722 * blue;
  const style = lightness > 0.5 ? numbers.lightLetters : numbers.darkLetters;
  const radius = Math.max(1, Math.round(style.radius * em));
  const ground = blurred(inColor(letters, style.color), radius, style.gain);
  const result = blank(letters.width, letters.height);
  const pen = result.getContext('2d');
  pen.globalAlpha = style.opacity * alpha;
  pen.drawImage(ground, Math.round(style.right * em), Math.round(style.down * em));
  pen.globalAlpha = 1;
  pen.drawImage(letters, 0, 0);
  return result;
}
