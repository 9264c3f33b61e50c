// Where things lie on what is held in the hand: the board at its own proportions, and beside it or
// below it buttons for a thumb. All of it is one table; lengths are in points.

export const actions = ['undo', 'redo', 'hint', 'moves', 'menu'];

const shape = {
  board: 1.6, // width to height
  least: 56, // room beside or below the board for which there are buttons
  most: 72, // of a button
  smallest: 44,
  gap: 10,
};

const shade = 'linear-gradient(rgba(12, 6, 2, .5), rgba(12, 6, 2, .5))'; // so that the board stands out

const middle = (room, length) => Math.round((room - length) / 2);

// The board in an area, and the buttons: in a column at its right where there is room at its sides, in
// a row below it where there is room there. On a desk there are none, and the board has all the area.
export function layout({ width, height, isHeld }) {
  const all = { x: 0, y: 0, width, height };
  const tall = Math.min(height, width / shape.board);
  const board = { x: middle(width, tall * shape.board), y: middle(height, tall),
    width: Math.round(tall * shape.board), height: Math.round(tall) };
  const beside = width - board.x - board.width;
  const below = height - board.y - board.height;
  const kind = !isHeld ? 'desk' : beside >= shape.least ? 'lying' : below >= shape.least ? 'standing' : 'desk';
  if (kind === 'desk') {
    return { kind, board: all, buttons: {} };
  }
  const count = actions.length;
  const [along, across] = kind === 'lying' ? [height, beside] : [width, below];
  const size = Math.max(shape.smallest, Math.min(shape.most, across - shape.gap,
    Math.floor((along - (count + 1) * shape.gap) / count)));
  const step = size + Math.min(2 * shape.gap, Math.floor((along - count * size) / (count + 1)));
  const first = middle(along, (count - 1) * step + size);
  const aside = middle(across, size);
  const buttons = {};
  actions.forEach((action, index) => {
    const at = first + index * step;
    buttons[action] = kind === 'lying'
      ? { x: board.x + board.width + aside, y: at, width: size, height: size }
      : { x: at, y: board.y + board.height + aside, width: size, height: size };
  });
  return { kind, board, buttons };
}

const drawings = {
  undo: 'M10 7 4 13l6 6M4 13h10a6 6 0 0 1 0 12h-3',
  redo: 'm20 7 6 6-6 6M26 13H16a6 6 0 0 0 0 12h3',
  hint: 'M11 22c0-4-4-5-4-10a8 8 0 0 1 16 0c0 5-4 6-4 10zM12 26h6',
  moves: 'M6 9h7l-2-2m2 2-2 2M17 9h7M6 21h7l-2-2m2 2-2 2M17 21h3m1 0h3',
  menu: 'M5 14 15 6l10 8v11h-7v-7h-6v7H5z',
};

function drawing(action) {
  const space = 'http://www.w3.org/2000/svg';
  const picture = document.createElementNS(space, 'svg');
  picture.setAttribute('viewBox', '0 0 30 30');
  picture.setAttribute('aria-hidden', 'true');
  const line = document.createElementNS(space, 'path');
  line.setAttribute('d', drawings[action]);
  picture.append(line);
  return picture;
}

function put(element, { x, y, width, height }) {
  Object.assign(element.style, { left: `${x}px`, top: `${y}px`, width: `${width}px`, height: `${height}px` });
}

export class Phone {
  constructor({ area, canvas, press, wood }) {
    Object.assign(this, { area, canvas, wood });
    this.held = matchMedia('(pointer: coarse)');
    this.buttons = new Map(actions.map((action) => {
      const button = document.createElement('button');
      button.type = 'button';
      button.className = 'thumb';
      button.tabIndex = -1; // keys do the same on the board
      button.dataset.action = action;
      button.append(drawing(action));
      button.onclick = () => {
        canvas.focus();
        press(action);
      };
      button.hidden = true;
      area.append(button);
      return [action, button];
    }));
    new ResizeObserver(() => this.arrange()).observe(area);
    this.held.onchange = () => this.arrange();
    this.arrange();
  }

  arrange() {
    const { clientWidth: width, clientHeight: height } = this.area;
    const { kind, board, buttons } = layout({ width, height, isHeld: this.held.matches });
    this.kind = kind;
    document.body.dataset.held = kind;
    this.area.style.backgroundImage = kind === 'desk' ? '' : `${shade}, url("${this.wood()}")`;
    put(this.canvas, board);
    for (const [action, button] of this.buttons) {
      button.hidden = !(action in buttons);
      if (action in buttons) {
        put(button, buttons[action]);
      }
    }
  }

  // What can be done now, with its name: by action; nothing for what cannot.
  show(names) {
    for (const [action, button] of this.buttons) {
      button.disabled = !names[action];
      if (names[action]) {
        button.setAttribute('aria-label', names[action]);
      }
    }
  }
}
