#!/usr/bin/env bash
# Tests tools/device: devices side by side, what exec hands on, what a device is made of, what stop
# leaves. Prints a line for each check; the last line counts them.
set -uo pipefail
root=$(cd "$(dirname "$0")/../.." && pwd)
tool="$root/tools/device"
mkdir -p "$root/build"
work=$(mktemp -d "$root/build/device-test.XXXXXX")
clean_up() {
    local device
    for device in "$work"/*/device.conf; do
        "$tool" stop "${device%/*}"
    done
    rm -rf "$work"
}
trap clean_up EXIT
passed=0
failed=0

# check WHAT COMMAND...: the command is to succeed.
check() {
    local what=$1
    shift
    if "$@" >"$work/output" 2>&1; then
        passed=$((passed + 1))
        echo "ok      $what"
    else
        failed=$((failed + 1))
        echo "FAILED  $what"
        sed 's/^/        /' "$work/output"
    fi
}

# is EXPECTED COMMAND...: the command's standard output, without carriage returns.
is() {
    local expected=$1 actual
    shift
    actual=$("$@" | tr -d '\r')
    [ "$actual" = "$expected" ] || {
        printf 'expected: %s\nactual:   %s\n' "$expected" "$actual"
        return 1
    }
}

refused() {
    ! "$@"
}

# ends_with CODE COMMAND...
ends_with() {
    local code=0
    "${@:2}" || code=$?
    [ $code -eq "$1" ] || {
        echo "exit code $code"
        return 1
    }
}

on() {
    timeout 90 "$tool" exec "$work/$1" "${@:2}"
}

# The data of a registry value, by device, key and name.
value() {
    on "$1" reg query "$2" /v "$3" | LC_ALL=C sed -n 's/^    .*    REG_[A-Z]*    \(.*\)/\1/p'
}

# lives PID: it has not ended, nor waits as a zombie to be counted out.
lives() {
    grep -q '^[0-9]* (.*) [^ZX]' "/proc/$1/stat" 2>/dev/null
}

processes_of() {
    local environment process
    for environment in $(grep -lzFx "WINEPREFIX=$work/$1/prefix" /proc/[0-9]*/environ 2>/dev/null); do
        process=${environment#/proc/}
        ! lives "${process%/environ}" || echo "${process%/environ}"
    done
}

screen_process() {
    cut -d' ' -f1 "$work/$1/run/xvfb.pid"
}

quick() {
    local best=9999999 start took
    for _ in 1 2 3 4 5; do
        start=${EPOCHREALTIME/./}
        on "$1" hostname || return 1
        took=$((${EPOCHREALTIME/./} - start))
        [ $took -ge $best ] || best=$took
    done
    echo "$best microseconds"
    [ $best -lt 400000 ]
}

# Wine's own patience is some five seconds.
stays_up() {
    local desktop
    desktop=$(cat "$work/$1/run/desktop.pid")
    sleep 8
    on "$1" hostname && is "$desktop" cat "$work/$1/run/desktop.pid"
}

both_made() {
    local other code=0
    "$tool" create "$work/plain" --empty &
    other=$!
    "$tool" create "$work/fine" --screen 480x640 --dpi 192 --locale de_DE --os 4.20 || code=1
    wait $other && [ $code -eq 0 ]
}

separate_streams() {
    on plain cmd /c 'echo out& echo err>&2& exit 7' >"$work/out" 2>"$work/err" </dev/null
    [ $? -eq 7 ] && is out cat "$work/out" && is err cat "$work/err"
}

own_registries() {
    on plain reg add 'HKCU\Software\Teskel\Orvane' /v OnClick /t REG_DWORD /d 2 /f &&
        is 0x2 value plain 'HKCU\Software\Teskel\Orvane' OnClick &&
        is 0x1 value fine 'HKCU\Software\Teskel\Orvane' OnClick
}

plugins() {
    on "$1" reg query 'HKLM\Software\Microsoft\Today\Items' /s | tr -d '\r' |
        awk -F'\\' '/^HKEY/ { item = $NF } /Type    REG_DWORD    0x4$/ { print item }'
}

# One character, whatever the character set of the console is.
files_beyond_ascii() {
    on fine cmd /c dir /b 'C:\Program Files\Teskel\Orvane\CategoryIcons' |
        LC_ALL=C grep -ax "R.unions.bmp$(printf '\r')"
}

filter_titles() {
    iconv -f UTF-16LE -t UTF-8 "$work/fine/prefix/drive_c/My Documents/Orvane/OVFilters.txt" |
        grep -c '"Title"'
}

picture_size() {
    "$tool" screenshot "$work/$1" "$work/$1.png" && identify -format '%wx%h %k' "$work/$1.png" |
        awk '{ print $1, ($2 > 1 ? "drawn" : "blank") }'
}

check "two devices made at once" both_made
check "a folder that is there is left alone" refused "$tool" create "$work/plain"
check "a wrong option is refused, and leaves nothing" eval \
    'refused "$tool" create "$work/none" --dpi many && [ ! -e "$work/none" ]'
check "without a build nothing is made" eval \
    'refused env OVDEVICE_PROGRAM_DIR=/nowhere "$tool" create "$work/none" && [ ! -e "$work/none" ]'

check "starting a device does not keep the caller's output" \
    timeout 60 bash -c '"$0" exec "$1" hostname | cat' "$tool" "$work/plain"
check "output, error output and exit code are handed on" separate_streams
check "standard input is handed on" eval 'is "a line" on plain find line < <(echo "a line")'
check "a program that does not end is ended" ends_with 124 \
    env OVDEVICE_TIMEOUT=1 "$tool" exec "$work/plain" notepad
check "no such program" refused on plain nonesuch
check "programs elsewhere find the program's libraries" \
    on plain "$root/build/pc/tests/services_tests.exe" --gtest_list_tests
check "programs run in C:" is 'C:\' on plain cmd /c cd
check "a further program starts at once" quick plain
check "a device stays up while nothing runs" stays_up plain

check "registries are separate" own_registries
check "density" is 0xc0 value fine 'HKCU\Control Panel\Desktop' LogPixels
check "pixels of the sample follow the density" is 0x1b8 \
    value fine 'HKCU\Software\Teskel\Orvane' dHeightLimit
check "locale" is de-DE value fine 'HKCU\Control Panel\International' LocaleName
check "system version" is 4.20 on fine cmd /c 'echo %OVDEVICE_OS%'
check "names beyond ASCII in the registry" is 0x800080 \
    value fine 'HKCU\Software\Teskel\Orvane\Categories' CatColor.Réunions
check "names beyond ASCII among files" files_beyond_ascii
check "all filters" is 32 filter_titles
check "imaging service registered" is 'C:\Program Files\Teskel\Orvane\imaging.dll' eval \
    "on plain reg query 'HKCR\\CLSID\\{327ABDA8-072B-11D3-9D7B-0000F81EF32E}\\InprocServer32' /ve |
        sed -n 's/.*REG_SZ    //p'"
check "plug-ins on a used device" is $'Battery Lantern\nHarbour Tides\nOrvane\nParcel Post' plugins fine
on plain reg delete 'HKCU\Software\Teskel' /f >/dev/null
"$tool" create "$work/empty" --empty
check "an empty device has no settings" refused on empty reg query 'HKCU\Software\Teskel'
check "an empty device has no categories" refused test -e "$work/empty/prefix/drive_c/Object Store"
check "an empty device has no plug-in but the program's" is Orvane plugins empty

check "the program starts" "$tool" start "$work/fine"
check "a second start ends by itself" "$tool" start "$work/fine"
check "a picture has the size of the screen" is "480x640 drawn" picture_size fine
check "no new build goes under a running program" refused "$tool" install "$work/fine"

mkdir "$work/build"
cp "$work/plain/prefix/drive_c/windows/system32/hostname.exe" "$work/build/OVOptions.exe"
check "another build is installed" \
    env OVDEVICE_PROGRAM_DIR="$work/build" "$tool" install "$work/plain"
check "a program that ends without a window is a failure" refused "$tool" start "$work/plain"

screen=$(screen_process fine)
check "a screen while it runs" lives "$screen"
check "stop" "$tool" stop "$work/fine"
check "nothing is left of what ran" is "" processes_of fine
check "nor of its screen" refused lives "$screen"
check "other devices run on" lives "$(screen_process plain)"
check "stop again" "$tool" stop "$work/fine"
check "a stopped device starts anew" is 0x1 value fine 'HKCU\Software\Teskel\Orvane' OnClick
check "devices leave what they share alone" is "" \
    find "$root/build/pristine" -newer "$root/build/pristine/stamp" -type f

echo "$passed passed, $failed failed"
[ $failed -eq 0 ]
