"""A packaging tool that floods, babbles, hangs or dies leaves the host alive and no child behind."""

import time
import unittest

from harness import PublishTest


class Tool(PublishTest):
    def test_ten_megabytes_of_output_are_read_and_cut(self):
        self.install_tool("head -c 10485760 /dev/zero | tr '\\0' 'x'\nexit 1\n")

        result = self.publish()

        self.assertEqual(result.returncode, 1)
        self.assertEqual(self.messages(), ["Error creating files.\n\n" + "x" * 2000])

    def test_nul_bytes_end_their_chunk(self):
        self.install_tool("printf 'seen\\0unseen'\nexit 1\n")

        self.publish()

        self.assertEqual(self.messages(), ["Error creating files.\n\nseen"])

    def test_a_success_with_output_is_a_warning(self):
        self.install_tool("echo 'careful now'\ntouch \"$PWD/Game.apk\"\nexit 0\n")

        self.publish()

        self.assertEqual(self.messages(), [
            "The APK was packaged successfully, but a warning occurred.\n\ncareful now\n"])

    def test_a_failure_without_words_shows_nothing(self):
        self.install_tool("exit 1\n")

        self.assert_refused(self.publish())

    def test_a_tool_that_never_ends_is_cancelled_with_all_that_it_started(self):
        self.install_tool("sleep 1000 &\n(sleep 1000 &) \nsh -c 'sleep 1000; exit'\n")
        started = time.monotonic()

        result = self.publish_with_answers(
            {"to": "dialog", "class": "CProgressDlg", "after": 1, "press": "Cancel"})

        self.assert_refused(result)
        self.assertLess(time.monotonic() - started, 60)
        closed = [event for event in self.events() if event["event"] == "closed"]
        self.assertEqual(closed[0]["answer"], "Cancel")

    def test_the_timestamp_server_s_failure_asks_and_tries_again(self):
        tries = self.folder / "tries"
        self.install_tool(f"echo x >> '{tries}'\nexit 10\n")

        result = self.publish_with_answers(
            {"to": "dialog", "class": "CTimestampRetryDlg", "press": "Retry"},
            {"to": "dialog", "class": "CTimestampRetryDlg", "press": "Disable Timestamping"},
            {"to": "dialog", "class": "CTimestampRetryDlg", "press": "Cancel"})

        self.assert_refused(result)
        self.assertEqual(tries.read_text(encoding="utf-8"), "x\n" * 3)

    def test_a_failure_is_seen_by_a_host_that_was_told_to_ignore_its_children(self):
        self.install_tool("echo 'x: error 303'\nexit 1\n")
        self.launcher = ["sh", "-c", "trap '' CHLD; exec \"$@\"", "sh"]

        self.assert_refused(self.publish(), "Error creating files.\n\nIcon file is missing.")

    def test_a_tool_killed_from_outside_ends_the_publish(self):
        self.install_tool("kill -9 $$\n")

        self.assert_refused(self.publish())


if __name__ == "__main__":
    unittest.main()
