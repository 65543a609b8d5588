"""The adb transport protocol from the device's side: packets over a socket, and streams in them."""

import itertools
import queue
import struct
import threading

VERSION = 0x01000001  # the first whose packets carry no checksum
LARGEST_PAYLOAD = 1 << 20

CNXN, AUTH, OPEN, OKAY, WRTE, CLSE = (int.from_bytes(name, "little") for name in
                                      (b"CNXN", b"AUTH", b"OPEN", b"OKAY", b"WRTE", b"CLSE"))
AUTH_TOKEN, AUTH_PUBLIC_KEY = 1, 3
HEADER = struct.Struct("<6I")


class Disconnected(Exception):
    """The other side, or this device itself, has closed the connection."""


class Packets:
    """Whole packets over a connected socket; any thread may send."""

    def __init__(self, socket):
        self._socket = socket
        self._sending = threading.Lock()

    def send(self, command, first, second, payload=b""):
        header = HEADER.pack(command, first, second, len(payload), 0, command ^ 0xFFFFFFFF)
        try:
            with self._sending:
                self._socket.sendall(header + payload)
        except OSError as error:
            raise Disconnected from error

    def receive(self):
        """The next packet: command, its two arguments, payload."""
        command, first, second, size, _, magic = HEADER.unpack(self._receive_exactly(HEADER.size))
        if magic != command ^ 0xFFFFFFFF or size > LARGEST_PAYLOAD:
            raise Disconnected
        return command, first, second, self._receive_exactly(size)

    def _receive_exactly(self, size):
        data = bytearray()
        while len(data) < size:
            try:
                part = self._socket.recv(size - len(data))
            except OSError as error:
                raise Disconnected from error
            if not part:
                raise Disconnected
            data += part
        return bytes(data)


class Stream:
    """One conversation within a connection. Each write waits until the other side has taken the one
    before, and the other side may go on once a read has taken what it sent."""

    def __init__(self, packets, number, peer, largest_write):
        self._packets = packets
        self._number = number
        self._peer = peer
        self._largest_write = largest_write
        self._inbox = queue.SimpleQueue()
        self._taken = threading.Semaphore(1)
        self._ended = False
        self._rest = b""

    def accept(self):
        self._packets.send(OKAY, self._number, self._peer)

    def read(self):
        """What came next, of any length; empty when the other side has closed."""
        if self._rest:
            data, self._rest = self._rest, b""
            return data
        data = self._inbox.get()
        if data:
            self._packets.send(OKAY, self._number, self._peer)
        else:
            self._inbox.put(b"")  # for the next read
        return data

    def read_parts(self, size):
        """Exactly that many bytes, part by part as they come."""
        while size > 0:
            data = self.read()
            if not data:
                raise Disconnected
            part, self._rest = data[:size], data[size:]
            size -= len(part)
            yield part

    def read_exactly(self, size):
        return b"".join(self.read_parts(size))

    def write(self, data):
        for start in range(0, len(data), self._largest_write):
            self._taken.acquire()
            if self._ended:
                raise Disconnected
            self._packets.send(WRTE, self._number, self._peer,
                               data[start:start + self._largest_write])

    def close(self):
        self._packets.send(CLSE, self._number, self._peer)

    # Called by the connection.

    def deliver(self, data):
        self._inbox.put(data)

    def was_taken(self):
        self._taken.release()

    def end(self):
        self._ended = True
        self._inbox.put(b"")
        self._taken.release()


class Connection:
    """Serves one connected adb server until it goes: `serve(name, stream)` is run on a thread of
    its own for each stream that the server opens; False from `knows(name)` refuses a stream."""

    def __init__(self, socket, banner, knows, serve):
        self._packets = Packets(socket)
        self._banner = banner
        self._knows = knows
        self._serve = serve
        self._streams = {}
        self._numbers = itertools.count(1)
        self._largest_write = 4096

    def run(self, state):
        try:
            while True:
                self._handle(state, *self._packets.receive())
        except Disconnected:
            for stream in list(self._streams.values()):
                stream.end()

    def _handle(self, state, command, first, second, payload):
        if state == "offline":
            return  # never says a word
        if command == CNXN:
            self._largest_write = min(second, LARGEST_PAYLOAD)
            self._greet(state)
        elif command == AUTH and first != AUTH_PUBLIC_KEY:
            self._greet(state)  # no signature will do; the public key would wait for the user
        elif command == OPEN:
            self._open(first, payload.rstrip(b"\0").decode())
        elif second in self._streams:
            self._continue(command, self._streams[second], payload)

    def _greet(self, state):
        if state == "unauthorized":
            self._packets.send(AUTH, AUTH_TOKEN, 0, bytes(range(20)))
        else:
            self._packets.send(CNXN, VERSION, LARGEST_PAYLOAD, self._banner.encode())

    def _open(self, peer, name):
        if not self._knows(name):
            self._packets.send(CLSE, 0, peer)
            return
        number = next(self._numbers)
        stream = Stream(self._packets, number, peer, self._largest_write)
        self._streams[number] = stream
        threading.Thread(target=self._converse, args=(name, stream, number), daemon=True).start()

    def _converse(self, name, stream, number):
        try:
            stream.accept()
            self._serve(name, stream)
            stream.close()
        except Disconnected:
            pass
        finally:
            self._streams.pop(number, None)

    @staticmethod
    def _continue(command, stream, payload):
        if command == WRTE:
            stream.deliver(payload)
        elif command == OKAY:
            stream.was_taken()
        elif command == CLSE:
            stream.end()
