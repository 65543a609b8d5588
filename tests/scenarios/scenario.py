"""Scenarios of the settings sheet and its dialogs, the same for every front end and system.

Each JSON file beside this one is a scenario:

does       what happens, in a sentence
level      of the runtime; the newest unless told
language   of the interface; English unless told
document   members of the document file that are not the sample's, "data" among them; a null removes
files      made beforehand: a file of the sample document to copy, or an object with its text
packaging  what the packaging tool does at each run: "real" (afterwards, too), "hang", or an exit code
answers    the script
holds      what must be true afterwards:
    messages     the text of every message box, in order
    events       events of the transcript that come in this order, by some of their members
    shown        for each "show" of the script, some controls by label: a text, a switch, a row's
                 check mark, whether a picture is painted, or an object of some members of the record
    descriptor   elements by path: their text, or null where there is none
    permissions  those of the descriptor, in order
    data         keys of the document: their text, or null
    registry     values by name, those of a list by "list/name"; null where there is none
    commands     for each run of Java, some of its arguments in order
    files        by name: the file of the case that it equals, or null where there is none
    signer       who has signed the package

"{folder}" stands for the folder of the case, which holds the document in "Game", the certificate
"sample.p12" and what "files" names. Slashes are forward everywhere; "{native}" is the folder with
backward ones, as rows of lists have it.
"""

import dataclasses
import json
import pathlib
import re
import shutil
import subprocess
import xml.etree.ElementTree as xml

FOLDER = pathlib.Path(__file__).resolve().parent
SAMPLE = FOLDER.parents[1] / "samples" / "Game"
PASSWORD = "practice-only"  # of the certificate, to be asked for as SAMPLE_PASSWORD
STAND_IN_JAVA = FOLDER / "stand_in_java.py"
FACTS = {"messages", "events", "shown", "descriptor", "permissions", "data", "registry", "commands",
         "files", "signer"}


@dataclasses.dataclass
class Outcome:
    """What a run of a scenario has left."""
    descriptor: bytes
    document: bytes
    registry: dict  # values by name
    commands: list  # the arguments of each run of Java
    events: list    # of the transcript


class Case:
    """A scenario in a folder of its own; `shown_folder` is how the product writes that folder."""

    def __init__(self, scenario, folder, shown_folder):
        self.scenario = scenario
        self.folder = folder
        self.shown_folder = shown_folder
        self.document = folder / "Game" / "Game.qud.json"
        self.transcript = folder / "transcript.jsonl"
        self.tool = folder / "tool"
        self.level = scenario.get("level", "26.0")
        self.language = scenario.get("language", "en_US")

    def prepare(self, keystore):
        if not self.document.exists():
            shutil.copytree(SAMPLE, self.folder / "Game")
        shutil.copy(keystore, self.folder / "sample.p12")
        self._edit_document()
        for name, source in self.scenario.get("files", {}).items():
            self._make_file(self.folder / name, source)
        self.tool.mkdir()
        (self.tool / "plays.json").write_text(json.dumps(self.scenario.get("packaging", [])),
                                              encoding="utf-8")

    def answers(self):
        return self._filled_in(self.scenario["answers"])

    def outcome(self, registry):
        """Reads what is left, and lets a tool that hangs go."""
        (self.tool / "plays.json").unlink()
        commands = self.tool / "commands.jsonl"
        return Outcome((self.folder / "Game" / "Game-app.xml").read_bytes(),
                       self.document.read_bytes(), registry,
                       _json_lines(commands) if commands.exists() else [],
                       _json_lines(self.transcript))

    def plain(self, text):
        """A text of the product, as the scenario writes it."""
        text = text.replace("\\", "/")
        return text.replace(self.shown_folder, "{folder}").replace(str(self.folder), "{folder}")

    def _filled_in(self, value):
        if isinstance(value, str):
            native = self.shown_folder.replace("/", "\\")
            return value.replace("{folder}", self.shown_folder).replace("{native}", native)
        if isinstance(value, list):
            return [self._filled_in(item) for item in value]
        if isinstance(value, dict):
            return {key: self._filled_in(item) for key, item in value.items()}
        return value

    def _edit_document(self):
        document = json.loads(self.document.read_text(encoding="utf-8"))
        edits = self._filled_in(self.scenario.get("document", {}))
        data = document["data"] | edits.pop("data", {})
        document |= edits | {"data": {key: text for key, text in data.items() if text is not None}}
        self.document.write_text(json.dumps(document, ensure_ascii=False), encoding="utf-8")

    @staticmethod
    def _make_file(target, source):
        target.parent.mkdir(parents=True, exist_ok=True)
        if isinstance(source, str):
            shutil.copy(SAMPLE / source, target)
        else:
            target.write_text(source["text"], encoding="utf-8")


class Facts:
    """Compares an outcome with what must hold; `test` is the running test case."""

    def __init__(self, test, case, outcome):
        self.test = test
        self.case = case
        self.outcome = outcome

    def check(self):
        self.test.assertEqual(self._events("script-error"), [])
        self.test.assertNotIn(PASSWORD, self.case.transcript.read_text(encoding="utf-8"))
        holds = self.case.scenario["holds"]
        self.test.assertTrue(holds, "a scenario without facts")
        self.test.assertEqual(set(holds) - FACTS, set())
        for kind, facts in holds.items():
            with self.test.subTest(fact=kind):
                getattr(self, f"_check_{kind}")(facts)

    def _events(self, kind):
        return [event for event in self.outcome.events if event["event"] == kind]

    def _check_messages(self, texts):
        self.test.assertEqual([self._plain(event["text"]) for event in self._events("message")],
                              texts)

    def _check_events(self, facts):
        events = iter(self.outcome.events)
        for fact in facts:
            self.test.assertTrue(any(self._has(event, fact) for event in events),
                                 f"no {fact} in its place")

    def _check_shown(self, facts):
        shown = self._events("controls")
        self.test.assertEqual(len(shown), len(facts))
        for number, (event, controls) in enumerate(zip(shown, facts)):
            for label, fact in controls.items():
                with self.test.subTest(shown=number, control=label):
                    self._check_control(_control(event, label), fact)

    def _check_control(self, control, fact):
        if control.get("kind") == "picture":
            return self.test.assertEqual("painted" in control, fact)
        if not isinstance(fact, dict):
            fact = {"checked" if isinstance(fact, bool) else "text": fact}
        return self.test.assertEqual({name: self._plain(control.get(name)) for name in fact}, fact)

    def _check_descriptor(self, facts):
        root = xml.fromstring(self.outcome.descriptor)
        found = {path: root.findtext(path, namespaces={"": root.tag[1:].partition("}")[0]})
                 for path in facts}
        self.test.assertEqual(found, facts)

    def _check_permissions(self, names):
        text = self.outcome.descriptor.decode("utf-8")
        self.test.assertEqual(re.findall(r'"android\.permission\.(\w+)"', text), names)

    def _check_data(self, facts):
        data = json.loads(self.outcome.document)["data"]
        self.test.assertEqual({key: self._plain(data.get(key)) for key in facts}, facts)

    def _check_registry(self, facts):
        values = self.outcome.registry
        self.test.assertEqual({name: self._plain(values.get(name)) for name in facts}, facts)

    def _check_commands(self, facts):
        self.test.assertEqual(len(self.outcome.commands), len(facts))
        for command, wanted in zip(self.outcome.commands, facts):
            arguments = iter(map(self._plain, command))
            for argument in wanted:
                self.test.assertTrue(argument in arguments, f"no {argument} in its place: {command}")

    def _check_files(self, facts):
        for name, source in facts.items():
            file = self.case.folder / name
            if source is None:
                self.test.assertFalse(file.exists(), name)
            else:
                self.test.assertEqual(file.read_bytes(), (self.case.folder / source).read_bytes())

    def _check_signer(self, name):
        verified = subprocess.run(
            ["apksigner", "verify", "--min-sdk-version", "21", "--print-certs",
             self.case.folder / "Game" / "Game.apk"], capture_output=True, text=True, check=False)
        self.test.assertEqual(verified.returncode, 0, verified.stdout + verified.stderr)
        self.test.assertIn(name, verified.stdout)

    def _has(self, event, fact):
        return all(self._plain(event.get(member)) == value for member, value in fact.items())

    def _plain(self, value):
        if isinstance(value, list):
            return [self._plain(item) for item in value]
        return self.case.plain(value) if isinstance(value, str) else value


def _json_lines(file):
    return [json.loads(line) for line in file.read_text(encoding="utf-8").splitlines()]


def _control(event, address):
    """The control of this label, or the row of a check list."""
    label, _, number = address.partition("#")
    found = [control for control in event["controls"] if control["label"] == label]
    if found:
        return found[int(number or 1) - 1]
    return next(row for control in event["controls"] if control["kind"] == "check list"
                for row in control["rows"] if row["text"] == label)


def add_tests(test_class):
    """Gives a class of tests a test for each scenario, which calls its `check_scenario`."""
    for file in sorted(FOLDER.glob("*.json")):
        scenario = json.loads(file.read_text(encoding="utf-8"))

        def test(self, scenario=scenario):
            self.check_scenario(scenario)

        test.__doc__ = scenario["does"]
        setattr(test_class, f"test_{file.stem}", test)
