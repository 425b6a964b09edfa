#!/usr/bin/env python3
"""Fails on any call of the program that Windows CE 4.20 does not have.

Reads the symbols that the program's own objects leave undefined and compares them with the list
of calls beside this file. The compiler's run-time support is excepted: what its static libraries
define is linked into the program and asks nothing of the device by that name.
"""
import argparse
import pathlib
import subprocess
import sys

# What the 64-bit build calls by another name than the device's build of the same source.
ALIASES = {
    "SetWindowLongPtrW": "SetWindowLongW",
    "GetWindowLongPtrW": "GetWindowLongW",
    "SHGetFileInfoW": "SHGetFileInfo",
    "__mingw_vsnwprintf": "_vsnwprintf",
}
# What the device's headers define in place, without a call.
INLINE_CALLS = {"GetCurrentProcess"}
# The compiler's own hooks, defined outside its libraries' archives.
COMPILER_HOOKS = {"__main", "atexit", "___chkstk_ms", "_pei386_runtime_relocator"}


def symbols(nm, files, kinds):
    found = {}
    for file in files:
        output = subprocess.run([nm, str(file)], capture_output=True, text=True, check=True).stdout
        for line in output.splitlines():
            fields = line.split()
            if len(fields) >= 2 and fields[-2] in kinds:
                found.setdefault(fields[-1], file)
    return found


def library(compiler, name):
    answer = subprocess.run([compiler, f"-print-file-name={name}"], capture_output=True, text=True, check=True)
    return pathlib.Path(answer.stdout.strip())


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--nm", required=True)
    parser.add_argument("--compiler", required=True)
    parser.add_argument("--api", required=True, type=pathlib.Path)
    parser.add_argument("objects", nargs="+", type=pathlib.Path)
    options = parser.parse_args()

    objects = options.objects
    defined = symbols(options.nm, objects, set("TtDdBbRrVvWwCS"))
    undefined = symbols(options.nm, objects, {"U"})
    runtime = symbols(options.nm, [library(options.compiler, "libstdc++.a"), library(options.compiler, "libgcc.a")],
                      set("TDBRVW"))
    api = {line.split()[1] for line in options.api.read_text().splitlines() if line and not line.startswith("#")}

    foreign = {}
    for symbol, file in undefined.items():
        name = symbol.removeprefix("__imp_")
        if symbol in defined or symbol in runtime or symbol in COMPILER_HOOKS:
            continue
        if name not in INLINE_CALLS and ALIASES.get(name, name) not in api:
            foreign[name] = file
    for name, file in sorted(foreign.items()):
        print(f"{file.name}: {name} is not a call of Windows CE 4.20")
    print(f"{len(objects)} objects, {len(undefined)} undefined symbols, {len(foreign)} foreign")
    return 1 if foreign or not undefined else 0


if __name__ == "__main__":
    sys.exit(main())
