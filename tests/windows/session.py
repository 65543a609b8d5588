#!/usr/bin/python3
"""Runs a command with a display and a Wine prefix of its own, and ends both afterwards."""

import argparse
import contextlib
import os
import shutil
import subprocess
import sys

USUAL_DPI = 96
SCREEN = (1280, 1024)  # at the usual resolution

EAST_ASIAN = "WenQuanYi Micro Hei"

# Wine's registry: key, name, type, value.
SETTINGS = [
    # No window manager is there to wait for, two seconds for each window.
    (r"HKCU\Software\Wine\X11 Driver", "Managed", "REG_SZ", "N"),
    # Debian has Wine's own fonts, that of dialogs among them, where its Wine does not look.
    (r"HKCU\Software\Wine\Fonts", "Path", "REG_SZ", r"Z:\usr\share\wine\fonts"),
    # What that lacks, it takes from SimSun; a field asks for the other one by name.
    (r"HKCU\Software\Wine\Fonts\Replacements", "SimSun", "REG_SZ", EAST_ASIAN),
    (r"HKCU\Software\Wine\Fonts\Replacements", "SimSun-18030", "REG_SZ", EAST_ASIAN),
    # Titles are bold, and lack the same.
    (r"HKLM\Software\Microsoft\Windows NT\CurrentVersion\FontLink\SystemLink", "Tahoma Bold",
     "REG_MULTI_SZ", f"wqy-microhei.ttc,{EAST_ASIAN}"),
]


def refuse(why):
    sys.exit(f"The Windows tests cannot run: {why}")


@contextlib.contextmanager
def display(dpi):
    """An X server on a display that it finds free; its name."""
    if shutil.which("Xvfb") is None:
        refuse("Xvfb is not installed")
    screen = "{}x{}x24".format(*(pixels * dpi // USUAL_DPI for pixels in SCREEN))
    read_end, write_end = os.pipe()
    with subprocess.Popen(
            ["Xvfb", "-displayfd", str(write_end), "-screen", "0", screen, "-nolisten", "tcp"],
            pass_fds=[write_end], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL) as server:
        os.close(write_end)
        with os.fdopen(read_end) as stream:
            number = stream.readline().strip()
        if not number:
            refuse("Xvfb does not start")
        try:
            yield f":{number}"
        finally:
            server.terminate()


@contextlib.contextmanager
def wine(prefix, environment, dpi):
    """A Wine prefix, made at the first time."""
    if shutil.which("wine") is None:
        refuse("Wine is not installed")
    os.makedirs(prefix, exist_ok=True)
    quiet = {"env": environment, "stdout": subprocess.DEVNULL, "stderr": subprocess.DEVNULL}
    keeper = None
    try:
        booted = subprocess.run(["wine", "wineboot", "--init"], check=False, timeout=180, **quiet)
        # Wine's own services belong to whoever was the first, and would hold a test's output open.
        keeper = subprocess.Popen(["wine", "cmd"], stdin=subprocess.PIPE, **quiet)
        answer = subprocess.run(["wine", "cmd", "/c", "echo", "ready"], env=environment,
                                check=False, capture_output=True, text=True, timeout=60)
        if booted.returncode != 0 or answer.stdout.strip() != "ready":
            refuse(f"Wine does not start (wineboot gave {booted.returncode}): {answer.stderr}")
        resolution = (r"HKCU\Control Panel\Desktop", "LogPixels", "REG_DWORD", str(dpi))
        for key, name, kind, value in [*SETTINGS, resolution]:
            subprocess.run(["wine", "reg", "add", key, "/v", name, "/t", kind, "/d", value, "/f"],
                           check=True, timeout=60, **quiet)
        yield
    except subprocess.TimeoutExpired as late:
        refuse(f"Wine does not answer: {late}")
    except subprocess.CalledProcessError as failed:
        refuse(f"Wine does not keep a setting: {failed}")
    finally:
        subprocess.run(["wineserver", "-k"], env=environment, check=False, capture_output=True)
        if keeper is not None:
            keeper.communicate()


def main(arguments):
    prefix = os.path.abspath(arguments.prefix)
    # In any other character set Wine would lose what names of files hold.
    environment = dict(os.environ, WINEPREFIX=prefix, WINEDEBUG="-all", LC_ALL="C.UTF-8",
                       WINEDLLOVERRIDES="mscoree,mshtml=", QUTAV_TEST_DPI=str(arguments.dpi))
    with display(arguments.dpi) as name:
        environment["DISPLAY"] = name
        with wine(prefix, environment, arguments.dpi):
            return subprocess.run(arguments.command, env=environment, check=False,
                                  stdin=subprocess.DEVNULL).returncode


def parse():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--dpi", type=int, default=USUAL_DPI,
                        help="dots per inch of the screen; each resolution wants its own prefix")
    parser.add_argument("prefix", help="the folder of the Wine prefix")
    parser.add_argument("command", nargs=argparse.REMAINDER)
    arguments = parser.parse_args()
    if not arguments.command:
        parser.error("no command")
    return arguments


if __name__ == "__main__":
    sys.exit(main(parse()))
