"""A signal that ends the command ends all that it has started, and removes its temporary files."""

import json
import unittest

from harness import BUILD, PublishTest, run, wait_until


class Interrupt(PublishTest):
    def test_a_publish_that_is_interrupted_leaves_nothing_running(self):
        started = self.folder / "started"
        self.install_tool(f"(sleep 1000 &)\nsleep 1000 &\ntouch '{started}'\nsleep 1000\n")
        publish = self.start(*self.command("publish", "--certificate", self.keystore,
                                           "--password-env", "SAMPLE_PASSWORD"))
        wait_until(started.exists, "the tool runs")
        self.assertEqual(len(list(self.folder.glob("qutav-*"))), 1)

        self.interrupt(publish)

        self.assertEqual(list(self.folder.glob("qutav-*")), [])

    def test_a_script_that_is_interrupted_leaves_nothing_running(self):
        started = self.folder / "started"
        self.install_tool(f"touch '{started}'\nsleep 1000\n")
        script = self.folder / "script.json"
        script.write_text(json.dumps({"answers": [
            {"to": "sheet", "page": "Deployment", "press": "Publish",
             "set": {"Certificate:": str(self.keystore), "Password:": "p"}}]}), encoding="utf-8")
        self.environment["QUTAV_SCRIPT"] = str(script)
        uris = [path.as_uri() for path in (self.document, self.game / "Game.qmv")]
        evaluate = self.start(str(BUILD / "qutav"), "evaluate", str(self.document),
                              f"Publish('{uris[0]}', '{uris[1]}', '26.0')")
        wait_until(started.exists, "the tool runs")

        self.interrupt(evaluate)

    def test_a_hang_up_that_the_caller_ignores_ends_nothing(self):
        go_on = self.folder / "go-on"
        self.install_tool("kill -HUP $(cut -d' ' -f4 /proc/$PPID/stat)\n"
                          f"touch '{go_on}' \"$PWD/Game.apk\"\nexit 1\n")
        command = self.command("publish", "--certificate", self.keystore,
                               "--password-env", "SAMPLE_PASSWORD")

        result = run("sh", "-c", "trap '' HUP; exec \"$@\"", "sh", *command, env=self.environment,
                     timeout=120)

        self.assertTrue(go_on.exists())
        self.assertEqual(result.returncode, 1, result.stderr)


if __name__ == "__main__":
    unittest.main()
