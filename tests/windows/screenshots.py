#!/usr/bin/python3
"""Takes pictures of every page and dialog, in real windows under Wine.

usage: screenshots.py IMAGES-FOLDER LANGUAGE-CODE...

The codes are those that a host gives, such as en_US. Each language gets a folder of its own."""

import json
import os
import pathlib
import shutil
import subprocess
import sys
import tempfile

BUILD = pathlib.Path(os.environ["QUTAV_BUILD"])
SAMPLE = pathlib.Path(__file__).resolve().parents[2] / "samples" / "Game"

ANDROID_PAGES = ["General", "Deployment", "Icons", "Permissions", "Languages"]
IOS_PAGES = ["General", "Deployment", "Icons", "Languages"]
CERTIFICATE = {"Certificate:": "C:\\Keys\\release.p12"}
DIALOGS = {
    "CProgressDlg": "progress",
    "CSignaturePasswordDlg": "password",
    "CTimestampRetryDlg": "timestamp",
    "CFileTypeDlg": "file-type",
    "CAppSettingsDlg": "desktop-general",
    "CAdvancedSettingsDlg": "desktop-advanced",
}


def windows_path(path):
    return "Z:" + str(path).replace("/", "\\")


class Photographer:
    """Runs programs whose windows are pictured for one language."""

    def __init__(self, images, code, folder):
        self.images = images / code
        self.code = code
        self.game = folder / "Game"
        self.script = folder / "script.json"
        self.transcript = folder / "transcript.jsonl"
        self.images.mkdir(parents=True, exist_ok=True)

    def picture(self, name):
        return {"picture": windows_path(self.images / f"{name}.png")}

    def run(self, answers, *command):
        self.script.write_text(json.dumps({"answers": answers}), encoding="utf-8")
        environment = dict(os.environ, QUTAV_FRONT_END="windows",
                           QUTAV_SCRIPT=windows_path(self.script),
                           QUTAV_TRANSCRIPT=windows_path(self.transcript))
        subprocess.run(["wine", *map(str, command)], env=environment, check=True, timeout=120,
                       stdin=subprocess.DEVNULL)

    def open_sheet(self, *answers):
        movie = "file:///Z|" + str(self.game / "Game")
        arguments = ", ".join(json.dumps(text) for text in (movie + ".qud", movie + ".qmv", "26.0"))
        self.run(answers, BUILD / "qutav.exe", "evaluate", windows_path(self.game / "Game.qud.json"),
                 f"OpenSettingDialog({arguments})", "--language", self.code, "--quiet")

    def pages(self, form, titles, deployment):
        """Steps that picture each page; on the one for deployment these fields are filled before."""
        fields = {"Deployment": {"set": deployment}}
        return [{"page": title, **fields.get(title, {}), **self.picture(f"{form}-{title.lower()}")}
                for title in titles]

    def take_android_form(self):
        steps = self.pages("android", ANDROID_PAGES, {**CERTIFICATE, "Password:": "practice-only"})
        create = {"page": "Deployment", "press": "Create..."}
        self.open_sheet({"to": "sheet", "steps": [*steps, create, {"press": "Cancel"}]},
                        {"to": "dialog", "class": "CSelfSignDlg",
                         "set": {"Publisher name:": "Sample Studio"},
                         "steps": [self.picture("certificate"), {"press": "Cancel"}]})

    def take_ios_form(self):
        document = self.game / "Game.qud.json"
        content = json.loads(document.read_text(encoding="utf-8"))
        content["playerTarget"] = "iPhone OS"
        document.write_text(json.dumps(content), encoding="utf-8")
        steps = self.pages("ios", IOS_PAGES, CERTIFICATE)
        self.open_sheet({"to": "sheet", "steps": [*steps, {"press": "Cancel"}]})

    def take_dialogs(self):
        answers = [{"to": "dialog", "class": name, **self.picture(file)}
                   for name, file in DIALOGS.items()]
        answers[0]["steps"] = [{"press": "Cancel"}]  # or its timer would go on
        self.run(answers, BUILD / "tests" / "windows" / "gallery.exe",
                 windows_path(BUILD / "QuTavAndroidExt.dll"), windows_path(self.game), self.code)


def main(images, codes):
    for code in codes:
        with tempfile.TemporaryDirectory() as name:
            folder = pathlib.Path(name)
            shutil.copytree(SAMPLE, folder / "Game")
            photographer = Photographer(images, code, folder)
            photographer.take_android_form()
            photographer.take_dialogs()
            photographer.take_ios_form()
        taken = sorted(path.name for path in (images / code).glob("*.png"))
        print(f"{code}: {', '.join(taken)}")


if __name__ == "__main__":
    if len(sys.argv) < 3:
        sys.exit(__doc__)
    main(pathlib.Path(sys.argv[1]).resolve(), sys.argv[2:])
