"""Runs in the debug launcher, with and without the simulator controller."""

import json
import os
import pathlib
import shutil
import signal
import unittest

from harness import BUILD, PublishTest, processes_of, run, wait_until


class Launch(PublishTest):
    def setUp(self):
        super().setUp()
        self.record = self.folder / "launches.jsonl"
        self.environment.update(TAV_LAUNCH_RECORD=str(self.record), TAV_LAUNCH_EXIT="0")
        self.skip_waits(1000)  # what the controller is given for its start
        self.descriptor = str(self.game / "Game-app.xml")

    def run_command(self, name, *options):
        return run(*self.command(name, *options), env=self.environment, timeout=60)

    def stay(self):
        """The launchers stay until they are ended."""
        del self.environment["TAV_LAUNCH_EXIT"]

    def launches(self, program=None):
        lines = self.record.read_text(encoding="utf-8").splitlines() if self.record.exists() else []
        launches = [json.loads(line) for line in lines]
        return [launch for launch in launches if program in (None, launch["program"])]

    def wait_for(self, program, count=1):
        return wait_until(lambda: len(self.launches(program)) >= count and self.launches(program),
                          f"{program} runs")

    def install_host(self, *, controller=True):
        """The command with its library and SDK in a folder of the test's own."""
        host = self.folder / "Authoring Host"
        host.mkdir()
        for name in ("qutav", "QuTavAndroidExt.so"):
            shutil.copy(BUILD / name, host)
        (host / "TAV26.0").symlink_to(BUILD / "TAV26.0")
        if controller:
            (host / "Common").symlink_to(BUILD / "Common")
        return host

    def test_a_test_runs_the_movie_in_the_launcher(self):
        result = self.run_command("test")

        self.assertEqual(result.returncode, 0, result.stderr)
        self.assertEqual(result.stdout, "The launcher has ended.\n")
        [launch] = self.launches()
        self.assertEqual(launch["program"], "wep")
        self.assertEqual(launch["descriptor"], self.descriptor)
        self.assertEqual(launch["content"], str(self.game / "Game.qmv"))
        self.assertIs(launch["debug"], False)
        self.assertEqual(launch["runtime"], str(BUILD / "TAV26.0" / "runtimes" / "tav" / "win"))
        # The sample has a native extension.
        self.assertEqual(launch["profile"], "extendedMobileDevice")
        self.assertEqual(launch["screenSize"], "480x800:480x800")

    def test_a_document_without_extensions_runs_on_the_desktop(self):
        self.set_member("externalLibraryPath", "")

        self.run_command("test", "--profile", "desktop")

        [launch] = self.launches()
        self.assertNotIn("profile", launch)
        self.assertNotIn("screenSize", launch)

    def test_what_the_launcher_writes_is_shown(self):
        result = self.run_command("test")

        self.assertIn(f"descriptor: {self.descriptor}\n", result.stderr)

    def test_a_debug_run_says_so(self):
        result = self.run_command("debug")

        self.assertEqual(result.returncode, 0, result.stderr)
        self.assertIs(self.launches("wep")[0]["debug"], True)

    def test_a_mobile_profile_runs_with_the_controller_on_its_port(self):
        for name in ("test", "debug"):
            with self.subTest(name):
                self.record.unlink(missing_ok=True)

                result = self.run_command(name, "--profile", "mobileDevice", "--language", "ja_JP")

                self.assertEqual(result.returncode, 0, result.stderr)
                [controller] = self.launches("SimController")
                self.assertEqual((controller["once"], controller["language"], controller["port"]),
                                 (True, "ja_JP", "7836"))
                [launch] = self.launches("wep")
                self.assertEqual(launch["profile"], "extendedMobileDevice")
                self.assertEqual(launch["simulatorPort"], "7836")

    def test_a_mobile_profile_without_a_controller_has_no_port(self):
        self.set_member("externalLibraryPath", "")
        host = self.install_host(controller=False)
        _, *arguments = self.command("test", "--profile", "mobileDevice")

        result = run(host / "qutav", *arguments, env=self.environment, timeout=60)

        self.assertEqual(result.returncode, 0, result.stderr)
        [launch] = self.launches()
        self.assertEqual(launch["profile"], "mobileDevice")
        self.assertEqual(launch["screenSize"], "480x800:480x800")
        self.assertNotIn("simulatorPort", launch)

    def test_a_controller_below_a_folder_with_a_blank_is_found_and_started(self):
        host = self.install_host()
        _, *arguments = self.command("test", "--profile", "mobileDevice")

        result = run(host / "qutav", *arguments, env=self.environment, timeout=60)

        self.assertEqual(result.returncode, 0, result.stderr)
        self.assertEqual(len(self.launches("SimController")), 1)
        self.assertEqual(self.launches("wep")[0]["simulatorPort"], "7836")

    def test_the_controller_goes_with_the_launcher(self):
        self.stay()
        process = self.start(*self.command("test", "--profile", "mobileDevice"))
        [launch] = self.wait_for("wep")
        self.assertEqual(len([line for line in processes_of(self.folder) if "SimCon" in line]), 1)

        os.kill(launch["process"], signal.SIGTERM)
        _, error = process.communicate(timeout=60)

        self.assertEqual(process.returncode, 1)
        self.assertIn("The launcher was ended by signal 15.\n", error)

    def test_ctrl_c_ends_the_launcher_and_the_controller(self):
        for name in ("test", "debug"):
            with self.subTest(name):
                self.record.unlink(missing_ok=True)
                self.environment.pop("TAV_LAUNCH_EXIT", None)
                process = self.start(*self.command(name, "--profile", "mobileDevice"))
                self.wait_for("wep")

                self.interrupt(process)

                self.assertEqual(processes_of(self.folder), [])

    def test_an_older_document_is_launched_by_the_library_itself(self):
        self.set_member("scriptVersion", "2")

        result = self.run_command("test", "--profile", "mobileDevice")

        self.assertEqual(result.returncode, 0, result.stderr)
        [launch] = self.launches()
        self.assertEqual(launch["descriptor"], self.descriptor)
        self.assertNotIn("runtime", launch)
        self.assertEqual(launch["simulatorPort"], "7835")

    def test_ctrl_c_ends_a_launcher_that_the_library_started(self):
        self.set_member("scriptVersion", "2")
        self.stay()
        process = self.start(*self.command("test"))
        self.wait_for("wep")

        self.interrupt(process)

    def test_a_run_ends_the_launcher_of_the_run_before(self):
        self.stay()
        first = self.start(*self.command("test"))
        self.wait_for("wep")
        second = self.start(*self.command("test"))
        _, error = first.communicate(timeout=60)
        self.wait_for("wep", 2)

        self.assertEqual(first.returncode, 1)
        self.assertIn("The launcher was ended by signal 9.\n", error)
        self.interrupt(second)

    def test_a_launcher_that_fails_is_told(self):
        self.environment["TAV_LAUNCH_EXIT"] = "3"

        result = self.run_command("test")

        self.assertEqual((result.returncode, result.stdout), (1, ""))
        self.assertTrue(result.stderr.endswith("The launcher ended with code 3.\n"), result.stderr)

    def test_an_sdk_without_a_launcher_is_told_and_its_controller_ended(self):
        sdk = self.folder / "sdk"
        shutil.copytree(BUILD / "TAV26.0" / "samples", sdk / "samples")
        self.set_data("com.tav.sdk.path", str(sdk))
        self.stay()

        result = self.run_command("test", "--profile", "mobileDevice")

        self.assertEqual(result.returncode, 1)
        self.assertIn(f"The launcher cannot be started: {sdk}/bin/wep: No such file", result.stderr)
        self.assertTrue(result.stderr.endswith("The launcher was not started.\n"), result.stderr)

    def test_a_descriptor_that_cannot_be_parsed_is_not_launched(self):
        pathlib.Path(self.descriptor).write_text("<application", encoding="utf-8")

        result = self.run_command("test")

        self.assertEqual(result.returncode, 1)
        self.assertEqual(set(self.messages()), {"Application descriptor file cannot be parsed."})
        self.assertEqual(self.launches(), [])

    def test_a_missing_movie_is_exported_unless_the_options_say_no(self):
        (self.game / "Game.qmv").unlink(missing_ok=True)

        refused = self.run_command("test", "--no-export")
        launched = self.run_command("test")

        self.assertEqual((refused.returncode, launched.returncode), (1, 0))
        self.assertIn("the content is missing", refused.stderr)


if __name__ == "__main__":
    unittest.main()
