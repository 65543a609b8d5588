"""What is missing or wrong is told, makes no package, and costs the author no file."""

import unittest

from harness import PublishTest, hashes


class MissingThings(PublishTest):
    def assert_nothing_lost(self, before):
        after = hashes(self.game)
        for name, digest in before.items():
            if name != "Game-app.xml":
                self.assertEqual(after.get(name), digest, name)

    def test_a_missing_certificate_file(self):
        self.keystore = self.folder / "gone.p12"

        result = self.publish_with_answers()

        self.assertEqual(result.returncode, 1, result.stderr)
        self.assertEqual(self.messages(), ["The specified certificate does not exist."])

    def test_a_missing_certificate_file_is_told_before_anything_runs(self):
        result = self.publish(certificate=self.folder / "gone.p12")

        self.assertEqual(result.returncode, 2)
        self.assertIn("the certificate is missing or cannot be read", result.stderr)
        self.assertFalse(self.transcript.exists())

    def test_a_wrong_password(self):
        self.environment["SAMPLE_PASSWORD"] = "wrong-password"

        self.assert_refused(
            self.publish(),
            "Error creating files.\n\nCould not access the digital certificate.\n"
            "Could not load keystore file (password may be incorrect)")

    def test_no_certificate_and_no_answer_opens_the_sheet_and_ends(self):
        script = self.folder / "empty.json"
        script.write_text('{"answers": []}', encoding="utf-8")

        result = self.publish("--script", script)

        self.assert_refused(result)
        self.assertEqual(self.events()[0]["event"], "sheet")

    def test_a_missing_movie_without_an_export(self):
        self.set_data("com.tav.pelund.publishtype", "release")
        self.set_registry_value("DigitalSign", "prepare")
        script = self.folder / "empty.json"
        script.write_text('{"answers": []}', encoding="utf-8")

        result = self.publish("--no-export", "--script", script)

        self.assert_refused(
            result, "The QMV file does not exist. Use the Test Movie or Export Movie command first "
            "to create the QMV file before publishing the TAV file.")

    def test_a_missing_icon(self):
        (self.game / "icons" / "icon48x48.png").unlink()

        self.assert_refused(self.publish(), "Icon file is missing.\nicons/icon48x48.png")

    def test_an_icon_of_the_wrong_size(self):
        icons = self.game / "icons"
        (icons / "icon48x48.png").write_bytes((icons / "icon36x36.png").read_bytes())

        self.assert_refused(
            self.publish(), "Error creating files.\n\n"
            "One of the specified icons does not have the correct dimensions.")

    def test_a_missing_included_file_is_asked_about_and_declined(self):
        (self.game / "level data" / "first level.json").unlink()

        self.assert_refused(
            self.publish(),
            "The following file(s) and/or folder(s) do not exist.\n"
            "level data/first level.json\n"
            "The missing file(s) will not be included. Do you want to continue?")

    def test_a_missing_included_file_is_left_out_when_the_author_agrees(self):
        (self.game / "level data" / "first level.json").unlink()

        result = self.publish_with_answers(
            {"to": "message", "contains": "missing file", "press": "OK"})

        self.assert_published(result, self.game / "Game.apk")

    def test_java_that_is_not_there_ends_the_host_as_it_must(self):
        before = hashes(self.game)
        self.install_java(self.folder / "no-java-here")

        result = self.publish()

        self.assertNotEqual(result.returncode, 0)
        self.assertEqual(self.messages(),
                         ["CreateWinProcess failed with error 2: No such file or directory"])
        self.assert_nothing_lost(before)

    def test_a_destination_folder_that_does_not_exist(self):
        self.set_data("com.tav.moresh.tavdest", str(self.folder / "gone" / "Game.apk"))

        self.assert_refused(self.publish(), "Error creating files.\n\n"
                            "Could not write to the destination directory.")

    def test_a_destination_that_cannot_be_written(self):
        (self.game / "Game.apk").mkdir()
        (self.game / "Game.apk" / "kept").write_text("x", encoding="utf-8")

        result = self.publish()

        self.assertEqual(result.returncode, 1, result.stderr)
        self.assertIn("Could not write to the destination directory.", self.messages()[0])
        self.assertTrue((self.game / "Game.apk" / "kept").exists())


class Descriptors(PublishTest):
    def put(self, text):
        (self.game / "Game-app.xml").write_text(text, encoding="utf-8")

    def text(self):
        return (self.game / "Game-app.xml").read_text(encoding="utf-8")

    def test_a_malformed_descriptor_stays_as_it_is(self):
        self.put(self.text()[:200])
        before = hashes(self.game)["Game-app.xml"]

        self.assert_refused(self.publish(), "Application descriptor file cannot be parsed.",
                            "Application descriptor file cannot be parsed.")

        self.assertEqual(hashes(self.game)["Game-app.xml"], before)

    def test_a_descriptor_that_expands_without_end_is_refused(self):
        entities = "".join(f'<!ENTITY e{i} "{f"&e{i - 1};" * 10}">' for i in range(1, 12))
        self.put(f'<!DOCTYPE application [<!ENTITY e0 "lol">{entities}]>'
                 '<application xmlns="http://ns.zenvoka.example/tav/application/26.0">'
                 "<id>&e11;</id></application>")

        result = self.publish()

        self.assertEqual(result.returncode, 1)
        self.assertEqual(set(self.messages()), {"Application descriptor file cannot be parsed."})

    def test_a_huge_descriptor_is_published(self):
        padding = "<!-- " + "x" * 5_000_000 + " -->"
        self.put(self.text().replace("</application>", padding + "</application>"))

        self.assert_published(self.publish(), self.game / "Game.apk")

    def test_a_descriptor_without_a_name(self):
        head, rest = self.text().split("<name>", 1)
        self.put(head + rest.split("</name>", 1)[1])

        self.assert_refused(self.publish(), "The application name is missing.")

    def test_an_invalid_id_is_told_by_its_element(self):
        self.put(self.text().replace("com.example.game", "com.example-game!"))

        self.assert_refused(
            self.publish(), "Error creating files.\n\nAn attribute or element contains an invalid "
            "value in the application descriptor file.\n(application.id)")

    def test_an_unknown_element_is_told(self):
        self.put(self.text().replace("</application>", "<surprise/></application>"))

        self.publish()

        self.assertIn("Unexpected or unknown element or attribute", self.messages()[0])
        self.assertIn("surprise", self.messages()[0])


if __name__ == "__main__":
    unittest.main()
