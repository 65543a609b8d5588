"""What the built Windows files carry, read from the files themselves."""

import os
import pathlib
import re
import shutil
import subprocess
import tempfile
import unittest
import zipfile

BUILD = pathlib.Path(os.environ["QUTAV_BUILD"])
LIBRARY = BUILD / "QuTavAndroidExt.dll"
COMMAND = BUILD / "qutav.exe"
OBJDUMP = "x86_64-w64-mingw32-objdump"

# What Windows itself brings.
SYSTEM_LIBRARIES = {
    "advapi32.dll", "comctl32.dll", "comdlg32.dll", "gdi32.dll", "gdiplus.dll", "iphlpapi.dll",
    "kernel32.dll", "msvcrt.dll", "ole32.dll", "shcore.dll", "shell32.dll", "shlwapi.dll",
    "user32.dll", "uxtheme.dll", "ws2_32.dll",
}
MEGABYTE = 1_000_000


def private_headers(file):
    return subprocess.run([OBJDUMP, "-p", file], capture_output=True, text=True, check=True).stdout


def imported_libraries(file):
    return {name.lower() for name in re.findall(r"DLL Name: (\S+)", private_headers(file))}


def exported_names(file):
    table = private_headers(file).partition("[Ordinal/Name Pointer] Table")[2]
    return re.findall(r"^\s+\[\s*\d+\] (\S+)$", table.partition("\n\n")[0], re.MULTILINE)


def wide(text):
    return text.encode("utf-16-le")


class Library(unittest.TestCase):
    def test_it_imports_system_libraries_only(self):
        self.assertIn("kernel32.dll", imported_libraries(LIBRARY))
        self.assertEqual(imported_libraries(LIBRARY) - SYSTEM_LIBRARIES, set())

    def test_it_exports_its_entry_only(self):
        self.assertEqual(exported_names(LIBRARY), ["KR_InitWrapper"])

    def test_it_is_small(self):
        with tempfile.TemporaryDirectory() as folder:
            stripped = pathlib.Path(folder) / "stripped.dll"
            shutil.copy(LIBRARY, stripped)
            subprocess.run(["x86_64-w64-mingw32-strip", stripped], check=True)
            self.assertLess(stripped.stat().st_size, 5 * MEGABYTE)

    def test_it_carries_its_version(self):
        content = LIBRARY.read_bytes()
        for name, value in (("OriginalFilename", "QuTavAndroidExt.dll"), ("FileVersion", "1.0.0")):
            self.assertRegex(content, re.escape(wide(name)) + b"\0{2,6}" + re.escape(wide(value)))

    def test_its_manifest_asks_for_common_controls_and_sharp_windows(self):
        self.check_manifest(LIBRARY)

    def check_manifest(self, file):
        content = file.read_bytes()
        self.assertIn(b'name="Microsoft.Windows.Common-Controls" version="6.0.0.0"', content)
        self.assertIn(b">PerMonitorV2</dpiAwareness>", content)


class Command(unittest.TestCase):
    def test_it_imports_system_libraries_only(self):
        self.assertIn("kernel32.dll", imported_libraries(COMMAND))
        self.assertEqual(imported_libraries(COMMAND) - SYSTEM_LIBRARIES, set())

    def test_its_manifest_asks_for_common_controls_and_sharp_windows(self):
        Library.check_manifest(self, COMMAND)


class Package(unittest.TestCase):
    def test_it_holds_what_a_host_needs_and_every_licence(self):
        with tempfile.TemporaryDirectory() as folder:
            subprocess.run(["cpack", "-B", folder, "--config", BUILD / "CPackConfig.cmake"],
                           check=True, capture_output=True)
            package, = pathlib.Path(folder).glob("*.zip")
            with zipfile.ZipFile(package) as content:
                names = {name.partition("/")[2] for name in content.namelist()
                         if not name.endswith("/")}
        self.assertEqual(names, {
            "QuTavAndroidExt.dll", "qutav.exe", "README.txt", "LICENSE.txt",
            "licences/xerces-c.txt", "licences/duktape.txt", "licences/nlohmann-json.txt",
            "licences/cli11.txt", "licences/gcc-runtime.txt", "licences/mingw-w64-runtime.txt"})


if __name__ == "__main__":
    unittest.main()
