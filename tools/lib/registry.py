#!/usr/bin/env python3
"""Adds registry files (REGEDIT text, UTF-8) to the registry of a Wine prefix that is not running.

usage: registry.py PREFIX DPI FILE.reg...        ("-" is standard input)

The files hold pixels of a screen of 96 dots per inch; values that are pixels are scaled to DPI.
Wine's own files hold the same lines with keys relative to a hive and anything but ASCII escaped.
A section at the end of such a file is merged with what stands before it, so adding is appending.
"""
import os
import re
import sys

HIVES = {
    "HKEY_CURRENT_USER": ("user.reg", ""),
    "HKEY_LOCAL_MACHINE": ("system.reg", ""),
    "HKEY_CLASSES_ROOT": ("system.reg", "Software\\Classes\\"),
}
KEY = re.compile(r"\[(HKEY_[A-Z_]+)\\(.+)\]")
TEXT = r'"(?:[^"\\]|\\["\\])*"'
HEX = r"hex:(?:[0-9a-fA-F]{2}(?:,[0-9a-fA-F]{2})*)?"
VALUE = re.compile(rf"(?:@|{TEXT})=(?:{TEXT}|dword:[0-9a-fA-F]{{8}}|{HEX})")
PIXELS = re.compile(
    r'("(?:dHeightLimit(?:Landscape)?|MonthlyPopIconsSize|FontGnrl(?:Titles)?Size|Font\w+lfHeight)")'
    r"=dword:([0-9a-fA-F]{8})"
)


def scaled(line, dpi):
    """A value line for a screen of that density."""
    pixels = PIXELS.fullmatch(line)
    return f"{pixels[1]}=dword:{int(pixels[2], 16) * dpi // 96:08x}" if pixels else line


def escaped(text):
    """Non-ASCII as Wine writes it: four hexadecimal digits for each UTF-16 unit."""
    units = text.encode("utf-16-le")
    pairs = (units[i] | units[i + 1] << 8 for i in range(0, len(units), 2))
    return "".join(chr(unit) if unit < 0x7F else f"\\x{unit:04x}" for unit in pairs)


def logical_lines(stream):
    """Number and text of each line that says something; a trailing backslash continues a line."""
    pending = ""
    for number, line in enumerate(stream, 1):
        line = pending + line.strip()
        pending = ""
        if line.endswith(",\\"):
            pending = line[:-1]
        elif line and not line.startswith((";", "Windows Registry Editor")):
            yield number, line


def add(stream, name, dpi, output):
    """Collects one file's lines in output, a list of lines for each of Wine's files."""
    target = None
    for number, line in logical_lines(stream):
        key = KEY.fullmatch(line)
        if key and key[1] in HIVES:
            file, root = HIVES[key[1]]
            target = output.setdefault(file, [])
            target.append("\n[" + escaped((root + key[2]).replace("\\", "\\\\")) + "] 0")
        elif target is not None and VALUE.fullmatch(line):
            target.append(escaped(scaled(line, dpi)))
        else:
            sys.exit(f"{name}:{number}: not a registry line: {line}")


def main():
    prefix, density, *names = sys.argv[1:]
    dpi = int(density)
    output = {}
    for name in names:
        if name == "-":
            add(sys.stdin, "standard input", dpi, output)
        else:
            with open(name, encoding="utf-8") as stream:
                add(stream, name, dpi, output)
    for file, lines in output.items():
        with open(os.path.join(prefix, file), "a", encoding="ascii", newline="\n") as stream:
            stream.write("\n".join(lines) + "\n")


main()
