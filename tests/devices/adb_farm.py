#!/usr/bin/python3
"""An adb server of a test's own, and loopback devices that are plugged into it.

    with Farm(folder) as farm:
        device = farm.add("first", leave_at="launch")
        subprocess.run(command, env={**os.environ, **farm.variables})
        device.events("install")

A device is connected the way an emulator is, because the serial of one that is connected by
address holds a colon, and lists of serials are separated by colons. On its own the file starts as
many devices as its argument says, and tells how to reach them."""

import json
import os
import pathlib
import shutil
import socket
import subprocess
import sys
import tempfile
import time

DEVICE = pathlib.Path(__file__).resolve().parent / "loopback_device.py"
PATIENCE_SECONDS = 60
POLL_SECONDS = 0.02
SERVER_ATTEMPTS = 5


def wait_until(condition, what):
    """Polls until the condition holds, and gives its value; after a long while an error."""
    deadline = time.monotonic() + PATIENCE_SECONDS
    while not (value := condition()):
        if time.monotonic() > deadline:
            raise TimeoutError(f"waited in vain until {what}")
        time.sleep(POLL_SECONDS)
    return value


def free_port():
    with socket.socket() as probe:
        probe.bind(("127.0.0.1", 0))
        return probe.getsockname()[1]


class FarmDevice:
    """One loopback device: its process, and the folder in which it remembers."""

    def __init__(self, farm, folder, options):
        self._farm = farm
        self._options = options
        self._process = None
        self.folder = folder
        self.port = 0
        folder.mkdir(parents=True)

    @property
    def serial(self):
        return f"emulator-{self.port - 1}"

    def plug_in(self):
        """Starts the device, at its port if it had one, and waits until adb shows its state."""
        self.end()  # it may have left by itself
        command = [sys.executable, DEVICE, "--record", self.folder, "--port", str(self.port)]
        for name, value in self._options.items():
            option = "--" + name.replace("_", "-")
            if value:
                command += [option] if value is True else [option, value]
        self._process = subprocess.Popen([str(part) for part in command], text=True,
                                         stdin=subprocess.DEVNULL, stdout=subprocess.PIPE)
        said = self._process.stdout.readline()
        if not said.startswith("listening on "):
            self.end()
            raise RuntimeError(f"the device did not start: {said}")
        self.port = int(said.split()[-1])
        self._farm.connect(self.port)
        self.wait_for_state(self._options.get("state", "device"))

    def pull_out(self):
        """Ends the device and waits until adb has noticed."""
        self.end()
        self.wait_for_state(None)

    def end(self):
        if self._process is not None:
            self._process.terminate()
            self._process.wait()
            self._process.stdout.close()
            self._process = None

    def release(self):
        """Lets a device go on that holds at a step."""
        (self.folder / "release").touch()

    def wait_for_state(self, state):
        wait_until(lambda: self._farm.states().get(self.serial) == state,
                   f"{self.serial} is {state or 'gone'}")

    def wait_for(self, event):
        """The first event of that name, once it has happened."""
        return wait_until(lambda: self.events(event), f"{self.serial} records {event}")[0]

    def events(self, name=None):
        """What the device recorded, in order; of one name, or all."""
        record = self.folder / "record.jsonl"
        lines = record.read_text(encoding="utf-8").splitlines() if record.exists() else []
        events = [json.loads(line) for line in lines]
        return [event for event in events if name in (None, event["event"])]

    def installed(self):
        """The names of the packages on the device."""
        return sorted(path.stem for path in (self.folder / "installed").glob("*.apk"))


class Farm:
    """The server and its devices, below a folder that the caller deletes."""

    def __init__(self, folder):
        self._folder = pathlib.Path(folder) / "adb-farm"
        self._home = self._folder / "home"
        self._home.mkdir(parents=True)
        self.devices = []
        self.port = 0

    @property
    def variables(self):
        """What the environment of a program must hold to use this farm's server."""
        return {"HOME": str(self._home), "ANDROID_ADB_SERVER_PORT": str(self.port),
                # Emulators of others are not looked for.
                "ADB_LOCAL_TRANSPORT_MAX_PORT": "5554"}

    def __enter__(self):
        self.start()
        return self

    def __exit__(self, *_):
        self.stop()

    def start(self):
        """Starts the server; a port that somebody takes meanwhile is given up for another."""
        for _ in range(SERVER_ATTEMPTS):
            self.port = free_port()
            started = self.adb("start-server")
            if started.returncode == 0 and self.server_processes():
                return
        raise RuntimeError(f"adb did not start: {started.stderr}")

    def add(self, name, **options):
        """A further device, plugged in. The options are those of loopback_device.py, written with
        underscores, as refuse_install="INSTALL_FAILED_OLDER_SDK"."""
        device = FarmDevice(self, self._folder / name, options)
        self.devices.append(device)
        device.plug_in()
        return device

    def connect(self, port):
        said = self.adb("connect", f"emu:{port - 1},{port}").stdout  # it ends with 0 whatever happens
        # A device that comes back may have been found again already.
        if not said.startswith(("Connected to emulator", "Emulator already registered")):
            raise RuntimeError(f"adb cannot connect: {said}")

    def adb(self, *arguments):
        """Runs adb on this server: exit code, standard output and error as text."""
        environment = {**os.environ, **self.variables, "TMPDIR": str(self._folder)}
        environment.pop("ANDROID_SERIAL", None)
        return subprocess.run(["adb", *(str(argument) for argument in arguments)], text=True,
                              env=environment, capture_output=True, stdin=subprocess.DEVNULL,
                              timeout=PATIENCE_SECONDS, check=False)

    def states(self):
        """What adb lists, by serial."""
        lines = self.adb("devices").stdout.splitlines()
        return dict(line.split("\t") for line in lines if "\t" in line)

    def forwards(self):
        """The forwards of all devices, a line each: serial, host's end, device's end."""
        return [line for line in self.adb("forward", "--list").stdout.splitlines() if line]

    def server_processes(self):
        """The ids of the server's processes."""
        return [process for process in _processes_with(f"HOME={self._home}")
                if b"fork-server" in _command_line(process)]

    def stop(self):
        """Ends the server, then the devices, and sees to it that nothing of adb stays behind."""
        try:
            self.adb("kill-server")
            wait_until(lambda: not self.server_processes(), "the adb server has ended")
        finally:
            for device in self.devices:
                device.end()


def _processes_with(variable):
    found = []
    for entry in pathlib.Path("/proc").iterdir():
        try:
            if entry.name.isdigit() and \
                    variable.encode() in (entry / "environ").read_bytes().split(b"\0"):
                found.append(int(entry.name))
        except OSError:
            continue  # it has ended meanwhile, or is somebody else's
    return found


def _command_line(process):
    try:
        return pathlib.Path(f"/proc/{process}/cmdline").read_bytes()
    except OSError:
        return b""


def main():
    folder = tempfile.mkdtemp(prefix="adb-farm-")
    try:
        with Farm(folder) as farm:
            for number in range(int(sys.argv[1]) if len(sys.argv) > 1 else 1):
                device = farm.add(f"device{number + 1}")
                print(f"{device.serial} remembers in {device.folder}")
            print("export", *(f"{name}={value}" for name, value in farm.variables.items()))
            input("Enter ends them. ")
    except (EOFError, KeyboardInterrupt):
        pass
    finally:
        shutil.rmtree(folder)


if __name__ == "__main__":
    main()
