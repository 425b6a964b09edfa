"""Reads a PE image the way the device's loader does, and finds what that loader would trip over.

Knows nothing of the packer: what both hold of the format is written down twice.
"""
import collections
import struct

MACHINE_ARM, SUBSYSTEM_WINDOWS_CE = 0x1C0, 9
EXECUTE, READ, WRITE, DISCARDABLE = 0x20000000, 0x40000000, 0x80000000, 0x02000000
# Of the file's flags: "relocations are stripped", "is executable", "32 bits", "is a library".
STRIPPED, EXECUTABLE, BITS_32, LIBRARY = 0x0001, 0x0002, 0x0100, 0x2000
IMPORT, RESOURCE, RELOCATION, IMPORT_ADDRESS = 1, 2, 5, 12
ORDINAL_FLAG = 0x80000000

SECTION_FLAGS = {".text": READ | EXECUTE, ".rdata": READ, ".data": READ | WRITE, ".rsrc": READ,
                 ".reloc": READ | DISCARDABLE}

Section = collections.namedtuple("Section", "name rva size raw_size raw_offset flags")
# Where a resource is found, and its content.
Resource = collections.namedtuple("Resource", "type name language content")


class Malformed(Exception):
    """Nothing more can be read."""


class Image:
    def __init__(self, content):
        self.content = content
        if content[:2] != b"MZ":
            raise Malformed("no executable's first letters")
        self.pe = self.word(0x3C)
        if content[self.pe:self.pe + 4] != b"PE\0\0":
            raise Malformed("no PE header where the file says")
        self.machine, count = struct.unpack_from("<HH", content, self.pe + 4)
        optional_size, self.flags = struct.unpack_from("<HH", content, self.pe + 20)
        self.optional = self.pe + 24
        table = self.optional + optional_size
        if table + 40 * count > len(content):
            raise Malformed("the section table is cut off")
        self.sections = []
        for at in range(table, table + 40 * count, 40):
            name, size, rva, raw_size, raw_offset, _, _, _, _, flags = struct.unpack_from("<8sIIIIIIHHI", content, at)
            self.sections.append(Section(name.rstrip(b"\0").decode("latin-1"), rva, size, raw_size, raw_offset, flags))
        self.entry, self.base = self.field(16), self.field(28)
        self.size, self.header_size = self.field(56), self.field(60)

    def word(self, at):
        if at < 0 or at + 4 > len(self.content):
            raise Malformed(f"the file ends before {at:#x}")
        return struct.unpack_from("<I", self.content, at)[0]

    def field(self, offset, form="<I"):
        """A field of the optional header."""
        return struct.unpack_from(form, self.content, self.optional + offset)[0]

    def directory(self, number):
        return self.field(96 + 8 * number), self.field(100 + 8 * number)

    def section_at(self, rva, size=1):
        for section in self.sections:
            if section.rva <= rva and rva + size <= section.rva + max(section.size, 1):
                return section
        return None

    def offset(self, rva, size=1):
        """Where in the file that part of the image is; a section's end may be zeros without a place."""
        section = self.section_at(rva, size)
        if section is None or rva + size > section.rva + section.raw_size:
            raise Malformed(f"nothing in the file for {rva:#x}")
        return section.raw_offset + rva - section.rva

    def word_at(self, rva):
        return self.word(self.offset(rva, 4))

    def text_at(self, rva):
        start = self.offset(rva)
        end = self.content.find(b"\0", start)
        if not 0 <= end < start + 256:
            raise Malformed(f"no name at {rva:#x}")
        return self.content[start:end].decode("ascii", "replace")

    def bytes_of(self, section):
        """A section as it lies in memory."""
        raw = self.content[section.raw_offset:section.raw_offset + min(section.raw_size, section.size)]
        return raw.ljust(section.size, b"\0")

    def imports(self):
        """Library, name or ordinal, and the rva of its slot."""
        rva, size = self.directory(IMPORT)
        if not rva:
            return
        for at in range(rva, rva + size, 20):
            lookup, _, _, library, addresses = (self.word_at(at + 4 * i) for i in range(5))
            if not library:
                return
            for i in range(0x1000):
                entry = self.word_at(lookup + 4 * i)
                if entry != self.word_at(addresses + 4 * i):
                    raise Malformed(f"the two tables of {self.text_at(library)} differ")
                if not entry:
                    break
                by_ordinal = entry & ORDINAL_FLAG
                yield (self.text_at(library), entry & 0xFFFF if by_ordinal else self.text_at(entry + 2),
                       addresses + 4 * i)
        raise Malformed("the import directory has no end")

    def relocations(self):
        """The rva of every word that the loader adjusts."""
        at, size = self.directory(RELOCATION)
        end = at + size
        while at < end:
            page, length = self.word_at(at), self.word_at(at + 4)
            if page % 0x1000 or length < 8 or length % 4 or at + length > end:
                raise Malformed(f"a relocation block at {at:#x} that cannot be")
            for i in range(8, length, 2):
                entry = struct.unpack_from("<H", self.content, self.offset(at + i, 2))[0]
                if entry >> 12 == 3:
                    yield page + (entry & 0xFFF)
                elif entry >> 12:
                    raise Malformed(f"a relocation of type {entry >> 12}")
            at += length

    def resources(self):
        rva, size = self.directory(RESOURCE)
        if rva:
            yield from self._resources(rva, size, 0, ())

    def _resources(self, rva, size, table, path):
        named, numbered = struct.unpack_from("<HH", self.content, self.offset(rva + table + 12, 4))
        keys = []
        for i in range(named + numbered):
            key, target = self.word_at(rva + table + 16 + 8 * i), self.word_at(rva + table + 20 + 8 * i)
            if (key >> 31) != (i < named):
                raise Malformed("a resource's name among the numbers")
            keys.append(self._resource_name(rva, key))
            if len(path) < 2:
                if not target >> 31:
                    raise Malformed(f"resource {path} is no table")
                yield from self._resources(rva, size, target & 0x7FFFFFFF, path + (keys[-1],))
                continue
            start, length = self.word_at(rva + target), self.word_at(rva + target + 4)
            if not rva <= start <= start + length <= rva + size:
                raise Malformed(f"resource {path} lies outside")
            at = self.offset(start, max(length, 1))
            yield Resource(*path, keys[-1], self.content[at:at + length])
        # The system searches by halves.
        for group in (keys[:named], keys[named:]):
            if group != sorted(set(group)):
                raise Malformed(f"resources {path} are out of order")

    def _resource_name(self, rva, key):
        if not key >> 31:
            return key
        at = rva + (key & 0x7FFFFFFF)
        length = struct.unpack_from("<H", self.content, self.offset(at, 2))[0]
        start = self.offset(at + 2, 2 * length)
        return self.content[start:start + 2 * length].decode("utf-16-le", "replace")


def checksum(image):
    content = bytearray(image.content)
    content[image.optional + 64:image.optional + 68] = b"\0" * 4
    total = sum(word for (word,) in struct.iter_unpack("<H", content + b"\0" * (len(content) % 2)))
    while total >> 16:
        total = (total & 0xFFFF) + (total >> 16)
    return total + len(content)


def header_faults(image, is_library):
    expected = {
        "machine": (image.machine, MACHINE_ARM),
        "magic number": (image.field(0, "<H"), 0x10B),
        "image base": (image.base, 0x10000000 if is_library else 0x10000),
        "section alignment": (image.field(32), 0x1000),
        "file alignment": (image.field(36), 0x200),
        "subsystem version": (struct.unpack_from("<HH", image.content, image.optional + 48), (4, 20)),
        "subsystem": (image.field(68, "<H"), SUBSYSTEM_WINDOWS_CE),
        "stack": (image.field(72), 0x10000),
        "number of directories": (image.field(92), 16),
        "flags": (image.flags & (STRIPPED | EXECUTABLE | BITS_32 | LIBRARY),
                  EXECUTABLE | BITS_32 | (LIBRARY if is_library else 0)),
        "checksum": (image.field(64), checksum(image)),
    }
    for name, (found, wanted) in expected.items():
        if found != wanted:
            yield f"{name} is {found}, not {wanted}"
    if is_library:
        if image.entry:
            yield "a library of resources has an entry point"
    else:
        section = image.section_at(image.entry, 4)
        if section is None or not section.flags & EXECUTE or image.entry % 4:
            yield f"the entry point {image.entry:#x} is not in the code"


def section_faults(image, is_library):
    names = [section.name for section in image.sections]
    wanted = [".rsrc", ".reloc"] if is_library else [".text", ".rdata", ".data", ".rsrc", ".reloc"]
    if [name for name in wanted if name in names or name != ".rsrc"] != names:
        yield f"sections are {names}"
    rva, offset = 0x1000, image.header_size
    if offset % 0x200 or offset > 0x1000:
        yield f"the headers take {offset:#x}"
    for section in image.sections:
        if section.rva != rva:
            yield f"{section.name} is at {section.rva:#x}, not {rva:#x}"
        if section.raw_size and section.raw_offset != offset:
            yield f"{section.name} is at {offset:#x} in the file, not {section.raw_offset:#x}"
        if section.raw_size % 0x200 or section.raw_size > -(-section.size // 0x200) * 0x200:
            yield f"{section.name} takes {section.raw_size:#x} in the file"
        rights = section.flags & (EXECUTE | READ | WRITE | DISCARDABLE)
        if rights != SECTION_FLAGS.get(section.name):
            yield f"{section.name} has the rights {rights:#x}"
        rva = -(-(section.rva + section.size) // 0x1000) * 0x1000
        offset += section.raw_size
    if image.size != rva:
        yield f"the image takes {image.size:#x}, not {rva:#x}"
    if len(image.content) != offset:
        yield f"the file takes {len(image.content):#x}, not {offset:#x}"


def section_may_be_written(image, rva):
    section = image.section_at(rva, 4)
    return section is not None and section.flags & WRITE


def import_faults(image, calls, is_library):
    """`calls` holds the pairs of library and name or ordinal that the device has."""
    found = list(image.imports())
    if is_library == bool(found):
        yield f"{len(found)} imports"
    start, size = image.directory(IMPORT_ADDRESS)
    slots = set()
    for library, call, slot in found:
        if (library, call) not in calls:
            yield f"{library} of the device has no {call}"
        if not start <= slot < start + size or not section_may_be_written(image, slot):
            yield f"the slot of {call} is not in the table that the loader fills"
        if (library, call) in slots:
            yield f"{call} is imported twice"
        slots.add((library, call))


def relocation_faults(image, is_library):
    start, size = image.directory(IMPORT)
    table_start, table_size = image.directory(IMPORT_ADDRESS)
    before = -1
    count = 0
    for rva in image.relocations():
        count += 1
        section = image.section_at(rva, 4)
        if rva <= before:
            yield f"relocation {rva:#x} is out of order"
        before = rva
        if section is None or section.name not in (".text", ".rdata", ".data") or rva % 4:
            yield f"relocation {rva:#x} is not in code or data"
        elif start <= rva < start + size or table_start <= rva < table_start + table_size:
            yield f"relocation {rva:#x} is in the import tables"
        elif not image.section_at(image.word_at(rva) - image.base, 0):
            yield f"relocation {rva:#x} adjusts what is no address: {image.word_at(rva):#x}"
    if bool(count) == is_library:
        yield f"{count} relocations"
    if not image.directory(RELOCATION)[1]:
        yield "no table of relocations"


def resource_faults(image, is_library):
    found = list(image.resources())
    if is_library and not found:
        yield "no resources"
    for resource in found:
        if not resource.content:
            yield f"resource {resource.type} {resource.name} is empty"


def rebase_faults(image, elsewhere):
    """`elsewhere` is the same program, linked for another place. Moved there, `image` must be the same."""
    relocations = list(image.relocations())
    if relocations != list(elsewhere.relocations()) or image.base == elsewhere.base:
        yield "the program linked for another place has other relocations"
    for section, other in zip(image.sections[:3], elsewhere.sections[:3]):
        moved = bytearray(image.bytes_of(section))
        for rva in relocations:
            at = rva - section.rva
            if 0 <= at < section.size:
                value = struct.unpack_from("<I", moved, at)[0] + elsewhere.base - image.base
                struct.pack_into("<I", moved, at, value & 0xFFFFFFFF)
        there = elsewhere.bytes_of(other)
        if moved != there:
            at = next((i for i, (one, two) in enumerate(zip(moved, there)) if one != two), len(there))
            yield f"moved elsewhere, {section.name} differs at {section.rva + at:#x}"


def faults(content, calls, is_library):
    """What is wrong with the file, as sentences."""
    found = []
    try:
        image = Image(content)
        checks = (header_faults(image, is_library), section_faults(image, is_library),
                  import_faults(image, calls, is_library), relocation_faults(image, is_library),
                  resource_faults(image, is_library))
    except (Malformed, struct.error) as error:
        return [f"cannot be read: {error}"]
    for check in checks:
        try:
            found.extend(check)
        except (Malformed, struct.error) as error:
            found.append(f"cannot be read: {error}")
    return found


def read_calls(path):
    """The pairs that `import_faults` takes, from the list of calls. By ordinal where it gives one."""
    fields = [line.split() for line in path.read_text().splitlines() if line and not line.startswith("#")]
    return {(field[0], int(field[2]) if len(field) > 2 else field[1]) for field in fields}
