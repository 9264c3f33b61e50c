// What screen readers find beside the picture: an element for each thing on the board, with its name,
// its role, its place and a button for each thing that can be done to it. Nobody sees it; the game's own
// keys walk over the same things, and the one they stand on is the canvas's active descendant.

const roles = { pane: 'group', dialog: 'dialog', list: 'list', 'list item': 'listitem', button: 'button',
  text: 'paragraph', image: 'img' };

const idOf = (id) => `read-${id}`;
const isPressedAsAWhole = (node) => node.role === 'button' || node.role === 'link';

export class Reader {
  constructor({ root, spoken, canvas, act }) {
    Object.assign(this, { root, spoken, canvas, act });
    canvas.setAttribute('role', 'application');
    canvas.setAttribute('aria-owns', root.id);
  }

  show({ tree, focus }) {
    this.children(this.root, tree.children.filter((node) => node.role !== 'status'));
    const id = idOf(focus);
    if (focus !== '' && document.getElementById(id)) {
      this.canvas.setAttribute('aria-activedescendant', id);
    } else {
      this.canvas.removeAttribute('aria-activedescendant');
    }
  }

  // The same words twice are told twice: a blank at the end makes them others.
  announce(sentence) {
    this.spoken.textContent = this.spoken.textContent === sentence ? `${sentence}\u00a0` : sentence;
  }

  // Whatever is as it was stays the same element, so that nobody who stands on it loses his place.
  children(parent, nodes) {
    const known = new Map([...parent.children].filter((child) => child.dataset.key)
      .map((child) => [child.dataset.key, child]));
    let before = null;
    for (const node of nodes) {
      let element = known.get(node.id);
      const { children, ...own } = node;
      const told = JSON.stringify(own);
      if (!element || element.dataset.kind !== this.kindOf(node)) {
        element?.remove();
        element = document.createElement(this.kindOf(node));
        element.dataset.key = node.id;
        element.dataset.kind = this.kindOf(node);
        element.id = idOf(node.id);
      }
      if (element.told !== told) {
        element.told = told;
        this.describe(element, node);
      }
      const next = before ? before.nextElementSibling : this.firstOf(parent);
      if (next !== element) {
        parent.insertBefore(element, next);
      }
      known.delete(node.id);
      before = element;
      if (!isPressedAsAWhole(node)) {
        this.children(element, children);
      }
    }
    for (const gone of known.values()) {
      gone.remove();
    }
  }

  // What can be done to a thing comes before what lies in it.
  firstOf(parent) {
    return [...parent.children].find((child) => child.dataset.key) ?? null;
  }

  kindOf(node) {
    return isPressedAsAWhole(node) ? 'button' : 'div';
  }

  describe(element, node) {
    const name = node.value === '' ? node.name : `${node.name}: ${node.value}`;
    element.dataset.name = node.name;
    if (node.place) {
      ['left', 'top', 'width', 'height'].forEach((side, index) => {
        element.style[side] = `${node.place[index].toFixed(1)}px`;
      });
    }
    element.classList.toggle('placed', Boolean(node.place) && node.role !== 'list' && node.role !== 'dialog');
    if (isPressedAsAWhole(node)) {
      element.setAttribute('role', node.role);
      this.makeButton(element, node, name, node.actions[0]);
      return;
    }
    element.setAttribute('role', roles[node.role] ?? 'group');
    if (node.role === 'text') {
      element.textContent = name;
      return;
    }
    element.setAttribute('aria-label', name);
    [...element.querySelectorAll(':scope > [data-does]')].forEach((button) => button.remove());
    [...node.actions].reverse().forEach((action, index) => {
      const button = document.createElement('button');
      button.dataset.does = action.name;
      const isFirst = index === node.actions.length - 1;
      this.makeButton(button, node, isFirst && node.role !== 'dialog' ? name : `${name}, ${action.text}`, action);
      element.prepend(button);
    });
  }

  makeButton(button, node, name, action) {
    button.type = 'button';
    button.tabIndex = -1; // the keys are the board's
    button.textContent = name;
    button.disabled = action === undefined;
    if (action === undefined) {
      button.removeAttribute('aria-description');
      button.onclick = null;
    } else {
      button.setAttribute('aria-description', action.text);
      button.onclick = () => this.act(node.id, action.name);
    }
  }
}
