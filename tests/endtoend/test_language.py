"""The library speaks the language whose code the host gives, in every row of its table."""

import pathlib
import sys
import unittest

from harness import BUILD, PublishTest, run

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[1] / "languages"))
from shown_texts import TEXTS  # pylint: disable=wrong-import-position


class Language(PublishTest):
    def events_of(self, code, command, *options):
        """What one run of the command shows to a host of this language."""
        self.transcript.unlink(missing_ok=True)
        self.result = run(BUILD / "qutav", command, self.document, "--version", "26.0",
                          "--language", code, "--transcript", self.transcript, *options,
                          env=self.environment, timeout=120)
        return self.events()

    def empty_script(self):
        script = self.folder / "empty.json"
        script.write_text('{"answers": []}', encoding="utf-8")
        return script

    def test_a_refused_publish_tells_why_in_the_language_of_the_host(self):
        self.set_data("com.tav.pelund.publishtype", "release")
        self.set_registry_value("DigitalSign", "prepare")
        script = self.empty_script()
        for code, texts in TEXTS.items():
            with self.subTest(language=code):
                events = self.events_of(code, "publish", "--no-export", "--script", script)

                self.assertEqual(self.result.returncode, 1, self.result.stderr)
                self.assertEqual([event["text"] for event in events if event["event"] == "message"],
                                 [texts.no_movie])

    def test_a_publish_that_needs_a_certificate_opens_the_sheet_in_the_language_of_the_host(self):
        script = self.empty_script()
        for code, texts in TEXTS.items():
            with self.subTest(language=code):
                sheet, page, *_ = self.events_of(code, "publish", "--script", script)

                self.assertEqual(self.result.returncode, 1, self.result.stderr)
                self.assertEqual((sheet["event"], sheet["title"]), ("sheet", texts.sheet))
                self.assertEqual((page["event"], page["title"]), ("page", texts.page))

    def test_the_settings_sheet_has_its_titles_and_labels_in_the_language_of_the_host(self):
        for code, texts in TEXTS.items():
            with self.subTest(language=code):
                events = self.events_of(code, "settings")

                self.assertEqual(self.result.returncode, 0, self.result.stderr)
                self.assertEqual(events[0]["title"], texts.sheet)
                page = next(event for event in events if event.get("class") == "CDigitalSigDlg")
                captions = {control["label"]: control.get("caption")
                            for control in page["controls"]}
                self.assertEqual(page["title"], texts.page)
                self.assertEqual(captions["Certificate:"], texts.certificate)

    def test_a_code_that_no_row_has_gives_english(self):
        for code in ("en_GB", "de_de", "fr"):
            with self.subTest(language=code):
                self.assertEqual(self.events_of(code, "settings")[0]["title"],
                                 "TAV for Android Settings")


if __name__ == "__main__":
    unittest.main()
