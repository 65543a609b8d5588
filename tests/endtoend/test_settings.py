"""The settings sheet, used by a script: what its pages do with real files, tools and signatures."""

import json
import unittest

from harness import PASSWORD, SettingsTest, hashes, run


class ProvisioningProfile(SettingsTest):
    """The sample's App ID is com.example.game."""

    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        cls.signer = cls.shared / "signer.pem"
        made = run("openssl", "req", "-x509", "-newkey", "rsa:2048", "-nodes", "-subj",
                   "/CN=Profile Signer", "-keyout", cls.signer, "-out", cls.shared / "cert.pem")
        assert made.returncode == 0, made.stderr
        with cls.signer.open("a", encoding="utf-8") as both:
            both.write((cls.shared / "cert.pem").read_text(encoding="utf-8"))

    def setUp(self):
        super().setUp()
        self.set_member("playerTarget", "iPhone OS")

    def sign(self, content):
        """A profile with this content: a signed container around it."""
        plain = self.folder / "content"
        plain.write_text(content, encoding="utf-8")
        profile = self.folder / "game.mobileprovision"
        signed = run("openssl", "cms", "-sign", "-binary", "-nodetach", "-outform", "DER",
                     "-signer", self.signer, "-in", plain, "-out", profile)
        self.assertEqual(signed.returncode, 0, signed.stderr)
        return profile

    def property_list(self, identifier, between="\n\t"):
        return (f'<?xml version="1.0" encoding="UTF-8"?>\n<plist version="1.0">{between}<dict>'
                f"{between}<key>application-identifier</key>{between}"
                f"<string>{identifier}</string>{between}</dict>{between}</plist>\n")

    def application_id_after(self, profile):
        """What the page's App ID is once the user has browsed to a profile."""
        self.open_sheet(
            {"to": "sheet", "page": "Deployment", "press": "Browse...#2",
             "steps": [{"show": True}]},
            {"to": "file", "contains": "mobileprovision", "choose": str(profile)})
        shown = self.shown("Provisioning profile:")["text"]
        self.assertEqual(shown.replace("\\", "/"), str(profile))
        self.assertFalse((self.game / "temp_xml_provision_file.xml").exists())
        return self.shown("App ID:")["text"]

    def test_one_for_a_single_app_replaces_the_app_id(self):
        profile = self.sign(self.property_list("ABCDE12345.com.studio.evening"))

        self.assertEqual(self.application_id_after(profile), "com.studio.evening")
        self.assertEqual(self.messages(), [])

    def test_one_for_many_apps_rewrites_the_beginning_of_the_app_id(self):
        profile = self.sign(self.property_list("ABCDE12345.com.studio.*"))

        self.assertEqual(self.application_id_after(profile), "com.studio.example.game")

    def test_one_for_all_apps_leaves_the_app_id(self):
        profile = self.sign(self.property_list("ABCDE12345.*"))

        self.assertEqual(self.application_id_after(profile), "com.example.game")

    def test_one_without_line_breaks_is_not_read(self):
        profile = self.sign(self.property_list("ABCDE12345.com.studio.evening", between=""))

        self.assertEqual(self.application_id_after(profile), "com.example.game")
        self.assertEqual(self.messages(), [])

    def test_one_that_was_cut_off_leaves_the_app_id(self):
        profile = self.sign(self.property_list("ABCDE12345.com.studio.evening"))
        content = profile.read_bytes()
        profile.write_bytes(content[:content.index(b"</string>")])

        self.assertEqual(self.application_id_after(profile), "com.example.game")
        self.assertEqual(self.messages(), [])


class SettingsCommand(SettingsTest):
    def settings(self, *options):
        return run(*self.command("settings", *options), env=self.environment, timeout=120)

    def data(self):
        return json.loads(self.document.read_text(encoding="utf-8"))["data"]

    def test_it_shows_every_page_and_changes_no_setting(self):
        before = hashes(self.game)

        result = self.settings()

        self.assertEqual(result.returncode, 0, result.stdout + result.stderr)
        self.assertRegex(result.stdout, r"(?m)^  App ID: +com\.example\.game$")
        titles = [line for line in result.stdout.splitlines() if line and line[0] != " "]
        self.assertEqual(titles, ["General", "Deployment", "Icons", "Permissions", "Languages"])
        after = hashes(self.game)
        # Whatever is done with a document first brings the extensions of its descriptor up to date.
        changed = {name for name in before if after.get(name) != before[name]}
        self.assertEqual((set(after), changed), (set(before), {"Game-app.xml"}))
        self.assertIn("<name>Game</name>", self.descriptor())

    def test_a_password_is_masked_wherever_it_is_shown(self):
        result = self.settings("--set-env", "Deployment.Password:=SAMPLE_PASSWORD")

        self.assertEqual(result.returncode, 0, result.stdout + result.stderr)
        self.assertRegex(result.stdout, r"(?m)^  Password: +\*\*\*$")
        self.assertNotIn(PASSWORD, result.stdout + result.stderr)
        self.assertNotIn(PASSWORD, self.transcript.read_text(encoding="utf-8"))

    def test_what_is_set_reaches_descriptor_and_document(self):
        result = self.settings("--set", "General.App name:=Evening Game",
                               "--set", "General.Output file:=Evening.apk",
                               "--set", "General.Full screen=false")

        self.assertEqual(result.returncode, 0, result.stdout + result.stderr)
        self.assertRegex(result.stdout, r"(?m)^  App name: +Evening Game$")
        self.assertIn("<name>Evening Game</name>", self.descriptor())
        self.assertIn("<fullScreen>false</fullScreen>", self.descriptor())
        self.assertEqual(self.data()["com.tav.moresh.tavdest"], "Evening.apk")


if __name__ == "__main__":
    unittest.main()
