#!/usr/bin/python3
"""Turns the PO files of resources/messages into one C++ source of constant tables."""

import os
import sys

import polib

# Rows of the language table: the PO file's name and the Windows language id.
LANGUAGES = {
    "cs_CZ": 1029, "de_DE": 1031, "en_US": 1033, "es_ES": 3082, "fr_FR": 1036, "it_IT": 1040,
    "ja_JP": 1041, "ko_KR": 1042, "nl_NL": 1043, "pl_PL": 1045, "pt_BR": 1046, "ru_RU": 1049,
    "su_DO": 1062, "sv_SE": 1053, "tr_TR": 1055, "zh_CN": 2052, "zh_TW": 1028,
}


def literal(text):
    """A C++ UTF-16 literal; each unit that is not plain ASCII as an escape."""
    units = text.encode("utf-16-le")
    pieces = []
    for i in range(0, len(units), 2):
        unit = units[i] | units[i + 1] << 8
        plain = 0x20 <= unit < 0x7F and chr(unit) not in '"\\?'
        # The literal is closed behind an escape, or the next character could belong to it.
        pieces.append(chr(unit) if plain else f'\\x{unit:04x}" u"')
    return 'u"' + "".join(pieces) + '"'


def unit_count(text):
    return len(text.encode("utf-16-le")) // 2


def read_texts(path):
    """The translated texts of a file by id; an untranslated one falls back to English."""
    entries = polib.pofile(path).translated_entries()
    return sorted((int(entry.msgctxt), entry.msgstr) for entry in entries)


def marked(texts):
    """The test language: every English text between marks, so that an untranslated one shows."""
    return [(id_, f"[su] $_{text}_#") for id_, text in texts]


def main(target, files):
    languages = {os.path.splitext(os.path.basename(path))[0]: read_texts(path) for path in files}
    languages["su_DO"] = marked(languages["en_US"])
    tables, rows = [], []
    for code, texts in sorted(languages.items()):
        tables.append(f"constexpr CatalogueText k_{code}[] = {{")
        tables += [f"    {{{id_}, {literal(text)}, {unit_count(text)}}}," for id_, text in texts]
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
