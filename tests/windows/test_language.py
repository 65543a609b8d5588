"""The library under Wine speaks the language whose code the host gives, in every row of its table."""

import json
import pathlib
import shutil
import sys
import tempfile
import unittest

from product import BUILD, SAMPLE, TESTS, run, windows_path

sys.path.insert(0, str(TESTS.parent / "languages"))
from shown_texts import TEXTS  # pylint: disable=wrong-import-position


class Language(unittest.TestCase):
    def setUp(self):
        self.folder = pathlib.Path(self.enterContext(tempfile.TemporaryDirectory()))
        shutil.copytree(SAMPLE, self.folder / "Game")
        self.transcript = self.folder / "transcript.jsonl"

    def events_of(self, code):
        """What the settings sheet shows to a host of this language."""
        self.transcript.unlink(missing_ok=True)
        result = run("wine", BUILD / "qutav.exe", "settings",
                     windows_path(self.folder / "Game" / "Game.qud.json"), "--version", "26.0",
                     "--language", code, "--transcript", windows_path(self.transcript))
        self.assertEqual(result.returncode, 0, result.stdout + result.stderr)
        lines = self.transcript.read_text(encoding="utf-8").splitlines()
        return [json.loads(line) for line in lines]

    def test_the_settings_sheet_has_its_titles_and_labels_in_the_language_of_the_host(self):
        for code, texts in TEXTS.items():
            with self.subTest(language=code):
                sheet, *events = self.events_of(code)

                page = next(event for event in events if event.get("class") == "CDigitalSigDlg")
                captions = {control["label"]: control.get("caption")
                            for control in page["controls"]}
                self.assertEqual(sheet["title"], texts.sheet)
                self.assertEqual(page["title"], texts.page)
                self.assertEqual(captions["Certificate:"], texts.certificate)

    def test_a_code_that_no_row_has_gives_english(self):
        self.assertEqual(self.events_of("de_de")[0]["title"], "TAV for Android Settings")


if __name__ == "__main__":
    unittest.main()
