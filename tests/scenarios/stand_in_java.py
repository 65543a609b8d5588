#!/usr/bin/python3
"""Stands in Java's place in a scenario. It keeps each command line in the folder that
QUTAV_TOOL_FOLDER names, and hands it on to the machine's Java, unless the scenario has the packaging
tool play something else."""

import json
import os
import pathlib
import sys
import time

FOLDER = pathlib.Path(os.environ["QUTAV_TOOL_FOLDER"])
PLAYS = FOLDER / "plays.json"
COMMANDS = FOLDER / "commands.jsonl"


def keep(arguments):
    with COMMANDS.open("a", encoding="utf-8") as commands:
        commands.write(json.dumps(arguments) + "\n")


def next_play():
    """What the packaging tool does at this run, the command lines of which are kept."""
    commands = map(json.loads, COMMANDS.read_text(encoding="utf-8").splitlines())
    number = sum("-certificate" not in command for command in commands)
    plays = json.loads(PLAYS.read_text(encoding="utf-8"))
    return plays[number - 1] if number <= len(plays) else "real"


def main(arguments):
    keep(arguments)
    play = "real" if "-certificate" in arguments else next_play()
    if play == "real":
        os.execvp("java", ["java", *arguments])
    while play == "hang" and PLAYS.exists():
        time.sleep(0.1)
    return 1 if play == "hang" else play


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
