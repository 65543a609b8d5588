#!/usr/bin/python3
"""Turns the PO files of resources/messages into one C++ source of constant tables."""

import sys

from messages import LANGUAGES, is_plain, read_languages, utf16_units


def literal(text):
    """A C++ UTF-16 literal; each unit that is not plain ASCII as an escape."""
    # The literal is closed behind an escape, or the next character could belong to it.
    pieces = [chr(unit) if is_plain(unit) else f'\\x{unit:04x}" u"' for unit in utf16_units(text)]
    return 'u"' + "".join(pieces) + '"'


def main(target, files):
    tables, rows = [], []
    for code, texts in read_languages(files).items():
        tables.append(f"constexpr CatalogueText k_{code}[] = {{")
        tables += [f"    {{{id_}, {literal(text)}, {len(utf16_units(text))}}}," for id_, text in texts]
        tables.append("};\n")
        rows.append(f"    {{{LANGUAGES[code]}, k_{code}, {len(texts)}}},")
    source = "\n".join(
        ['#include "platform/Catalogue.h"\n', "namespace qutav {", "namespace {\n"] + tables
        + ["}  // namespace\n", "extern const CatalogueLanguage kCatalogue[] = {"] + rows
        + ["};", f"extern const std::size_t kCatalogueSize = {len(rows)};\n",
           "}  // namespace qutav", ""])
    with open(target, "w", encoding="ascii") as out:
        out.write(source)


if __name__ == "__main__":
    main(sys.argv[1], sys.argv[2:])
