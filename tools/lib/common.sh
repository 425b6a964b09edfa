# What the tools share: places, messages, waiting. Sourced by bash with set -eu.

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd)

# choose_wine MACHINE: the Wine on which a device of that kind runs. An "arm" one runs the device's own
# build, on an emulated processor; that takes a Wine of 32 bits, which has a root of its own.
choose_wine() {
    case $1 in
    pc)
        wine_loader=/usr/lib/wine/wine64
        wine_server=/usr/lib/wine/wineserver64
        wine_arch=win64
        ;;
    arm)
        wine_loader="$root/tools/ce/i386/wine"
        wine_server="$root/tools/ce/i386/wineserver"
        wine_arch=win32
        ;;
    *) die "a device's machine is pc or arm: $1" ;;
    esac
}
choose_wine pc

die() {
    echo "${0##*/}: $*" >&2
    exit 1
}

# wait_until SECONDS COMMAND...: false when the command has not come true in that time.
wait_until() {
    local end=$((SECONDS + $1))
    shift
    until "$@"; do
        [ $SECONDS -lt $end ] || return 1
        sleep 0.03
    done
}

# The state letter and the start time of a process, which tells it from a later one of its number.
process_identity() {
    local line fields
    { read -r line </proc/"$1"/stat; } 2>/dev/null || return 1
    read -ra fields <<<"${line##*) }"
    case ${fields[0]} in [ZX]) return 1 ;; esac
    echo "${fields[19]}"
}

has_ended() {
    ! process_identity "$1" >/dev/null
}

# remember_process FILE PID / process_lives FILE: by number and start time.
remember_process() {
    echo "$2 $(process_identity "$2" || echo gone)" >"$1"
}

process_lives() {
    local pid started
    { read -r pid started <"$1"; } 2>/dev/null || return 1
    [ "$(process_identity "$pid")" = "$started" ]
}

# end_process FILE: ends the process that the file remembers, if it is still that one.
end_process() {
    local pid _
    if process_lives "$1"; then
        read -r pid _ <"$1"
        kill "$pid" 2>/dev/null || true
        wait_until 5 has_ended "$pid" || kill -KILL "$pid" 2>/dev/null || true
    fi
    rm -f "$1"
}

# Debian's Wine keeps a prefix's server socket in a folder of /tmp that a file of the prefix names.
remove_server_dir() {
    local name
    name=$(cat "$1/wineserver" 2>/dev/null || true)
    [[ ! $name =~ ^wine-[A-Za-z0-9]{6}$ ]] || rm -rf "/tmp/$name"
    rm -f "$1/wineserver"
}
