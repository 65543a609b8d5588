"""The texts of all languages as the PO files have them, and what is English on purpose."""

import functools
import pathlib

import polib

HERE = pathlib.Path(__file__).resolve().parent
FOLDER = HERE.parents[1] / "resources" / "messages"

# The rows of the language table; the test language is made from the English texts.
LANGUAGES = ["cs_CZ", "de_DE", "en_US", "es_ES", "fr_FR", "it_IT", "ja_JP", "ko_KR", "nl_NL",
             "pl_PL", "pt_BR", "ru_RU", "sv_SE", "tr_TR", "zh_CN", "zh_TW"]
TRANSLATIONS = [code for code in LANGUAGES if code != "en_US"]

# The first id of each dialog's texts; they go on to the first of the next one.
DIALOGS = {
    9000: "progress", 9010: "timestamp", 9020: "signature password", 9030: "settings sheet",
    9100: "mobile General page", 9150: "Android Deployment page", 9200: "iOS Deployment page",
    9240: "Icons page", 9260: "Permissions page", 9270: "Languages page",
    9280: "self-signed certificate", 9310: "desktop General page", 9350: "Advanced page",
    9390: "file type",
}
# Shown on the sheet, beside its buttons.
PAGES = [9100, 9150, 9200, 9240, 9260, 9270, 9310, 9350]
SHEET = 9030


@functools.cache
def read(code):
    """The entries of a language's file, in its order."""
    return list(polib.pofile(str(FOLDER / f"{code}.po")))


def by_id(code):
    return {entry.msgctxt: entry.msgstr for entry in read(code)}


def dialog_of(text_id):
    """The first id of the dialog that shows a text; None for a message."""
    return max((first for first in DIALOGS if first <= int(text_id)), default=None)


def same_on_purpose():
    """Pairs of (id, language) whose text is the English one."""
    pairs = []
    for line in (HERE / "same_on_purpose.txt").read_text(encoding="utf-8").splitlines():
        if line.startswith("#"):
            continue
        text_id, codes, reason = line.split("\t")
        assert reason.strip(), f"{text_id} has no reason"
        pairs += [(text_id, code)
                  for code in (TRANSLATIONS if codes == "all" else codes.split())]
    return pairs
