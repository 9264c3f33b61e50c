"""Compiles board.cpp, lets it paint the board and makes a JPEG of it. In C++ as Python would need minutes."""

import os
import subprocess
import tempfile

SIZE = ('3840', '2400')     # the largest screen the board is meant for; smaller ones scale it down

HERE = os.path.dirname(os.path.abspath(__file__))


def board_jpeg():
    with tempfile.TemporaryDirectory() as folder:
        program, bitmap = os.path.join(folder, 'board'), os.path.join(folder, 'board.ppm')
        # No fused multiply-adds: they round differently, and the bytes shall not hang on the processor.
        subprocess.run(['g++', '-std=c++20', '-O2', '-ffp-contract=off', '-o', program,
                        os.path.join(HERE, 'board.cpp')], check=True)
        subprocess.run([program, *SIZE, bitmap], check=True)
        return subprocess.run(['cjpeg', '-quality', '90', '-sample', '1x1', '-optimize', bitmap], check=True,
                              stdout=subprocess.PIPE).stdout
