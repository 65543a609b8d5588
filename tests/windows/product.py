"""What the tests of the built product under Wine share: its files, and the programs it calls."""

import os
import pathlib
import shutil
import subprocess
import tempfile

BUILD = pathlib.Path(os.environ["QUTAV_BUILD"])
TESTS = pathlib.Path(__file__).resolve().parent
SAMPLE = TESTS.parents[1] / "samples" / "Game"
PASSWORD = "practice-only"
PRODUCT = pathlib.Path(os.environ["WINEPREFIX"],
                       "drive_c/Program Files/Common Files/Zenvoka/Zenvoka Kestrow 2020")
JAVA = PRODUCT / "jre" / "bin" / "java.exe"


def run(*command, **options):
    return subprocess.run([str(part) for part in command], capture_output=True, text=True,
                          check=False, stdin=subprocess.DEVNULL, timeout=120, **options)


def windows_path(path):
    return "Z:" + str(path).replace("/", "\\")


def temporary_folder(add_cleanup, prefix):
    folder = pathlib.Path(tempfile.mkdtemp(prefix=prefix))
    add_cleanup(shutil.rmtree, folder)
    return folder


def install(program, target, add_cleanup):
    """Puts one of the tests' programs in another's place for a while."""
    target.parent.mkdir(parents=True, exist_ok=True)
    shutil.copy(BUILD / "tests" / "windows" / program, target)
    add_cleanup(target.unlink, missing_ok=True)


def install_java(add_cleanup):
    """This one hands over to the machine's Java."""
    add_cleanup(shutil.rmtree, PRODUCT.parent)
    install("java.exe", JAVA, add_cleanup)


def install_adb(add_cleanup):
    """The library looks for devices after a publish; this one finds none."""
    install("fake_tool.exe", BUILD / "TAV26.0" / "lib" / "android" / "bin" / "adb.exe", add_cleanup)


def install_taskkill(add_cleanup):
    """Wine's own does not know /T."""
    install("taskkill.exe", BUILD / "taskkill.exe", add_cleanup)


def make_certificate(keystore):
    made = run("java", "-jar", BUILD / "TAV26.0/lib/KOB.jar", "-certificate",
               "-cn", "Sample Publisher", "-ou", "Games", "-o", "Sample Studio", "-c", "US",
               "-validityPeriod", "25", "2048-RSA", keystore, PASSWORD)
    assert made.returncode == 0, made.stdout + made.stderr
