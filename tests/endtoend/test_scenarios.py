"""The scenarios of the settings sheet, without windows."""

import json
import pathlib
import sys
import unittest

from harness import SettingsTest

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[1] / "scenarios"))
import scenario as scenarios  # pylint: disable=wrong-import-position

KEY = "Software\\Zenvoka\\Quorl "


class Scenarios(SettingsTest):
    def check_scenario(self, scenario):
        case = scenarios.Case(scenario, self.folder, str(self.folder))
        case.prepare(self.keystore)
        self.environment["QUTAV_TOOL_FOLDER"] = str(case.tool)
        self.install_tool(f"exec '{scenarios.STAND_IN_JAVA}' \"$@\"\n")

        self.open_sheet(*case.answers(), level=case.level, language=case.language)

        outcome = case.outcome(self.registry())
        scenarios.Facts(self, case, outcome).check()

    def registry(self):
        """Values by name, those of a list by list and name."""
        file = self.folder / "config" / "qutav" / "registry.json"
        hive = json.loads(file.read_text(encoding="utf-8")) if file.exists() else {}
        values = {}
        for key, content in hive.items():
            prefix = key.removeprefix(KEY).lstrip("\\")
            values |= {f"{prefix}/{name}".lstrip("/"): text for name, text in content.items()}
        return values


scenarios.add_tests(Scenarios)

if __name__ == "__main__":
    unittest.main()
