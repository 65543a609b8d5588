"""The device itself: a listening socket, and what it does when its moment has come."""

import contextlib
import socket

from .record import Record
from .services import Services
from .shell import Shell
from .transport import Connection, Disconnected

STEPS = ("uninstall", "install", "launch")
FEATURES = "shell_v2,cmd"


class Device:
    """A device that listens on the loopback address. `options` are those of the command line."""

    def __init__(self, options):
        self.options = options
        self.record = Record(options.record)
        self._services = Services(self, Shell(self))
        self._listener = socket.socket()
        self._listener.setsockopt(socket.SOL_SOCKET, socket.SO_REUSEADDR, 1)
        self._listener.bind(("127.0.0.1", options.port))
        self._listener.listen()
        self._connected = None
        self._left = False

    @property
    def port(self):
        return self._listener.getsockname()[1]

    def properties(self):
        return {"ro.product.model": self.options.model, "ro.product.name": "loopback",
                "ro.product.device": "loopback", "ro.build.version.sdk": "33"}

    def serve(self):
        """Serves one adb server after the other, until the device leaves."""
        while not self._left:
            try:
                self._connected = self._listener.accept()[0]
            except OSError:
                return  # it has left
            with self._connected:
                self._connected.setsockopt(socket.IPPROTO_TCP, socket.TCP_NODELAY, 1)
                connection = Connection(self._connected, self._banner(), self._services.knows,
                                        self._services.serve)
                connection.run(self.options.state)

    def reach(self, step):
        """Called when a step is about to be done: holds or leaves here where it was told to."""
        if self.options.hold_at == step:
            self.record.add("held", at=step)
            self.record.wait_for_release()
        if self.options.leave_at == step:
            self.record.add("left", at=step)
            self._leave()
            raise Disconnected

    def _leave(self):
        self._left = True
        for end in (self._listener, self._connected):
            with contextlib.suppress(OSError):  # the other side may have been quicker
                end.shutdown(socket.SHUT_RDWR)

    def _banner(self):
        properties = "".join(f"{name}={value};" for name, value in self.properties().items()
                             if name.startswith("ro.product."))
        features = "" if self.options.old else FEATURES
        return f"device::{properties}features={features}"
