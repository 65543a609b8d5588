"""Runs on one device, or on one after the other: real packages over the real adb, to devices that
listen on this machine."""

import hashlib
import json
import unittest
import zipfile

from harness import DeviceTest, run, wait_until

UNREACHABLE = "Unable to install the application. Ensure that the selected devices are connected."
NOT_CONNECTED = "Connection failure! Ensure that all selected devices are connected."
MADE = "APK file has been created."


def block(device, error):
    return f"Device Serial Number{device.serial} : {error}\n\n"


class OnDevice(DeviceTest):
    def line(self, command, *devices, options=None):
        """The command line for these devices, by default with the certificate."""
        if options is None:
            options = ("--certificate", self.keystore, "--password-env", "SAMPLE_PASSWORD")
        chosen = [option for device in devices for option in ("--device", device.serial)]
        return self.command(command, *chosen, *options)

    def on_device(self, command, *devices, options=None):
        return run(*self.line(command, *devices, options=options), env=self.environment,
                   timeout=120)

    def kinds(self):
        """The events of the transcript, without the ticks of its timers."""
        return [event["event"] for event in self.events() if event["event"] != "tick"]

    def test_a_test_packages_installs_and_starts(self):
        device = self.farm.add("one")

        result = self.on_device("test-on-device")

        self.assertEqual(result.returncode, 0, result.stderr)
        self.assertRegex(result.stdout,
                         rf"\AStarted {self.package}, \d+ KB, on the first device, [\d.]+ s\n\Z")
        self.assertIn(f"Selected device: {device.serial}\n", result.stderr)
        self.assertEqual(self.kinds(),
                         ["sheet", "page", "page", "pressed", "closed",  # for the certificate
                          "dialog", "closed", "message"])
        self.assertEqual(self.messages(), [MADE])
        self.assert_published(result, self.package)
        self.assert_served(device)
        self.assertEqual([event["event"] for event in device.events()],
                         ["uninstall", "install", "launch"])
        self.assertEqual(self.farm.forwards(), [f"{device.serial} tcp:7936 tcp:7936"])

    def test_the_document_is_left_as_it_was(self):
        before = self.document.read_bytes()
        self.farm.add("one")

        self.on_device("test-on-device")

        self.assertEqual(self.document.read_bytes(), before)

    def test_a_debug_run_opens_a_session_on_the_packages_port(self):
        device = self.farm.add("one")

        result = self.on_device("debug-on-device")

        self.assertEqual(result.returncode, 0, result.stderr)
        self.assertIn("Debug session open on port 7936.\n", result.stderr)
        self.assert_served(device)
        with zipfile.ZipFile(self.package) as package:
            session = json.loads(package.read("assets/META-INF/TAV/debug.json"))
        self.assertIn(7936, session.values(), session)

    def test_a_debug_run_that_fails_closes_the_session(self):
        self.farm.add("one", refuse_install="INSTALL_FAILED_OLDER_SDK")

        result = self.on_device("debug-on-device")

        self.assertEqual(result.returncode, 1)
        self.assertIn("Debug session closed.\n", result.stderr)
        self.assertNotIn("Debug session open", result.stderr)

    def test_a_device_that_is_pulled_out_of_a_debug_run_is_told_and_closes_the_session(self):
        device = self.farm.add("one", leave_at="install")

        result = self.on_device("debug-on-device", device)

        self.assertEqual(result.returncode, 1)
        self.assertEqual(self.messages(), [block(device, UNREACHABLE)])
        self.assertIn("Debug session closed.\n", result.stderr)
        self.assertNotIn("Debug session open", result.stderr)

    def test_one_of_three_devices_is_served_alone(self):
        first, chosen, last = (self.farm.add(name) for name in ("one", "two", "three"))

        result = self.on_device("test-on-device", chosen)

        self.assertEqual(result.returncode, 0, result.stderr)
        self.assertIn(f"on {chosen.serial}, ", result.stdout)
        self.assert_served(chosen)
        self.assert_untouched(first)
        self.assert_untouched(last)

    def test_three_devices_each_receive_the_very_package_of_their_turn(self):
        devices = [self.farm.add(name, hold_at="install") for name in ("one", "two", "three")]
        process = self.start(*self.line("test-on-device", *devices))
        packages = []

        for device in devices:
            device.wait_for("held")
            packages.append(hashlib.sha256(self.package.read_bytes()).hexdigest())
            device.release()
        _, error = process.communicate(timeout=60)

        self.assertEqual(process.returncode, 0, error)
        self.assertEqual([device.events("install")[0]["sha256"] for device in devices], packages)
        for device in devices:
            self.assert_started(device)

    def test_three_devices_take_their_turn_and_one_that_fails_keeps_none_from_it(self):
        first, last = self.farm.add("one"), self.farm.add("three")
        broken = self.farm.add("two", refuse_install="INSTALL_FAILED_INSUFFICIENT_STORAGE")

        result = self.on_device("test-on-device", first, broken, last)

        self.assertEqual(result.returncode, 1)
        self.assert_started(first)
        self.assert_served(last)
        self.assertEqual(broken.events("launch"), [])
        self.assertEqual(len(result.stdout.splitlines()), 2)
        self.assertIn(f"Device {broken.serial} (2 of 3)\n", result.stderr)
        self.assertIn(f"The package was not started on {broken.serial}.\n", result.stderr)
        failures = [text for text in self.messages() if text != MADE]
        self.assertEqual(len(failures), 1)
        self.assertTrue(failures[0].startswith(block(broken, "")[:-2] + "The device has "
                                               "encountered an unexpected error. "), failures)

    def test_three_devices_are_debugged_in_turn_over_one_port_that_the_last_one_keeps(self):
        devices = [self.farm.add(name) for name in ("one", "two", "three")]

        result = self.on_device("debug-on-device", *devices)

        self.assertEqual(result.returncode, 0, result.stderr)
        self.assertEqual(result.stderr.count("Debug session open on port 7936."), 3)
        self.assertIn("All devices use the same debug port: the debugger reaches the last one that "
                      "is served.\n", result.stderr)
        self.assertEqual(self.farm.forwards(), [f"{devices[-1].serial} tcp:7936 tcp:7936"])
        for device in devices:
            self.assert_started(device)
        self.assert_served(devices[-1])

    def test_without_a_device_nothing_is_packaged(self):
        result = self.on_device("test-on-device")

        self.assert_refused(result, NOT_CONNECTED)

    def test_a_device_that_was_pulled_out_before_stops_the_run_before_packaging(self):
        device = self.farm.add("one")
        self.farm.add("two")
        device.pull_out()

        result = self.on_device("test-on-device", device)

        self.assert_refused(result, NOT_CONNECTED)
        self.assertNotIn("dialog", self.kinds())

    def test_a_device_in_the_network_keeps_the_others_from_being_used(self):
        device = self.farm.add("one")
        address = self.add_address_of(device)

        result = self.on_device("test-on-device", device)

        self.assert_refused(result, NOT_CONNECTED)
        self.assertIn(f"{address} is a device in the network: while it is attached, no device can "
                      f"be used. Run \"adb disconnect {address}\" first.\n", result.stderr)
        self.assert_untouched(device)

    def test_a_device_that_is_pulled_out_in_the_middle_is_told(self):
        for step in ("uninstall", "install"):
            with self.subTest(step):
                self.transcript.unlink(missing_ok=True)
                device = self.farm.add(step, leave_at=step)

                result = self.on_device("test-on-device", device)

                self.assertEqual(result.returncode, 1)
                self.assertEqual(self.messages(), [block(device, UNREACHABLE)])
                self.assertEqual(device.installed(), [])

    def test_a_device_that_is_pulled_out_at_the_start_of_the_application_is_told(self):
        device = self.farm.add("one", leave_at="launch")

        result = self.on_device("test-on-device", device)

        self.assertEqual(result.returncode, 1)
        self.assertEqual(device.events("install")[0]["answer"], "Success")
        self.assertTrue(self.messages()[0].startswith(f"Device Serial Number{device.serial} : "))

    def test_a_device_that_was_pulled_out_after_its_run_is_served_when_it_is_back(self):
        device = self.farm.add("one")
        self.assertEqual(self.on_device("test-on-device", device).returncode, 0)
        device.pull_out()
        self.assertEqual(self.on_device("test-on-device", device).returncode, 1)
        device.plug_in()

        result = self.on_device("test-on-device", device)

        self.assertEqual(result.returncode, 0, result.stderr)
        self.assertEqual(len(device.events("launch")), 2)

    def test_an_offline_device_passes_the_check_and_fails_at_the_installation(self):
        device = self.farm.add("one", state="offline")

        result = self.on_device("test-on-device", device)

        self.assertEqual(result.returncode, 1)
        self.assertEqual(self.messages(), [block(device, UNREACHABLE)])

    def test_a_cancel_between_two_devices_leaves_the_second_alone(self):
        first, second = self.farm.add("one", hold_at="install"), self.farm.add("two")
        gate = self.folder / "gate"
        self.environment["QUTAV_TICK_GATE"] = str(gate)
        script = self.folder / "script.json"
        script.write_text(json.dumps({"answers": [
            {"to": "dialog", "class": "CProgressDlg", "after": 1, "press": "Cancel"},
            {"to": "sheet", "page": "Deployment", "press": ["Publish", "Cancel"],
             "set": {"Certificate:": str(self.keystore), first.serial: True,
                     "Password:": {"environment": "SAMPLE_PASSWORD"}}}]}),
            encoding="utf-8")
        process = self.start(
            *self.line("test-on-device", first, second, options=("--script", script)))
        first.wait_for("held")

        gate.touch()
        wait_until(lambda: "closed" in self.kinds(), "the dialog is closed")
        first.release()
        output, error = process.communicate(timeout=60)

        # The cancel came too late for the first device, which is served to the end.
        self.assertEqual(process.returncode, 1, error)
        self.assertEqual(self.messages(), [MADE])
        self.assertIn(f"on {first.serial}, ", output)
        self.assertIn(f"The package was not started on {second.serial}.\n", error)
        self.assert_served(first)
        self.assert_untouched(second)

    def test_an_interrupted_run_leaves_nothing_running(self):
        device = self.farm.add("one", hold_at="install")
        process = self.start(*self.line("test-on-device"))
        device.wait_for("held")

        self.interrupt(process)

        device.release()
        self.assertEqual(self.farm.states(), {device.serial: "device"})

    def test_a_serial_with_a_colon_is_refused_at_once(self):
        result = self.on_device("test-on-device", options=("--device", "127.0.0.1:5555"))

        self.assertEqual(result.returncode, 2)
        self.assertIn("holds no colon", result.stderr)
        self.assertFalse(self.transcript.exists())


if __name__ == "__main__":
    unittest.main()
