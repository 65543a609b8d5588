"""Every kind of package is made by the real tool, and by the command line that it expects."""

import json
import unittest

from harness import BUILD, PublishTest


class Targets(PublishTest):
    def test_a_debug_package_is_exported_with_its_debug_mark(self):
        self.set_data("com.tav.pelund.publishtype", "debug")

        self.assert_published(self.publish(), self.game / "Game.apk")

    def test_an_emulator_package(self):
        self.set_data("com.tav.pelund.publishtype", "release-emulator")

        self.assert_published(self.publish(), self.game / "Game.apk")

    def test_a_shared_runtime_below_level_26(self):
        (self.folder / "sdk").symlink_to(BUILD / "TAV26.0")
        self.set_data("com.tav.sdk.path", str(self.folder / "sdk"))
        self.edit_document(**{"com.tav.pelund.runtimetype": "share",
                              "com.tav.pelund.marketURL": "market://details?id=runtime"})

        self.assert_published(self.publish(version="20.0"), self.game / "Game.apk")

    def test_a_prepared_package_needs_no_certificate(self):
        self.set_registry_value("DigitalSign", "prepare")
        script = self.folder / "empty.json"
        script.write_text('{"answers": []}', encoding="utf-8")

        result = self.publish("--script", script)

        self.assertEqual(result.returncode, 0, result.stdout + result.stderr)
        self.assertEqual(self.messages(), ["APK file has been created."])

    def test_an_ios_package_needs_the_packager_s_files(self):
        self.set_member("playerTarget", "iPhone OS")
        profile = self.folder / "store.mobileprovision"
        profile.write_text("profile", encoding="utf-8")

        result = self.publish("--provisioning-profile", profile)

        self.assert_refused(
            result, "TAV for iOS publishing requires files that are not installed.\r\nPlease quit "
            "Quorl Professional and run the original installer to ensure that all optional "
            "components are installed.")


if __name__ == "__main__":
    unittest.main()
