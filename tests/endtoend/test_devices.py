"""The list of devices, and a publish that goes on to several of them."""

import json
import unittest

from harness import KIT, DeviceTest, java_home, run, wait_until

UNREACHABLE = "Unable to install the application. Ensure that the selected devices are connected."
MADE = "APK file has been created."


class Devices(DeviceTest):
    def devices(self, version="26.0"):
        return run(*self.command("devices", version=version), env=self.environment, timeout=60)

    def test_every_device_is_listed_whatever_its_state(self):
        devices = [self.farm.add("one"), self.farm.add("two", state="offline"),
                   self.farm.add("three", state="unauthorized")]

        result = self.devices()

        self.assertEqual((result.returncode, result.stderr), (0, ""))
        self.assertCountEqual(result.stdout.splitlines(), [device.serial for device in devices])

    def test_a_device_in_the_network_is_listed_and_told_to_be_in_the_way(self):
        device = self.farm.add("one")
        address = self.add_address_of(device)

        result = self.devices()

        self.assertEqual(result.returncode, 0)
        self.assertCountEqual(result.stdout.splitlines(), [device.serial, address])
        self.assertEqual(result.stderr,
                         f"{address} is a device in the network: while it is attached, no device "
                         f"can be used. Run \"adb disconnect {address}\" first.\n")

    def test_a_level_that_sorts_behind_as_text_has_the_tool_list_the_same_devices(self):
        calls = self.folder / "calls"
        self.install_tool(f'echo "$@" >>"{calls}"\nexec "{java_home()}/bin/java" "$@"\n')
        self.set_data("com.tav.sdk.path", str(KIT))
        devices = [self.farm.add("one"), self.farm.add("two", state="offline")]

        result = self.devices(version="33.0")

        self.assertEqual((result.returncode, result.stderr), (0, ""))
        self.assertCountEqual(result.stdout.splitlines(), [device.serial for device in devices])
        self.assertEqual(calls.read_text(encoding="utf-8"),
                         f"-jar {KIT}/lib/KOB.jar -devices -platform android\n")

    def test_without_a_device_nothing_is_listed(self):
        result = self.devices()

        self.assertEqual((result.returncode, result.stdout), (1, ""))
        self.assertEqual(result.stderr, "No device is connected.\n")

    def test_an_sdk_without_adb_ends_the_listing_with_a_message(self):
        self.set_data("com.tav.sdk.path", str(self.folder / "no-sdk"))

        result = self.devices()

        self.assertEqual((result.returncode, result.stdout), (1, ""))
        self.assertIn("Error: CreateWinProcess failed with error 2: ", result.stderr)
        self.assertIn("The library ended its host with code 2.\n", result.stderr)


class SeveralDevices(DeviceTest):
    """One publish that goes on to several devices."""

    def script_for(self, devices, *answers):
        script = self.folder / "script.json"
        sheet = {"to": "sheet", "page": "Deployment",
                 "set": {"Certificate:": str(self.keystore),
                         "Password:": {"environment": "SAMPLE_PASSWORD"},
                         "Install application on the connected Android device": True},
                 "steps": [{"set": {"Launch application on the connected Android device": True,
                                    **{device.serial: True for device in devices}}},
                           {"press": ["Publish", "Cancel"]}]}
        script.write_text(json.dumps({"answers": [*answers, sheet]}), encoding="utf-8")
        return script

    def publish_to(self, *devices):
        return self.publish("--script", self.script_for(devices))

    def test_each_receives_the_very_package_and_starts_it(self):
        devices = [self.farm.add(name) for name in ("one", "two", "three")]

        result = self.publish_to(*devices)

        self.assertEqual(self.messages(), [MADE], result.stderr)
        for device in devices:
            self.assert_served(device)

    def test_one_that_fails_in_the_middle_leaves_the_others_served_and_one_block(self):
        first, last = self.farm.add("one"), self.farm.add("three")
        for name, options, error in (
                ("leaves", {"leave_at": "install"}, UNREACHABLE),
                ("refuses", {"refuse_install": "INSTALL_FAILED_OLDER_SDK"},
                 "The device has encountered an unexpected error. ")):
            with self.subTest(name):
                self.transcript.unlink(missing_ok=True)
                broken = self.farm.add(name, **options)

                self.publish_to(first, broken, last)

                self.assertEqual(len(self.messages()), 1)
                text = self.messages()[0]
                self.assertTrue(text.startswith(f"Device Serial Number{broken.serial} : {error}"),
                                text)
                self.assertEqual(text.count("Device Serial Number"), 1)
                for device in (first, last):
                    self.assertTrue(device.events("launch")[-1]["started"])
                self.assertEqual(first.events("install")[-1]["sha256"],
                                 last.events("install")[-1]["sha256"])

    def test_one_that_is_unplugged_cannot_be_chosen(self):
        here, gone = self.farm.add("one"), self.farm.add("two")
        gone.pull_out()

        result = self.publish_to(here, gone)

        self.assert_refused(result)
        self.assertIn(f'no control "{gone.serial}" that takes this value', result.stderr)
        self.assert_untouched(here)

    def test_a_cancel_between_two_leaves_the_second_alone(self):
        devices = [self.farm.add(name, hold_at="install") for name in ("one", "two")]
        gate = self.folder / "gate"
        self.environment["QUTAV_TICK_GATE"] = str(gate)
        script = self.script_for(devices, {"to": "dialog", "class": "CProgressDlg",
                                                   "after": 1, "press": "Cancel"})
        process = self.start(*self.command("publish", "--script", script))
        # They are served in the order in which adb lists them.
        first = wait_until(lambda: [device for device in devices if device.events("held")],
                           "a device is served")[0]
        second = devices[1 - devices.index(first)]

        gate.touch()
        wait_until(lambda: "closed" in [event["event"] for event in self.events()],
                   "the dialog is closed")
        first.release()
        _, error = process.communicate(timeout=60)

        self.assertEqual(process.returncode, 1, error)
        self.assertEqual(self.messages(), [])
        self.assertEqual(first.events("install")[0]["answer"], "Success")
        self.assert_untouched(second)


if __name__ == "__main__":
    unittest.main()
