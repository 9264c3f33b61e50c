import { say } from './words.mjs';

// What the page has to say to the player beside the game. Words reach it as text only.

export function element(kind, text, parent) {
  const made = document.createElement(kind);
  if (text) {
    made.textContent = text;
  }
  parent?.append(made);
  return made;
}

// A box in front of the game; resolves with the number of the button, or that of the last one where
// it is closed otherwise, and with whether the box in it was ticked.
export function ask({ title, text = [], buttons, box, add }) {
  const dialog = element('dialog', '', document.body);
  dialog.className = 'notice';
  if (title) {
    const heading = element('h2', title, dialog);
    heading.id = `notice-${Math.random().toString(36).slice(2)}`;
    dialog.setAttribute('aria-labelledby', heading.id);
  }
  for (const paragraph of [text].flat()) {
    element('p', paragraph, dialog);
  }
  let tick = null;
  if (box) {
    const label = element('label', '', dialog);
    tick = element('input', '', label);
    tick.type = 'checkbox';
    label.append(` ${box}`);
  }
  add?.(dialog);
  const row = element('div', '', dialog);
  row.className = 'buttons';
  return new Promise((resolve) => {
    let answer = buttons.length - 1;
    buttons.forEach((words, number) => {
      const button = element('button', words, row);
      button.type = 'button';
      button.autofocus = number === 0 && !add;
      button.onclick = () => {
        answer = number;
        dialog.close();
      };
    });
    dialog.onclose = () => {
      dialog.remove();
      resolve({ button: answer, isTicked: tick?.checked ?? false });
    };
    dialog.onkeydown = (event) => event.stopPropagation();
    dialog.showModal();
  });
}

export const tell = (text) => ask({ text, buttons: [say('OK')] });

// A line at the foot of the page that goes by itself.
export function mention(text) {
  const line = document.getElementById('mention');
  line.textContent = text;
  line.hidden = false;
  clearTimeout(mention.timer);
  mention.timer = setTimeout(() => {
    line.hidden = true;
  }, 12000);
}

// Asks for a line of text; resolves with it, or with null.
export async function askLine({ title, fault }) {
  let typed = null;
  const { button } = await ask({ title, text: fault ?? [], buttons: [say('OK'), say('Cancel')], add: (dialog) => {
    typed = element('input', '', dialog);
    typed.type = 'text';
    typed.autofocus = true;
    typed.setAttribute('aria-label', title);
    typed.onkeydown = (event) => {
      if (event.key === 'Enter') {
        event.preventDefault();
        dialog.querySelector('.buttons button').click();
      }
    };
  } });
  return button === 0 ? typed.value : null;
}

// The game has come to its end, or cannot begin: a still page with one button.
export function end({ title, text = [], button, chosen }) {
  const curtain = document.getElementById('curtain');
  curtain.replaceChildren();
  const box = element('div', '', curtain);
  if (title) {
    element('h1', title, box);
  }
  for (const paragraph of [text].flat()) {
    element('p', paragraph, box);
  }
  const play = element('button', button, box);
  play.onclick = chosen;
  curtain.hidden = false;
  play.focus();
}
