"""What an adb server can open on a device: shells, streamed installs, file transfer, tunnels."""

import hashlib
import shlex
import struct

SHELL_STDOUT, SHELL_STDERR, SHELL_EXIT = 1, 2, 3
FOLDER_MODE, FILE_MODE = 0o040755, 0o100644


class Services:
    """Serves the streams of one device, by the name under which they are opened."""

    def __init__(self, device, shell):
        self._device = device
        self._record = device.record
        self._shell = shell
        self._services = (("shell,v2", self._shell_v2), ("shell:", self._shell_v1),
                          ("exec:", self._exec), ("sync:", self._sync),
                          ("reverse:", self._reverse), ("tcp:", self._tunnel))

    def knows(self, name):
        return any(name.startswith(prefix) for prefix, _ in self._services)

    def serve(self, name, stream):
        service = next(service for prefix, service in self._services if name.startswith(prefix))
        service(name, stream)

    def _shell_v2(self, name, stream):
        output, error, code = self._shell.run(name.partition(":")[2])
        for kind, data in ((SHELL_STDOUT, output.encode()), (SHELL_STDERR, error.encode()),
                           (SHELL_EXIT, bytes([code]))):
            if data:
                stream.write(struct.pack("<BI", kind, len(data)) + data)

    def _shell_v1(self, name, stream):
        """The old shell has one stream for both outputs and no exit code."""
        output, error, _ = self._shell.run(name.partition(":")[2])
        stream.write((output + error).encode())

    def _exec(self, name, stream):
        line = name.partition(":")[2]
        words = shlex.split(line)
        if words[:3] == ["cmd", "package", "install"] and "-S" in words[:-1]:
            self._streamed_install(int(words[words.index("-S") + 1]), stream)
        else:
            output, error, _ = self._shell.run(line)
            stream.write((output + error).encode())

    def _streamed_install(self, size, stream):
        file = self._record.incoming()
        half = size // 2
        with open(file, "wb") as sink:
            sink.writelines(stream.read_parts(half))
            self._device.reach("install")  # where a device that leaves has half of the package
            sink.writelines(stream.read_parts(size - half))
        answer = self._record.install(file, "streamed", self._device.options.refuse_install)
        stream.write((answer + "\n").encode())

    # File transfer.

    def _sync(self, name, stream):
        del name
        while True:
            request, size = struct.unpack("<4sI", stream.read_exactly(8))
            if request == b"QUIT":
                return
            path = stream.read_exactly(size).decode()
            if request == b"STAT":
                stream.write(struct.pack("<4sIII", b"STAT", *self._stat(path)))
            elif request == b"SEND":
                self._take(path.rpartition(",")[0], stream)
            elif request == b"RECV":
                self._give(path, stream)
            else:
                self._fail(stream, "unknown request")
                return

    def _stat(self, path):
        file = self._record.pushed(path)
        if file.exists():
            return FILE_MODE, file.stat().st_size, 0
        return (FOLDER_MODE, 0, 0) if path.rstrip("/") == "/data/local/tmp" else (0, 0, 0)

    def _take(self, path, stream):
        file = self._record.incoming()
        checksum = hashlib.sha256()
        with open(file, "wb") as sink:
            while True:
                kind, size = struct.unpack("<4sI", stream.read_exactly(8))
                if kind == b"DONE":  # its number is the time of the last change
                    break
                data = stream.read_exactly(size)
                checksum.update(data)
                sink.write(data)
        self._record.add("push", path=path, size=file.stat().st_size, sha256=checksum.hexdigest())
        file.replace(self._record.pushed(path))
        stream.write(struct.pack("<4sI", b"OKAY", 0))

    def _give(self, path, stream):
        file = self._record.pushed(path)
        if not file.exists():
            self._fail(stream, "No such file or directory")
            return
        with open(file, "rb") as source:
            while data := source.read(1 << 16):
                stream.write(struct.pack("<4sI", b"DATA", len(data)) + data)
        stream.write(struct.pack("<4sI", b"DONE", 0))

    @staticmethod
    def _fail(stream, text):
        stream.write(struct.pack("<4sI", b"FAIL", len(text)) + text.encode())

    # Tunnels. A forward belongs to the adb server; the device sees it when somebody uses it.

    def _reverse(self, name, stream):
        self._record.add("reverse", request=name.partition(":")[2])
        stream.write(b"OKAY")

    def _tunnel(self, name, stream):
        self._record.add("tunnel", port=int(name.partition(":")[2]))
        while data := stream.read():
            stream.write(data)  # an echo, so that both directions can be seen
