"""Every picture of the game by the name the game asks for it, and how it is drawn."""

from functools import partial

from . import arrows, buttons, captions, chips, hint_pages, marks, panes, title
from .svg import UNITS_PER_HEIGHT


def _pairs():
    """The buttons, as (lit name, bare name, how to draw with an enamel and a seed, enamel, seed)."""
    side, large, dialogue = buttons.side_button, buttons.large_button, buttons.dialogue_button
    return (
        ('HintButton', 'HintButtonUncoloured', partial(side, 'Hint', buttons.BULB), 'amber', 20),
        ('MovesButton', 'MovesButtonUncoloured', partial(side, 'Moves', buttons.LIST), 'green', 21),
        ('MenuButton', 'MenuButtonUncoloured', partial(side, 'Menu', buttons.HOUSE), 'blue', 22),
        ('ClassicButton', 'ClassicButtonOff', partial(large, 'Classic'), 'green', 40),
        ('EndlessButton', 'EndlessButtonOff', partial(large, 'Endless'), 'blue', 41),
        ('QuitButton', 'QuitButtonOff', partial(large, 'Quit'), 'red', 42),
        ('ContinueGame', 'ContinueGameUncoloured', partial(dialogue, 'Continue Game'), 'green', 60),
        ('StartNewGame', 'StartNewGameUncoloured', partial(dialogue, 'Start New Game'), 'blue', 61),
        ('HarderEasierTop', 'HarderEasierTopUncoloured', buttons.harder_half, 'red', 71),
        ('HarderEasierBottom', 'HarderEasierBottomUncoloured', buttons.easier_half, 'green', 70),
    )


def pictures():
    """Name -> a function that returns the Drawing."""
    stage_size = (.271186440677966 * UNITS_PER_HEIGHT, .08150943396226 * UNITS_PER_HEIGHT)
    known = {
        'Veyrand Title': title.title,
        'MessageBackground': panes.message_background,
        'Veil': panes.veil,
        'HorizontalLine': panes.horizontal_line,
        'MultiChip': chips.multi_chip,
        'Points': partial(captions.caption, 'Points'),
        'Stage': partial(captions.caption, 'Stage', *stage_size),
        'Par': partial(captions.caption, 'Par'),
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
    for lit, bare, draw, enamel, seed in _pairs():
        known[lit] = partial(draw, enamel, seed)
        known[bare] = partial(draw, None, seed)
    return known
