"""The page for who does not see it, for thumbs, and for who takes his game along."""

import json
import os
import shutil
import tempfile
import time

import webserver
from chromium import BrowserError, Chromium
from e2e import PHONE, Play, at, looked

PATIENCE = 20


class Reading(Play):
    """A page that is known by what Chromium's own accessibility tree says of it, and by nothing else."""

    def __init__(self, browser, address, **shape):
        super().__init__(browser, address, **shape)
        self.page.tell('Accessibility.enable')
        self.page.tell('DOM.enable')

    def things(self):
        """All that a screen reader finds: role, name and description, with the browser's number for it."""
        nodes = self.page.tell('Accessibility.getFullAXTree')['nodes']
        return [(node.get('role', {}).get('value'), node.get('name', {}).get('value', ''),
                 node.get('description', {}).get('value', ''), node.get('backendDOMNodeId'))
                for node in nodes if not node.get('ignored')]

    def does(self, name, description=''):
        """Presses the first button of the name, as a screen reader does; waits until there is one."""
        end = time.monotonic() + PATIENCE
        while time.monotonic() < end:
            for role, its_name, does, number in self.things():
                if role == 'button' and its_name.startswith(name) and does.startswith(description):
                    try:
                        found = self.page.tell('DOM.resolveNode', backendNodeId=number)['object']['objectId']
                        self.page.tell('Runtime.callFunctionOn', objectId=found,
                                       functionDeclaration='function () { this.click(); }')
                    except BrowserError:
                        break  # it has gone meanwhile
                    return
            self.page.run('new Promise((go) => setTimeout(go, 50))')
        raise BrowserError('nothing is called "%s": %s' % (name, self.things()))


def by_names(site, _out):
    server, address = webserver.serve(site)
    with Chromium() as browser:
        play = Reading(browser, address)
        play.does('Classic')
        play.until('s.lines.length === 1', 'the puzzle 1-1')
        for _ in range(3):
            play.page.run('new Promise((go) => setTimeout(go, 1300))')  # a page is read before it can be closed
            if play.state()['page'] != '':
                play.does([name for role, name, does, _ in play.things() if role == 'button' and does == 'close'][0])
        play.at_rest()
        roles = [(role, name) for role, name, _, _ in play.things()]
        assert any(role == 'list' and name.startswith('start line') for role, name in roles), roles
        assert any(role == 'list' and name.startswith('goal') for role, name in roles), roles
        play.does('yellow', 'click')
        play.until('s.stage === 2', 'the puzzle 1-2')
        spoken = play.page.run('document.getElementById("spoken").textContent')
        assert spoken != '', 'nothing was told'
        live = play.page.run('document.getElementById("spoken").getAttribute("aria-live")')
        assert live == 'polite', live
        # What stays is the same element, so that nobody loses his place.
        play.page.run('globalThis.kept = document.getElementById("read-counter-score")')
        play.page.run('veyrand.tell("repaint")')
        play.page.run('new Promise((go) => setTimeout(go, 200))')
        assert play.page.run('globalThis.kept === document.getElementById("read-counter-score")'), 'made anew'
    server.shutdown()


def pressed(play, words):
    play.page.until('[...document.querySelectorAll("dialog button")].some((b) => b.textContent === %s)'
                    % json.dumps(words), words)
    play.page.tell('Runtime.evaluate', userGesture=True,
                   expression='[...document.querySelectorAll("dialog button")].find((b) => b.textContent === %s).click()'
                   % json.dumps(words))


def chosen(play, item):
    """From the menu, by a hand: only then may a page ask for a file."""
    play.page.run('[...veyrand.bar.bar.children].find((b) => b.textContent === "Game").click()')
    play.page.tell('Runtime.evaluate', userGesture=True,
                   expression='[...document.querySelectorAll(".menu button")].find((b) => '
                              'b.firstChild.textContent === %s).click()' % json.dumps(item))


def give(play, path):
    play.page.until('document.getElementById("chosen-file") !== null', 'the question for a file')
    root = play.page.tell('DOM.getDocument')['root']['nodeId']
    field = play.page.tell('DOM.querySelector', nodeId=root, selector='#chosen-file')['nodeId']
    play.page.tell('DOM.setFileInputFiles', nodeId=field, files=[path])


def exported(site, _out):
    """What goes out as a file comes in again, and a damaged one changes nothing."""
    server, address = webserver.serve(site)
    folder = tempfile.mkdtemp(prefix='veyrand-exported-')
    try:
        with Chromium() as browser:
            play = Play(browser, address)
            play.page.tell('DOM.enable')
            play.page.tell('Page.setInterceptFileChooserDialog', enabled=True)
            browser.call('Browser.setDownloadBehavior', behavior='allow', downloadPath=folder)
            play.store(at(2, 4))
            play.go_on(play.click)
            play.until('s.level === 2 && s.lines.length === 1', 'the puzzle 2-4')
            play.clear_pages()
            play.drag('chip-1-0', 'chip-3-0')
            play.until('s.lines.length === 2', 'the second line')
            lines = play.state()['lines']
            play.at_rest()
            chosen(play, 'Export\u2026')
            end = time.monotonic() + PATIENCE
            while time.monotonic() < end and not any(name.endswith('.json') for name in os.listdir(folder)):
                play.page.run('new Promise((go) => setTimeout(go, 50))')
            path = os.path.join(folder, os.listdir(folder)[0])
            with open(path, encoding='utf-8') as file:
                text = file.read()
            assert json.loads(text)['record']['TRNLevelKey'] == 2, text
            play.page.run('veyrand.store.replace([])')
            play.reload()
            damaged = os.path.join(folder, 'damaged.json')
            with open(damaged, 'w', encoding='utf-8') as file:
                file.write(text[:-20])
            chosen(play, 'Import\u2026')
            give(play, damaged)
            play.page.until('document.querySelector("dialog")?.textContent.includes("damaged.json is damaged")', 'the fault')
            pressed(play, 'OK')
            chosen(play, 'Import\u2026')
            give(play, path)
            pressed(play, 'Replace')
            pressed(play, 'OK')
            play.stored()
            play.reload()
            play.go_on(play.click)
            play.lines(lines)
    finally:
        server.shutdown()
        shutil.rmtree(folder, ignore_errors=True)


def nothing_found(site, out):
    """Where a browser forgets after seven days, a visit that finds nothing says so; elsewhere it is a first one."""
    server, address = webserver.serve(site)
    with Chromium() as browser:
        page = browser.page()
        page.tell('Page.addScriptToEvaluateOnNewDocument',
                  source='Object.defineProperty(Navigator.prototype, "vendor", { get: () => "Apple Computer, Inc." })')
        page.go(address)
        page.until('document.querySelector("dialog")?.textContent.includes("seven days")', 'the word of the seven days')
        page.screenshot(os.path.join(out, 'nothing-found.png'))
        buttons = page.run('[...document.querySelectorAll("dialog button")].map((b) => b.textContent)')
        assert buttons == ['Import', 'Begin'], buttons
        page.run('[...document.querySelectorAll("dialog button")].find((b) => b.textContent === "Begin").click()')
        page.run('veyrand.store.replace([["preferences.json", "{}"]])')
        page.reload()
        page.until('document.getElementById("mention")?.textContent.includes("seven days")', 'the line')
    with Chromium() as browser:
        play = Play(browser, address)
        assert play.page.run('document.querySelector("dialog") === null'), 'a box at the first visit'
    server.shutdown()


TABLE = """(async () => {
  const { layout, actions } = await import(document.querySelector('script[type=module]').src.replace('main.mjs', 'phone.mjs'));
  const wrong = [];
  for (let width = 320; width <= 1400; width += 7) {
    for (let height = 240; height <= 1400; height += 7) {
      const { kind, board, buttons } = layout({ width, height, isHeld: true });
      const all = Object.values(buttons);
      const isIn = (b) => b.x >= 0 && b.y >= 0 && b.x + b.width <= width && b.y + b.height <= height;
      const isFree = (a, b) => a.x >= b.x + b.width || b.x >= a.x + a.width || a.y >= b.y + b.height || b.y >= a.y + a.height;
      const good = kind === 'desk' ? all.length === 0 : all.length === actions.length && isIn(board) &&
        Math.abs(board.width / board.height - 1.6) < 0.02 && all.every((b) => isIn(b) && isFree(b, board) &&
          b.width >= 44 && b.height >= 44) && all.every((a, i) => all.every((b, j) => i === j || isFree(a, b)));
      if (!good) { wrong.push([width, height, kind]); }
    }
  }
  return [layout({ width: 844, height: 390, isHeld: true }).kind, layout({ width: 390, height: 800, isHeld: true }).kind,
    layout({ width: 844, height: 390, isHeld: false }).kind, wrong.slice(0, 5)]; })()"""


def by_thumb(site, out):
    server, address = webserver.serve(site)
    with Chromium() as browser:
        for ratio in (2, 3):
            play = Play(browser, address, ratio=ratio, **PHONE)
            play.page.tell('Emulation.setEmulatedMedia', features=[{'name': 'pointer', 'value': 'coarse'}])
            assert play.page.run(TABLE) == ['lying', 'standing', 'desk', []], play.page.run(TABLE)
            play.store(at(2, 4))
            play.page.until('document.body.dataset.held === "lying"', 'a phone that lies')
            looked(play, out, 'thumbs-title-%d' % ratio)
            play.go_on(play.tap)
            play.until('s.level === 2 && s.lines.length === 1', 'the puzzle 2-4')
            play.clear_pages()
            play.finger_drag('chip-1-0', 'chip-3-0')
            play.until('s.lines.length === 2', 'the second line')
            play.at_rest()
            thumb(play, 'undo')
            play.until('s.lines.length === 1', 'the line taken back')
            play.at_rest()
            thumb(play, 'redo')
            play.until('s.lines.length === 2', 'the line again')
            play.at_rest()
            looked(play, out, 'thumbs-lying-%d' % ratio)
            play.page.shape(390, 844, ratio, True)
            play.page.until('document.body.dataset.held === "standing"', 'a phone that stands')
            play.until('!s.animating', 'rest')
            looked(play, out, 'thumbs-standing-%d' % ratio)
            thumb(play, 'menu')
            play.until('s.lines.length === 0', 'the title page')
            play.page.tell('Page.close')
    server.shutdown()


def thumb(play, action):
    button = 'document.querySelector(".thumb[data-action=%s]")' % action
    play.page.until('!%s.disabled && !%s.hidden' % (button, button), action)
    x, y = play.page.run('(() => { const box = %s.getBoundingClientRect(); '
                         'return [box.x + box.width / 2, box.y + box.height / 2]; })()' % button)
    play.page.touch([(x, y)])


TESTS = {
    'solved by names and actions alone': by_names,
    'exported, lost and imported': exported,
    'nothing found where browsers forget': nothing_found,
    'played by thumb on a phone': by_thumb,
}
