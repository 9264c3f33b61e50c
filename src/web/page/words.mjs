// The page's own words, in the language that the game speaks; before it speaks, in the one that it
// will speak if the player has chosen none. A text has its English words for a name.
let tables = {};
let spoken = {};

export function learn(translations, wishes = navigator.languages) {
  tables = translations;
  const known = wishes.map((code) => code.split('-')[0]).find((code) => code === 'en' || code in tables);
  speak(known ?? 'en');
}

export function speak(code) {
  spoken = tables[code] ?? {};
}

// Marks are in braces and filled in from the values.
export function say(english, values = {}) {
  return (spoken[english] ?? english).replace(/\{(\w+)\}/g, (mark, name) => values[name] ?? mark);
}
