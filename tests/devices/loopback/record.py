"""What a device remembers: a line of JSON for each thing that happened, and the files."""

import hashlib
import json
import pathlib
import threading
import time
import urllib.parse

from .package_file import NotAPackage, PackageFile

POLL_SECONDS = 0.01


class Record:
    """The folder of one device. It outlives the device's process, as storage does a pulled plug.

    record.jsonl     what happened, one event a line
    installed/       the packages, each under its name
    files/           what was pushed, each under its quoted path
    incoming/        what is on its way, or was when the plug was pulled
    release          made by a test to let a held device go on"""

    def __init__(self, folder):
        self.folder = pathlib.Path(folder)
        self._writing = threading.Lock()
        for name in ("installed", "files", "incoming"):
            (self.folder / name).mkdir(parents=True, exist_ok=True)

    def add(self, event, **details):
        line = json.dumps({"event": event, **details}, ensure_ascii=False) + "\n"
        with self._writing, open(self.folder / "record.jsonl", "a", encoding="utf-8") as stream:
            stream.write(line)

    def wait_for_release(self):
        while not (self.folder / "release").exists():
            time.sleep(POLL_SECONDS)

    # Files.

    def incoming(self):
        """Where a file grows before it has a place."""
        return self.folder / "incoming" / str(time.monotonic_ns())

    def pushed(self, path):
        return self.folder / "files" / urllib.parse.quote(path, safe="")

    # Applications.

    def installed(self):
        return sorted(path.stem for path in (self.folder / "installed").glob("*.apk"))

    def application(self, name):
        """The installed package, or None."""
        return PackageFile(self._place(name)) if name in self.installed() else None

    def install(self, file, way, refusal):
        """Puts a received file in place; what the package manager says. `refusal` is its reason to
        say no, if any. The file is gone afterwards."""
        with open(file, "rb") as stream:
            checksum = hashlib.file_digest(stream, "sha256").hexdigest()
        size = file.stat().st_size
        name = ""
        try:
            name = PackageFile(file).name
            answer = f"Failure [{refusal}]" if refusal else "Success"
        except NotAPackage:
            answer = "Failure [INSTALL_PARSE_FAILED_NOT_APK]"
        if answer == "Success":
            file.replace(self._place(name))
        else:
            file.unlink()
        self.add("install", package=name, way=way, size=size, sha256=checksum,
                 answer=answer)
        return answer

    def uninstall(self, name):
        if name in self.installed():
            self._place(name).unlink()
            answer = "Success"
        else:
            answer = "Failure [DELETE_FAILED_INTERNAL_ERROR]"
        self.add("uninstall", package=name, answer=answer)
        return answer

    def _place(self, name):
        return self.folder / "installed" / f"{name}.apk"
