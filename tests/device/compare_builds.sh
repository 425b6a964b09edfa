#!/usr/bin/env bash
# Does the same on two devices, one with the PC's build and one with the device's own, and compares
# what they store, byte for byte: the registry, and the files.
# usage: compare_builds.sh FOLDER     (for the devices; made anew)
set -euo pipefail
. "$(dirname "$0")/../../tools/lib/common.sh"
mkdir -p "$1"
folder=$(cd "$1" && pwd)

# change NAME TESTS [OPTION...]: a device, changed; what is stored is in NAME.txt and NAME.files.
change() {
    local device="$folder/$1" status=0
    "$root/tools/device" stop "$device" 2>/dev/null || true
    rm -rf "$device"
    "$root/tools/device" create "$device" "${@:3}"
    "$root/tools/device" exec "$device" "$2/change_driver.exe" >"$folder/$1.txt" || status=$?
    "$root/tools/device" stop "$device"
    [ $status -eq 0 ] || die "the $1 build broke off with $status: $(head -12 "$folder/$1.txt")"
    (
        cd "$device/prefix/drive_c"
        find . -path ./windows -prune -o -type f ! -name '*.exe' ! -name '*.dll' ! -name '*.elf' -print0 |
            sort -z | xargs -0 sha256sum
    ) >"$folder/$1.files"
}

change pc "$root/build/pc/tests"
change arm "$root/build/pc32/tests" --arm
head -12 "$folder/pc.txt"
# The programs lie in a PC's root or not; nothing but what they store is compared.
if ! diff "$folder/pc.txt" "$folder/arm.txt" || ! diff "$folder/pc.files" "$folder/arm.files"; then
    echo "0 passed, 1 failed"
    exit 1
fi
echo "the two builds store the same: $(grep -c '^HK' "$folder/pc.txt") values, $(wc -l <"$folder/pc.files") files"
echo "1 passed, 0 failed"
