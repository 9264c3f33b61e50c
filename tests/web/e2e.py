"""The page as a player meets it: a real browser, a real pointer, finger and keyboard. The game's own
clock runs, so everything is waited for and nothing is timed."""

import json
import os
import random
import shutil
import tempfile
import time

import webserver
from chromium import Chromium

MOST_PROGRAM = 300_000
MOST_TO_FIRST_FRAME = 1_200_000
PHONE = {'width': 844, 'height': 390, 'touch': True}


class Play:
    """A page with the game on it."""

    def __init__(self, browser, address, room=None, **shape):
        """Room is how many bytes the page may store."""
        self.page = browser.page(**shape)
        if room is not None:
            self.page.tell('Storage.overrideQuotaForOrigin', origin=address.rstrip('/'), quotaSize=room)
        self.page.go(address)
        self.arrived()

    def arrived(self):
        self.page.until('globalThis.veyrand?.painter?.framesPainted > 0 && document.getElementById("curtain").hidden',
                        'the first picture')

    def reload(self):
        self.page.run('globalThis.veyrand = undefined')
        self.page.reload()
        self.arrived()

    def state(self):
        return json.loads(self.page.run('veyrand.askText("state")'))

    def until(self, condition, what):
        self.page.until('((s) => %s)(JSON.parse(veyrand.askText("state")))' % condition, what)

    def place(self, key):
        return self.page.run('(() => { const at = JSON.parse(veyrand.askText("place_of", %s)); '
                             'const box = veyrand.canvas.getBoundingClientRect(); '
                             'return [at.x + box.left, at.y + box.top]; })()' % json.dumps(key))

    def at_rest(self):
        self.until('!s.blocked && !s.animating', 'rest')

    def ready(self, key):
        self.until('s.keys.includes(%s) && !s.blocked && !s.animating && s.page === ""' % json.dumps(key), key)

    def click(self, key):
        self.ready(key)
        self.page.click(*self.place(key))

    def tap(self, key):
        self.ready(key)
        self.page.touch([self.place(key)])

    def drag(self, start, end):
        self.ready(start)
        self.page.drag(*self.place(start), *self.place(end))

    def finger_drag(self, start, end):
        self.ready(start)
        (x, y), (to_x, to_y) = self.place(start), self.place(end)
        self.page.touch([(x + (to_x - x) * step / 12, y + (to_y - y) * step / 12) for step in range(13)])

    def press(self, key, code=None, number=0, modifiers=0):
        self.page.key(key, code or key, number, modifiers)

    def lines(self, lines):
        self.until('JSON.stringify(s.lines) === %s' % json.dumps(json.dumps(lines, separators=(',', ':'))),
                   'the lines %s, not %s' % (lines, self.state()['lines']))

    def menu(self, title, item):
        self.page.run('[...veyrand.bar.bar.children].find((b) => b.textContent === %s).click()' % json.dumps(title))
        self.page.run('[...document.querySelectorAll(".menu button")].find((b) => '
                      'b.firstChild.textContent === %s).click()' % json.dumps(item))

    def go_on(self, press):
        """From the title page back to the puzzle that was left."""
        press('button-classicbuttonon')
        press('fullScreen-3i')

    def clear_pages(self):
        """Pages and notes come one after the other; Escape closes each, which nothing does in its first moment."""
        calm = """(async () => {
            for (let calm = 0, turn = 0; turn < 20; ++turn) {
              const s = JSON.parse(veyrand.askText("state"));
              const isOpen = s.page !== "";
              if (isOpen && !s.blocked) { veyrand.tell("key", "Esc", 0); }
              calm = isOpen || s.blocked || s.lines.length === 0 ? 0 : calm + 1;
              if (calm === 6) { return true; }
              await new Promise((go) => setTimeout(go, 40));
            }
            return false; })()"""
        self.page.until('await ' + calm, 'the last page, at ' + str(self.state()))

    def store(self, record, settings=None):
        """What a player has, in the place of what is there; and the page anew."""
        text = json.dumps({'Player-New': record, 'Settings': settings or {'Tempo': 'fast'}, 'TRNPlayMusicKey': True})
        self.page.run('veyrand.store.replace([["preferences.json", %s]])' % json.dumps(text))
        self.reload()

    def stored(self):
        self.page.until('veyrand.store.pending === 0', 'the disk')


def at(level, stage):
    return {'TRNLevelKey': level, 'TRNStageKey': stage, 'TRNScoreKey': 500, 'TRNFirstHintClickKey': False}


def looked(play, out, name):
    play.page.screenshot(os.path.join(out, name + '.png'))


def first_puzzles(play, click, pages=True):
    """1-1 to 1-3."""
    for stage, moves in ((1, ['chip-0-0']), (2, ['chip-0-0', 'chip-0-1']), (3, ['chip-1-0'])):
        play.until('s.stage === %d && s.lines.length === 1' % stage, 'the puzzle 1-%d' % stage)
        play.clear_pages()
        for number, move in enumerate(moves):
            play.clear_pages()
            click(move)
            play.until('s.lines.length === %d' % (number + 2), 'line %d of 1-%d' % (number + 2, stage))
    play.until('s.stage === 4 && s.lines.length === 1', 'the puzzle 1-4')


def by_mouse(site, out):
    server, address = webserver.serve(site)
    with Chromium() as browser:
        play = Play(browser, address)
        looked(play, out, 'title-1440x900')
        play.click('button-classicbuttonon')
        first_puzzles(play, play.click)
        assert play.state()['score'] == 450, play.state()
        # Loaded anew, the game is found again as it was left.
        play.clear_pages()
        play.click('chip-0-0')
        play.lines(['YR', 'YRR'])
        play.stored()
        play.reload()
        play.go_on(play.click)
        play.lines(['YR', 'YRR'])
    server.shutdown()


def by_drag_and_hint(site, out):
    server, address = webserver.serve(site)
    with Chromium() as browser:
        play = Play(browser, address)
        play.store(at(1, 8))
        play.go_on(play.click)
        play.until('s.stage === 8', 'the puzzle 1-8')
        play.clear_pages()
        play.drag('chip-1-0', 'chip-3-0')
        play.lines(['YRRR', 'YG'])
        play.store(at(2, 1))
        play.go_on(play.click)
        play.until('s.level === 2 && s.lines.length === 1', 'the puzzle 2-1')
        play.clear_pages()
        # A step back, by keys, and again by the menu.
        before = play.state()['lines']
        play.click('chip-0-0')
        play.until('s.lines.length === 2', 'the second line')
        after = play.state()['lines']
        play.at_rest()
        play.press('z', 'KeyZ', 90, modifiers=2)
        play.lines(before)
        play.at_rest()
        play.menu('Edit', 'Redo Move')
        play.lines(after)
        play.at_rest()
        play.click('button-lightbulbon')
        play.until('s.score !== 500 || s.page !== ""', 'what a hint costs, or says first')
        play.page.run('new Promise((go) => setTimeout(go, 600))')
        looked(play, out, 'board-1440x900')
        assert play.page.run('veyrand.painter.isWhole'), 'a picture is missing'
    server.shutdown()


def by_finger(site, out):
    server, address = webserver.serve(site)
    with Chromium() as browser:
        for ratio in (2, 3):
            play = Play(browser, address, ratio=ratio, **PHONE)
            play.store(at(1, 1))
            looked(play, out, 'title-phone-%d' % ratio)
            play.tap('button-classicbuttonon')
            first_puzzles(play, play.tap)
            looked(play, out, 'board-phone-%d' % ratio)
            play.store(at(1, 8))
            play.go_on(play.tap)
            play.until('s.stage === 8', 'the puzzle 1-8')
            play.clear_pages()
            play.finger_drag('chip-1-0', 'chip-3-0')
            play.lines(['YRRR', 'YG'])
            assert play.page.run('visualViewport.scale === 1 && scrollX === 0 && scrollY === 0'), 'the page has moved'
            play.until('s.stage === 9 && s.lines.length === 1', 'the puzzle 1-9')
            play.store(at(2, 1))
            play.go_on(play.tap)
            play.until('s.level === 2 && s.lines.length === 1', 'the puzzle 2-1')
            play.clear_pages()
            turned_in_a_move(play, ratio)
            looked(play, out, 'upright-phone-%d' % ratio)
            play.page.tell('Page.close')
    server.shutdown()


def turned_in_a_move(play, ratio):
    """The phone is turned while a chip is held, and again while a move is shown."""
    before = play.state()['lines']
    x, y = play.place('chip-0-0')
    play.page.finger('touchStart', (x, y))
    play.page.finger('touchMove', (x + 30, y))
    play.page.shape(390, 844, ratio, True)
    play.page.until('document.body.dataset.held === "standing"', 'the upright page')
    play.page.finger('touchEnd')
    play.at_rest()
    assert play.state()['lines'] == before, 'turning the phone has made a move: %s' % play.state()['lines']
    play.tap('chip-0-0')
    play.page.shape(844, 390, ratio, True)
    play.page.until('document.body.dataset.held === "lying"', 'the lying page')
    play.until('s.lines.length === 2', 'the move')
    play.at_rest()
    after = play.state()['lines']
    play.page.shape(390, 844, ratio, True)
    play.page.until('document.body.dataset.held === "standing"', 'the upright page')
    play.tap('delete-1')
    play.lines(before)
    assert after[0] == before[0] and len(after) == 2, after


def by_keys(site, out):
    server, address = webserver.serve(site)
    with Chromium() as browser:
        play = Play(browser, address)
        play.store(at(1, 1))
        play.press('Tab', number=9)
        play.press('Enter', number=13)
        play.until('s.lines.length === 1', 'the puzzle 1-1')
        play.clear_pages()
        play.press('Home', number=36)
        play.press('Enter', number=13)
        play.lines(['YGR', 'YGRGR'])
        play.until('s.stage === 2', 'the puzzle 1-2')
    server.shutdown()


def with_settings(site, out):
    """The page's own panel, by keys: what is chosen there is in force at once, and kept."""
    server, address = webserver.serve(site)
    with Chromium() as browser:
        play = Play(browser, address)
        play.store(at(2, 1), {})
        play.go_on(play.click)
        play.until('s.lines.length === 1', 'the puzzle 2-1')
        play.clear_pages()
        play.menu('Options', 'Settings\u2026')
        fields = play.page.run('[...document.querySelectorAll("#settings input, #settings select")].map((field) => '
                               '[field.id, field.labels[0].textContent, field.getAttribute("aria-describedby")])')
        ids = {name: field for field, name, _ in fields}
        assert len(fields) >= 14 and all(described for _, _, described in fields), fields

        def focus(name):
            play.page.run('document.getElementById(%s).focus()' % json.dumps(ids[name]))

        # The first of them has the focus, and every other one is reached by the Tab key.
        seen = []
        for _ in fields:
            seen.append(play.page.run('document.activeElement.id'))
            play.press('Tab', number=9)
        assert seen == [field for field, _, _ in fields], seen
        play.page.run('globalThis.painted = veyrand.canvas.toDataURL()')
        focus('Chips')
        play.press('ArrowDown', number=40)
        play.page.until('veyrand.canvas.toDataURL() !== painted', 'the other chips')
        focus('Music volume')
        play.press('Home', number=36)
        play.page.until('veyrand.sounds.volumes.music === 0', 'silent music')
        focus('Less motion')
        play.press('ArrowDown', number=40)
        play.until('s.lessMotion', 'less motion')
        focus('Say Why')
        play.press(' ', 'Space', 32)
        looked(play, out, 'settings-1440x900')
        play.stored()
        kept = json.loads(play.page.run('veyrand.store.load().then(({ texts }) => texts.get("preferences.json"))'))
        assert {'Chips': 'contrast', 'MusicVolume': 0, 'ReducedMotion': 'on', 'SayWhy': True}.items() \
            <= kept['Settings'].items(), kept['Settings']
        focus('Language')
        for _ in range(2):
            play.press('ArrowDown', number=40)
        play.page.until('document.querySelector("#settings h2").textContent === "Einstellungen" && '
                        'document.querySelector("#bar button").textContent === "Spiel" && '
                        'document.documentElement.lang === "de"', 'German')
        assert play.page.run('document.activeElement.id') == ids['Language'], 'the focus has gone'
        play.press('Escape', number=27)
        assert play.page.run('document.activeElement.id') == 'board', 'the board is not in play again'
        # After a reset all is as at first, and the browser is asked again what motion it wants.
        play.menu('Optionen', 'Einstellungen \u2026')
        play.page.run('document.getElementById("settings-reset").click()')
        play.until('!s.lessMotion', 'motion')
        play.page.tell('Emulation.setEmulatedMedia', features=[{'name': 'prefers-reduced-motion', 'value': 'reduce'}])
        play.until('s.lessMotion', 'the motion that the browser asks for')
        play.page.until('document.querySelector("#settings h2").textContent === "Settings" && '
                        'veyrand.sounds.volumes.music === 1', 'the settings of the beginning')
    server.shutdown()


def in_other_languages(site, out):
    """The browser's languages are spoken by the game and by the page round it."""
    server, address = webserver.serve(site)
    with Chromium(arguments=['--lang=fr', '--accept-lang=fr-CA,de']) as browser:
        play = Play(browser, address)
        assert play.page.run('[navigator.languages[0], document.documentElement.lang]') == ['fr-CA', 'fr']
        play.menu('Aide', '\u00c0 propos de Veyrand')
        play.page.until('document.querySelector("dialog p")?.textContent.startsWith("Un jeu")', 'French words about the game')
        looked(play, out, 'about-french')
        play.page.run('document.querySelector("dialog button").click()')
        play.menu('Partie', 'Quitter')
        play.page.until('document.querySelector("#curtain button")?.textContent === "Jouer"', 'the French end')
    server.shutdown()


def a_puzzle_sent(site, out):
    """An address with a code; and one that comes while another puzzle is in play."""
    server, address = webserver.serve(site)
    with Chromium() as browser:
        play = Play(browser, address + '#37T8649F2MEJ')
        play.until('s.practice && s.lines.length === 1 && s.lines[0] === "YBRGRRR"', 'the puzzle of the address')
        assert play.page.run('location.hash') == '', 'loaded anew, it would be asked for again'
        looked(play, out, 'code-1440x900')
        play.store(at(2, 1))
        play.go_on(play.click)
        play.until('s.lines.length === 1', 'the puzzle 2-1')
        play.clear_pages()
        play.click('chip-0-0')
        play.until('s.lines.length === 2', 'the move')
        before = play.state()['lines']
        for button, condition in ((1, 'JSON.stringify(s.lines) === %s' % json.dumps(json.dumps(before, separators=(',', ':')))),
                                  (0, 's.practice && s.lines[0] === "YBRGRRR"')):
            play.at_rest()
            play.page.run('location.hash = "37T8649F2MEJ"')
            play.page.until('document.querySelectorAll("dialog button").length === 2', 'the question')
            assert play.state()['lines'] == before, 'it was left without asking'
            play.page.run('document.querySelectorAll("dialog button")[%d].click()' % button)
            play.until(condition, 'what was answered')
        play.page.run('location.hash = "NONSENSE"')
        play.page.until('document.querySelector("dialog")', 'the word of a code that is none')
        assert play.state()['practice']
    server.shutdown()


KEPT = 'veyrand.store.load().then(({ texts }) => texts.get("preferences.json"))'


def second_tab(site, _out):
    server, address = webserver.serve(site)
    with Chromium() as browser:
        first = Play(browser, address)
        first.store(at(3, 3))
        second = Play(browser, address)
        second.page.until('document.querySelector("dialog")?.textContent.includes("another tab")', 'the word of the other')
        second.page.run('document.querySelector("dialog button").click()')
        second.menu('Options', 'Music')
        second.stored()
        kept = first.page.run(KEPT)
        assert json.loads(kept)['TRNPlayMusicKey'] is True, 'the second tab has saved'
    server.shutdown()


def offline(site, _out):
    server, address = webserver.serve(site)
    with Chromium() as browser:
        play = Play(browser, address)
        play.page.run('navigator.serviceWorker.ready.then(() => true)')
        play.reload()
        server.shutdown()
        server.server_close()
        play.reload()
        play.click('button-classicbuttonon')
        play.until('s.lines.length === 1', 'the puzzle 1-1 without a network')


def no_room(site, out):
    """A browser that has no room left says so; the game goes on, and what was kept before stays."""
    server, address = webserver.serve(site)
    profile = tempfile.mkdtemp(prefix='veyrand-full-')
    try:
        with Chromium(profile) as browser:
            play = Play(browser, address)
            play.store(at(2, 1))
            before = play.page.run(KEPT)
        with Chromium(profile) as browser:  # one that has not yet asked how much room there is
            play = Play(browser, address, room=1)
            play.go_on(play.click)
            play.page.until('document.querySelector("dialog")?.textContent.includes("no room left")', 'the word of a full disk')
            looked(play, out, 'no-room-left')
            play.page.run('document.querySelector("dialog button").click()')
            play.clear_pages()
            play.click('chip-0-0')
            play.until('s.lines.length === 2', 'the line that is not kept')
            play.stored()
            assert play.page.run(KEPT) == before, 'something was written'
    finally:
        shutil.rmtree(profile, ignore_errors=True)
    server.shutdown()


def kills(site, _out, count=20):
    """A browser that is killed loses at most the move whose record was under way."""
    server, address = webserver.serve(site)
    profile = tempfile.mkdtemp(prefix='veyrand-killed-')
    die = random.Random(os.environ.get('VEYRAND_SEED', '14'))
    expected = None
    try:
        for _ in range(count):
            with Chromium(profile) as browser:
                play = Play(browser, address)
                if expected is None:
                    play.store(at(2, 1), {'Tempo': 'off'})
                play.go_on(play.click)
                play.until('s.lines.length > 0', 'the puzzle')
                play.clear_pages()
                found = play.state()['lines']
                assert expected is None or found in expected, 'found %s, expected one of %s' % (found, expected)
                key = 'delete-1' if len(found) > 2 else 'chip-0-0'
                play.click(key)
                time.sleep(die.uniform(0, 0.2))
                now, pending = play.page.run('[JSON.parse(veyrand.askText("state")).lines, veyrand.store.pending]')
                expected = [now] if pending == 0 else [now, found]
                browser.kill()
    finally:
        server.shutdown()
        shutil.rmtree(profile, ignore_errors=True)


def troubles(site, out):
    """What is missing is told in words."""
    folder = os.path.join(out, 'broken')
    shutil.rmtree(folder, ignore_errors=True)
    shutil.copytree(site, folder)
    server, address = webserver.serve(folder)
    with Chromium() as browser:
        for name in os.listdir(folder + '/assets'):
            if name.startswith('ClassicButton-') or name.startswith('Marble-'):
                os.remove(os.path.join(folder, 'assets', name))
        play = Play(browser, address)
        play.page.until('!document.getElementById("mention").hidden', 'the word of a missing picture')
        looked(play, out, 'missing-picture')
        # Rubbish in the database is kept and told.
        play.page.run('veyrand.store.replace([["preferences.json", "{rubbish"]])')
        play.reload()
        play.page.until('document.querySelector("dialog")?.textContent.includes("cannot be read")', 'the word of rubbish')
        play.stored()
        kept = play.page.run('veyrand.store.load().then(({ texts }) => [...texts].filter(([name]) => name.includes("damaged")))')
        assert kept == [['preferences.json.damaged-1', '{rubbish']], kept
        # Quitting leaves a still page with one button.
        play.page.run('document.querySelector("dialog button").click()')
        play.click('button-quitbuttonon')
        play.page.until('document.querySelector("#curtain button")?.textContent === "Play"', 'the last page')
        looked(play, out, 'quit')
        code = [name for name in os.listdir(folder) if name.startswith('code-')][0]
        for name in ('veyrand.wasm', 'veyrand.wasm.br'):
            os.remove(os.path.join(folder, code, name))
        other = browser.page()
        other.go(address.replace('127.0.0.1', 'localhost'))
        other.until('document.querySelector("#curtain h1")?.textContent.includes("cannot be played")', 'the word of a missing program')
        other.screenshot(os.path.join(out, 'missing-program.png'))
    server.shutdown()


# Those that take longest come first, for two are played at a time.
TESTS = {
    'killed at any moment': kills,
    'played by finger on a phone': by_finger,
    'played by mouse, loaded anew and resumed': by_mouse,
    'a drag, a step back and a hint': by_drag_and_hint,
    'played by keys': by_keys,
    'the settings, by keys': with_settings,
    'the languages of the browser': in_other_languages,
    'a puzzle of an address': a_puzzle_sent,
    'a second tab does not save': second_tab,
    'played without a network': offline,
    'told that there is no room': no_room,
    'told what is missing': troubles,
}
