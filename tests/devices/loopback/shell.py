"""The commands of a device's shell."""

import shlex


class Shell:
    """Runs one command line at a time: standard output, standard error, exit code."""

    def __init__(self, device):
        self._device = device
        self._record = device.record
        self._commands = {
            "am": self._am, "cmd": self._cmd, "echo": self._echo, "exit": self._exit,
            "getprop": self._getprop, "pm": self._pm, "rm": self._rm}

    def run(self, line):
        try:
            words = shlex.split(line)
        except ValueError:
            return "", "/system/bin/sh: syntax error\n", 1
        if not words:
            return "", "", 0
        command = self._commands.get(words[0])
        if command is None:
            return "", f"/system/bin/sh: {words[0]}: not found\n", 127
        return command(words[1:])

    @staticmethod
    def _echo(words):
        return " ".join(words) + "\n", "", 0

    @staticmethod
    def _exit(words):
        return "", "", int(words[0]) & 0xFF if words and words[0].isdigit() else 0

    def _getprop(self, words):
        properties = self._device.properties()
        if words:
            return properties.get(words[0], "") + "\n", "", 0
        return "".join(f"[{name}]: [{value}]\n" for name, value in properties.items()), "", 0

    def _rm(self, words):
        for word in words:
            self._record.pushed(word).unlink(missing_ok=True)
        return "", "", 0

    def _cmd(self, words):
        if words[:1] != ["package"]:
            return "", f"cmd: Can't find service: {' '.join(words[:1])}\n", 20
        return self._pm(words[1:])

    def _pm(self, words):
        operation, *rest = words or [""]
        operands = [word for word in rest if not word.startswith("-")]
        if operation == "list" and operands == ["packages"]:
            return "".join(f"package:{name}\n" for name in self._record.installed()), "", 0
        if operation == "install" and len(operands) == 1:
            return self._install(operands[0])
        if operation == "uninstall" and len(operands) == 1:
            self._device.reach("uninstall")
            return self._verdict(self._record.uninstall(operands[0]))
        return "", f"Error: unknown command '{operation}'\n", 1

    def _install(self, path):
        self._device.reach("install")
        file = self._record.pushed(path)
        if not file.exists():
            return "", f"Error: failed to open {path}\n", 1
        return self._verdict(
            self._record.install(file, "pushed", self._device.options.refuse_install))

    @staticmethod
    def _verdict(answer):
        if answer == "Success":
            return answer + "\n", "", 0
        return "", answer + "\n", 1

    def _am(self, words):
        if words[:1] != ["start"] or "-n" not in words[:-1]:
            return "", "Error: Unknown command: " + " ".join(words) + "\n", 1
        component = words[words.index("-n") + 1]
        self._device.reach("launch")
        started = self._has_activity(component)
        self._record.add("launch", component=component, started=started)
        begun = f"Starting: Intent {{ cmp={component} }}\n"
        if started:
            return begun, "", 0
        return begun, f"Error type 3\nError: Activity class {{{component}}} does not exist.\n", 1

    def _has_activity(self, component):
        name, _, activity = component.partition("/")
        application = self._record.application(name)
        full_name = name + activity if activity.startswith(".") else activity
        return application is not None and full_name in application.activities
