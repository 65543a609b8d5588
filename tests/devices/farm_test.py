"""What the tests over a farm share: a farm for each test, and a package for all."""

import hashlib
import os
import pathlib
import shutil
import subprocess
import tempfile
import unittest

from adb_farm import Farm

BUILD = pathlib.Path(os.environ["QUTAV_BUILD"])
KIT = BUILD / "TAV26.0"
APPLICATION = "com.example.practice"
COMPONENT = f"{APPLICATION}/tav.practice.PlayerActivity"
DESCRIPTOR = f"""<application xmlns="http://ns.zenvoka.example/tav/application/26.0">
<id>{APPLICATION}</id><versionNumber>1.0.0</versionNumber><filename>Practice</filename>
<name>Practice</name><initialWindow><content>Practice.qmv</content></initialWindow></application>"""


def tool(*arguments, **options):
    """Runs the practice SDK's tool."""
    return subprocess.run(["java", "-jar", KIT / "lib" / "KOB.jar", *arguments], text=True,
                          check=False, capture_output=True, stdin=subprocess.DEVNULL, timeout=120,
                          **options)


def make_package(folder):
    """A package of some size, so that it does not travel in one piece."""
    (folder / "Practice-app.xml").write_text(DESCRIPTOR, encoding="utf-8")
    (folder / "Practice.qmv").write_bytes(b"QMV\x1a" + os.urandom(300_000))
    package = folder / "Practice.apk"
    made = tool("-prepare", package, folder / "Practice-app.xml",
                "-C", f"{folder}/", "Practice.qmv")
    assert made.returncode == 0, made.stderr
    return package


class FarmTest(unittest.TestCase):
    """A test with a farm of its own, which must leave nothing behind."""

    @classmethod
    def setUpClass(cls):
        cls.shared = pathlib.Path(tempfile.mkdtemp(prefix="qutav-devices-"))
        cls.addClassCleanup(shutil.rmtree, cls.shared)
        cls.package = make_package(cls.shared)
        cls.package_hash = hashlib.sha256(cls.package.read_bytes()).hexdigest()

    def setUp(self):
        self.farm = Farm(tempfile.mkdtemp(prefix="case-", dir=self.shared))
        self.addCleanup(self.farm.stop)
        self.farm.start()

    def on(self, device, *arguments):
        """Runs adb for one device."""
        return self.farm.adb("-s", device.serial, *arguments)

    def assert_received(self, device, way):
        install, = device.events("install")
        self.assertEqual(install, {
            "event": "install", "package": APPLICATION, "way": way,
            "size": self.package.stat().st_size, "sha256": self.package_hash, "answer": "Success"})
        self.assertEqual(device.installed(), [APPLICATION])
