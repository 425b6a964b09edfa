#!/usr/bin/env python3
"""Makes the import library of a 32-bit library whose .def names its calls plainly.

usage: import_library_32.py TOOL_PREFIX FILE.def LIBRARY.dll IMPORTS.a OBJECT...

Callers of 32 bits know a call by its name and the bytes of its arguments ("RegCloseKey@4"). The
linker makes import libraries of plain names only, and would take those calls from the system's own
libraries, or not at all. The bytes are those that the objects have.
"""
import os
import re
import subprocess
import sys


def argument_bytes(prefix, objects):
    """The argument bytes of each function that the objects define, as text."""
    names = subprocess.run([f"{prefix}nm", "--defined-only", *objects], check=True, text=True,
                           capture_output=True).stdout
    return dict(re.findall(r" T _(\w+)@(\d+)$", names, re.MULTILINE))


def main():
    prefix, definition, library, imports, *objects = sys.argv[1:]
    size = argument_bytes(prefix, objects)
    lines = [f"LIBRARY {os.path.basename(library)}", "EXPORTS"]
    with open(definition, encoding="ascii") as stream:
        for line in stream:
            export = re.fullmatch(r"    (\w+)(?: = (\w+))?\n", line)
            if export:
                lines.append(f"{export[1]}@{size[export[2] or export[1]]}")
    decorated = imports + ".def"
    with open(decorated, "w", encoding="ascii") as stream:
        stream.write("\n".join(lines) + "\n")
    os.remove(imports)
    subprocess.run([f"{prefix}dlltool", "--kill-at", "--input-def", decorated, "--output-lib", imports],
                   check=True)


main()
