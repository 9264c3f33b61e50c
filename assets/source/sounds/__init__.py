"""The game's sounds: effects.py holds the recipes of the effects, seabed.score and seabed.py the music."""
