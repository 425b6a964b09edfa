"""Writes the device's executable format: a PE image for ARM and Windows CE."""
import collections
import struct

# Where a program lies, and where a library asks to.
PROGRAM_BASE, LIBRARY_BASE = 0x10000, 0x10000000
SECTION_ALIGNMENT, FILE_ALIGNMENT = 0x1000, 0x200
MACHINE_ARM, SUBSYSTEM_WINDOWS_CE = 0x1C0, 9
SYSTEM_VERSION = (4, 20)
STACK_RESERVE, STACK_COMMIT, HEAP_RESERVE, HEAP_COMMIT = 0x10000, 0x1000, 0x100000, 0x1000

CODE, DATA, DISCARDABLE = 0x20, 0x40, 0x02000000
EXECUTE, READ, WRITE = 0x20000000, 0x40000000, 0x80000000
# Executable; without line numbers, without symbols; 32 bits.
EXECUTABLE_FLAGS, LIBRARY_FLAG = 0x0002 | 0x0004 | 0x0008 | 0x0100, 0x2000

DIRECTORY_COUNT = 16
IMPORT, RESOURCE, BASE_RELOCATION, IMPORT_ADDRESS = 1, 2, 5, 12
RELOCATION_ABSOLUTE, RELOCATION_HIGHLOW = 0, 3

DOS_HEADER_SIZE = 0x80
FILE_HEADER = "<4sHHIIIHH"
OPTIONAL_HEADER = "<HBBIIIIIIIIIHHHHHHIIIIHHIIIIII"
SECTION_HEADER = "<8sIIIIIIHHI"
CHECKSUM_OFFSET = DOS_HEADER_SIZE + struct.calcsize(FILE_HEADER) + 64

# `rva` is the place in memory, from the image's base; `size` what it takes there.
ImageSection = collections.namedtuple("ImageSection", "name rva size content flags")


def aligned(number, to):
    return (number + to - 1) // to * to


def end_of(sections):
    """Where the next section begins."""
    return aligned(sections[-1].rva + sections[-1].size, SECTION_ALIGNMENT) if sections else SECTION_ALIGNMENT


def base_relocations(rvas):
    """The table of the words that the loader adjusts when the image lies elsewhere."""
    pages = {}
    for rva in sorted(rvas):
        pages.setdefault(rva & ~0xFFF, []).append(RELOCATION_HIGHLOW << 12 | rva & 0xFFF)
    # A table of none is not told from a missing one, so it holds a block that adjusts nothing.
    pages = pages or {SECTION_ALIGNMENT: [RELOCATION_ABSOLUTE] * 2}
    table = b""
    for page, entries in sorted(pages.items()):
        entries += [RELOCATION_ABSOLUTE] * (len(entries) % 2)
        table += struct.pack(f"<II{len(entries)}H", page, 8 + 2 * len(entries), *entries)
    return table


def checksum(content):
    """The sum that the header carries: 16-bit words with carry, and the length."""
    total = sum(word for (word,) in struct.iter_unpack("<H", content + b"\0" * (len(content) % 2)))
    while total > 0xFFFF:
        total = (total & 0xFFFF) + (total >> 16)
    return total + len(content)


def write_image(sections, directories, entry_rva, is_library, image_base):
    """The whole file. `directories` maps a directory's number to its rva and size."""
    header_size = aligned(DOS_HEADER_SIZE + struct.calcsize(FILE_HEADER) + struct.calcsize(OPTIONAL_HEADER)
                          + 8 * DIRECTORY_COUNT + struct.calcsize(SECTION_HEADER) * len(sections), FILE_ALIGNMENT)
    table, body, code_size, data_size = b"", b"", 0, 0
    for section in sections:
        raw = aligned(len(section.content), FILE_ALIGNMENT)
        table += struct.pack(SECTION_HEADER, section.name.encode(), section.size, section.rva, raw,
                             header_size + len(body) if raw else 0, 0, 0, 0, 0, section.flags)
        body += section.content.ljust(raw, b"\0")
        if section.flags & CODE:
            code_size += raw
        else:
            data_size += raw
    directory_table = b"".join(struct.pack("<II", *directories.get(i, (0, 0))) for i in range(DIRECTORY_COUNT))
    first_code = next((s.rva for s in sections if s.flags & CODE), 0)
    first_data = next((s.rva for s in sections if s.flags & DATA), 0)
    flags = EXECUTABLE_FLAGS | (LIBRARY_FLAG if is_library else 0)
    file_header = struct.pack(FILE_HEADER, b"PE\0\0", MACHINE_ARM, len(sections), 0, 0, 0,
                              struct.calcsize(OPTIONAL_HEADER) + len(directory_table), flags)
    optional_header = struct.pack(
        OPTIONAL_HEADER, 0x10B, 6, 0, code_size, data_size, 0, entry_rva, first_code, first_data,
        image_base, SECTION_ALIGNMENT, FILE_ALIGNMENT, 4, 0, 0, 0, *SYSTEM_VERSION, 0, end_of(sections),
        header_size, 0, SUBSYSTEM_WINDOWS_CE, 0, STACK_RESERVE, STACK_COMMIT, HEAP_RESERVE, HEAP_COMMIT,
        0, DIRECTORY_COUNT)
    dos_header = b"MZ".ljust(0x3C, b"\0") + struct.pack("<I", DOS_HEADER_SIZE)
    header = dos_header.ljust(DOS_HEADER_SIZE, b"\0") + file_header + optional_header + directory_table + table
    content = bytearray(header.ljust(header_size, b"\0") + body)
    struct.pack_into("<I", content, CHECKSUM_OFFSET, checksum(content))
    return bytes(content)
