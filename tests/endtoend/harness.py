"""What the end-to-end tests share: a copy of the sample document, real Java, a keystore, and runs of
the host command."""

import contextlib
import hashlib
import json
import os
import pathlib
import shutil
import signal
import subprocess
import sys
import tempfile
import unittest

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[1] / "devices"))
from adb_farm import Farm, wait_until  # pylint: disable=wrong-import-position

BUILD = pathlib.Path(os.environ["QUTAV_BUILD"])
KIT = BUILD / "TAV26.0"
SWIFT_CLOCK = os.environ["QUTAV_SWIFT_CLOCK"]
SAMPLE = pathlib.Path(__file__).resolve().parents[2] / "samples" / "Game"
PASSWORD = "practice-only"


def java_home():
    return pathlib.Path(os.path.realpath(shutil.which("java"))).parents[1]


def run(*command, **options):
    return subprocess.run([str(part) for part in command], capture_output=True, text=True,
                          check=False, **options)


def hashes(folder):
    """The hash of every file below a folder, by its relative path."""
    return {path.relative_to(folder).as_posix(): hashlib.sha256(path.read_bytes()).hexdigest()
            for path in sorted(folder.rglob("*")) if path.is_file()}


def processes_of(folder):
    """Command lines of the running processes that have inherited the environment of a test case: it
    names the case's folder, and every child and grandchild has it."""
    found = []
    for entry in pathlib.Path("/proc").iterdir():
        try:
            if entry.name.isdigit() and str(folder).encode() in (entry / "environ").read_bytes():
                found.append((entry / "cmdline").read_bytes().replace(b"\0", b" ").decode())
        except OSError:
            continue  # it has ended meanwhile, or is somebody else's
    return found


class PublishTest(unittest.TestCase):
    """A document of its own in a temporary folder, deleted afterwards."""

    @classmethod
    def setUpClass(cls):
        cls.shared = pathlib.Path(tempfile.mkdtemp(prefix="qutav-endtoend-"))
        cls.addClassCleanup(shutil.rmtree, cls.shared)
        # The library looks for devices after a publish; here it finds none, and no server of others.
        cls.no_devices = cls.enterClassContext(Farm(cls.shared))
        cls.keystore = cls.shared / "keys" / "sample.p12"
        cls.keystore.parent.mkdir()
        made = run("java", "-jar", KIT / "lib" / "KOB.jar", "-certificate",
                   "-cn", "Sample Publisher", "-ou", "Games", "-o", "Sample Studio", "-c", "US",
                   "-validityPeriod", "25", "2048-RSA", cls.keystore, PASSWORD)
        assert made.returncode == 0, made.stdout + made.stderr

    def setUp(self):
        self.folder = pathlib.Path(tempfile.mkdtemp(prefix="case-", dir=self.shared))
        self.game = self.folder / "Game"
        shutil.copytree(SAMPLE, self.game)
        self.document = self.game / "Game.qud.json"
        self.transcript = self.folder / "transcript.jsonl"
        self.environment = dict(
            os.environ, CommonProgramFiles=str(self.folder / "common"),
            XDG_CONFIG_HOME=str(self.folder / "config"), TMPDIR=str(self.folder),
            SAMPLE_PASSWORD=PASSWORD, **self.no_devices.variables)
        self.skip_waits(5000)
        self.launcher = []  # what starts the host command
        self.install_java(java_home())

    def tearDown(self):
        # One that was killed takes a moment to go on a busy machine.
        with contextlib.suppress(TimeoutError):
            wait_until(lambda: not processes_of(self.folder), "all children have ended")
        self.assertEqual(processes_of(self.folder), [], "a child process stayed behind")

    def install_java(self, home):
        jre = self.folder / "common" / "Zenvoka" / "Zenvoka Kestrow 2020" / "jre"
        jre.parent.mkdir(parents=True, exist_ok=True)
        if jre.is_symlink():
            jre.unlink()
        jre.symlink_to(home)

    def install_tool(self, body):
        """Puts a shell script in Java's place."""
        home = self.folder / "fake-java"
        (home / "bin").mkdir(parents=True)
        launcher = home / "bin" / "java"
        launcher.write_text("#!/bin/sh\n" + body, encoding="utf-8")
        launcher.chmod(0o755)
        self.install_java(home)

    def edit_document(self, **data):
        document = json.loads(self.document.read_text(encoding="utf-8"))
        document["data"].update({key.replace("__", "."): value for key, value in data.items()})
        self.document.write_text(json.dumps(document, ensure_ascii=False), encoding="utf-8")

    def set_data(self, key, value):
        self.edit_document(**{key: value})

    def set_member(self, member, value):
        document = json.loads(self.document.read_text(encoding="utf-8"))
        document[member] = value
        self.document.write_text(json.dumps(document, ensure_ascii=False), encoding="utf-8")

    def rename_movie(self, name):
        """Gives document, descriptor and movie another base name."""
        document = self.game / f"{name}.qud.json"
        self.document.rename(document)
        self.document = document
        self.set_member("movie", f"{name}.qmv")
        descriptor = (self.game / "Game-app.xml").read_text(encoding="utf-8")
        encoded = name.replace(" ", "%20")
        (self.game / "Game-app.xml").unlink()
        (self.game / f"{name}-app.xml").write_text(
            descriptor.replace("Game.qmv", f"{encoded}.qmv"), encoding="utf-8")

    def skip_waits(self, *milliseconds):
        """Fixed waits of these lengths pass at once."""
        self.environment.update(LD_PRELOAD=SWIFT_CLOCK,
                                QUTAV_SKIPPED_WAITS=" ".join(str(wait) for wait in milliseconds))

    def command(self, name, *options, version="26.0"):
        return [str(part) for part in (BUILD / "qutav", name, self.document, "--version", version,
                                       "--transcript", self.transcript, *options)]

    def start(self, *command):
        """Starts a command that the test ends or waits for."""
        process = subprocess.Popen(command, env=self.environment, text=True,
                                   stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
                                   stderr=subprocess.PIPE)
        self.addCleanup(process.communicate)  # closes the pipes when the test has failed before
        self.addCleanup(process.kill)
        return process

    def interrupt(self, process):
        """Ends a command as Ctrl-C would."""
        process.send_signal(signal.SIGINT)
        process.communicate(timeout=60)
        self.assertEqual(process.returncode, -signal.SIGINT)

    def set_registry_value(self, name, value):
        """Leaves a value in the user's registry as an earlier session would have."""
        registry = pathlib.Path(self.environment["XDG_CONFIG_HOME"]) / "qutav" / "registry.json"
        registry.parent.mkdir(parents=True, exist_ok=True)
        registry.write_text(json.dumps({"Software\\Zenvoka\\Quorl ": {name: value}}),
                            encoding="utf-8")

    def publish(self, *options, version="26.0", certificate=None, timeout=120):
        command = [BUILD / "qutav", "publish", self.document, "--version", version,
                   "--transcript", self.transcript]
        if "--script" not in options:
            command += ["--certificate", certificate or self.keystore,
                        "--password-env", "SAMPLE_PASSWORD"]
        return run(*self.launcher, *command, *options, env=self.environment, timeout=timeout,
                   stdin=subprocess.DEVNULL)

    def publish_with_answers(self, *answers, **options):
        """Publishes by a script: the given answers, and a sheet that publishes and is cancelled."""
        script = self.folder / "script.json"
        sheet = {"to": "sheet", "page": "Deployment", "press": ["Publish", "Cancel"],
                 "set": {"Certificate:": str(self.keystore),
                         "Password:": {"environment": "SAMPLE_PASSWORD"}}}
        script.write_text(json.dumps({"answers": [*answers, sheet]}), encoding="utf-8")
        return self.publish("--script", script, **options)

    def events(self):
        lines = self.transcript.read_text(encoding="utf-8").splitlines()
        return [json.loads(line) for line in lines]

    def messages(self):
        return [event["text"] for event in self.events() if event["event"] == "message"]

    def assert_published(self, result, package):
        self.assertEqual(result.returncode, 0, result.stdout + result.stderr)
        self.assertTrue(package.is_file(), f"{package} is missing")
        verified = run("apksigner", "verify", "--min-sdk-version", "21", package)
        self.assertEqual(verified.returncode, 0, verified.stdout + verified.stderr)

    def assert_refused(self, result, *messages):
        self.assertEqual(result.returncode, 1, result.stdout + result.stderr)
        self.assertEqual(self.messages(), list(messages))
        self.assertEqual(list(self.game.rglob("*.apk")), [])


class SettingsTest(PublishTest):
    """Opens the sheet through the script function that the host calls."""

    def open_sheet(self, *answers, level="26.0", language="en_US"):
        script = self.folder / "script.json"
        script.write_text(json.dumps({"answers": answers}), encoding="utf-8")
        arguments = ", ".join(json.dumps(text) for text in (
            self.document.as_uri(), (self.game / "Game.qmv").as_uri(), level))
        environment = dict(self.environment, QUTAV_SCRIPT=str(script),
                           QUTAV_TRANSCRIPT=str(self.transcript))
        result = run(BUILD / "qutav", "evaluate", "--language", language, self.document,
                     f"OpenSettingDialog({arguments})", env=environment, timeout=120)
        self.assertEqual(result.returncode, 0, result.stdout + result.stderr)
        mistakes = [event for event in self.events() if event["event"] == "script-error"]
        self.assertEqual(mistakes, [])
        return result

    def shown(self, label):
        """The control of this label in what the script has shown last."""
        shown = [event for event in self.events() if event["event"] == "controls"][-1]
        return next(control for control in shown["controls"] if control["label"] == label)

    def descriptor(self):
        return (self.game / "Game-app.xml").read_text(encoding="utf-8")


class DeviceTest(PublishTest):
    """An adb server and devices of the test's own."""

    def setUp(self):
        super().setUp()
        self.farm = Farm(self.folder)
        self.farm.start()
        self.environment.update(self.farm.variables)
        self.skip_waits(5000)  # the server runs already
        self.package = self.game / "Game.apk"

    def tearDown(self):
        self.farm.stop()
        super().tearDown()

    def add_address_of(self, device):
        """Lets the server see the device by its address, too; offline, as the device is taken. Gives
        the address."""
        address = f"127.0.0.1:{device.port}"
        self.farm.adb("connect", address)
        wait_until(lambda: address in self.farm.states(), f"{address} is listed")
        return address

    def assert_served(self, device):
        """The device has received the very package, and started it."""
        self.assert_started(device)
        checksum = hashlib.sha256(self.package.read_bytes()).hexdigest()
        self.assertEqual(device.events("install")[0]["sha256"], checksum)

    def assert_started(self, device):
        """The device has received a package, once, and started it."""
        self.assertEqual([install["answer"] for install in device.events("install")], ["Success"])
        self.assertEqual([launch["started"] for launch in device.events("launch")], [True])

    def assert_untouched(self, device):
        self.assertEqual(device.events(), [])
