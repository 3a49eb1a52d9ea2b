# SPDX-License-Identifier: MIT
# shellcheck shell=bash disable=SC2034,SC2154
# What the stations of the tour do with: the screen, the till, its windows, its shop, its printer.
# Nothing sleeps for a fixed time: what must become true is awaited.

patience=30
shop=""
till_pid=""
printer_pid=""
# A window's title, and how far below its top the form's places begin (the menu bar's height).
declare -A title_of=([FormVendel]="Vendel" [FormVendelStart]="Dialog"
    [FormVendelTicket]="Impression Ticket")
declare -A top_of=([FormVendel]=21)

# broken WHAT: ends the tour; the screen as it was stays in build/tour/broken.png.
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

# The windows

window_of() {
    xdotool search --onlyvisible --name "^${title_of[$1]-$1}\$" 2>/dev/null | head -n 1
}
is_open() { [ -n "$(window_of "$1")" ]; }
is_closed() { [ -z "$(window_of "$1")" ]; }
has_keyboard() { [ "$(window_of "$1")" = "$(xdotool getwindowfocus 2>/dev/null)" ]; }
# A window is named by its class or, if it has none of its own, by its title.
await_window() { await "window \"$1\"" is_open "$1"; }
await_no_window() { await "end of window \"$1\"" is_closed "$1"; }

# tip_is_shown: whether a window without a name of its own stands there, as only tips do.
tip_is_shown() { xwininfo -root -tree | grep -Eq '"vendel": \("vendel" "vendel"\)  [0-9]{2,}x'; }
no_tip_is_shown() { ! tip_is_shown; }

# place_of FORM WIDGET: the widget's "x y width height", from the form or, where a layout places it,
# from the laid out dialog.
place_of() {
    local number='([0-9]+)<[^>]*>\s*<[^>]*>'
    if [ -f "$root/forms/$1.ui" ]; then
        "$build/tests/support/form-places" "$1" | sed "s/^$2 //; t; d"
    else
        tr '\n' ' ' <"$root/app/$1.ui" \
            | sed -E "s/.* name=\"$2\">\s*<property name=\"geometry\">\s*<rect>\s*<x>$(
                printf '%s' "$number$number$number"
            )([0-9]+).*/\1 \2 \3 \4/; t; d"
    fi | grep . || broken "$1 has no place for $2"
}

# point_at FORM X Y: moves the mouse to a place of the form.
point_at() {
    local WINDOW X Y WIDTH HEIGHT SCREEN
    eval "$(xdotool getwindowgeometry --shell "$(window_of "$1")")"
    xdotool mousemove $((X + $2)) $((Y + ${top_of[$1]-0} + $3))
}

# press FORM WIDGET: clicks the middle of a button.
press() {
    local x y width height
    read -r x y width height < <(place_of "$1" "$2")
    point_at "$1" $((x + width / 2)) $((y + height / 2))
    xdotool click 1
}

# choose FORM X ENTRY: opens the menu that stands X pixels from the left of the menu bar, and takes
# its entry, counted from 1.
choose() {
    local entry
    point_at "$1" "$2" $((10 - ${top_of[$1]-0}))
    xdotool click 1
    for ((entry = 0; entry < $3; ++entry)); do
        xdotool key Down
    done
    xdotool key Return
}

# write FORM FIELD TEXT: puts the text in the place of what the field holds.
write() {
    press "$1" "$2"
    xdotool key ctrl+a BackSpace
    xdotool type --delay 20 "$3"
}

# type_amount BUTTON...: the keypad's buttons by their number in the form.
type_amount() {
    local button
    for button in "$@"; do
        press FormVendel "btn_$button"
    done
}

# answer TITLE KEY [PICTURE [FORM]]: waits for a box, and sends it away with a key; the picture shows
# it on the window below it.
answer() {
    await_window "$1"
    await "the keyboard for \"$1\"" has_keyboard "$1"
    [ -z "${3-}" ] || picture "${@:3}"
    xdotool key "$2"
    await_no_window "$1"
}

# leave FORM: closes a dialog with Escape. Without a window manager nobody gives the keyboard back to
# the window below a box.
leave() {
    xdotool windowfocus --sync "$(window_of "$1")"
    answer "$1" Escape
}

# rows_of FORM VIEW X: the middle of each row that a list shows, below the form's top; X is a column
# of pixels, right of the view's left edge, in which the rows are blank.
rows_of() {
    local x y width height WINDOW X Y WIDTH HEIGHT SCREEN
    read -r x y width height < <(place_of "$1" "$2")
    eval "$(xdotool getwindowgeometry --shell "$(window_of "$1")")"
    import -window root -crop "1x$height+$((X + x + $3))+$((Y + ${top_of[$1]-0} + y))" \
        +repage -depth 8 txt:- | awk -v top="$y" '
        NR == 1 { next }
        $3 == colour { ++run; next }
        { end(NR - 2) ; colour = $3; run = 1 }
        END { end(NR - 1) }
        # A row is a band of a colour; the blank rest of the list is higher.
        function end(y) {
            if (run < 10 || run > 100 || colour !~ /^#(FFFFFF|ADD8E6|FFFF00|308CC6)/) { return }
            if (!first) { first = run }
            if (run <= first + 2) { print int(top + y - run / 2) }
        }'
}

find_row() {
    mapfile -t rows < <(rows_of "$1" "$2" "$3")
    [ -n "${rows[$4]-}" ]
}

# point_at_row FORM VIEW X ROW: rows are counted from 0 at the list's top.
point_at_row() {
    local x rows
    await "row $4 of $2" find_row "$@"
    x=$(place_of "$1" "$2" | cut -d ' ' -f 1)
    point_at "$1" $((x + 100)) "${rows[$4]}"
}

# await_list FORM VIEW X COUNT: waits until the list shows that many rows.
shows_rows() { [ "$(rows_of "$1" "$2" "$3" | wc -l)" = "$4" ]; }
await_list() { await "$4 rows in $2" shows_rows "$@"; }

press_row() {
    point_at_row "$@"
    xdotool click 1
}

# The pictures

screen_sum() {
    # The clock never stands still.
    import -window root -depth 8 rgb:- \
        | convert -size 1366x768 -depth 8 rgb:- -fill black -draw 'rectangle 980,95 1210,121' rgb:- \
        | md5sum
}

stands_still() {
    local before=$last_sum
    last_sum=$(screen_sum)
    [ "$last_sum" = "$before" ]
}

# picture NAME [FORM]: the sales screen, or another window, with all that stands on it, once it
# stands still.
picture() {
    local WINDOW X Y WIDTH HEIGHT SCREEN
    last_sum=""
    await "a quiet screen" stands_still
    eval "$(xdotool getwindowgeometry --shell "$(window_of "${2-FormVendel}")")"
    import -window root -crop "${WIDTH}x$HEIGHT+$X+$Y" +repage -strip +dither -colors 128 \
        "PNG8:$out/$1.png"
    say "  build/tour/$1.png"
}

# The till and its printer

# start_till DIRECTORY: starts the till there, with the emulated printer if that is switched on.
start_till() {
    shop=$1
    local surroundings=()
    [ -z "${UMOCKDEV_DIR-}" ] || surroundings=(LD_PRELOAD=libumockdev-preload.so.0)
    (cd "$shop" && exec env "${surroundings[@]}" "$build/vendel" >>"$out/till.log" 2>&1) &
    till_pid=$!
    await_window FormVendel
}

# The splash goes by itself after five seconds; the cashier need not wait for it.
dismiss_splash() { answer FormVendelStart Escape; }

stop_till() {
    [ -n "$till_pid" ] || return 0
    local pid=$till_pid
    till_pid=""
    kill "$pid" 2>/dev/null || true
    wait "$pid" 2>/dev/null || true
}

# new_shop NAME: makes a throw-away sample shop and names its directory.
new_shop() {
    "$build/demo/vendel-demo" "$work/$1" || broken "the sample shop cannot be made"
    prepare_shop "$work/$1" "$build/packaging"
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

# The printer ends after the till, which would be ended by its next request otherwise.
stop_printer() {
    unset UMOCKDEV_DIR
    [ -n "$printer_pid" ] || return 0
    kill "$printer_pid" 2>/dev/null || true
    wait "$printer_pid" 2>/dev/null || true
    printer_pid=""
}
