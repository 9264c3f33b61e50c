"""Every picture of the game by the name the game asks for it, and how it is drawn."""

from functools import partial

from . import arrows, buttons, captions, chips, hint_pages, marks, panes, title
from .svg import UNITS_PER_HEIGHT


ENGLISH = {}    # every word stands for itself


def _pairs(words):
    """The buttons, as (lit name, bare name, how to draw with an enamel and a seed, enamel, seed)."""
    def word(english):
        return words.get(english, english)

    beside = buttons.side_lettering([word(english) for english in ('Hint', 'Moves', 'Menu')])
    halves = buttons.half_lettering([word(english) for english in ('Harder', 'Easier')])
    large, dialogue = buttons.large_button, buttons.dialogue_button

    def side(english, icon):
        return partial(buttons.side_button, word(english), icon, beside)

    return (
        ('HintButton', 'HintButtonUncoloured', side('Hint', buttons.BULB), 'amber', 20),
        ('MovesButton', 'MovesButtonUncoloured', side('Moves', buttons.LIST), 'green', 21),
        ('MenuButton', 'MenuButtonUncoloured', side('Menu', buttons.HOUSE), 'blue', 22),
        ('ClassicButton', 'ClassicButtonOff', partial(large, word('Classic')), 'green', 40),
        ('EndlessButton', 'EndlessButtonOff', partial(large, word('Endless')), 'blue', 41),
        ('QuitButton', 'QuitButtonOff', partial(large, word('Quit')), 'red', 42),
        ('ContinueGame', 'ContinueGameUncoloured', partial(dialogue, word('Continue Game')), 'green', 60),
        ('StartNewGame', 'StartNewGameUncoloured', partial(dialogue, word('Start New Game')), 'blue', 61),
        ('HarderEasierTop', 'HarderEasierTopUncoloured', partial(buttons.harder_half, word('Harder'), halves), 'red', 71),
        ('HarderEasierBottom', 'HarderEasierBottomUncoloured', partial(buttons.easier_half, word('Easier'), halves),
         'green', 70),
    )


def pictures_with_words(words):
    """Name -> a function that returns the Drawing, for the pictures that have words on them."""
    stage_size = (.271186440677966 * UNITS_PER_HEIGHT, .08150943396226 * UNITS_PER_HEIGHT)

    def word(english):
        text = words.get(english.lower(), english)
        return text[0].upper() + text[1:]

    known = {
        'Points': partial(captions.caption, word('Points')),
        'Stage': partial(captions.caption, word('Stage'), *stage_size),
        'Par': partial(captions.caption, word('Par')),
    }
    for lit, bare, draw, enamel, seed in _pairs(words):
        known[lit] = partial(draw, enamel, seed)
        known[bare] = partial(draw, None, seed)
    return known


def pictures():
    """Name -> a function that returns the Drawing."""
    known = {
        'Veyrand Title': title.title,
        'MessageBackground': panes.message_background,
        'Veil': panes.veil,
        'HorizontalLine': panes.horizontal_line,
        'MultiChip': chips.multi_chip,
        'Checkmark': marks.checkmark,
        'Delete': marks.delete,
        'Lock': marks.lock,
        'SaveGameBadge': marks.save_game_badge,
        'Arrow': arrows.over_three,
        'ShortArrow': arrows.over_two,
        'PointerArrow': arrows.pointer,
        'UpArrow': arrows.up,
        'LeftArrow': arrows.left,
        'HintStage1': hint_pages.first_stage,
        'HintStage2': hint_pages.second_stage,
        'HintMovesArrows': hint_pages.hint_and_moves,
        'DeleteButtonHint': hint_pages.delete_button,
    }
    for name in ('Yellow', 'Red', 'Green', 'Blue', 'Grey'):
        known[name + 'Chip'] = partial(chips.chip, name)
    known.update(pictures_with_words(ENGLISH))
    return known
