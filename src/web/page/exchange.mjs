// Files that the player takes away and brings.

// On the home screen of some phones nothing can be downloaded, but anything can be handed on.
export async function saveFile(name, text) {
  const file = new File([text], name, { type: 'application/json' });
  if (navigator.standalone && navigator.canShare?.({ files: [file] })) {
    await navigator.share({ files: [file] }).catch(() => {});
    return;
  }
  const link = document.createElement('a');
  link.href = URL.createObjectURL(file);
  link.download = name;
  link.hidden = true;
  document.body.append(link);
  link.click();
  link.remove();
  setTimeout(() => URL.revokeObjectURL(link.href), 60000);
}

// Resolves with the file's name and text, with its name and a fault, or with nothing where none was
// chosen, as far as the browser tells.
export function openFile(mostBytes, { tooLarge, unreadable }) {
  return new Promise((resolve) => {
    const input = document.createElement('input');
    input.type = 'file';
    input.accept = '.json,application/json,.txt,text/plain';
    input.id = 'chosen-file';
    input.hidden = true;
    document.body.append(input); // some browsers forget one that is nowhere
    const done = (answer) => {
      input.remove();
      resolve(answer);
    };
    input.oncancel = () => done(null);
    input.onchange = async () => {
      const [file] = input.files;
      if (!file) {
        done(null);
      } else if (file.size > mostBytes) {
        done({ name: file.name, fault: tooLarge });
      } else {
        await file.text().then((text) => done({ name: file.name, text }), () => done({ name: file.name, fault: unreadable }));
      }
    };
    input.click();
  });
}
