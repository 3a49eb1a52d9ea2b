# SPDX-License-Identifier: MIT
# shellcheck shell=bash disable=SC2034,SC2154
# What the tour uses: the screen, the till, its windows, its shop, its printer. It never sleeps for a
# fixed time: it waits for what must become true.

patience=30
shop=""
till_pid=""
printer_pid=""
station=start
work=$(mktemp -d)
display_pid=""
clean_up() {
    stop_till
    stop_printer
    stop_display
    rm -rf -- "$work"
}
trap clean_up EXIT
trap 'exit 1' HUP INT TERM

stop_display() {
    [ -n "$display_pid" ] || return 0
    kill "$display_pid" 2>/dev/null || true
    wait "$display_pid" 2>/dev/null || true
    display_pid=""
}

# start_display SIZE CLOCK: a private X server and session, in place of the one before. CLOCK is the
# rectangle in which the sales screen's clock is drawn there.
start_display() {
    stop_display
    screen=$1 clock=$2
    [ -d "$work/runtime" ] || mkdir -m 700 "$work/runtime"
    rm -f "$work/display"
    export QT_QPA_PLATFORM=xcb LC_ALL=C.UTF-8 TZ=Europe/Paris XDG_RUNTIME_DIR="$work/runtime"
    unset WAYLAND_DISPLAY QT_STYLE_OVERRIDE QT_SCALE_FACTOR
    # A server that resets after its last client refuses the next one for a moment.
    Xvfb -displayfd 3 -screen 0 "${screen}x24" -dpi 96 -noreset -nolisten tcp \
        3>"$work/display" 2>"$work/display.log" &
    display_pid=$!
    await "a virtual display" test -s "$work/display"
    DISPLAY=":$(<"$work/display")"
    export DISPLAY
}

# broken WHAT: ends the script, and leaves a picture of the screen with its other results: broken.png.
broken() {
    import -window root "$out/broken.png" 2>/dev/null || true
    [ ! -s "$out/till.log" ] || tail -n 20 "$out/till.log" >&2
    fail "$station: $*"
}

# await WHAT COMMAND...: waits until the command succeeds.
await() {
    local what=$1 deadline=$((SECONDS + patience))
    shift
    until "$@"; do
        [ -z "$till_pid" ] || kill -0 "$till_pid" 2>/dev/null || broken "$what: the till has ended"
        [ $SECONDS -lt $deadline ] || broken "$what: did not happen in $patience s"
        sleep 0.05
    done
}

# expect WHAT ACTUAL EXPECTED
expect() {
    [ "$2" = "$3" ] || broken "$1: \"$2\" instead of \"$3\""
}

# The shop

ask() { sqlite3 -cmd ".timeout 5000" "$shop/Vendel.db" "$1"; }
answers() { [ "$(ask "$1" 2>/dev/null)" = "$2" ]; }
# await_rows WHAT SQL EXPECTED
await_rows() { await "$1" answers "$2" "$3"; }
quoted() { printf "'%s'" "${1//\'/\'\'}"; }

# What is on the screen, as tests/scripts/TourEye.cpp writes it: one thing on a line, its words separated
# by tabs. A window is known by its class, a box by its title.

# seen WORD...: the last word of the first line that begins with these words; fails without one.
seen() {
    local words
    words=$(printf '%s\t' "$@")
    awk -v words="${words//\\/\\\\}" 'BEGIN { FS = "\t" }
        index($0 "\t", words) == 1 { print $NF; found = 1; exit }
        END { exit !found }' "$work/eye" 2>/dev/null
}
is_gone() { ! seen "$@" >/dev/null; }
is_seen() { seen "$@" >/dev/null; }

await_window() { await "window \"$1\"" is_seen window "$1"; }
await_no_window() { await "end of window \"$1\"" is_gone window "$1"; }
await_box() { await "box \"$1\"" is_seen box "$1"; }

# place_of KIND WINDOW NAME [TEXT]: the middle of a thing, as "x y". Rows and buttons without a name
# are found by their text; a row's text is that of its columns, joined by "|", or of one of them.
place_of() {
    awk -v kind="$1" -v window="$2" -v name="$3" -v text="${4-}" 'BEGIN { FS = "\t" }
        $1 != kind { next }
        kind == "action" || kind == "item" { if ($2 == name) { found = $3 } next }
        $2 != window { next }
        kind == "menu" { if ($3 == name) { found = $4 } next }
        $3 != name || found { next }
        text == "" || $5 == text || index("|" $5 "|", "|" text "|") { found = $4 }
        END { if (!found) { exit 1 } print found }' "$work/eye" 2>/dev/null
}
has_place() { place_of "$@" >/dev/null; }

# point_at KIND WINDOW NAME [TEXT]: moves the mouse there, as soon as there is such a thing.
point_at() {
    await "$*" has_place "$@"
    # shellcheck disable=SC2046  # two numbers
    xdotool mousemove $(place_of "$@")
}

press_at() {
    point_at "$@"
    xdotool click 1
}

# press WINDOW WIDGET
press() { press_at widget "$1" "$2"; }
# press_row WINDOW VIEW TEXT
press_row() { press_at row "$@"; }
double_press_row() {
    point_at row "$@"
    xdotool click --repeat 2 --delay 50 1
}

# row_count WINDOW VIEW: the rows in view.
row_count() { grep -c "^row	$1	$2	" "$work/eye"; }
shows_rows() { [ "$(row_count "$1" "$2")" = "$3" ]; }
# await_list WINDOW VIEW COUNT
await_list() { await "$3 rows in $2" shows_rows "$@"; }
await_row() { await "row \"$3\" in $2" has_place row "$@"; }

# await_text WINDOW WIDGET TEXT
has_text() { [ "$(seen_text "$1" "$2")" = "$3" ]; }
seen_text() { awk -F '\t' -v window="$1" -v name="$2" \
    '$1 == "widget" && $2 == window && $3 == name { print $5 }' "$work/eye"; }
await_text() { await "\"$3\" in $2" has_text "$@"; }

# choose WINDOW MENU ACTION
choose() {
    press_at menu "$1" "$2"
    press_at action "" "$3"
}

# pick WINDOW COMBO_BOX ITEM
pick() {
    press "$1" "$2"
    press_at item "" "$3"
    await_text "$1" "$2" "$3"
}

# fill WINDOW FIELD TEXT: replaces the field's text by typing.
fill() {
    press "$1" "$2"
    xdotool key ctrl+a Delete
    await_text "$1" "$2" ""
    xdotool type --delay 5 -- "$3"
    await_text "$1" "$2" "$3"
}

# answer TITLE BUTTON [PICTURE]: waits for a box and presses its button.
answer() {
    await_box "$1"
    [ -z "${3-}" ] || picture "$3"
    press_at widget "$1" "" "$2"
    await "end of box \"$1\"" is_gone box "$1"
}

# leave WINDOW: closes a dialog as its user may.
leave() {
    # Without a window manager, nothing restores the keyboard focus when a window closes.
    is_seen active "$1" || xdotool windowfocus "$(seen window "$1")"
    await "the keyboard for $1" is_seen active "$1"
    xdotool key Escape
    await_no_window "$1"
}

# The pictures

screen_sum() {
    # The clock always changes.
    import -window root -depth 8 rgb:- \
        | convert -size "$screen" -depth 8 rgb:- -fill black -draw "rectangle $clock" rgb:- \
        | md5sum
}

stands_still() {
    local before=$last_sum
    last_sum=$(screen_sum)
    [ "$last_sum" = "$before" ]
}

# picture NAME: the windows on the screen, once they stop changing.
picture() {
    last_sum=""
    await "a quiet screen" stands_still
    import -window root -trim +repage -strip +dither -colors 128 "PNG8:$out/$1.png"
    say "  build/tour/$1.png"
}

# The till and its printer

# start_till DIRECTORY: starts the till there, with the emulated printer if that is switched on.
start_till() {
    shop=$1
    local preload="$build/tests/scripts/libtour-eye.so"
    [ -z "${UMOCKDEV_DIR-}" ] || preload="libumockdev-preload.so.0 $preload"
    rm -f "$work/eye"
    (cd "$shop" && VENDEL_TOUR_EYE="$work/eye" LD_PRELOAD=$preload exec "$build/vendel" \
        >>"$out/till.log" 2>&1) &
    till_pid=$!
    await_window FormVendel
}

# start_gestion DIRECTORY: the same with the back office on that shop.
start_gestion() {
    shop=$1
    rm -f "$work/eye"
    VENDEL_TOUR_EYE="$work/eye" LD_PRELOAD="$build/tests/scripts/libtour-eye.so" \
        "$build/vendel-gestion" --dossier "$shop" >>"$out/till.log" 2>&1 &
    till_pid=$!
    await_window MainWindow
}

# The splash closes itself after five seconds; the cashier need not wait for it.
dismiss_splash() {
    await_window FormVendelStart
    leave FormVendelStart
}

stop_till() {
    [ -n "$till_pid" ] || return 0
    local pid=$till_pid
    till_pid=""
    kill "$pid" 2>/dev/null || true
    wait "$pid" 2>/dev/null || true
}

# new_shop NAME [DAYS]: makes a throw-away sample shop with the sales of some days, and names its
# directory.
new_shop() {
    "$build/demo/vendel-demo" "$work/$1" --days "${2-35}" || broken "the sample shop cannot be made"
    cp "$build/packaging/Vendel.png" "$build/packaging/AproposdeImage.png" "$work/$1"
    say "$work/$1"
}

start_printer() {
    coproc PRINTER {
        exec "$build/tests/support/emulated-printer" --bytes "$out/receipt.bytes"
    }
    # shellcheck disable=SC2153  # The shell sets PRINTER_PID, and unsets it when the printer ends.
    printer_pid=$PRINTER_PID
    read -r -t "$patience" -u "${PRINTER[0]}" UMOCKDEV_DIR || broken "the printer does not start"
    export UMOCKDEV_DIR
}

# The printer ends after the till, whose next request to it would otherwise end the till.
stop_printer() {
    unset UMOCKDEV_DIR
    [ -n "$printer_pid" ] || return 0
    kill "$printer_pid" 2>/dev/null || true
    wait "$printer_pid" 2>/dev/null || true
    printer_pid=""
}
