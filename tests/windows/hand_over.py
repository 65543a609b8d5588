#!/usr/bin/python3
"""Runs the machine's Java with the arguments that the java.exe of the Windows tests has left in a
folder, and leaves there what it printed and, as the last thing, its exit code. QUTAV_JAVA names another
program to run; it is killed when java.exe is."""

import os
import pathlib
import re
import subprocess
import sys
import time

DRIVE = re.compile(r"([A-Za-z]):[\\/]")


def native(text):
    """A path of Wine's world as one of this machine; other text as it stands."""
    drive = DRIVE.match(text)
    if drive:
        devices = pathlib.Path(os.environ["WINEPREFIX"]) / "dosdevices"
        root = os.path.realpath(devices / f"{drive[1].lower()}:")
        return os.path.join(root, text[3:].replace("\\", "/"))
    return text.replace("\\", "/")


def run_java(arguments, output, alive):
    """Its exit code."""
    with subprocess.Popen([os.environ.get("QUTAV_JAVA", "java"), *arguments], stdout=output,
                          stderr=subprocess.STDOUT, stdin=subprocess.DEVNULL) as java:
        while java.poll() is None:
            if not alive.exists():
                java.kill()
            time.sleep(0.02)
        return java.returncode


def main(folder):
    arguments = (folder / "arguments").read_text(encoding="utf-8").splitlines()
    with (folder / "output").open("wb") as output:
        code = run_java(map(native, arguments), output, folder / "alive")
    (folder / "end.part").write_text(str(code), encoding="ascii")
    (folder / "end.part").rename(folder / "end")


if __name__ == "__main__":
    main(pathlib.Path(native(sys.argv[1])))
