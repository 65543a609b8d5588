"""A publish from end to end under Wine, with the machine's Java and the practice SDK."""

import json
import os
import pathlib
import shutil
import subprocess
import tempfile
import unittest

BUILD = pathlib.Path(os.environ["QUTAV_BUILD"])
TESTS = pathlib.Path(__file__).resolve().parent
SAMPLE = TESTS.parents[1] / "samples" / "Game"
PASSWORD = "practice-only"
PRODUCT = pathlib.Path(os.environ["WINEPREFIX"],
                       "drive_c/Program Files/Common Files/Zenvoka/Zenvoka Kestrow 2020")


def run(*command, **options):
    return subprocess.run([str(part) for part in command], capture_output=True, text=True,
                          check=False, stdin=subprocess.DEVNULL, timeout=240, **options)


def windows_path(path):
    return "Z:" + str(path).replace("/", "\\")


class Publish(unittest.TestCase):
    def setUp(self):
        self.folder = pathlib.Path(tempfile.mkdtemp(prefix="qutav windows Träume-"))
        self.addCleanup(shutil.rmtree, self.folder)
        self.game = self.folder / "Game"
        shutil.copytree(SAMPLE, self.game)
        bin_folder = PRODUCT / "jre" / "bin"
        bin_folder.mkdir(parents=True, exist_ok=True)
        shutil.copy(BUILD / "tests" / "windows" / "java.exe", bin_folder)
        self.addCleanup(shutil.rmtree, PRODUCT.parent)
        # The library looks for devices after a publish; this one finds none.
        adb = BUILD / "TAV26.0" / "lib" / "android" / "bin" / "adb.exe"
        adb.parent.mkdir(parents=True, exist_ok=True)
        shutil.copy(BUILD / "tests" / "windows" / "fake_tool.exe", adb)
        self.addCleanup(adb.unlink)
        self.keystore = self.folder / "sample.p12"
        made = run("java", "-jar", BUILD / "TAV26.0/lib/KOB.jar", "-certificate",
                   "-cn", "Sample Publisher", "-ou", "Games", "-o", "Sample Studio", "-c", "US",
                   "-validityPeriod", "25", "2048-RSA", self.keystore, PASSWORD)
        self.assertEqual(made.returncode, 0, made.stdout + made.stderr)

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


if __name__ == "__main__":
    unittest.main()
