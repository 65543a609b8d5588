"""What a device reads of a package: its name and its activities, from the binary manifest."""

import struct
import zipfile

STRING_POOL, START_ELEMENT = 0x0001, 0x0102
UTF8_FLAG = 0x100
FILE_HEADER = 8
ELEMENT_HEADER = 16
TYPE_STRING = 3


class NotAPackage(Exception):
    """The file is no Android package that could be read."""


class PackageFile:
    """Name and activities (with full class names) of a package."""

    def __init__(self, path):
        try:
            with zipfile.ZipFile(path) as archive:
                elements = list(_elements(archive.read("AndroidManifest.xml")))
        except (zipfile.BadZipFile, KeyError, struct.error, IndexError, ValueError) as error:
            raise NotAPackage from error
        self.name = dict(elements).get("manifest", {}).get("package", "")
        if not self.name:
            raise NotAPackage
        self.activities = {_full_name(self.name, attributes.get("name", ""))
                           for tag, attributes in elements if tag == "activity"}


def _full_name(package, name):
    return package + name if name.startswith(".") else name


def _elements(data):
    """Tag and text attributes of each element, in order."""
    strings = []
    position = FILE_HEADER
    while position < len(data):
        kind, _, size = struct.unpack_from("<HHI", data, position)
        if size < FILE_HEADER:
            raise ValueError("a chunk is too short")
        if kind == STRING_POOL:
            strings = _strings(data[position:position + size])
        elif kind == START_ELEMENT:
            yield _element(data[position:position + size], strings)
        position += size


def _element(chunk, strings):
    _, tag, start, size, count = struct.unpack_from("<IIHHH", chunk, ELEMENT_HEADER)
    attributes = {}
    for index in range(count):
        offset = ELEMENT_HEADER + start + index * size
        _, name, _, _, _, kind, value = struct.unpack_from("<IIIHBBI", chunk, offset)
        if kind == TYPE_STRING:
            attributes[strings[name]] = strings[value]
    return strings[tag], attributes


def _strings(chunk):
    count, _, flags, start = struct.unpack_from("<IIII", chunk, 8)
    read = _utf8_string if flags & UTF8_FLAG else _utf16_string
    return [read(chunk, start + struct.unpack_from("<I", chunk, 28 + 4 * index)[0])
            for index in range(count)]


def _utf8_string(chunk, position):
    position += 2 if chunk[position] & 0x80 else 1  # the length in characters, not needed here
    size = chunk[position]
    position += 1
    if size & 0x80:
        size = (size & 0x7F) << 8 | chunk[position]
        position += 1
    return chunk[position:position + size].decode()


def _utf16_string(chunk, position):
    size = struct.unpack_from("<H", chunk, position)[0]
    position += 2
    if size & 0x8000:
        size = (size & 0x7FFF) << 16 | struct.unpack_from("<H", chunk, position)[0]
        position += 2
    return chunk[position:position + 2 * size].decode("utf-16-le")
