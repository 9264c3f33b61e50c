"""The words on pictures in every language, out of its board.json: the names of things."""

import json
import os

FOLDER = os.path.join(os.path.dirname(os.path.abspath(__file__)), '..', '..', 'languages')
ENGLISH = 'en'


def words_of(code):
    with open(os.path.join(FOLDER, code, 'board.json')) as file:
        return json.load(file)['things']


def others():
    """The codes of all languages but English."""
    return sorted(code for code in os.listdir(FOLDER) if code != ENGLISH)


def on_pictures(code):
    """The words that are drawn, as they are drawn."""
    words = words_of(code)
    capitals = [words[name] for name in ('Hint', 'Moves', 'Menu', 'Classic', 'Endless', 'Quit', 'Continue Game',
                                         'Start New Game', 'Harder', 'Easier')]
    captions = [words[name] for name in ('points', 'stage', 'par')]
    return capitals + [word[0].upper() + word[1:] for word in captions]
