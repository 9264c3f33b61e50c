"""Every colour of the game's pictures, in one place.

A ramp is a list of (offset, colour) or (offset, colour, opacity) and becomes a gradient's stops.
"""

# --- brass: bezels, frames, inlaid words. The light comes from the upper left everywhere.
BRASS = [(0, '#FFF3CC'), (.28, '#E9C878'), (.55, '#B98A3C'), (.78, '#8A6224'), (1, '#D9B465')]
BRASS_LETTERS = [(0, '#FFF4CF'), (.42, '#E7C475'), (.55, '#B98A3C'), (.78, '#D8B262'), (1, '#F6DFA2')]
BRASS_ROUND_OUTER = [(0, '#FFF1C4'), (.3, '#E2BD68'), (.55, '#A67A30'), (.8, '#6E4C18'), (1, '#B8904A')]
BRASS_ROUND_INNER = [(0, '#8A6426'), (.45, '#D8B25E'), (.75, '#F6DD9C'), (1, '#FFF3CC')]
# A frame's own light runs the other way on its inner bevel, which faces the light from below.
BRASS_FRAME = [(0, '#FFF3CC'), (.16, '#E9C878'), (.42, '#B58636'), (.6, '#EBCB7E'), (.82, '#8A6224'), (1, '#D9B465')]
BRASS_FRAME_INNER = [(0, '#8A6224'), (.2, '#C79A48'), (.5, '#F3DA97'), (.75, '#FFF0C4'), (1, '#B98A3C')]
BRASS_EDGE = '#3B2508'      # the dark line round brass on wood
BRASS_SEAT = '#1C0F04'      # the shadow in which glass sits
FRAME_EDGE = '#2A1708'
GROOVE = '#1E0F05'          # the cut that inlaid brass lies in
GROOVE_LIP = '#F2C98B'      # the cut's lit lower lip

# --- wood of the buttons that are not lit
MAPLE = [(0, '#FBF0D2'), (.06, '#EFD9AC'), (.5, '#DFC08A'), (.9, '#C59B61'), (1, '#9A7040')]
MAPLE_EDGE = '#4E2F16'
MAPLE_GRAIN = '#8A5A2A'
BURNT_LINE = '#6B4420'
BURNT_LINE_LIP = '#FFF6DD'
CARVING = '#4A2C15'
FRAME_WOOD = [(0, '#6B3F20'), (.5, '#53301A'), (1, '#3C2110')]
FRAME_GRAIN = '#1F0F05'

# --- enamel of the lit buttons: (light, middle, deep). Ivory words lie on the middle tone and must
# keep 4.5 to 1 against it.
ENAMEL = {
    'amber': ('#D08024', '#985706', '#663703'),
    'green': ('#3E9C64', '#1B7144', '#0C4528'),
    'blue': ('#5C88DE', '#2C56B8', '#152F78'),
    'red': ('#DE6A52', '#B83420', '#74160E'),
}
IVORY = '#FFF8E6'

# --- sea glass: the panes that carry messages. White text asks for 4.5 to 1 where it is small, the
# indigo headings for 3 to 1; their halo gives them the rest.
GLASS = [(0, '#307884'), (.3, '#2E7480'), (.6, '#2C707C'), (1, '#226472')]
PLATE_GLASS = [(0, '#1B5967'), (.15, '#236774'), (.5, '#2B6F7B'), (1, '#195562')]
GLASS_EDGE = '#0E3442'
GLASS_LIGHT = '#9CEBEA'     # along the edge alone, where no words stand
GLASS_POOL = [(0, '#BFF3EE', .10), (.5, '#9FE0DF', .05), (1, '#9FE0DF', 0)]
GLASS_LINE = '#C9F3EE'      # the engraved line along a pane's edge
GLASS_LINE_CUT = '#0E4152'
GEM = [(0, '#0E4A5C'), (1, '#6CC7CC')]

# --- the stones. Told apart in grey, and without red, green or blue, by face and by emblem.
# Light emblems stand on dark faces and dark ones on light faces.
LIGHT, DARK = 'light', 'dark'
CHIP = {
    'Yellow': dict(light='#FFEFA6', face='#F7C531', deep='#C98A0C', rim='#7A4F05', emblem='#7C4A00', tone=DARK),
    'Red': dict(light='#FF8A6B', face='#CF3420', deep='#8E160E', rim='#520806', emblem='#FFE3D2', tone=LIGHT),
    'Green': dict(light='#A2EFAF', face='#4FBE72', deep='#1F8350', rim='#0A4A2C', emblem='#05402A', tone=DARK),
    'Blue': dict(light='#6FA4FF', face='#2450B4', deep='#122C78', rim='#081544', emblem='#D9E9FF', tone=LIGHT),
    'Grey': dict(light='#FFFFFF', face='#D0D5D8', deep='#8B9296', rim='#3A3F43', emblem='#2C3236', tone=DARK),
}

# --- arrows and rings: brighter than brass, as they must be seen first
POLISHED = [(0, '#FFFBE8'), (.35, '#FFE08A'), (.7, '#F0B63C'), (1, '#C9821A')]
POLISHED_RING = [(0, '#FFFBE8'), (.4, '#FFE08A'), (1, '#E0A02C')]
POLISHED_EDGE = '#2B1503'

# --- the rest
TICK = [(0, '#B8F5C0'), (.45, '#4FC777'), (1, '#178048')]
TICK_EDGE = '#0B4A2A'
GARNET = [(0, '#7E3A2E'), (.7, '#632318'), (1, '#33100A')]
GARNET_CROSS = '#FFEBDC'
STEEL = [(0, '#FFFFFF'), (.25, '#C9D2D8'), (.5, '#7E8A93'), (.75, '#DCE4E8'), (1, '#59636B')]
STEEL_EDGE = '#20242A'
RIBBON = [(0, '#A8281C'), (.3, '#DE5A44'), (.55, '#C23A26'), (1, '#84190F')]
RIBBON_EDGE = '#4A0E0A'
PAPER = [(0, '#F2E2BE'), (.44, '#FFFDF5'), (.5, '#CBB78B'), (.56, '#FFFDF5'), (1, '#F2E2BE')]
# Darkens the board behind a message. Warm, because neutral black greys the stones, and thin in the
# middle, where the board is still looked at.
VEIL = [(0, '#140A03', .6), (.55, '#100702', .72), (1, '#0A0401', 1)]
SHADOW = '#000000'
SHINE = '#FFFFFF'

# --- what the view adds while the board is played on
WARM_LIGHT = '#FFE9A8'
LIMIT = '#FFD98A'
FOCUS_EDGE = '#120802'
EXTRA_DARK = '#1A0D04'
IVORY_PLATE = [(0, '#FFFBF0'), (1, '#F1E4C6')]
BRASS_PLATE = [(0, '#F7E3AC'), (.5, '#E6C67A'), (1, '#CFA557')]

# --- the stones of high contrast: (face, the ink of its sign). Told apart by any eye, and in greys.
FLAT = {
    'Yellow': ('#FFD400', '#000000'),
    'Red': ('#B3121D', '#FFFFFF'),
    'Green': ('#35C46B', '#000000'),
    'Blue': ('#0A2FA8', '#FFFFFF'),
    'Grey': ('#E9EDF0', '#000000'),
}
