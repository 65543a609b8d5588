"""The practice SDK's device commands over the real adb and loopback devices."""

import os
import unittest

from farm_test import APPLICATION, COMPONENT, KIT, FarmTest, tool


class ToolTest(FarmTest):
    def run_tool(self, *arguments):
        environment = {**os.environ, **self.farm.variables, "TMPDIR": str(self.shared)}
        return tool(*arguments, env=environment)

    def install(self, serial):
        return self.run_tool("-installApp", "-platform", "android", "-device", serial,
                             "-package", self.package)

    def uninstall(self, serial):
        return self.run_tool("-uninstallApp", "-platform", "android", "-device", serial,
                             "-appid", APPLICATION)

    def launch(self, serial):
        return self.run_tool("-launchApp", "-platform", "android", "-device", serial,
                             "-appid", APPLICATION)

    def assert_silent_success(self, said):
        self.assertEqual((said.stdout, said.stderr, said.returncode), ("", "", 0))

    def test_the_kits_adb_lists_what_the_tool_lists(self):
        one = self.farm.add("one")
        two = self.farm.add("two", state="unauthorized")
        said = self.run_tool("-devices", "-platform", "android")
        self.assertEqual((said.stderr, said.returncode), ("", 0))
        heading, *lines = said.stdout.splitlines()
        self.assertEqual(heading, "List of devices attached")
        self.assertCountEqual(lines, [f"{one.serial}\tdevice", f"{two.serial}\tunauthorized"])
        self.assertTrue(os.access(KIT / "lib" / "android" / "bin" / "adb", os.X_OK))

    def test_the_listing_starts_a_server_where_none_runs(self):
        self.farm.adb("kill-server")
        said = self.run_tool("-devices", "-platform", "android")
        self.assertEqual((said.stdout, said.stderr, said.returncode),
                         ("List of devices attached\n", "", 0))

    def test_an_application_is_installed_launched_and_removed(self):
        for name, old, way in (("new", False, "streamed"), ("old", True, "pushed")):
            with self.subTest(name):
                device = self.farm.add(name, old=old)
                self.assert_silent_success(self.install(device.serial))
                self.assert_received(device, way)
                self.assert_silent_success(self.launch(device.serial))
                self.assertEqual(device.events("launch"),
                                 [{"event": "launch", "component": COMPONENT, "started": True}])
                self.assert_silent_success(self.uninstall(device.serial))
                self.assertEqual(device.installed(), [])

    def test_code_14_when_the_device_refuses(self):
        for name, old in (("new", False), ("old", True)):
            with self.subTest(name):
                device = self.farm.add(name, old=old, refuse_install="INSTALL_FAILED_OLDER_SDK")
                said = self.install(device.serial)
                self.assertIn("Failure [INSTALL_FAILED_OLDER_SDK]", said.stderr)
                self.assertEqual(said.returncode, 14)
                said = self.uninstall(device.serial)
                self.assertIn("Failure [DELETE_FAILED_INTERNAL_ERROR]", said.stderr)
                self.assertEqual(said.returncode, 14)
                said = self.launch(device.serial)
                self.assertIn("does not exist", said.stderr)
                self.assertEqual(said.returncode, 14)

    def test_code_15_when_there_is_no_such_device(self):
        for command in (self.install, self.uninstall, self.launch):
            said = command("emulator-1")
            self.assertEqual(said.stderr, "the device emulator-1 cannot be reached: "
                                          "error: device 'emulator-1' not found\n")
            self.assertEqual(said.returncode, 15)

    def test_code_15_when_the_device_does_not_let_adb_in(self):
        for state in ("offline", "unauthorized"):
            with self.subTest(state):
                device = self.farm.add(state, state=state)
                self.assertEqual(self.install(device.serial).returncode, 15)

    def test_code_12_when_the_device_is_pulled_out_in_the_middle(self):
        cases = (("install", self.install), ("uninstall", self.uninstall), ("launch", self.launch))
        for old in (False, True):
            for step, command in cases:
                with self.subTest(step=step, old=old):
                    device = self.farm.add(f"{step}-{old}", leave_at=step, old=old)
                    said = command(device.serial)
                    self.assertIn(f"the device {device.serial} went away", said.stderr)
                    self.assertEqual(said.returncode, 12)


if __name__ == "__main__":
    unittest.main()
