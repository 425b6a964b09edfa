# A running device: its screen, Wine's server and desktop, programs on it.

installed_program='C:\Program Files\Teskel\Orvane\OVOptions.exe'
install_dir="drive_c/Program Files/Teskel/Orvane"
# Where an ARM device has what runs programs on an emulated processor.
arm_loader='C:\windows\armwine.exe.so'

load_device() {
    [ $# -ge 1 ] || usage
    [ -f "$1/device.conf" ] || die "$1 is no device; make one: tools/device create $1"
    dir=$(cd "$1" && pwd)
    run="$dir/run"
    device_machine=pc
    local key value
    while IFS='=' read -r key value; do
        printf -v "device_$key" %s "$value"
    done <"$dir/device.conf"
    choose_wine "$device_machine"
    local runner=
    [ "$device_machine" != arm ] || runner=$arm_loader
    environment=(
        -u WINEARCH -u WINELOADER -u WINESERVER -u WINEDLLPATH -u WINEDLLOVERRIDES -u LANGUAGE
        WINEPREFIX="$dir/prefix" WINEDEBUG="${WINEDEBUG:--all}"
        WINEPATH='C:\Program Files\Teskel\Orvane' OVDEVICE_OS="$device_os"
        OVDEVICE_RUNNER="$runner" LC_ALL="$device_locale.UTF-8" LOCPATH="$run/locale" FONTCONFIG_FILE="$run/fonts.conf"
    )
}

is_up() {
    process_lives "$run/desktop.pid" &&
        { [ ! -f "$run/xvfb.pid" ] || process_lives "$run/xvfb.pid"; }
}

# Starts what programs need, unless it runs. Nothing started here keeps the caller's input, output
# or lock: they outlive the caller.
bring_up() {
    if ! is_up; then
        [ "$device_wine" = "$("$wine_loader" --version)" ] ||
            die "$dir was made with another Wine ($device_wine); remove it and create it anew"
        exec 9>"$run/lock"
        flock -w 120 9 || die "another start of $dir does not come to an end"
        if ! is_up; then
            take_down
            start_screen
            start_desktop
        fi
        exec 9>&-
    fi
    screen_display=$(<"$run/display")
}

start_screen() {
    if [ "${OVDEVICE_DISPLAY:-}" = host ]; then
        xdpyinfo >/dev/null 2>&1 || die "the display \"${DISPLAY:-}\" cannot be used"
        echo "$DISPLAY" >"$run/display"
        return
    fi
    rm -f "$run/display.number"
    setsid Xvfb -displayfd 7 -screen 0 "${device_screen}x24" -nolisten tcp -noreset -s 0 \
        7>"$run/display.number" 9>&- </dev/null >"$run/xvfb.log" 2>&1 &
    remember_process "$run/xvfb.pid" $!
    wait_until 30 test -s "$run/display.number" || die "no screen; see $run/xvfb.log"
    echo ":$(<"$run/display.number")" >"$run/display"
}

# Without a desktop of its own, the first program to open a window would start one and lend it its
# output. Server and desktop would go when no program is left; start.exe, which waits for the
# desktop, is one that stays: that is what makes starting programs quick.
start_desktop() {
    DISPLAY=$(<"$run/display") setsid env "${environment[@]}" "$wine_loader" \
        'C:\windows\system32\start.exe' /exec 'C:\windows\system32\explorer.exe' /desktop \
        9>&- </dev/null >"$run/desktop.log" 2>&1 &
    remember_process "$run/desktop.pid" $!
    wait_until 60 find_desktop || die "no desktop; see $run/desktop.log"
}

# device_windows XDOTOOL-SEARCH...: the visible X windows of this device that match. A host's
# display may show other devices too: a window is this one's when its process works on this prefix.
device_windows() {
    local window pid
    for window in $(DISPLAY=$(<"$run/display") xdotool search --onlyvisible "$@" 2>/dev/null); do
        pid=$(DISPLAY=$(<"$run/display") xdotool getwindowpid "$window" 2>/dev/null) || continue
        if grep -qzFx "WINEPREFIX=$dir/prefix" "/proc/$pid/environ" 2>/dev/null; then
            echo "$window"
        fi
    done
}

# The desktop's X window has the size of the device's screen.
find_desktop() {
    device_windows --name ' - Wine desktop$' >"$run/desktop.window"
    [ -s "$run/desktop.window" ]
}

program_has_window() {
    [ -n "$(device_windows --class '^(ovoptions|armwine)\.exe(\.so)?$')" ]
}

take_down() {
    if [ -f "$dir/prefix/wineserver" ]; then
        WINEPREFIX="$dir/prefix" "$wine_server" -k 2>/dev/null || true
        WINEPREFIX="$dir/prefix" timeout 20 "$wine_server" -w 2>/dev/null ||
            WINEPREFIX="$dir/prefix" "$wine_server" -k9 2>/dev/null || true
        remove_server_dir "$dir/prefix"
    fi
    end_process "$run/xvfb.pid"
    rm -f "$run"/desktop.{pid,window} "$run"/display*
}

# The path of a program as Wine takes it: a file of the host, a file of the device, or a name.
find_program() {
    local system="$dir/prefix/drive_c/windows/system32"
    case $1 in
    OVOptions | OVOptions.exe) echo "$installed_program" ;;
    \\* | [A-Za-z]:*) echo "$1" ;;
    *)
        if [ -f "$1" ]; then
            realpath "$1"
        elif [ -f "$system/$1" ] || [ -f "$system/$1.exe" ]; then
            echo "C:\\windows\\system32\\${1%.exe}.exe"
        else
            die "no such program: $1"
        fi
        ;;
    esac
}

# Whether a program, as Wine takes it, is one for the device's processor.
is_for_arm() {
    local file=$1 header
    [ "$file" != "$installed_program" ] || file="$dir/prefix/$install_dir/OVOptions.exe"
    header=$(od -An -tu4 -j60 -N4 "$file" 2>/dev/null) || return 1
    [ "$(od -An -tx2 -j$((header + 4)) -N2 "$file")" = ' 01c0' ]
}

# run_program PROGRAM [ARG...]: becomes the program, under the command in "limiter". In C:,
# as on the device, where paths name no drive.
run_program() {
    local emulated=()
    ! is_for_arm "$1" || emulated=("$arm_loader")
    cd "$dir/prefix/drive_c"
    DISPLAY=$screen_display exec "${limiter[@]}" \
        env "${environment[@]}" "$wine_loader" "${emulated[@]}" "$@"
}

# exec DIR PROGRAM [ARG...]
exec_program() {
    local limit=${OVDEVICE_TIMEOUT:-600} status=0 began=$SECONDS program limiter
    [[ $limit =~ ^[0-9]+$ ]] || die "OVDEVICE_TIMEOUT is a number of seconds: $limit"
    load_device "$@"
    [ $# -ge 2 ] || usage
    program=$(find_program "$2")
    bring_up
    limiter=(env OV_I386_ENDS_WITH_CALLER=1 timeout --foreground -k 5 "$limit")
    (run_program "$program" "${@:3}") || status=$?
    # A program that had to be killed counts as one that ran out of time.
    if [ $status -eq 137 ] && [ "$limit" -gt 0 ] && [ $((SECONDS - began)) -ge "$limit" ]; then
        status=124
    fi
    return $status
}

# start DIR [ARG...]: returns when a window of the program is up and drawn. While a copy runs, the
# second one brings it to the front and ends.
start_program() {
    local status=0 first=yes pid limiter=(setsid)
    load_device "$@"
    bring_up
    ! program_has_window || first=no
    (run_program "$installed_program" "${@:2}") </dev/null >"$run/program.log" 2>&1 &
    pid=$!
    if [ $first = yes ]; then
        wait_until 60 window_or_end $pid || die "no window after a minute; see $run/program.log"
        if program_has_window; then
            settle
            return
        fi
    else
        wait_until 60 has_ended $pid || die "the second copy does not end; see $run/program.log"
    fi
    wait $pid || status=$?
    [ $first = no ] && [ $status -eq 0 ] ||
        die "the program ended with $status: $(<"$run/program.log")"
}

# Waits, not for long, until the screen keeps still.
settle() {
    local before=none now end=$((SECONDS + 5))
    until now=$(take_picture - | cksum) && [ "$now" = "$before" ]; do
        [ $SECONDS -lt $end ] || return 0
        before=$now
        sleep 0.1
    done
}

window_or_end() {
    program_has_window || has_ended "$1"
}

# screenshot DIR FILE.png
take_screenshot() {
    load_device "$@"
    [ $# -eq 2 ] || usage
    is_up || die "$dir is not running"
    take_picture "$2"
}

# take_picture FILE: of exactly the device's screen.
take_picture() {
    DISPLAY=$(<"$run/display") import -silent -window "$(<"$run/desktop.window")" -strip "png24:$1"
}

# stop DIR
stop_device() {
    load_device "$@"
    exec 9>"$run/lock"
    flock -w 120 9 || die "a start of $dir does not come to an end"
    take_down
}
