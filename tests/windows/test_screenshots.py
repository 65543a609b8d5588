"""The pictures of pages and dialogs that the documentation is made with."""

import struct
import sys
import unittest

from product import TESTS, run, temporary_folder

PICTURES = [
    "android-deployment.png", "android-general.png", "android-icons.png", "android-languages.png",
    "android-permissions.png", "certificate.png", "desktop-advanced.png", "desktop-general.png",
    "file-type.png", "ios-deployment.png", "ios-general.png", "ios-icons.png", "ios-languages.png",
    "password.png", "progress.png", "timestamp.png",
]
PNG_SIGNATURE = b"\x89PNG\r\n\x1a\n"
PIXELS_PER_BYTE = 50  # a window with controls packs to fewer, a blank one to 300


def size_of(png):
    """The width and height that its header tells."""
    return struct.unpack(">II", png[16:24])


class Screenshots(unittest.TestCase):
    def test_every_page_and_dialog_is_pictured(self):
        folder = temporary_folder(self.addCleanup, "qutav-screenshots-")

        result = run(sys.executable, "-B", TESTS / "screenshots.py", folder, "en_US")

        self.assertEqual(result.returncode, 0, result.stdout + result.stderr)
        pictures = sorted((folder / "en_US").iterdir())
        self.assertEqual([picture.name for picture in pictures], PICTURES)
        for picture in pictures:
            content = picture.read_bytes()
            self.assertTrue(content.startswith(PNG_SIGNATURE), picture.name)
            width, height = size_of(content)
            self.assertGreater(len(content), width * height / PIXELS_PER_BYTE, picture.name)


if __name__ == "__main__":
    unittest.main()
