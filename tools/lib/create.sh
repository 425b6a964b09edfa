# Making a device: a Wine prefix from the pristine one, its registry, the program, the sample data.

pristine="$root/build/pristine"

# The device's fonts. Without Wine's Tahoma Bold, which is bold only in sizes up to 14 pixels: Wine
# makes a bold of every size from Tahoma itself.
fonts=(courier fixedsys marlett ms_sans_serif small_fonts symbol system tahoma webdings wingding)

# A prefix of the present Wine, in two trees: "linked", the large files, which nothing rewrites in
# place and which every device shares as hard links; and "own", the small files and the registry,
# of which every device gets copies.
make_pristine() {
    local stamp new log font
    stamp="$("$wine_loader" --version), recipe 3"
    [ "$(cat "$pristine/stamp" 2>/dev/null || true)" != "$stamp" ] || return 0
    new="$pristine.new"
    log="$pristine.log"
    rm -rf "$new"
    mkdir -p "$new/linked" "$new/own"
    echo "device: preparing Wine, once (some ten seconds)" >&2
    env -u DISPLAY -u WINELOADER -u WINESERVER WINEPREFIX="$new/linked" WINEARCH=$wine_arch \
        WINEDEBUG=-all WINEDLLOVERRIDES="mscoree=;mshtml=;winemenubuilder.exe=d" \
        timeout 300 "$wine_loader" wineboot -i 8>&- </dev/null >"$log" 2>&1 ||
        die "Wine could not make a prefix; see $log"
    WINEPREFIX="$new/linked" timeout 120 "$wine_server" -w || die "Wine does not come to rest"
    remove_server_dir "$new/linked"
    own_folders_only "$new/linked/drive_c/users"
    for font in "${fonts[@]}"; do
        cp "/usr/share/wine/fonts/$font.ttf" "$new/linked/drive_c/windows/Fonts/"
    done
    "$root/tools/lib/fit_font.py" /usr/share/wine/fonts/tahoma.ttf \
        "$new/linked/drive_c/windows/Fonts/tahoma.ttf"
    (
        cd "$new/linked"
        find . -type f \( -size -64k -o -name '*.reg' \) -print0 |
            xargs -0 cp -a --parents -t "$new/own"
        find . -type f \( -size -64k -o -name '*.reg' \) -delete
    )
    echo "$stamp" >"$new/stamp"
    rm -rf "$pristine"
    mv "$new" "$pristine"
}

# Wine links the user's folders of the host into a prefix; a device keeps to itself.
own_folders_only() {
    local link
    find "$1" -type l | while read -r link; do
        rm "$link"
        mkdir "$link"
    done
}

copy_pristine() {
    mkdir -p "$root/build"
    (
        flock -w 600 8 || die "another create does not come to an end"
        make_pristine
        # Links need one file system; elsewhere the device is a copy.
        if ! cp -al "$pristine/linked" "$1" 2>/dev/null; then
            rm -rf "$1"
            cp -a "$pristine/linked" "$1"
        fi
        cp -a "$pristine/own/." "$1/"
    ) 8>"$pristine.lock"
}

# install_program DIR: puts the built program on a device, over an older one. What the program takes
# from the system lies beside it on a PC, and where the system keeps its own on an ARM device.
install_program() {
    local to="$1/prefix/$install_dir" program_dir library
    if [ "$machine" = arm ]; then
        program_dir="${OVDEVICE_PROGRAM_DIR:-$root/build/arm/device}"
        [ -f "$root/build/armwine/armwine.exe.so" ] && [ -f "$root/build/pc32/device/imaging.dll" ] ||
            die "nothing to run ARM programs with; build it: cmake --preset pc32 &&" \
                "cmake --build --preset pc32 && tools/ce/emulator/build_armwine build/armwine"
        for library in coredll aygshell imaging; do
            cp --remove-destination "$root/build/pc32/device/$library.dll" \
                "$1/prefix/drive_c/windows/system32/"
        done
        cp --remove-destination "$root/build/armwine/armwine.exe.so" "$1/prefix/drive_c/windows/"
    else
        program_dir="${OVDEVICE_PROGRAM_DIR:-$root/build/pc/device}"
    fi
    [ -f "$program_dir/OVOptions.exe" ] ||
        die "no program in $program_dir; build it: cmake --preset pc && cmake --build --preset pc"
    mkdir -p "$to"/{Schemes,Icons,CategoryIcons,CustomAlphabets,Skins}
    rm -rf "$to/LangRes"
    mkdir "$to/LangRes"
    cp -r --remove-destination "$program_dir/." "$to/"
}

# install DIR
install_on_device() {
    load_device "$@"
    ! is_up || ! program_has_window || die "the program runs on $dir; end it first"
    machine=$device_machine
    install_program "$dir"
}

# write_screen_registry WxH DPI: the values that differ from screen to screen. On a coarse one text
# is not smoothed, as on the devices: Tahoma has bitmaps for it, which smoothing would blur.
write_screen_registry() {
    local density smoothing=2
    density=$(printf 'dword:%08x' "$2")
    [ "$2" -ge 120 ] || smoothing=0
    cat <<END
[HKEY_CURRENT_USER\\Software\\Wine\\Explorer\\Desktops]
"Default"="$1"
[HKEY_CURRENT_USER\\Control Panel\\Desktop]
"LogPixels"=$density
"FontSmoothing"="$smoothing"
[HKEY_LOCAL_MACHINE\\System\\CurrentControlSet\\Hardware Profiles\\Current\\Software\\Fonts]
"LogPixels"=$density
END
}

# render DRAWING SIZE FILE [OPTION...]: makes a picture file when its drawing is newer; the file's
# ending says its format, the options are the converter's.
render() {
    local drawing=$1 size=$2 picture=$3 format=${3##*.}
    [ ! "$picture" -nt "$drawing" ] || return 0
    mkdir -p "${picture%/*}"
    # By way of a name of its own, so that two runs at once do not meet.
    rsvg-convert -w "$size" -h "$size" "$drawing" |
        convert png:- "${@:4}" -strip "${format/bmp/bmp3}:$picture.$$"
    mv "$picture.$$" "$picture"
}

# make_icon_set NAME FOLDER SIZE FORMAT: an icon set of the drawings in a folder. In the bitmaps, which
# stand for the check boxes and arrows of a set of that format, a colour says what is clear; smooth
# edges are laid over white, so that none of it shines through them.
make_icon_set() {
    local drawing stem clear to="$root/build/sample-icons/$3/sets/$1"
    for drawing in "$2"/*.svg; do
        stem=$(basename "$drawing" .svg)
        case $4/$stem in
        bmp/task_*checked) clear=red ;;
        bmp/tabs_*) clear=lime ;;
        *) clear= ;;
        esac
        if [ -n "$clear" ]; then
            render "$drawing" "$3" "$to/$stem.bmp" -write mpr:drawn +delete \
                -size "$3x$3" "xc:$clear" \
                '(' mpr:drawn -background white -alpha remove -alpha off ')' \
                '(' mpr:drawn -alpha extract -threshold 8% ')' -composite -type TrueColor
        elif [ "$4" = tga ]; then
            # Without an orientation the converter writes the upper row first and says the lower.
            render "$drawing" "$3" "$to/$stem.tga" -orient TopLeft -type TrueColorAlpha \
                -compress RLE
        else
            render "$drawing" "$3" "$to/$stem.png"
        fi
    done
}

# make_sample_icons SCALE: the sample's category icons and icon sets for a screen of so many pixels a
# unit, made once; prints their folder.
make_sample_icons() {
    local icons="$root/build/sample-icons/$((16 * $1))" drawing
    for drawing in "$root"/device/category-icons/*.svg; do
        render "$drawing" $((16 * $1)) "$icons/$(basename "$drawing" .svg).bmp" \
            -background white -flatten -type TrueColor
    done
    make_icon_set Plain "$root/device/icon-sets/Plain" $((12 * $1)) png
    make_icon_set Bold "$root/device/icon-sets/Bold" $((12 * $1)) tga
    make_icon_set Classic "$root/resources/art/symbols" $((12 * $1)) bmp
    echo "$icons"
}

# with_crlf FILE: the text as files of the device end their lines.
with_crlf() {
    sed 's/$/\r/' "$1"
}

# install_sample DIR DPI: the files that a year of use leaves behind.
install_sample() {
    local c="$1/prefix/drive_c" program="$1/prefix/$install_dir" sample="$root/device" icons file
    local scale=$(($2 > 96 ? 2 : 1))
    cp -r "$sample/files/." "$c/"
    cp -r "$sample/object-store" "$c/Object Store"
    cp "$sample"/custom-alphabets/*.txt "$program/CustomAlphabets/"
    for file in "$sample"/schemes/*.scm; do
        with_crlf "$file" >"$program/Schemes/${file##*/}"
    done
    with_crlf "$sample/filters.txt" | iconv -f UTF-8 -t UTF-16LE \
        >"$c/My Documents/Orvane/OVFilters.txt"
    icons=$(make_sample_icons $scale)
    cp "$icons"/*.bmp "$program/Icons/"
    cp -r "$root/build/sample-icons/$((12 * scale))/sets/." "$program/Icons/"
    mkdir -p "$c/My Documents/Icons" "$c/Program Files/Teskel/Icon Sets/18"
    cp "$icons"/{star,anchor}.bmp "$c/My Documents/Icons/"
    cp "$icons"/{book,bulb,house,train}.bmp "$c/Program Files/Teskel/Icon Sets/18/"
    while IFS=$'\t' read -r drawing category; do
        cp "$icons/$drawing.bmp" "$program/CategoryIcons/$category.bmp"
    done <"$sample/category-icons/names.txt"
}

# create DIR [--screen WxH] [--dpi N] [--locale NAME] [--os V] [--arm] [--empty]
create_device() {
    local screen=240x320 dpi=96 locale=en_US os=5.1 empty=no machine=pc
    [ $# -ge 1 ] || usage
    dir=$1
    shift
    while [ $# -gt 0 ]; do
        case $1 in
        --screen | --dpi | --locale | --os)
            [ $# -ge 2 ] || usage
            printf -v "${1#--}" %s "$2"
            shift
            ;;
        --empty) empty=yes ;;
        --arm) machine=arm ;;
        *) usage ;;
        esac
        shift
    done
    [[ $screen =~ ^[1-9][0-9]{1,3}x[1-9][0-9]{1,3}$ ]] || die "--screen is WIDTHxHEIGHT: $screen"
    [[ $dpi =~ ^[1-9][0-9]{1,2}$ ]] || die "--dpi is dots per inch: $dpi"
    [[ $locale =~ ^[a-z]{2,3}_[A-Z]{2}$ ]] || die "--locale is like de_DE: $locale"
    [[ $os =~ ^(4\.20|5\.1)$ ]] || die "--os is 4.20 or 5.1: $os"
    [ -z "$(ls -A "$dir" 2>/dev/null)" ] || die "$dir is there already"
    if [ $machine = arm ]; then
        choose_wine arm
        pristine+=-i386
    fi
    mkdir -p "$dir/run"
    dir=$(cd "$dir" && pwd)
    trap 'rm -rf "$dir"' EXIT

    copy_pristine "$dir/prefix"
    write_host_settings "$locale"
    install_program "$dir"
    local registry=("$root/device/platform.reg" "$root/device/program.reg")
    if [ $empty = no ]; then
        registry+=("$root"/device/registry/*.reg)
        install_sample "$dir" "$dpi"
    fi
    write_screen_registry "$screen" "$dpi" |
        "$root/tools/lib/registry.py" "$dir/prefix" "$dpi" "${registry[@]}" -

    cat >"$dir/device.conf" <<END
screen=$screen
dpi=$dpi
locale=$locale
os=$os
machine=$machine
wine=$("$wine_loader" --version)
END
    trap - EXIT
}

# What the host's libraries are told on behalf of a device's programs: the device's locale, whose
# name Wine goes by while the host may have no such locale (any name serves for the character set,
# without which Wine loses file names beyond ASCII), and no fonts but the device's.
write_host_settings() {
    mkdir "$dir/run/locale"
    ln -s /usr/lib/locale/C.utf8 "$dir/run/locale/$1.UTF-8"
    echo '<?xml version="1.0"?><fontconfig></fontconfig>' >"$dir/run/fonts.conf"
}
