// The menu bar: what the game says is in it, each time it is opened.
export class MenuBar {
  constructor(bar, { menus, choose, closed, hasFullScreen }) {
    Object.assign(this, { bar, menus, choose, closed, hasFullScreen });
    this.open = null;
    bar.setAttribute('role', 'menubar');
    this.rebuild();
    bar.onkeydown = (event) => this.key(event);
    addEventListener('pointerdown', (event) => {
      if (this.open && !bar.contains(event.target)) {
        this.close();
      }
    }, true);
  }

  // The titles, in the language of the moment.
  rebuild() {
    const { bar } = this;
    this.close({ isPassing: true });
    bar.replaceChildren();
    for (const [index, menu] of this.menus().entries()) {
      const title = document.createElement('button');
      title.type = 'button';
      title.textContent = menu.title;
      title.setAttribute('role', 'menuitem');
      title.setAttribute('aria-haspopup', 'menu');
      title.setAttribute('aria-expanded', 'false');
      title.tabIndex = index === 0 ? 0 : -1;
      title.onclick = () => (this.open?.index === index ? this.close() : this.show(index));
      title.onpointerenter = (event) => {
        if (this.open && this.open.index !== index && event.pointerType === 'mouse') {
          this.show(index);
        }
      };
      bar.append(title);
    }
  }

  show(index, focus = false) {
    this.close({ isPassing: true });
    const title = this.bar.children[index];
    const list = document.createElement('div');
    list.className = 'menu';
    list.setAttribute('role', 'menu');
    list.setAttribute('aria-label', title.textContent);
    for (const item of this.menus()[index].items) {
      if (!item.fullScreen || this.hasFullScreen) {
        list.append(this.entry(item));
      }
    }
    list.style.left = `${title.offsetLeft}px`;
    this.bar.append(list);
    title.setAttribute('aria-expanded', 'true');
    this.open = { index, title, list };
    if (focus) {
      this.items()[0]?.focus();
    }
  }

  entry(item) {
    if (item.kind === 'separator') {
      const line = document.createElement('hr');
      line.setAttribute('role', 'separator');
      return line;
    }
    const button = document.createElement('button');
    button.type = 'button';
    button.tabIndex = -1;
    button.setAttribute('role', item.kind === 'switch' ? 'menuitemcheckbox' : 'menuitem');
    if (item.kind === 'switch') {
      button.setAttribute('aria-checked', String(item.on));
    }
    button.disabled = !item.enabled;
    const words = document.createElement('span');
    words.textContent = item.text;
    const keys = document.createElement('kbd');
    keys.textContent = item.keys;
    keys.setAttribute('aria-hidden', 'true');
    button.append(words, keys);
    button.onclick = () => {
      this.close();
      this.choose(item.number);
    };
    return button;
  }

  focus() {
    this.bar.querySelector('[aria-haspopup]').focus();
  }

  items() {
    return [...this.open.list.querySelectorAll('button:not(:disabled)')];
  }

  close({ isPassing = false } = {}) {
    if (this.open) {
      this.open.title.setAttribute('aria-expanded', 'false');
      this.open.list.remove();
      this.open = null;
      if (!isPassing) {
        this.closed();
      }
    }
  }

  key(event) {
    const titles = [...this.bar.querySelectorAll('[aria-haspopup]')];
    const at = this.open ? this.open.index : titles.indexOf(document.activeElement);
    const aside = { ArrowLeft: -1, ArrowRight: 1 }[event.key];
    if (aside) {
      const next = (at + aside + titles.length) % titles.length;
      titles[next].focus();
      if (this.open) {
        this.show(next, true);
      }
    } else if (event.key === 'ArrowDown' || event.key === 'ArrowUp') {
      if (this.open) {
        const items = this.items();
        const from = items.indexOf(document.activeElement);
        const step = event.key === 'ArrowDown' ? 1 : -1;
        items[(Math.max(from, step > 0 ? -1 : 0) + step + items.length) % items.length]?.focus();
      } else {
        this.show(at, true);
      }
    } else if (event.key === 'Escape') {
      this.close();
      this.closed();
    } else if (!['Enter', ' ', 'Tab'].includes(event.key)) {
      return;
    }
    event.stopPropagation();
    if (!['Enter', ' ', 'Tab'].includes(event.key)) {
      event.preventDefault();
    }
  }
}
