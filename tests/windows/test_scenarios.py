"""Under Wine each scenario of the settings sheet has the same end with real windows as without, and
what the transcript tells on the way is the same."""

import dataclasses
import json
import os
import shutil
import struct
import sys
import unittest

from product import (BUILD, PASSWORD, TESTS, install_adb, install_java, install_taskkill, make_certificate,
                     run, temporary_folder, windows_path)

sys.path.insert(0, str(TESTS.parent / "scenarios"))
import scenario as scenarios  # pylint: disable=wrong-import-position

KEY = r"HKEY_CURRENT_USER\Software\Zenvoka"
SETTINGS = rf"[{KEY}\Quorl "
PNG = b"\x89PNG\r\n\x1a\n"


def settings_in(export):
    """Values of an exported key by name, those of a list by list and name."""
    values = {}
    prefix = ""
    for line in export.splitlines():
        if line.startswith(SETTINGS):
            prefix = line.removeprefix(SETTINGS).strip("\\]")
        elif line.startswith('"'):
            name, text = (json.loads(part) for part in line.split("=", 1))
            values[f"{prefix}/{name}".lstrip("/")] = text
    return values


class Scenarios(unittest.TestCase):
    maxDiff = None

    @classmethod
    def setUpClass(cls):
        cls.shared = temporary_folder(cls.addClassCleanup, "qutav-scenarios-")
        install_java(cls.addClassCleanup)
        install_adb(cls.addClassCleanup)
        install_taskkill(cls.addClassCleanup)
        cls.keystore = cls.shared / "sample.p12"
        make_certificate(cls.keystore)
        cls.take_registry()  # what others have left

    @classmethod
    def take_registry(cls):
        """The values that a run has left; the next one finds none."""
        export = cls.shared / "registry.reg"
        export.unlink(missing_ok=True)
        run("wine", "cmd", "/c", f"reg export {KEY} {windows_path(export)} & reg delete {KEY} /f")
        return settings_in(export.read_text(encoding="utf-16")) if export.exists() else {}

    def check_scenario(self, scenario):
        plain = self.outcome_of(scenario, {})
        windowed = self.outcome_of(scenario, {"QUTAV_FRONT_END": "windows"})

        self.assertEqual(len(windowed.events), len(plain.events))
        for with_window, without in zip(windowed.events, plain.events):
            self.assertEqual(with_window, without)
        self.assertEqual(dataclasses.replace(windowed, events=[]),
                         dataclasses.replace(plain, events=[]))

    def outcome_of(self, scenario, front_end):
        """Runs the scenario in a folder of the same name each time, and compares with its facts."""
        folder = self.shared / "case"
        shutil.rmtree(folder, ignore_errors=True)
        folder.mkdir()
        case = scenarios.Case(scenario, folder, windows_path(folder).replace("\\", "/"))
        case.prepare(self.keystore)
        picture = folder / "sheet.png"
        answers = case.answers()
        if front_end:
            self.ask_for_picture(answers, picture)
        self.run_script(case, answers, front_end)
        outcome = case.outcome(self.take_registry())
        with self.subTest(**front_end):
            scenarios.Facts(self, case, outcome).check()
            if front_end:
                self.assert_shows_a_window(picture)
        outcome.events = [event for event in outcome.events if event["event"] != "tick"]
        return outcome

    @staticmethod
    def ask_for_picture(answers, picture):
        """Only a window has a picture."""
        sheet = next(answer for answer in answers if answer["to"] == "sheet")
        sheet["steps"].insert(0, {"picture": windows_path(picture)})

    def run_script(self, case, answers, front_end):
        script = case.folder / "script.json"
        script.write_text(json.dumps({"answers": answers}), encoding="utf-8")
        address = f"file:///Z|{case.folder}/Game/Game"
        environment = dict(
            os.environ, SAMPLE_PASSWORD=PASSWORD, QUTAV_SCRIPT=windows_path(script),
            QUTAV_TRANSCRIPT=windows_path(case.transcript), QUTAV_TOOL_FOLDER=str(case.tool),
            QUTAV_HAND_OVER=str(TESTS / "hand_over.py"), QUTAV_JAVA=str(scenarios.STAND_IN_JAVA),
            **front_end)
        result = run("wine", BUILD / "qutav.exe", "evaluate", "--language", case.language,
                     windows_path(case.document),
                     f'OpenSettingDialog("{address}.qud.json", "{address}.qmv", "{case.level}")',
                     env=environment)
        self.assertEqual(result.returncode, 0, result.stdout + result.stderr)

    def assert_shows_a_window(self, picture):
        content = picture.read_bytes()
        self.assertEqual(content[:len(PNG)], PNG)
        width, height = struct.unpack(">II", content[16:24])
        self.assertTrue(300 < width < 1280 and 300 < height < 1024, (width, height))
        self.assertGreater(len(content), 3000, "nothing is in the picture")


scenarios.add_tests(Scenarios)

if __name__ == "__main__":
    unittest.main()
