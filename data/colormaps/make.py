#!/usr/bin/env python3
"""Makes the colour tables of this folder.

usage: make.py MATPLOTLIB_FOLDER

The folder is where the package python3-matplotlib has its module, or where `dpkg -x` unpacked it."""
import ast
import pathlib
import sys

LISTED = ['viridis', 'cividis', 'magma', 'inferno', 'plasma']
ROWS = 256

# Control points of the relief table: position, then lightness and the two colour axes of CIELAB. Lightness rises evenly
# with depth becoming less, drops at the coast, and rises again with height, so that slopes read alike on both sides.
SEA = [(0.0, 15, 8, -32), (0.35, 35, 2, -40), (0.7, 60, -12, -33), (1.0, 88, -14, -10)]
LAND = [(0.0, 42, -28, 28), (0.25, 58, -14, 38), (0.5, 68, 6, 38), (0.75, 80, 6, 20), (1.0, 98, 0, 2)]


def value_of(text, name):
    """The literal that is assigned to a name in a module."""
    for statement in ast.parse(text).body:
        if isinstance(statement, ast.Assign) and statement.targets[0].id == name:
            return ast.literal_eval(statement.value)
    raise SystemExit(f'{name} is not there')


def between(points, position):
    for low, high in zip(points, points[1:]):
        if position <= high[0]:
            share = (position - low[0]) / (high[0] - low[0])
            return [a + (b - a) * share for a, b in zip(low[1:], high[1:])]
    return list(points[-1][1:])


def listed(folder, name):
    return value_of((folder / '_cm_listed.py').read_text(), f'_{name}_data')


def coolwarm(folder):
    """Each channel is given at 33 positions with the value on its left and right."""
    channels = value_of((folder / '_cm.py').read_text(), '_coolwarm_data')
    return [[between([(x, left) for x, left, _ in channels[c]], i / (ROWS - 1))[0] for c in ('red', 'green', 'blue')]
            for i in range(ROWS)]


def srgb(lightness, a, b):
    """From CIELAB with the white point D65."""
    y = (lightness + 16) / 116
    xyz = []
    for value, white in ((y + a / 500, 0.95047), (y, 1), (y - b / 200, 1.08883)):
        xyz.append(white * (value ** 3 if value > 6 / 29 else 3 * (6 / 29) ** 2 * (value - 4 / 29)))
    x, y, z = xyz
    linear = (3.2404542 * x - 1.5371385 * y - 0.4985314 * z, -0.9692660 * x + 1.8760108 * y + 0.0415560 * z,
              0.0556434 * x - 0.2040259 * y + 1.0572252 * z)
    curved = [12.92 * c if c <= 0.0031308 else 1.055 * c ** (1 / 2.4) - 0.055 for c in linear]
    return [min(max(c, 0), 1) for c in curved]


def relief():
    half = ROWS // 2
    return [srgb(*between(side, i / (half - 1))) for side in (SEA, LAND) for i in range(half)]


def main():
    source = pathlib.Path(sys.argv[1])
    tables = {name: listed(source, name) for name in LISTED}
    tables['coolwarm'] = coolwarm(source)
    tables['relief'] = relief()
    for name, rows in tables.items():
        lines = [','.join(f'{c:.6f}' for c in row) for row in rows]
        (pathlib.Path(__file__).resolve().parent / f'{name}.csv').write_text('red,green,blue\n' + '\n'.join(lines) + '\n')


if __name__ == '__main__':
    main()
