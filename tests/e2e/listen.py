"""Plays 1-1 by names and actions, going on when it has heard everything, and compares what the game announced with what Orca spoke.

    listen.py WORKSHOP LOG

LOG is Orca's debugging log. An announcement is a name that the accessible tree's notification had when
it showed itself; Orca says "notification" before it.
"""

import re
import sys
import threading
import time

import screen_reader
from screen_reader import Atspi, Lost, Reader, name, role

SETTLED = 1.0   # s within which the game has told what it has to tell
PATIENCE = 20.0     # s that the reader has for one announcement


def words(text):
    """Orca ends what it says with a full stop."""
    return ' '.join(text.split()).rstrip('.')


def spoken(log):
    with open(log, encoding='utf-8', errors='replace') as file:
        return [words(text) for text in re.findall(r"SPEECH OUTPUT: '(.*)'\{", file.read())]


def listen_to_the_end(announced, log):
    time.sleep(SETTLED)
    end = time.monotonic() + PATIENCE
    while announced and 'notification ' + announced[-1] not in spoken(log) and time.monotonic() < end:
        time.sleep(.2)


def wait_for_announcement(announced, beginning):
    end = time.monotonic() + PATIENCE
    while not any(text.startswith(beginning) for text in announced) and time.monotonic() < end:
        time.sleep(.2)


def play(workshop, announced, log):
    act = screen_reader.do

    def having_listened(thing, action):
        listen_to_the_end(announced, log)
        act(thing, action)

    screen_reader.do = having_listened
    reader = Reader(workshop)
    seen = []
    screen_reader.do(reader.thing('Classic'), 'press')
    reader.wait_for('a puzzle', lambda: reader.close_pages(seen) or reader.place())
    reader.solve(seen)
    # On a busy machine the next puzzle can be read before it is told.
    wait_for_announcement(announced, 'Puzzle 1-2')
    listen_to_the_end(announced, log)


def main():
    workshop, log = sys.argv[1:3]
    announced = []

    def listen(event):
        if role(event.source) == 'notification' and event.detail1 == 1:
            text = words(name(event.source))
            if text and text not in announced:
                announced.append(text)

    listener = Atspi.EventListener.new(listen)
    listener.register('object:state-changed:showing')
    failed = []

    def run():
        try:
            play(workshop, announced, log)
        except Exception as error:
            failed.append(error)
        Atspi.event_quit()

    threading.Thread(target=run, daemon=True).start()
    Atspi.event_main()
    if failed:
        raise failed[0]
    said = spoken(log)
    missed = [text for text in announced if 'notification ' + text not in said]
    for text in missed:
        print('not spoken: %s' % text)
    print('%d of %d announcements spoken by Orca to the letter' % (len(announced) - len(missed), len(announced)))
    if missed or len(announced) < 4:
        raise Lost('what was announced in what was spoken: %r' % said)


if __name__ == '__main__':
    main()
