#!/usr/bin/env python3
"""Makes BitLetters.ttf, the font of golden pictures: tests/ui/fonts/bit-letters.py BitLetters.ttf

Each letter of ASCII is drawn as its code: two columns of four cells, filled where a bit is set, the
lowest bit at the top left; the eighth cell is always filled. All other characters are a square with
a hole. So a picture tells which letters are where, and is the same with every version of every
font. Takes fontTools (python3-fonttools).
"""

import sys

from fontTools.fontBuilder import FontBuilder
from fontTools.pens.ttGlyphPen import TTGlyphPen

EM = 1000
ADVANCE = 600
CELL_WIDTH = 250
CELL_HEIGHT = 200
ROWS = 4


def rectangle(pen, left, bottom, right, top):
    pen.moveTo((left, bottom))
    pen.lineTo((left, top))
    pen.lineTo((right, top))
    pen.lineTo((right, bottom))
    pen.closePath()


def letter(code):
    pen = TTGlyphPen(None)
    for bit in range(2 * ROWS):
        if code >> bit & 1:
            left = bit // ROWS * CELL_WIDTH
            top = (ROWS - bit % ROWS) * CELL_HEIGHT
            rectangle(pen, left, top - CELL_HEIGHT, left + CELL_WIDTH, top)
    return pen.glyph()


def missing():
    pen = TTGlyphPen(None)
    rectangle(pen, 50, 0, 950, 800)
    pen.moveTo((250, 200))
    pen.lineTo((750, 200))
    pen.lineTo((750, 600))
    pen.lineTo((250, 600))
    pen.closePath()
    return pen.glyph()


def main():
    codes = range(0x20, 0x7F)
    names = {code: f"uni{code:04X}" for code in codes}
    glyphs = {".notdef": missing()}
    glyphs.update({names[code]: letter(code | 0x80) for code in codes if code != 0x20})
    glyphs[names[0x20]] = TTGlyphPen(None).glyph()
    builder = FontBuilder(EM, isTTF=True)
    builder.setupGlyphOrder(list(glyphs))
    builder.setupCharacterMap(names)
    builder.setupGlyf(glyphs)
    widths = {name: (ADVANCE, 0) for name in glyphs}
    widths[".notdef"] = (EM, 50)
    builder.setupHorizontalMetrics(widths)
    builder.setupHorizontalHeader(ascent=800, descent=-200)
    builder.setupNameTable({"familyName": "Bit Letters", "styleName": "Regular"})
    builder.setupOS2(sTypoAscender=800, sTypoDescender=-200, usWinAscent=800, usWinDescent=200,
                     ulUnicodeRange1=1)
    builder.setupPost()
    builder.setupHead(unitsPerEm=EM, created=0, modified=0)
    builder.save(sys.argv[1])


if __name__ == "__main__":
    main()
