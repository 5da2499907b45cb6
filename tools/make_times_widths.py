#!/usr/bin/env python3
"""Writes the table of Times widths that the report layout measures with (src/reports/times_widths.def).

Liberation Serif has the widths of Times New Roman, so that a report breaks its lines and pages alike
with either of the two. The table holds its advance widths in 1/2048 of the font size, for regular, bold,
italic and bold italic, one entry for each run of characters with the same four widths.

Usage: make_times_widths.py FOLDER_OF_THE_FONTS > src/reports/times_widths.def
"""
import struct
import sys

STYLES = ["Regular", "Bold", "Italic", "BoldItalic"]
UNITS = 2048


class Font:
    def __init__(self, path):
        with open(path, "rb") as file:
            self.data = file.read()
        count = self.unpack(">H", 4)[0]
        self.tables = {}
        for i in range(count):
            tag, _, offset, _ = self.unpack(">4sIII", 12 + 16 * i)
            self.tables[tag.decode()] = offset
        assert self.unpack(">H", self.tables["head"] + 18)[0] == UNITS
        self.metrics = self.unpack(">H", self.tables["hhea"] + 34)[0]
        self.glyphs = self.character_map()

    def unpack(self, form, offset):
        return struct.unpack_from(form, self.data, offset)

    def heights(self):
        """Ascent, descent (negative) and line gap."""
        return self.unpack(">hhh", self.tables["hhea"] + 4)

    def width(self, character):
        index = min(self.glyphs[character], self.metrics - 1)
        return self.unpack(">H", self.tables["hmtx"] + 4 * index)[0]

    def character_map(self):
        """Character to glyph, from the Unicode subtable of format 4."""
        start = self.tables["cmap"]
        for i in range(self.unpack(">H", start + 2)[0]):
            platform, encoding, offset = self.unpack(">HHI", start + 4 + 8 * i)
            if (platform, encoding) == (3, 1):
                return self.segments(start + offset)
        raise SystemExit("no Unicode character map")

    def segments(self, at):
        assert self.unpack(">H", at)[0] == 4
        double = self.unpack(">H", at + 6)[0]
        count = double // 2
        lasts = self.unpack(f">{count}H", at + 14)
        firsts = self.unpack(f">{count}H", at + 16 + double)
        deltas = self.unpack(f">{count}H", at + 16 + 2 * double)
        ranges_at = at + 16 + 3 * double
        ranges = self.unpack(f">{count}H", ranges_at)
        glyphs = {}
        for i, (first, last) in enumerate(zip(firsts, lasts)):
            for character in range(first, min(last, 0xFFFE) + 1):
                glyph = character
                if ranges[i]:
                    place = ranges_at + 2 * i + ranges[i] + 2 * (character - first)
                    glyph = self.unpack(">H", place)[0]
                    if glyph == 0:
                        continue
                glyphs[character] = (glyph + deltas[i]) & 0xFFFF
        return glyphs


def runs(fonts):
    rows = []
    common = set.intersection(*(set(font.glyphs) for font in fonts))
    for character in sorted(common):
        widths = [font.width(character) for font in fonts]
        if character < 0x20 or 0x7F <= character < 0xA0 or 0xE000 <= character < 0xF900:
            continue
        if rows and rows[-1][1] == character - 1 and rows[-1][2] == widths:
            rows[-1][1] = character
        else:
            rows.append([character, character, widths])
    return rows


def main():
    fonts = [Font(f"{sys.argv[1]}/LiberationSerif-{style}.ttf") for style in STYLES]
    ascent, descent, gap = fonts[0].heights()
    assert all(font.heights()[0] == ascent for font in fonts)
    print("// Made by tools/make_times_widths.py from the metrics of Liberation Serif.")
    print(f"HEIGHTS({ascent}, {-descent}, {gap})")
    line = ""
    for first, last, widths in runs(fonts):
        entry = "WIDTHS(0x%X, 0x%X, %d, %d, %d, %d)" % (first, last, *widths)
        if len(line) + len(entry) > 98:
            print(line.rstrip())
            line = ""
        line += entry + " "
    print(line.rstrip())
    print("#undef HEIGHTS\n#undef WIDTHS")


main()
