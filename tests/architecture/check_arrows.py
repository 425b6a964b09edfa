#!/usr/bin/env python3
"""Fails where an #include under src/ goes against the arrows between the rooms, closes a ring of
files, or where a source knows of PCs."""
import pathlib
import re
import sys

# What each room may include besides itself.
SERVICES, SETTINGS, FILES, PREVIEW, UI, PAGES = (
    "shell/services", "settings", "files", "preview", "ui", "pages")
ARROWS = {
    SERVICES: set(),
    SETTINGS: {SERVICES},
    FILES: {SERVICES, SETTINGS},
    PREVIEW: {SERVICES, SETTINGS, FILES},
    UI: {SERVICES, SETTINGS, FILES, PREVIEW},
    PAGES: {SERVICES, SETTINGS, FILES, PREVIEW, UI},
    "shell": {SERVICES, SETTINGS, FILES, PREVIEW, UI, PAGES},
}
INCLUDE = re.compile(r'^\s*#\s*include\s+"([^"]+)"', re.MULTILINE)
PC_WORDS = re.compile(r"_WIN32|_WIN64|__MINGW|__linux|stand_in\.h|\bWine\b", re.IGNORECASE)


def room(path):
    return SERVICES if path.startswith(SERVICES) else path.split("/")[0]


def ring_from(start, includes):
    """The files from `start` back to itself, or none."""
    stack, seen = [(start, [start])], set()
    while stack:
        file, trail = stack.pop()
        for target in includes.get(file, ()):
            if target == start:
                return trail + [start]
            if target not in seen:
                seen.add(target)
                stack.append((target, trail + [target]))
    return None


def main():
    source = pathlib.Path(sys.argv[1])
    includes, faults = {}, []
    for path in sorted(source.rglob("*.[ch]*")):
        name, text = path.relative_to(source).as_posix(), path.read_text()
        targets = [t for t in INCLUDE.findall(text) if (source / t).exists()]
        includes[name] = targets
        for target in targets:
            if room(target) != room(name) and room(target) not in ARROWS[room(name)]:
                faults.append(f"{name} must not include {target}")
        if PC_WORDS.search(text):
            faults.append(f"{name} knows of PCs: {PC_WORDS.search(text).group(0)}")
    for name in includes:
        if ring := ring_from(name, includes):
            faults.append("ring: " + " -> ".join(ring))
    print("\n".join(faults))
    print(f"{len(includes)} files, {len(faults)} faults")
    return 1 if faults or not includes else 0


if __name__ == "__main__":
    sys.exit(main())
