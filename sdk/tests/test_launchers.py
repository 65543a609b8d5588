"""The practice debug launcher and the practice simulator controller, as the processes that they are.

They run under names of their own here: the library ends launchers by their name, and it may be doing
so in another test at the same time."""

import json
import os
import pathlib
import shutil
import signal
import subprocess
import tempfile
import unittest

BUILD = pathlib.Path(os.environ["QUTAV_BUILD"])
KIT = BUILD / "TAV26.0"
WEP = KIT / "bin" / "wep"
CONTROLLER = BUILD / "Common" / "Configuration" / "simulator" / "SimController"
NAMESPACE = "http://ns.zenvoka.example/tav/application/26.0"


class LauncherTest(unittest.TestCase):
    program = WEP

    def setUp(self):
        self.folder = pathlib.Path(tempfile.mkdtemp(prefix="qutav-launcher-"))
        self.addCleanup(shutil.rmtree, self.folder)
        self.copy = self.folder / "under-test"
        shutil.copy(self.program, self.copy)
        self.record = self.folder / "record.jsonl"
        self.environment = {"LC_ALL": "C", "TAV_LAUNCH_RECORD": str(self.record)}

    def start(self, *arguments):
        process = subprocess.Popen([self.copy, *arguments], text=True, env=self.environment,
                                   stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
                                   encoding="utf-8")
        self.addCleanup(process.stdout.close)
        self.addCleanup(process.wait)
        self.addCleanup(process.kill)
        return process

    def run_to_end(self, *arguments, code="0"):
        return subprocess.run([self.copy, *arguments], text=True, check=False, timeout=60,
                              env={**self.environment, "TAV_LAUNCH_EXIT": code},
                              stdin=subprocess.DEVNULL, capture_output=True, encoding="utf-8")

    def records(self):
        text = self.record.read_text(encoding="utf-8")
        self.assertTrue(text.endswith("\n"))
        return [json.loads(line) for line in text.splitlines()]

    def assert_refused(self, said, code, reason):
        self.assertEqual((said.returncode, said.stdout), (code, ""))
        self.assertIn(reason, said.stderr)
        self.assertIn(reason, self.records()[-1]["error"])


class WepTest(LauncherTest):
    def setUp(self):
        super().setUp()
        self.movie = self.folder / "Über uns.qmv"
        self.movie.write_bytes(b"QMV\x1a")
        self.descriptor = self.folder / "Über uns-app.xml"
        self.describe("%C3%9Cber%20uns.qmv")

    def describe(self, content, head="", app_id="com.example.game"):
        self.descriptor.write_text(
            f'<?xml version="1.0" encoding="utf-8"?>{head}<application xmlns="{NAMESPACE}">'
            f"<id>{app_id}</id><name>Über uns</name>"
            f"<initialWindow><content>{content}</content></initialWindow></application>",
            encoding="utf-8")

    def test_it_tells_and_records_what_it_was_given_and_stays_until_it_is_killed(self):
        process = self.start(self.descriptor)
        told = dict(process.stdout.readline().rstrip("\n").split(": ", 1) for _ in range(8))
        self.assertEqual(told["descriptor"], str(self.descriptor))
        self.assertEqual(told["content"], str(self.movie))
        self.assertIsNone(process.poll())
        process.kill()
        self.assertEqual(process.wait(), -signal.SIGKILL)
        self.assertEqual(self.records(), [{
            "program": "wep", "process": process.pid, "arguments": [str(self.descriptor)],
            "descriptor": str(self.descriptor), "id": "com.example.game", "name": "Über uns",
            "content": str(self.movie), "debug": False}])

    def test_it_ends_when_it_is_asked_to(self):
        process = self.start(self.descriptor)
        process.stdout.readline()
        process.terminate()
        self.assertEqual(process.wait(), -signal.SIGTERM)

    def test_it_ends_at_once_with_the_code_that_it_is_told(self):
        self.assertEqual(self.run_to_end(self.descriptor, code="7").returncode, 7)
        self.assertEqual(self.run_to_end(self.descriptor).returncode, 0)
        self.assertEqual(len(self.records()), 2)

    def test_it_takes_all_options_and_either_slash(self):
        runtime = KIT / "runtimes" / "tav" / "win"
        said = self.run_to_end(
            "-debug", "-runtime", str(runtime).replace("/", "\\"),
            str(self.descriptor).replace("/", "\\"), "-profile", "extendedMobileDevice",
            "-extdir", self.folder, "-screensize", "480x800:480x800", "-Xsimulation", "7836")
        self.assertEqual((said.returncode, said.stderr), (0, ""))
        record, = self.records()
        self.assertEqual(
            {name: record[name] for name in ("descriptor", "debug", "runtime", "profile",
                                             "extensions", "screenSize", "simulatorPort")},
            {"descriptor": str(self.descriptor), "debug": True, "runtime": str(runtime),
             "profile": "extendedMobileDevice", "extensions": str(self.folder),
             "screenSize": "480x800:480x800", "simulatorPort": "7836"})

    def test_without_a_record_it_only_tells(self):
        del self.environment["TAV_LAUNCH_RECORD"]
        self.assertIn("id: com.example.game\n", self.run_to_end(self.descriptor).stdout)
        self.assertFalse(self.record.exists())

    def test_a_descriptor_that_is_missing_or_not_well_formed_is_refused(self):
        self.assert_refused(self.run_to_end(self.folder / "none.xml"), 1, "cannot be opened")
        self.descriptor.write_text("<application><id></application>", encoding="utf-8")
        self.assert_refused(self.run_to_end(self.descriptor), 1, "not well formed")
        self.descriptor.write_text("", encoding="utf-8")
        self.assert_refused(self.run_to_end(self.descriptor), 1, "not well formed")

    def test_content_that_is_not_named_or_not_there_is_refused(self):
        self.describe("")
        self.assert_refused(self.run_to_end(self.descriptor), 1, "names no content")
        self.describe("Other.qmv")
        self.assert_refused(self.run_to_end(self.descriptor), 1,
                            f"the content is missing: {self.folder}/Other.qmv")

    def test_a_descriptor_cannot_read_other_files_or_grow_without_end(self):
        secret = self.folder / "secret"
        secret.write_text("secret", encoding="utf-8")
        entity = f'<!ENTITY e SYSTEM "{secret.as_uri()}">'
        self.describe("Über uns.qmv", f"<!DOCTYPE a [{entity}]>", "&e;")
        self.assertNotIn("id: secret", self.run_to_end(self.descriptor).stdout)
        bomb = "<!ENTITY a0 'aaaaaaaaaa'>" + "".join(
            f"<!ENTITY a{n} '{f'&a{n - 1};' * 10}'>" for n in range(1, 9))
        self.describe("Über uns.qmv", f"<!DOCTYPE a [{bomb}]>", "&a8;")
        self.assertEqual(self.run_to_end(self.descriptor).returncode, 1)

    def test_a_folder_that_is_missing_is_refused(self):
        self.assert_refused(self.run_to_end(self.descriptor, "-extdir", self.folder / "none"), 1,
                            "the folder behind -extdir is missing")

    def test_a_wrong_command_line_is_refused(self):
        self.assert_refused(self.run_to_end(), 2, "one descriptor is needed")
        self.assert_refused(self.run_to_end(self.descriptor, self.descriptor), 2,
                            "one descriptor is needed")
        self.assert_refused(self.run_to_end(self.descriptor, "-fast"), 2, "unknown option -fast")
        self.assert_refused(self.run_to_end(self.descriptor, "-profile"), 2,
                            "a value is missing behind -profile")


class SimControllerTest(LauncherTest):
    program = CONTROLLER

    def test_it_records_what_it_was_given_and_stays_until_it_is_killed(self):
        arguments = ["-once", "-lang", "en_US", "-port", "7836"]
        process = self.start(*arguments)
        self.assertEqual(process.stdout.readline(), "program: SimController\n")
        for _ in range(5):
            process.stdout.readline()
        self.assertIsNone(process.poll())
        process.kill()
        self.assertEqual(process.wait(), -signal.SIGKILL)
        self.assertEqual(self.records(), [{
            "program": "SimController", "process": process.pid, "arguments": arguments,
            "once": True, "language": "en_US", "port": "7836"}])

    def test_a_wrong_command_line_is_refused(self):
        self.assert_refused(self.run_to_end("-once", "-lang", "en_US"), 2, "-port is missing")
        self.assert_refused(self.run_to_end("-lang", "en_US", "-port", "1", "more"), 2,
                            "unknown operand more")


if __name__ == "__main__":
    unittest.main()
