"""What the build makes of the PO files."""

import pathlib
import sys
import tempfile
import unittest

from texts import FOLDER

sys.path.insert(0, str(FOLDER.parent))
import make_catalogue  # pylint: disable=wrong-import-position
import make_string_tables  # pylint: disable=wrong-import-position
import messages  # pylint: disable=wrong-import-position

FILE = '''msgid ""
msgstr "Content-Type: text/plain; charset=UTF-8\\n"

msgctxt "8002"
msgid "Second"
msgstr ""

msgctxt "8001"
msgid "First"
msgstr "Erster"
'''


class Making(unittest.TestCase):
    def setUp(self):
        self.folder = pathlib.Path(self.enterContext(tempfile.TemporaryDirectory()))

    def put(self, code, text):
        path = self.folder / f"{code}.po"
        path.write_text(text, encoding="utf-8")
        return str(path)

    def test_a_text_that_is_not_translated_is_left_out_and_so_comes_in_english(self):
        self.assertEqual(messages.read_texts(self.put("de_DE", FILE)), [(8001, "Erster")])

    def test_the_test_language_is_made_of_the_english_texts(self):
        languages = messages.read_languages([self.put("en_US", FILE)])

        self.assertEqual(languages["su_DO"], [(8001, "[su] $_Erster_#")])

    def test_what_is_not_plain_is_escaped_in_the_source(self):
        self.assertEqual(make_catalogue.literal('証"\n'), 'u"\\x8a3c" u"\\x0022" u"\\x000a" u""')

    def test_what_is_not_plain_is_escaped_in_the_string_table(self):
        self.assertEqual(make_string_tables.literal("é\r\nab"), 'L"\\x00e9\\x000d\\x000aab"')

    def test_a_language_stands_under_the_two_numbers_of_its_id(self):
        spanish, chinese = (next(make_string_tables.block(code, [])) for code in ("es_ES", "zh_CN"))

        self.assertEqual(spanish, "LANGUAGE 10, 3")
        self.assertEqual(chinese, "LANGUAGE 4, 2")


if __name__ == "__main__":
    unittest.main()
