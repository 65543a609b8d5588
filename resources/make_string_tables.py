#!/usr/bin/python3
"""Turns the PO files of resources/messages into one resource script of string tables."""

import sys

from messages import LANGUAGES, is_plain, read_languages, utf16_units


def literal(text):
    """A wide literal of the resource compiler, whose escapes have four digits and end there."""
    pieces = [chr(unit) if is_plain(unit) else f"\\x{unit:04x}" for unit in utf16_units(text)]
    return 'L"' + "".join(pieces) + '"'


def block(code, texts):
    """The string table of a language. The two numbers are those that its id is made of."""
    language = LANGUAGES[code]
    yield f"LANGUAGE {language & 0x3FF}, {language >> 10}"
    yield "STRINGTABLE\nBEGIN"
    yield from (f"  {id_}, {literal(text)}" for id_, text in texts)
    yield "END\n"


def main(target, files):
    lines = [line for code, texts in read_languages(files).items() for line in block(code, texts)]
    with open(target, "w", encoding="ascii") as out:
        out.write("\n".join(lines))


if __name__ == "__main__":
    main(sys.argv[1], sys.argv[2:])
