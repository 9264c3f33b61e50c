import { element } from './notices.mjs';

const apart = 100; // milliseconds between two values of a slider that is being dragged

// The settings as the game lists them, in a box beside which the game goes on. What is changed is
// kept and in force at once, so there is nothing to confirm.
export class SettingsPanel {
  // list: what is shown, set: a value by its number, reset: all of them, closed: when it has gone
  constructor({ list, set, reset, closed }) {
    Object.assign(this, { list, set, reset, closed });
    this.box = null;
  }

  open() {
    if (this.box) {
      this.box.querySelector('input, select').focus();
      return;
    }
    this.box = element('section', '', document.body);
    this.box.id = 'settings';
    this.box.setAttribute('role', 'dialog');
    this.box.onkeydown = (event) => this.key(event);
    this.build();
    this.box.querySelector('input, select').focus();
  }

  close() {
    if (this.box) {
      clearTimeout(this.later);
      this.box.remove();
      this.box = null;
      this.closed();
    }
  }

  // In the language of the moment, with the values of the moment; the focus stays where it was.
  rebuild() {
    if (!this.box) {
      return;
    }
    const focused = this.box.contains(document.activeElement) ? document.activeElement.id : '';
    this.build();
    document.getElementById(focused)?.focus();
  }

  build() {
    const all = this.list();
    this.box.replaceChildren();
    this.box.setAttribute('aria-label', all.title);
    element('h2', all.title, this.box);
    for (const section of all.sections) {
      const group = element('fieldset', '', this.box);
      element('legend', section.title, group);
      section.items.forEach((item) => this.add(item, group));
    }
    const row = element('div', '', this.box);
    row.className = 'buttons';
    this.button(all.reset, 'settings-reset', row, () => {
      this.reset();
      this.rebuild();
    });
    this.button(all.close, 'settings-close', row, () => this.close());
  }

  button(words, id, row, chosen) {
    const button = element('button', words, row);
    button.type = 'button';
    button.id = id;
    button.onclick = chosen;
  }

  add(item, group) {
    const row = element('div', '', group);
    row.className = `setting ${item.kind}`;
    const label = element('label', item.text, row);
    const field = this[item.kind](item, row);
    field.id = `setting-${item.number}`;
    label.htmlFor = field.id;
    const help = element('p', item.help, row);
    help.id = `${field.id}-help`;
    field.setAttribute('aria-describedby', help.id);
  }

  switch(item, row) {
    const box = element('input', '', null);
    box.type = 'checkbox';
    row.prepend(box);
    box.checked = item.value !== 0;
    box.onchange = () => this.set(item.number, box.checked ? 1 : 0);
    return box;
  }

  choice(item, row) {
    const choices = element('select', '', row);
    item.choices.forEach((words) => element('option', words, choices));
    choices.selectedIndex = item.value < item.choices.length ? item.value : -1;
    choices.onchange = () => this.set(item.number, choices.selectedIndex);
    return choices;
  }

  volume(item, row) {
    const slider = element('input', '', row);
    Object.assign(slider, { type: 'range', min: 0, max: 100, step: 5 });
    const number = element('output', '', row);
    slider.value = item.value;
    number.textContent = `${item.value} %`;
    // A slider that is dragged passes many values, and each that is kept goes to the disk.
    slider.oninput = () => {
      number.textContent = `${slider.value} %`;
      clearTimeout(this.later);
      this.later = setTimeout(() => this.set(item.number, Number(slider.value)), apart);
    };
    slider.onchange = () => {
      clearTimeout(this.later);
      this.set(item.number, Number(slider.value));
    };
    return slider;
  }

  key(event) {
    event.stopPropagation(); // the board is behind
    if (event.key === 'Escape') {
      event.preventDefault();
      this.close();
    }
  }
}
