"""The texts of resources/messages as the build's tables take them."""

import os

import polib

# Rows of the language table: the PO file's name and the Windows language id.
LANGUAGES = {
    "cs_CZ": 1029, "de_DE": 1031, "en_US": 1033, "es_ES": 3082, "fr_FR": 1036, "it_IT": 1040,
    "ja_JP": 1041, "ko_KR": 1042, "nl_NL": 1043, "pl_PL": 1045, "pt_BR": 1046, "ru_RU": 1049,
    "su_DO": 1062, "sv_SE": 1053, "tr_TR": 1055, "zh_CN": 2052, "zh_TW": 1028,
}


def utf16_units(text):
    units = text.encode("utf-16-le")
    return [units[i] | units[i + 1] << 8 for i in range(0, len(units), 2)]


def is_plain(unit):
    """Whether a unit stands for itself in a literal."""
    return 0x20 <= unit < 0x7F and chr(unit) not in '"\\?'


def read_texts(path):
    """The translated texts of a file by id; an untranslated one falls back to English."""
    entries = polib.pofile(path).translated_entries()
    return sorted((int(entry.msgctxt), entry.msgstr) for entry in entries)


def marked(texts):
    """The test language: every English text between marks, so that an untranslated one shows."""
    return [(id_, f"[su] $_{text}_#") for id_, text in texts]


def read_languages(files):
    """Pairs of (id, text) by language, in the order of the languages' names."""
    languages = {os.path.splitext(os.path.basename(path))[0]: read_texts(path) for path in files}
    languages["su_DO"] = marked(languages["en_US"])
    return dict(sorted(languages.items()))
