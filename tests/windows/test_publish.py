"""A publish from end to end under Wine, with the machine's Java and the practice SDK."""

import json
import os
import shutil
import unittest

from product import (BUILD, JAVA, PASSWORD, SAMPLE, TESTS, install_adb, install_java,
                     make_certificate, run, temporary_folder, windows_path)


def contents(folder):
    """The bytes of every file below a folder, by its relative path; but the descriptor, which every
    publish saves."""
    return {path.relative_to(folder).as_posix(): path.read_bytes()
            for path in folder.rglob("*") if path.is_file() and path.name != "Game-app.xml"}


class Publish(unittest.TestCase):
    def setUp(self):
        self.folder = temporary_folder(self.addCleanup, "qutav windows Träume-")
        self.game = self.folder / "Game"
        shutil.copytree(SAMPLE, self.game)
        install_java(self.addCleanup)
        install_adb(self.addCleanup)
        self.keystore = self.folder / "sample.p12"
        make_certificate(self.keystore)

    def publish(self):
        environment = dict(os.environ, STORE_PASSWORD=PASSWORD,
                           QUTAV_HAND_OVER=str(TESTS / "hand_over.py"))
        return run("wine", BUILD / "qutav.exe", "publish",
                   windows_path(self.game / "Game.qud.json"), "--version", "26.0",
                   "--transcript", windows_path(self.folder / "transcript.jsonl"),
                   "--certificate", windows_path(self.keystore),
                   "--password-env", "STORE_PASSWORD", env=environment)

    def messages(self):
        lines = (self.folder / "transcript.jsonl").read_text(encoding="utf-8").splitlines()
        events = [json.loads(line) for line in lines]
        return [event["text"] for event in events if event["event"] == "message"]

    def test_the_sample_becomes_a_signed_package(self):
        result = self.publish()

        self.assertEqual(result.returncode, 0, result.stdout + result.stderr)
        self.assertEqual(self.messages(), ["APK file has been created."])
        package = self.game / "Game.apk"
        verified = run("apksigner", "verify", "--min-sdk-version", "21", package)
        self.assertEqual(verified.returncode, 0, verified.stdout + verified.stderr)
        listing = run("aapt", "list", package).stdout
        self.assertIn("assets/Game.qmv", listing)
        self.assertIn("assets/sounds/Über uns.txt", listing)

    def test_a_tool_that_refuses_is_told_and_nothing_is_made(self):
        (self.game / "icons" / "icon48x48.png").write_bytes(b"no picture")

        result = self.publish()

        self.assertEqual(result.returncode, 1, result.stdout + result.stderr)
        self.assertEqual(len(self.messages()), 1, self.messages())
        self.assertFalse((self.game / "Game.apk").exists())

    def test_java_that_is_not_there_ends_the_host_as_it_must(self):
        JAVA.unlink()
        before = contents(self.game)

        result = self.publish()

        self.assertEqual(result.returncode, 1, result.stdout + result.stderr)
        self.assertIn("The library ended its host with code 2.", result.stderr)
        self.assertEqual(len(self.messages()), 1, self.messages())
        self.assertRegex(self.messages()[0], r"^CreateWinProcess failed with error 2: .")
        self.assertLessEqual(before.items(), contents(self.game).items())
        self.assertFalse((self.game / "Game.apk").exists())


if __name__ == "__main__":
    unittest.main()
