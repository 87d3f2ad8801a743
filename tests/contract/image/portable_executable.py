"""Reads what the checks of a Windows image need: headers, imports, exports, relocations, resources.

Numbers and names are those of Microsoft's description of the format. A malformed file raises a
ValueError or a struct.error.
"""

import struct

MACHINE_I386 = 0x14C
FILE_IS_DLL = 0x2000
FILE_HAS_NO_RELOCATIONS = 0x0001
MAGIC_PE32 = 0x10B
MAGIC_PE32_PLUS = 0x20B
DYNAMIC_BASE = 0x0040
NX_COMPAT = 0x0100

EXPORTS, IMPORTS, RESOURCES, RELOCATIONS, DELAYED_IMPORTS = 0, 1, 2, 5, 13
RELOCATION_HIGHLOW = 3
RESOURCE_VERSION = 16


class Image:
    def __init__(self, data):
        self.data = data
        header = self.unpack("<I", 0x3C)[0]
        if data[:2] != b"MZ" or data[header:header + 4] != b"PE\0\0":
            raise ValueError("it is no portable executable")
        self.machine, sections, _, _, _, size, self.file_flags = self.unpack("<HHIIIHH", header + 4)
        optional = header + 24
        self.magic = self.unpack("<H", optional)[0]
        if self.magic not in (MAGIC_PE32, MAGIC_PE32_PLUS):
            raise ValueError(f"it has an optional header of the unknown kind {self.magic:#x}")
        self.dll_flags = self.unpack("<H", optional + 70)[0]
        first = optional + (92 if self.magic == MAGIC_PE32 else 108)
        count = self.unpack("<I", first)[0]
        self.directories = [self.unpack("<II", first + 4 + 8 * i) for i in range(count)]
        # Each as (address, size in the file, offset in the file).
        self.sections = []
        for i in range(sections):
            _, address, stored, offset = self.unpack("<IIII", optional + size + 40 * i + 8)
            self.sections.append((address, stored, offset))

    def unpack(self, layout, offset):
        return struct.unpack_from(layout, self.data, offset)

    def directory(self, index):
        """Address and size; (0, 0) if the image has none of that kind."""
        return self.directories[index] if index < len(self.directories) else (0, 0)

    def at(self, address):
        """The offset in the file that belongs to an address relative to the image."""
        for start, stored, offset in self.sections:
            if start <= address < start + stored:
                return offset + address - start
        raise ValueError(f"the address {address:#x} is in no section")

    def text(self, address):
        start = self.at(address)
        return self.data[start:self.data.index(b"\0", start)].decode("ascii")

    def exports(self):
        """The exported names; an export without a name appears as #ordinal."""
        address, _ = self.directory(EXPORTS)
        if address == 0:
            return []
        base, functions, named, addresses, names, ordinals = self.unpack(
            "<IIIIII", self.at(address) + 16)
        result = []
        with_name = set()
        for i in range(named):
            result.append(self.text(self.unpack("<I", self.at(names + 4 * i))[0]))
            with_name.add(self.unpack("<H", self.at(ordinals + 2 * i))[0])
        for i in range(functions):
            if self.unpack("<I", self.at(addresses + 4 * i))[0] != 0 and i not in with_name:
                result.append(f"#{base + i}")
        return result

    def imported_libraries(self):
        """The names of all imported libraries, including those loaded on their first use."""
        result = []
        for directory, size, name_at in ((IMPORTS, 20, 12), (DELAYED_IMPORTS, 32, 4)):
            address, _ = self.directory(directory)
            while address != 0:
                name = self.unpack("<I", self.at(address) + name_at)[0]
                if name == 0:
                    break
                result.append(self.text(name))
                address += size
        return result

    def relocations(self):
        """The addresses of the 32-bit words that depend on where the image is loaded."""
        address, size = self.directory(RELOCATIONS)
        result = []
        end = address + size
        while address < end:
            page, block = self.unpack("<II", self.at(address))
            if block < 8:
                raise ValueError("the relocations are damaged")
            for i in range(8, block, 2):
                entry = self.unpack("<H", self.at(address + i))[0]
                if entry >> 12 == RELOCATION_HIGHLOW:
                    result.append(page + (entry & 0xFFF))
            address += block
        return result

    def version_resource(self):
        """The bytes of the version resource, or None."""
        address, _ = self.directory(RESOURCES)
        if address == 0:
            return None
        root = self.at(address)
        table = root
        for wanted in (RESOURCE_VERSION, None, None):
            entry = self._resource_entry(table, wanted)
            if entry is None:
                return None
            table = root + (entry & 0x7FFFFFFF)
        start, size = self.unpack("<II", table)
        return self.data[self.at(start):self.at(start) + size]

    def _resource_entry(self, table, wanted):
        """The target of the entry with the wanted number, or of the first one if that is None."""
        names, numbers = self.unpack("<HH", table + 12)
        for i in range(names + numbers):
            number, target = self.unpack("<II", table + 16 + 8 * i)
            if wanted in (None, number):
                return target
        return None
