"""Reads a linked ELF executable for ARM, as far as packing it needs."""
import collections
import struct

Section = collections.namedtuple("Section", "name type flags address offset size link info")
Symbol = collections.namedtuple("Symbol", "name value section")
Relocation = collections.namedtuple("Relocation", "address type symbol")

SHT_SYMTAB, SHT_RELA, SHT_NOBITS, SHT_REL = 2, 4, 8, 9
SHF_WRITE, SHF_ALLOC, SHF_EXECINSTR = 1, 2, 4
SHN_UNDEF, SHN_ABS = 0, 0xFFF1
EM_ARM = 40

R_ARM_NONE, R_ARM_ABS32, R_ARM_TARGET1 = 0, 2, 38
# Relative to their own place, or a mark for the linker: the same wherever the image lies.
POSITION_INDEPENDENT = {R_ARM_NONE, 1, 3, 27, 28, 29, 40, 42}


class Elf:
    def __init__(self, content):
        self.content = content
        if content[:5] != b"\x7fELF\x01" or struct.unpack_from("<H", content, 18)[0] != EM_ARM:
            raise ValueError("not an ELF file for ARM")
        self.entry, _, table = struct.unpack_from("<III", content, 24)
        size, count, names = struct.unpack_from("<HHH", content, 46)
        rows = [struct.unpack_from("<8I", content, table + i * size) for i in range(count)]
        name_table = rows[names][4]
        self.sections = [Section(self._text(name_table + row[0]), *row[1:]) for row in rows]
        self.symbols = self._symbols()
        self._values = {symbol.name: symbol.value for symbol in self.symbols}

    def _text(self, offset):
        return self.content[offset:self.content.index(b"\0", offset)].decode()

    def _symbols(self):
        tables = [section for section in self.sections if section.type == SHT_SYMTAB]
        if len(tables) != 1:
            raise ValueError(f"{len(tables)} symbol tables")
        texts = self.sections[tables[0].link].offset
        symbols = []
        for at in range(tables[0].offset, tables[0].offset + tables[0].size, 16):
            name, value, _, _, _, section = struct.unpack_from("<IIIBBH", self.content, at)
            symbols.append(Symbol(self._text(texts + name), value, section))
        return symbols

    def value(self, name):
        return self._values[name]

    def loaded(self):
        return [section for section in self.sections if section.flags & SHF_ALLOC and section.size]

    def bytes_of(self, section):
        return b"" if section.type == SHT_NOBITS else self.content[section.offset:section.offset + section.size]

    def relocations(self):
        """What the linker resolved in sections that are loaded."""
        for table in self.sections:
            if table.type not in (SHT_REL, SHT_RELA) or not self.sections[table.info].flags & SHF_ALLOC:
                continue
            step = 8 if table.type == SHT_REL else 12
            for at in range(table.offset, table.offset + table.size, step):
                address, info = struct.unpack_from("<II", self.content, at)
                yield self.sections[table.info], Relocation(address, info & 0xFF, self.symbols[info >> 8])
