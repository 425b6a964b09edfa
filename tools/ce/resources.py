"""Reads the resources that windres compiled into a COFF object."""
import struct

MACHINE_AMD64 = 0x8664
ADDRESS_FROM_IMAGE_BASE = 3


def is_resource_object(content):
    return struct.unpack_from("<H", content)[0] == MACHINE_AMD64


def resource_section(content, rva):
    """The section of resources, made for the given place in the image."""
    _, count, _, _, _, optional_size = struct.unpack_from("<HHIIIH", content)
    for i in range(count):
        name, _, _, size, offset, relocations, _, relocation_count = struct.unpack_from(
            "<8sIIIIIIH", content, 20 + optional_size + 40 * i)
        if name.rstrip(b"\0") != b".rsrc":
            continue
        section = bytearray(content[offset:offset + size])
        for at in range(relocations, relocations + 10 * relocation_count, 10):
            place, _, kind = struct.unpack_from("<IIH", content, at)
            if kind != ADDRESS_FROM_IMAGE_BASE:
                raise ValueError(f"a resource relocation of kind {kind}")
            struct.pack_into("<I", section, place, struct.unpack_from("<I", section, place)[0] + rva)
        return bytes(section)
    raise ValueError("an object without resources")
