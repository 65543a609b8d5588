"""What every translation must keep of the English text, and what no dialog may have twice."""

import collections
import re
import unittest

from texts import DIALOGS, LANGUAGES, PAGES, SHEET, TRANSLATIONS, FOLDER
from texts import by_id, dialog_of, read, same_on_purpose

PRODUCT_NAMES = ["Zenvoka", "Kestrow", "Quorl", "TAV", "TAVI", "QMV", "APK", "Android", "iOS",
                 "iPhone", "Apple App Store", "Vokscript", "JVM", "ADB", "PNG", "JPG", "JKS", "P12",
                 "PFX", "XML", "USB", "CPU", "GPU", "ARMv7", "ARMv8", "Intel x86"]

# Texts that are equal in English and not in every language, each with its reason.
DIFFERENT_ON_PURPOSE = {"8116": "agrees with the render mode, the others with the aspect ratio"}

COLONS = (":", "：")
ENDS_OF_SENTENCE = (".", "。")
ELLIPSIS = "..."


def trailing_blanks(text):
    return text[len(text.rstrip()):]


def leading_blanks(text):
    return text[:len(text) - len(text.lstrip())]


def ends_with_dots(text):
    return text.rstrip().endswith((ELLIPSIS, "…"))


def ends_with_stop(text):
    return text.rstrip().endswith(ENDS_OF_SENTENCE) and not ends_with_dots(text)


def placeholders(text):
    """Places that a program fills: of a printf, and numbered ones in braces."""
    return sorted(re.findall(r"%(?:\d+\$)?[-+0-9.]*[a-zA-Z]|\{\d*\}", text))


def filters(text):
    """Patterns of file names and the bars that part them, as file dialogs take them."""
    return re.findall(r"\*\.\w+|\*\.\*|\|", text) + re.findall(r"\(\.\w+\)", text)


def words(name, text):
    """How often a name stands in a text as a word of its own; an ending after it does not count.
    A letter of a script without blanks is no part of a name."""
    return len(re.findall(rf"(?<![A-Za-z0-9]){re.escape(name)}(?![A-Za-z0-9])", text))


def mnemonic(text):
    """The letter behind the "&" of a label; a doubled one is a plain "&"."""
    found = re.search(r"&([^&\s])", text.replace("&&", ""))
    return found.group(1).upper() if found else None


def repeated_mnemonics(texts):
    """The letters that more than one text of a dialog has, with the ids of these texts."""
    owners = collections.defaultdict(list)
    for text_id, text in texts.items():
        if mnemonic(text):
            owners[mnemonic(text)].append(text_id)
    return {letter: ids for letter, ids in owners.items() if len(ids) > 1}


def different_wordings(english, texts):
    """The translations of those texts that are equal in English and are not in the translation."""
    wordings = collections.defaultdict(set)
    for text_id, text in texts.items():
        if text_id not in DIFFERENT_ON_PURPOSE:
            wordings[english[text_id]].add(text)
    return [sorted(found) for found in wordings.values() if len(found) > 1]


class Texts(unittest.TestCase):
    def assert_no_text(self, is_wrong, codes=None):
        """Takes a function of the English text and the one of the language."""
        self.assertEqual([(code, entry.msgctxt, entry.msgstr)
                          for code in codes or TRANSLATIONS for entry in read(code)
                          if is_wrong(entry.msgid, entry.msgstr)], [])

    def assert_kept(self, quality):
        self.assert_no_text(lambda english, text: quality(english) != quality(text))


class Files(Texts):
    def test_every_row_of_the_language_table_has_a_file_and_there_are_no_others(self):
        self.assertEqual(sorted(path.stem for path in FOLDER.glob("*.po")), LANGUAGES)

    def test_every_id_is_in_every_file_in_the_order_of_the_english_one(self):
        english = [entry.msgctxt for entry in read("en_US")]

        for code in TRANSLATIONS:
            with self.subTest(language=code):
                self.assertEqual([entry.msgctxt for entry in read(code)], english)

    def test_no_id_stands_twice(self):
        ids = [entry.msgctxt for entry in read("en_US")]

        self.assertEqual(len(set(ids)), len(ids))

    def test_every_translation_was_made_of_the_english_text_of_today(self):
        english = by_id("en_US")

        self.assertEqual([(code, entry.msgctxt) for code in LANGUAGES for entry in read(code)
                          if entry.msgid != english[entry.msgctxt]], [])

    def test_no_text_is_empty(self):
        self.assert_no_text(lambda _, text: not text, LANGUAGES)

    def test_no_text_is_fuzzy_or_obsolete(self):
        self.assertEqual([(code, entry.msgctxt) for code in LANGUAGES for entry in read(code)
                          if entry.flags or entry.obsolete], [])

    def test_a_file_tells_its_language(self):
        for code in LANGUAGES:
            with self.subTest(language=code):
                text = (FOLDER / f"{code}.po").read_text(encoding="utf-8")
                self.assertIn(f'"Language: {code}\\n"', text)


class Kept(Texts):
    def test_line_feeds_and_carriage_returns(self):
        self.assert_kept(lambda text: re.findall(r"\r\n|\r|\n+", text))

    def test_leading_blanks(self):
        self.assert_kept(leading_blanks)

    def test_trailing_blanks(self):
        self.assert_kept(trailing_blanks)

    def test_a_trailing_colon(self):
        self.assert_kept(lambda text: text.rstrip().endswith(COLONS))

    def test_trailing_dots(self):
        self.assert_kept(ends_with_dots)

    def test_trailing_dots_are_three_dots(self):
        self.assert_no_text(lambda _, text: "…" in text)

    def test_a_full_stop(self):
        self.assert_kept(ends_with_stop)

    def test_placeholders(self):
        self.assert_kept(placeholders)

    def test_file_filters_and_endings(self):
        self.assert_kept(lambda text: sorted(filters(text)))

    def test_web_addresses(self):
        self.assert_kept(lambda text: re.findall(r"https?://\S+", text))

    def test_product_names(self):
        for name in PRODUCT_NAMES:
            with self.subTest(name=name):
                self.assert_no_text(lambda english, text, name=name:
                                    words(name, english) and not words(name, text))


class EnglishLeft(unittest.TestCase):
    def test_exactly_the_texts_on_the_list_are_the_english_ones(self):
        same = [(entry.msgctxt, code) for code in TRANSLATIONS for entry in read(code)
                if entry.msgstr == entry.msgid]

        listed = same_on_purpose()
        self.assertEqual(sorted(set(same) - set(listed)), [], "English, and not on the list")
        self.assertEqual(sorted(set(listed) - set(same)), [], "on the list, and not English")

    def test_nothing_stands_on_the_list_twice(self):
        listed = collections.Counter(same_on_purpose())

        self.assertEqual([pair for pair, count in listed.items() if count > 1], [])


class Dialogs(unittest.TestCase):
    def texts_of(self, code, first):
        return {text_id: text for text_id, text in by_id(code).items()
                if dialog_of(text_id) == first}

    def test_every_dialog_has_texts(self):
        for first, name in DIALOGS.items():
            with self.subTest(dialog=name):
                self.assertNotEqual(self.texts_of("en_US", first), {})

    def test_mnemonics_are_unique_on_each_dialog_in_each_language(self):
        for code in LANGUAGES:
            for first, name in DIALOGS.items():
                texts = self.texts_of(code, first)
                if first in PAGES:
                    texts |= self.texts_of(code, SHEET)
                with self.subTest(language=code, dialog=name):
                    self.assertEqual(repeated_mnemonics(texts), {})

    def test_no_message_has_a_mnemonic(self):
        self.assertEqual([(code, text_id) for code in LANGUAGES
                          for text_id, text in by_id(code).items()
                          if dialog_of(text_id) is None and mnemonic(text)], [])

    def test_equal_english_texts_are_equal_in_each_language(self):
        english = by_id("en_US")
        for code in TRANSLATIONS:
            with self.subTest(language=code):
                self.assertEqual(different_wordings(english, by_id(code)), [])


class Measures(unittest.TestCase):
    """What the tests above measure with, on texts that no file has."""

    def test_placeholders(self):
        self.assertEqual(placeholders("{0} of %d, %1$s and 100 %"), ["%1$s", "%d", "{0}"])

    def test_filters(self):
        self.assertEqual(filters("PNG|*.png|All|*.*"), ["|", "*.png", "|", "|", "*.*"])
        self.assertEqual(filters("Windows (.exe)"), ["(.exe)"])

    def test_a_name_is_found_as_a_word_of_its_own(self):
        self.assertEqual(words("TAV", "TAVI"), 0)
        self.assertEqual(words("TAV", "TAV-Datei, TAVを"), 2)

    def test_mnemonics(self):
        self.assertEqual(mnemonic("&Browse..."), "B")
        self.assertEqual(mnemonic("参照(&b)..."), "B")
        self.assertIsNone(mnemonic("Drag && drop"))
        self.assertIsNone(mnemonic("Search & replace"))

    def test_a_repeated_mnemonic(self):
        texts = {"1": "&Add", "2": "&Back", "3": "Repl&ace", "4": "OK"}

        self.assertEqual(repeated_mnemonics(texts), {"A": ["1", "3"]})

    def test_different_wordings_of_one_english_text(self):
        english = {"1": "Add", "2": "Add", "3": "OK"}
        german = {"1": "Mehr", "2": "Neu", "3": "OK"}

        self.assertEqual(different_wordings(english, german), [["Mehr", "Neu"]])


if __name__ == "__main__":
    unittest.main()
