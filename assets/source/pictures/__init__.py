"""The game's pictures, as programs that draw them. Start at catalogue.py, which names them all."""
