"""Publishing a good document makes a package that Android's own tools accept."""

import hashlib
import json
import unittest
import zipfile

from harness import PASSWORD, SAMPLE, PublishTest, hashes, run


class GoodDocument(PublishTest):
    def test_the_sample_becomes_a_signed_package(self):
        result = self.publish()

        self.assert_published(result, self.game / "Game.apk")
        self.assertEqual(self.messages(), ["APK file has been created."])

    def test_the_package_says_what_the_descriptor_says(self):
        self.publish()

        badging = run("aapt", "dump", "badging", self.game / "Game.apk").stdout
        self.assertIn("name='com.example.game'", badging)
        self.assertIn("versionName='1.2.3'", badging)
        for permission in ("INTERNET", "CAMERA", "VIBRATE"):
            self.assertIn(f"uses-permission: name='android.permission.{permission}'", badging)
        self.assertIn("application-icon-160:", badging)

    def test_every_file_arrives_unchanged(self):
        self.publish()

        with zipfile.ZipFile(self.game / "Game.apk") as package:
            for name in ("Game.qmv", "level data/first level.json", "sounds/Über uns.txt",
                         "icons/icon48x48.png"):
                packaged = hashlib.sha256(package.read(f"assets/{name}")).hexdigest()
                self.assertEqual(packaged, hashes(self.game)[name], name)
            self.assertTrue(any(name.endswith("vibration.zux") for name in package.namelist()))

    def test_the_package_is_aligned(self):
        self.publish()

        self.assertEqual(run("zipalign", "-c", "4", self.game / "Game.apk").returncode, 0)

    def test_the_author_s_files_stay_as_they_were(self):
        before = hashes(self.game)

        self.publish()

        after = hashes(self.game)
        made = {"Game.apk", "Game.qmv"}
        self.assertEqual(set(after) - set(before), made)
        unchanged = set(before) - {"Game-app.xml"}
        self.assertEqual({name: after[name] for name in unchanged},
                         {name: before[name] for name in unchanged})

    def test_the_descriptor_names_the_native_extension(self):
        self.publish()

        descriptor = (self.game / "Game-app.xml").read_text(encoding="utf-8")
        self.assertIn("<extensionID>com.example.vibration</extensionID>", descriptor)

    def test_copies_of_the_extensions_are_removed(self):
        self.publish()

        self.assertFalse((self.folder / "Game_ZUX_Cache").exists())

    def test_the_password_stands_in_nothing_that_is_kept(self):
        result = self.publish()

        self.assertNotIn(PASSWORD, result.stdout + result.stderr)
        for path in self.folder.rglob("*"):
            if path.is_file() and "fake-java" not in path.parts:
                self.assertNotIn(PASSWORD.encode(), path.read_bytes(), path)

    def test_a_second_publish_replaces_the_package(self):
        self.publish()
        (self.game / "level data" / "first level.json").write_text("{}", encoding="utf-8")

        result = self.publish()

        self.assert_published(result, self.game / "Game.apk")
        with zipfile.ZipFile(self.game / "Game.apk") as package:
            self.assertEqual(package.read("assets/level data/first level.json"), b"{}")

    def test_a_document_without_a_descriptor_gets_one(self):
        (self.game / "Game-app.xml").unlink()

        result = self.publish()

        self.assert_published(result, self.game / "Game.apk")
        descriptor = (self.game / "Game-app.xml").read_text(encoding="utf-8-sig")
        self.assertIn("<id>Game</id>", descriptor)

    def test_an_older_descriptor_takes_on_the_namespace_of_the_sdk(self):
        path = self.game / "Game-app.xml"
        text = path.read_text(encoding="utf-8")
        path.write_text(text.replace("application/26.0", "application/3.7"), encoding="utf-8")

        result = self.publish()

        self.assert_published(result, self.game / "Game.apk")
        self.assertIn('xmlns="http://ns.zenvoka.example/tav/application/26.0"',
                      path.read_text(encoding="utf-8"))

    def test_a_milestone_descriptor_is_replaced(self):
        path = self.game / "Game-app.xml"
        text = path.read_text(encoding="utf-8")
        path.write_text(text.replace("application/26.0", "application/1.0.M5"), encoding="utf-8")

        result = self.publish()

        self.assert_published(result, self.game / "Game.apk")
        self.assertNotIn("com.example.game", path.read_text(encoding="utf-8-sig"))


class MovieNames(PublishTest):
    def publish_under(self, name):
        self.rename_movie(name)

        result = self.publish()

        self.assert_published(result, self.game / "Game.apk")
        with zipfile.ZipFile(self.game / "Game.apk") as package:
            self.assertIn(f"assets/{name}.qmv", package.namelist())

    def test_a_name_may_hold_blanks(self):
        self.publish_under("My first Game")

    def test_a_name_may_hold_umlauts(self):
        self.publish_under("Träume über Öl")

    def test_a_name_may_be_japanese(self):
        self.publish_under("夢の中 ゲーム")

    def test_japanese_in_the_plain_locale(self):
        self.environment["LC_ALL"] = "C"
        self.publish_under("夢")

    def test_the_folder_may_hold_blanks_and_umlauts(self):
        moved = self.folder / "Meine Spiele, größer"
        self.game.rename(moved)
        self.game, self.document = moved, moved / "Game.qud.json"

        self.assert_published(self.publish(), moved / "Game.apk")


class Languages(PublishTest):
    def test_the_host_s_language_is_spoken(self):
        self.publish("--language", "su_DO")

        self.assertEqual(self.messages(), ["[su] $_APK file has been created._#"])

    def test_an_unknown_language_gives_english(self):
        self.publish("--language", "en_GB")

        self.assertEqual(self.messages(), ["APK file has been created."])


class OtherDestinations(PublishTest):
    def test_an_absolute_destination_is_taken_as_it_is(self):
        (self.folder / "out").mkdir()
        self.set_data("com.tav.moresh.tavdest", str(self.folder / "out" / "Final.apk"))

        self.assert_published(self.publish(), self.folder / "out" / "Final.apk")

    def test_without_a_destination_the_application_s_name_serves(self):
        self.set_data("com.tav.moresh.tavdest", "")
        name = run("grep", "-oP", "(?<=<name>)[^<]+(?=</name>)", SAMPLE / "Game-app.xml").stdout

        result = self.publish()

        self.assert_published(result, self.game / f"{name.strip()}.apk")


class SavedSettings(PublishTest):
    def test_a_sheet_left_by_ok_after_a_change_is_kept_in_the_document(self):
        self.publish_with_answers(
            {"to": "sheet", "page": "General", "set": {" Intel x86 (32 bit)": True}, "press": "OK"})

        data = json.loads(self.document.read_text(encoding="utf-8"))["data"]
        self.assertEqual(data["com.tav.pelund.proctype"], "x86")
        self.assertNotIn("com.tav.moresh.certpwd", data)

    def test_a_plain_publish_leaves_the_document_alone(self):
        before = self.document.read_bytes()

        self.publish()

        self.assertEqual(self.document.read_bytes(), before)


if __name__ == "__main__":
    unittest.main()
