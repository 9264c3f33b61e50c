"""Plays the game as a screen reader would: looks at nothing but names, and does actions.

    screen_reader.py WORKSHOP LEVEL-STAGE

plays Classic from its present place until the puzzle of that place is solved ("end": until the closing
page). WORKSHOP is asked for a shortest way; everything about the game itself is read from it.
"""

import json
import re
import subprocess
import sys
import time

import gi

gi.require_version('Atspi', '2.0')
from gi.repository import Atspi, GLib  # noqa: E402  (the version comes first)

NUMBERS = {word: count for count, word in enumerate(
    'no one two three four five six seven eight nine ten eleven twelve'.split())}
PATIENCE = 30.0     # s until something that must come about has failed to


class Lost(Exception):
    """What was to be read or done is not there."""


def children(thing):
    try:
        return [child for child in (thing.get_child_at_index(i) for i in range(thing.get_child_count())) if child]
    except GLib.Error:
        return []           # it has gone meanwhile


def name(thing):
    try:
        return thing.get_name() or ''
    except GLib.Error:
        return ''


def role(thing):
    try:
        return thing.get_role_name()
    except GLib.Error:
        return ''


def actions(thing):
    try:
        return [thing.get_action_name(i) for i in range(thing.get_n_actions())]
    except GLib.Error:
        return []


def do(thing, action):
    for index, known in enumerate(actions(thing)):
        if known == action:
            thing.do_action(index)
            return
    raise Lost('%r has no action %r, but %r' % (name(thing), action, actions(thing)))


def chips(text):
    """'line 3: yellow, three reds' is YRRR."""
    line, count = '', 1
    for word in re.findall('[a-z]+', text.split(': ', 1)[1]):
        if word in NUMBERS:
            count = NUMBERS[word]
        else:
            line += word[0].upper() * count
            count = 1
    return line


def gestures(line):
    """Every gesture that some move may answer, with the line it makes."""
    last = len(line) - 1
    for i, chip in enumerate(line):
        if chip == 'Y' and i < last:
            yield ('click', i), line[:i + 1] + line[i + 1:] * 2
        if chip == 'R' and i == last:
            yield ('click', i), line + 'G'
        if line[i:i + 2] == 'GG':
            yield ('click', i), line[:i] + 'GBG' + line[i + 2:]
            yield ('drag', i, i + 1), line[:i] + line[i + 2:]
        if line[i:i + 3] == 'RRR':
            yield ('drag', i, i + 2), line[:i] + 'G' + line[i + 3:]
        if chip == 'Y' and i + 2 <= last:
            yield ('drag', i, i + 2), line[:i] + line[i + 2] + line[i + 1] + 'Y' + line[i + 3:]
        other = line.find('B', i + 1)
        if chip == 'B' and other > i + 1:
            yield ('drag', i, other), line[:i] + 'BB' + line[other + 1:]


class Reader:
    def __init__(self, workshop):
        self.workshop = workshop
        self.board = self.wait_for('the board', self.find_board)
        self.told = set()

    @staticmethod
    def wait_for(what, look):
        end = time.monotonic() + PATIENCE
        while time.monotonic() < end:
            try:
                found = look()
            except GLib.Error:
                found = None
            if found:
                return found
            time.sleep(.05)
        raise Lost('%s did not come' % what)

    @staticmethod
    def find_board():
        Atspi.get_desktop(0).clear_cache()
        desktop = Atspi.get_desktop(0)
        for application in children(desktop):
            if name(application) != 'Veyrand':
                continue
            for window in children(application):
                for pane in children(window):
                    if name(pane) == 'Veyrand' and role(pane) == 'panel':
                        return pane
        return None

    def things(self):
        # A client may keep what it read; this one wants to know what is there now.
        self.board.clear_cache()
        return children(self.board)

    def thing(self, wanted):
        def look():
            for thing in self.things():
                for one in [thing] + children(thing):
                    if name(one) == wanted and actions(one):
                        return one
            return None
        return self.wait_for(wanted, look)

    def dialog(self):
        return next((thing for thing in self.things() if role(thing) == 'dialog'), None)

    def lines(self):
        """The goal, and the lines so far, as they are at rest: names are read one after another."""
        before = None
        while True:
            now = self.lines_now()
            if now == before:
                return now
            before = now

    def lines_now(self):
        goal, lines = None, []
        for thing in self.things():
            text = name(thing)
            if role(thing) != 'list':
                continue
            if text.startswith('goal: '):
                goal = chips(text)
            elif text.startswith(('start line: ', 'line ')):
                lines.append(chips(text))
        return goal, lines

    def place(self):
        return next((name(thing).split(': ')[1] for thing in self.things() if name(thing).startswith('stage: ')), None)

    def status(self):
        return next((name(thing) for thing in self.things() if role(thing) == 'notification'), '')

    def close_pages(self, seen):
        page, end = None, 0
        while True:
            dialog = self.dialog()
            if dialog is None:
                return
            title = name(dialog)
            texts = ' '.join(name(child) for child in children(dialog))
            if page != (title, texts):
                page, end = (title, texts), time.monotonic() + PATIENCE
            elif time.monotonic() > end:
                raise Lost('the page %r does not close' % title)
            buttons = [child for child in children(dialog) if role(child) == 'push button']
            if buttons:
                do(buttons[0], 'press')     # go on with the game that is saved
            else:
                if not seen or seen[-1] != (title, texts):
                    seen.append((title, texts))
                if 'close' in actions(dialog):
                    do(dialog, 'close')
            time.sleep(.12)

    @staticmethod
    def called(line, row, column):
        colour = {'Y': 'yellow', 'R': 'red', 'G': 'green', 'B': 'blue'}[line[column]]
        return '%s, %s, place %d' % (colour, 'start line' if row == 0 else 'line %d' % row, column + 1)

    def way(self, line, goal):
        answer = subprocess.run([self.workshop, '--json', 'solve', line, goal], check=True, capture_output=True, text=True)
        found = json.loads(answer.stdout)
        return found['path'] or []

    def act(self, line, row, gesture):
        """Tries until the line is there: a press into a block is lost, as anybody's is."""
        self.wait_for('an action', lambda: self.try_to_act(line, row, gesture))

    def try_to_act(self, line, row, gesture):
        try:
            if gesture[0] == 'click':
                do(self.now(self.called(line, row, gesture[1])), 'click')
            else:
                start = self.now(self.called(line, row, gesture[1]))
                if 'lift' in actions(start):
                    do(start, 'lift')
                    time.sleep(.08)
                do(self.now(self.called(line, row, gesture[2])), 'drop')
        except Lost:
            time.sleep(.1)
        time.sleep(.12)
        self.told.add(self.status())
        _, lines = self.lines()
        return len(lines) > row + 1 or self.dialog() is not None or (lines and lines[0] != self.start)

    def now(self, wanted):
        for thing in self.things():
            for one in children(thing):
                if name(one) == wanted:
                    return one
        raise Lost(wanted)

    def solve(self, seen):
        place, way = self.place(), []
        while True:
            self.close_pages(seen)
            if self.place() != place:
                return
            goal, lines = self.lines()
            if not lines and seen and seen[-1][0].startswith('Congratulations'):
                return      # the last puzzle, after which none comes
            if not lines or lines[-1] == goal:
                time.sleep(.1)      # it is being celebrated
                continue
            self.start = lines[0]
            if lines[-1] not in way:
                way = self.way(lines[-1], goal)     # once: from halfway a search may not get so far
            if not way:
                do(self.thing('delete line 1'), 'press')
                way = []
                continue
            step = way[way.index(lines[-1]) + 1]
            gesture = next(made for made, line in gestures(lines[-1]) if line == step)
            self.act(lines[-1], len(lines) - 1, gesture)


def main():
    workshop, last = sys.argv[1:3]
    reader = Reader(workshop)
    if any(name(thing) == 'Classic' for thing in reader.things()):
        do(reader.thing('Classic'), 'press')
    seen, solved = [], []
    reader.wait_for('a puzzle', lambda: reader.close_pages(seen) or reader.place())
    while True:
        reader.close_pages(seen)
        place = reader.place()
        reader.solve(seen)
        solved.append(place)
        print('solved', place, flush=True)
        if place == last:
            break
    text = ' '.join(words for page in seen for words in page)
    if solved[0] == '1-1' and 'Click on yellow to double' not in text:
        raise Lost('the first page in words: %r' % text)
    if not any(re.match('Move [1-7]\\. Line [0-9]+: ', told) for told in reader.told):
        raise Lost('a word about the moves: %r' % reader.told)
    print('%d puzzles solved by names and actions alone, %d pages read' % (len(solved), len(seen)))


if __name__ == '__main__':
    main()
