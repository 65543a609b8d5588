"""A folder that cannot be written is told, and what lies in it stays as it is.

Permissions mean nothing to the superuser, so the command runs as somebody else where the tests run as
root."""

import os
import shutil
import stat
import unittest

import harness
from harness import BUILD, PublishTest, hashes

NOBODY = 65534


class ReadOnlyFolder(PublishTest):
    def setUp(self):
        super().setUp()
        self.publish()  # the author tried the movie while the folder could still be written
        (self.game / "Game.apk").unlink()
        self.transcript.unlink()
        self.make_build_readable()
        if os.getuid() == 0:
            self.shared.chmod(0o711)
            shutil.chown(self.folder, NOBODY, NOBODY)
            shutil.rmtree(self.folder / "config")
            (self.folder / "config").mkdir()
            shutil.chown(self.folder / "config", NOBODY, NOBODY)
            self.keystore.chmod(0o644)
            self.keystore.parent.chmod(0o755)
            self.as_nobody = ["setpriv", f"--reuid={NOBODY}", f"--regid={NOBODY}", "--clear-groups"]
        else:
            self.as_nobody = []

    def tearDown(self):
        self.game.chmod(0o755)
        super().tearDown()

    def make_build_readable(self):
        """The build may lie where only its owner can look."""
        self.build = self.folder / "build"
        self.build.mkdir()
        for name in ("qutav", "QuTavAndroidExt.so"):
            shutil.copy(BUILD / name, self.build)
        shutil.copytree(BUILD / "TAV26.0", self.build / "TAV26.0")

    def publish_read_only(self):
        self.game.chmod(stat.S_IRUSR | stat.S_IXUSR | stat.S_IROTH | stat.S_IXOTH)
        return harness.run(*self.as_nobody, self.build / "qutav", "publish", self.document,
                           "--version", "26.0", "--transcript", self.transcript, "--certificate",
                           self.keystore, "--password-env", "SAMPLE_PASSWORD",
                           env=dict(self.environment, HOME=str(self.folder)), timeout=60)

    def test_the_export_s_failure_is_told(self):
        before = hashes(self.game)

        result = self.publish_read_only()

        self.assertEqual(result.returncode, 1, result.stdout + result.stderr)
        self.assertIn("Error exporting the QMV file. Please see the error(s) in the compiler errors "
                      "panel.", self.messages())
        self.assertEqual(hashes(self.game), before)

    def test_a_descriptor_that_cannot_be_generated_is_told(self):
        (self.game / "Game-app.xml").unlink()
        before = hashes(self.game)

        result = self.publish_read_only()

        self.assertEqual(result.returncode, 1, result.stdout + result.stderr)
        self.assertEqual(set(self.messages()), {"Application descriptor file cannot be parsed."})
        self.assertEqual(hashes(self.game), before)


if __name__ == "__main__":
    unittest.main()
