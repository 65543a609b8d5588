#!/usr/bin/python3
"""Checks that every floor of src/ includes only floors below it, and that no includes form a ring.

docs/architecture.md tells what the floors are for."""

import pathlib
import re
import sys

SOURCE = pathlib.Path(__file__).resolve().parent.parent / "src"

# From the ground up.
FLOORS = ["platform", "framework", "support", "descriptor", "packaging", "settings_ui", "win"]

# Subjects that stand lower than their folder, just above the platform, because everything leans on
# them.
LOW_SUBJECTS = {
    "win/SettingsKeys", "win/SettingsMap", "win/HostEnvironment", "win/HostScript",
    "win/InterfaceLanguage", "win/MessageIds", "win/DocumentPaths", "win/DocumentData",
}

# The dialogs of a publish lean on nothing but the framework and the settings; the driver shows them.
# The native extension cache serves the generator and the driver.
SUBJECT_FLOORS = {
    "win/ExtensionCache": "support",
    "settings_ui/DialogTexts": "framework",
    "settings_ui/ProgressDlg": "packaging",
    "settings_ui/TimestampRetryDlg": "packaging",
    "settings_ui/SignaturePasswordDlg": "packaging",
}

INCLUDE = re.compile(r'^#include "([^"]+)"', re.MULTILINE)


def subject_of(path):
    return path.rsplit(".", 1)[0]


def height(path):
    subject = subject_of(path)
    if subject in LOW_SUBJECTS:
        return FLOORS.index("platform") + 0.5
    return FLOORS.index(SUBJECT_FLOORS.get(subject, subject.split("/")[0]))


def includes():
    for file in sorted(SOURCE.rglob("*.[ch]*")):
        name = file.relative_to(SOURCE).as_posix()
        for target in INCLUDE.findall(file.read_text(encoding="utf-8")):
            if (SOURCE / target).exists():
                yield name, target


def find_ring(graph):
    done, path = set(), []

    def visit(node):
        if node in path:
            return path[path.index(node):] + [node]
        if node in done:
            return None
        path.append(node)
        for target in graph.get(node, ()):
            ring = visit(target)
            if ring:
                return ring
        path.pop()
        done.add(node)
        return None

    for node in list(graph):
        ring = visit(node)
        if ring:
            return ring
    return None


def main():
    errors, graph = [], {}
    for name, target in includes():
        graph.setdefault(name, []).append(target)
        if height(target) > height(name):
            errors.append(f"{name} includes {target}, which stands above it")
    ring = find_ring(graph)
    if ring:
        errors.append("includes form a ring: " + " -> ".join(ring))
    print("\n".join(errors) or f"{len(graph)} files keep to their floors")
    return 1 if errors else 0


if __name__ == "__main__":
    sys.exit(main())
