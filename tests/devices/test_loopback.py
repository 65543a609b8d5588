"""The loopback device as the real adb sees it."""

import socket
import subprocess
import sys
import tempfile
import threading
import unittest

from adb_farm import DEVICE, Farm
from farm_test import APPLICATION, COMPONENT, FarmTest


class ListingTest(FarmTest):
    def test_a_device_is_listed_with_its_model_and_a_serial_without_a_colon(self):
        device = self.farm.add("one", model="Practice Phone")
        line, = [line for line in self.farm.adb("devices", "-l").stdout.splitlines()
                 if line.startswith("emulator-")]
        serial, state, *details = line.split()
        self.assertEqual((serial, state), (device.serial, "device"))
        self.assertNotIn(":", serial)
        self.assertIn("model:Practice_Phone", details)
        self.assertEqual(self.on(device, "shell", "getprop", "ro.product.model").stdout,
                         "Practice Phone\n")

    def test_a_device_that_never_answers_is_offline(self):
        device = self.farm.add("one", state="offline")
        self.assertEqual(self.farm.states(), {device.serial: "offline"})
        self.assertIn("device offline", self.on(device, "shell", "echo", "x").stderr)

    def test_a_device_that_accepts_no_key_is_unauthorized(self):
        device = self.farm.add("one", state="unauthorized")
        self.assertEqual(self.farm.states(), {device.serial: "unauthorized"})
        self.assertIn("device unauthorized", self.on(device, "shell", "echo", "x").stderr)


class ShellTest(FarmTest):
    def test_output_errors_and_exit_codes_arrive_apart(self):
        device = self.farm.add("one")
        said = self.on(device, "shell", "echo", "two words")
        self.assertEqual((said.stdout, said.stderr, said.returncode), ("two words\n", "", 0))
        self.assertEqual(self.on(device, "shell", "exit", "7").returncode, 7)
        unknown = self.on(device, "shell", "frobnicate")
        self.assertEqual((unknown.stdout, unknown.stderr, unknown.returncode),
                         ("", "/system/bin/sh: frobnicate: not found\n", 127))

    def test_the_shell_of_an_old_device_has_no_exit_code(self):
        device = self.farm.add("one", old=True)
        said = self.on(device, "shell", "frobnicate")
        self.assertEqual((said.stdout, said.returncode),
                         ("/system/bin/sh: frobnicate: not found\n", 0))

    def test_a_file_comes_back_as_it_was_pushed(self):
        device = self.farm.add("one")
        back = self.shared / "back"
        self.assertEqual(self.on(device, "push", self.package, "/data/local/tmp/x").returncode, 0)
        self.assertEqual(self.on(device, "pull", "/data/local/tmp/x", back).returncode, 0)
        self.assertEqual(back.read_bytes(), self.package.read_bytes())
        self.assertEqual(device.events("push")[0]["sha256"], self.package_hash)


class InstallTest(FarmTest):
    def test_a_streamed_package_arrives_as_it_is(self):
        device = self.farm.add("one")
        said = self.on(device, "install", "-r", self.package)
        self.assertEqual((said.stdout, said.returncode),
                         ("Performing Streamed Install\nSuccess\n", 0))
        self.assert_received(device, "streamed")
        self.assertEqual(self.on(device, "shell", "pm", "list", "packages").stdout,
                         f"package:{APPLICATION}\n")

    def test_an_old_device_gets_it_pushed(self):
        device = self.farm.add("one", old=True)
        said = self.on(device, "install", self.package)
        self.assertIn("Success", said.stdout)
        self.assert_received(device, "pushed")

    def test_a_refusal_is_told_and_leaves_nothing(self):
        device = self.farm.add("one", refuse_install="INSTALL_FAILED_OLDER_SDK")
        said = self.on(device, "install", self.package)
        self.assertEqual(said.returncode, 1)
        self.assertIn("Failure [INSTALL_FAILED_OLDER_SDK]", said.stderr)
        self.assertEqual(device.installed(), [])
        self.assertEqual(device.events("install")[0]["sha256"], self.package_hash)

    def test_what_is_no_package_is_refused(self):
        device = self.farm.add("one")
        file = self.shared / "text.apk"
        file.write_text("no package", encoding="utf-8")
        self.assertIn("Failure [INSTALL_PARSE_FAILED_NOT_APK]",
                      self.on(device, "install", file).stderr)

    def test_uninstalling_removes_what_is_there_and_fails_for_what_is_not(self):
        device = self.farm.add("one")
        self.on(device, "install", self.package)
        said = self.on(device, "uninstall", APPLICATION)
        self.assertEqual((said.stdout, said.returncode), ("Success\n", 0))
        self.assertEqual(device.installed(), [])
        again = self.on(device, "uninstall", APPLICATION)
        self.assertEqual(again.returncode, 1)
        self.assertIn("Failure [", again.stdout + again.stderr)
        self.assertEqual([event["answer"] for event in device.events("uninstall")],
                         ["Success", "Failure [DELETE_FAILED_INTERNAL_ERROR]"])

    def test_an_activity_starts_when_its_package_is_there(self):
        device = self.farm.add("one")
        absent = self.on(device, "shell", "am", "start", "-n", COMPONENT)
        self.assertEqual(absent.returncode, 1)
        self.assertIn("does not exist", absent.stderr)
        self.on(device, "install", self.package)
        self.assertEqual(self.on(device, "shell", "am", "start", "-n", COMPONENT).returncode, 0)
        other = self.on(device, "shell", "am", "start", "-n", f"{APPLICATION}/.Other")
        self.assertEqual(other.returncode, 1)
        self.assertEqual([event["started"] for event in device.events("launch")],
                         [False, True, False])


class PlugTest(FarmTest):
    def test_a_device_pulled_out_in_the_middle_of_an_install_is_gone(self):
        device = self.farm.add("one", leave_at="install")
        said = self.on(device, "install", self.package)
        self.assertEqual(said.returncode, 1)
        device.wait_for_state(None)
        self.assertEqual([event["event"] for event in device.events()], ["left"])
        half, = (device.folder / "incoming").iterdir()
        self.assertEqual(half.stat().st_size, self.package.stat().st_size // 2)
        self.assertEqual(device.installed(), [])

    def test_a_device_that_is_plugged_in_again_has_its_serial_and_its_applications(self):
        device = self.farm.add("one")
        self.on(device, "install", self.package)
        serial = device.serial
        device.pull_out()
        self.assertEqual(self.farm.states(), {})
        device.plug_in()
        self.assertEqual(self.farm.states(), {serial: "device"})
        self.assertEqual(self.on(device, "shell", "pm", "list", "packages").stdout,
                         f"package:{APPLICATION}\n")

    def test_a_device_that_holds_goes_on_when_it_is_released(self):
        device = self.farm.add("one", hold_at="install")
        with subprocess.Popen(["adb", "-s", device.serial, "install", self.package],
                              env={"PATH": "/usr/bin:/bin", **self.farm.variables},
                              stdout=subprocess.DEVNULL) as installing:
            device.wait_for("held")
            self.assertIsNone(installing.poll())
            self.assertEqual(device.installed(), [])
            device.release()
            self.assertEqual(installing.wait(), 0)
        self.assert_received(device, "streamed")

    def test_three_devices_are_served_side_by_side(self):
        devices = [self.farm.add(name) for name in ("one", "two", "three")]
        self.assertEqual(self.farm.states(), {device.serial: "device" for device in devices})
        threads = [threading.Thread(target=self.on, args=(device, "install", self.package))
                   for device in devices]
        for thread in threads:
            thread.start()
        for thread in threads:
            thread.join()
        for device in devices:
            self.assert_received(device, "streamed")


class TunnelTest(FarmTest):
    def test_a_forward_reaches_the_device(self):
        device = self.farm.add("one")
        port = int(self.on(device, "forward", "tcp:0", "tcp:7936").stdout)
        self.assertEqual(self.farm.forwards(), [f"{device.serial} tcp:{port} tcp:7936"])
        with socket.create_connection(("127.0.0.1", port), timeout=30) as connection:
            connection.sendall(b"there and back")
            self.assertEqual(connection.recv(100), b"there and back")
        self.assertEqual(device.events("tunnel"), [{"event": "tunnel", "port": 7936}])

    def test_a_reverse_is_asked_of_the_device(self):
        device = self.farm.add("one")
        self.assertEqual(self.on(device, "reverse", "tcp:7000", "tcp:7001").returncode, 0)
        self.assertEqual(device.events("reverse")[0]["request"], "forward:tcp:7000;tcp:7001")


class FarmsEndTest(unittest.TestCase):
    def test_nothing_is_left_of_a_farm(self):
        with tempfile.TemporaryDirectory(prefix="qutav-devices-") as folder:
            with Farm(folder) as farm:
                device = farm.add("one")
                forwarded = int(farm.adb("-s", device.serial, "forward", "tcp:0", "tcp:1").stdout)
                self.assertEqual(len(farm.server_processes()), 1)
            self.assertEqual(farm.server_processes(), [])
            for port in (farm.port, device.port, forwarded):
                with socket.socket() as probe:
                    self.assertNotEqual(probe.connect_ex(("127.0.0.1", port)), 0)

    def test_two_farms_do_not_see_each_other(self):
        with tempfile.TemporaryDirectory(prefix="qutav-devices-") as one, \
                tempfile.TemporaryDirectory(prefix="qutav-devices-") as two:
            with Farm(one) as first, Farm(two) as second:
                device = first.add("one")
                self.assertEqual(second.states(), {})
                self.assertEqual(first.states(), {device.serial: "device"})

    def test_a_device_says_where_it_listens(self):
        with tempfile.TemporaryDirectory(prefix="qutav-devices-") as folder:
            with subprocess.Popen([sys.executable, DEVICE, "--record", folder], text=True,
                                  stdout=subprocess.PIPE) as device:
                said = device.stdout.readline()
                device.terminate()
            self.assertRegex(said, r"^listening on \d+\n$")


if __name__ == "__main__":
    unittest.main()
