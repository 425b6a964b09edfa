#!/usr/bin/env python3
"""Makes a font with bitmaps measure as it draws. Wine draws a glyph as its bitmap, but measures its
outline, which the hinter widens or narrows: a text that is laid out by its measure, as a label that
stands at the right, loses its last letters. Each outline is given a width that rounds to those of
its bitmaps, and the font the mark of a fixed pitch, for which the hinter leaves widths alone.
Usage: fit_font.py FROM TO"""
import pathlib
import struct
import sys

# Pixels to the em, the program's own texts first: where bitmaps do not agree, the first ones count.
SIZES = (10, 11, 12, 13, 9, 8, 15, 16)
FIXED_PITCH = 12  # In the table "post".
ADVANCE = 4       # In a bitmap's metrics.


def tables(font):
    count, = struct.unpack_from(">H", font, 4)
    entries = (struct.unpack_from(">4sIII", font, 12 + 16 * i) for i in range(count))
    return {name: offset for name, _, offset, _ in entries}


def glyph_widths(font, locations, index, first, last):
    """The widths of one run of bitmaps, by glyph."""
    form, _, data = struct.unpack_from(">HHI", font, index)
    if form == 2:  # All of one size, and so with one width.
        return {glyph: font[index + 12 + ADVANCE] for glyph in range(first, last + 1)}
    count = last - first + 2
    starts = struct.unpack_from(f">{count}{'I' if form == 1 else 'H'}", font, index + 8)
    return {first + i: font[locations + data + starts[i] + ADVANCE]
            for i in range(count - 1) if starts[i + 1] > starts[i]}


def bitmap_widths(font, at):
    """{pixels to the em: {glyph: width}}"""
    table = at[b"EBLC"]
    strikes, = struct.unpack_from(">I", font, table + 4)
    widths = {}
    for strike in range(table + 8, table + 8 + 48 * strikes, 48):
        array, _, runs = struct.unpack_from(">III", font, strike)
        size = widths.setdefault(font[strike + 44], {})
        for run in range(table + array, table + array + 8 * runs, 8):
            first, last, offset = struct.unpack_from(">HHI", font, run)
            size |= glyph_widths(font, at[b"EBDT"], table + array + offset, first, last)
    return widths


def fitting_width(width, wanted, units):
    """The width nearest to one in font units that rounds to {pixels to the em: pixels}."""
    low, high = 0, 0xFFFF
    for size in SIZES:
        if size not in wanted:
            continue
        least = -(-(2 * wanted[size] - 1) * units // (2 * size))
        most = ((2 * wanted[size] + 1) * units - 1) // (2 * size)
        if max(low, least) <= min(high, most):
            low, high = max(low, least), min(high, most)
    return min(max(width, low), high)


def main():
    font = bytearray(pathlib.Path(sys.argv[1]).read_bytes())
    at = tables(font)
    units, = struct.unpack_from(">H", font, at[b"head"] + 18)
    outlines, = struct.unpack_from(">H", font, at[b"hhea"] + 34)
    widths = bitmap_widths(font, at)
    for glyph in range(outlines):
        wanted = {size: of[glyph] for size, of in widths.items() if glyph in of}
        place = at[b"hmtx"] + 4 * glyph
        width, = struct.unpack_from(">H", font, place)
        struct.pack_into(">H", font, place, fitting_width(width, wanted, units))
    struct.pack_into(">I", font, at[b"post"] + FIXED_PITCH, 1)
    pathlib.Path(sys.argv[2]).write_bytes(font)


if __name__ == "__main__":
    main()
