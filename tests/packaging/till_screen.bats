#!/usr/bin/env bats
# SPDX-License-Identifier: MIT
# The till's windows as a window manager treats them, with a real mouse and real keys.
# shellcheck disable=SC2154

load support
load screen

setup() {
    shop=$BATS_TEST_TMPDIR/shop
    sample_shop "$shop"
    cd "$shop" || return
    open_screen
    manage_screen
    background "$VENDEL_BUILD/vendel"
    within is_shown Vendel
    within is_shown Dialog
}

teardown() {
    close_screen
}

# stack: the names of all windows, from the lowest to the highest.
stack() {
    local id
    for id in $(xprop -root _NET_CLIENT_LIST_STACKING | grep -o '0x[0-9a-f]*'); do
        xdotool getwindowname "$id"
    done | paste -sd ' '
}

is_stacked() { [ "$(stack)" = "$1" ]; }

# go_to_the_amount: the sales screen once its splash is sent away.
go_to_the_amount() {
    within is_active Dialog
    xdotool key Escape
    within is_active Vendel
}

# records COUNT TABLE: whether the table has as many rows.
records() { [ "$(sql Vendel.db "select count(*) from $2")" = "$1" ]; }

@test "a click beside the splash leaves it above the sales screen, and below other programs" {
    within is_stacked 'Vendel Dialog'
    background xev -name Another -geometry 400x300+0+0
    within is_shown Another
    xdotool search --name '^Another$' windowactivate
    within is_stacked "Vendel Dialog Another"
    xdotool mousemove 300 680 click 1
    within is_stacked "Another Vendel Dialog"
    within is_gone Dialog
}

@test "a sale needs no mouse" {
    go_to_the_amount
    sold=$(sql Vendel.db "select count(*) from Historique")
    xdotool type --delay 20 '2,5'
    xdotool key Tab Return
    within records 1 Ticket
    xdotool key Tab Tab Return Tab Return
    within is_shown 'Impression Ticket'
    records "$((sold + 1))" Historique
    within is_active 'Impression Ticket'
    xdotool key Escape
    within is_gone 'Impression Ticket'
    within is_active Vendel
    # The amount is still there, "Payer" has the focus: back to "+".
    xdotool key shift+Tab shift+Tab shift+Tab Return
    within records 1 Ticket
}

# hold KEY: keeps it down until the screen has repeated it a few times.
hold() {
    : >repeats
    xev -id "$(xdotool getactivewindow)" -event keyboard >repeats 2>&1 3>&- &
    running=("$!" "${running[@]}")
    # Once it listens, it sees a key that does nothing.
    within listens
    xdotool keydown "$1"
    within is_repeated "$1"
    xdotool keyup "$1"
    kill "${running[0]}"
}
listens() {
    xdotool key F12
    grep -q F12 repeats
}
is_repeated() { [ "$(grep -c "keysym.* $1)" repeats)" -ge 12 ]; }

@test "a held key sells one article, and takes one line off" {
    go_to_the_amount
    xdotool key Tab Tab Tab Tab Tab Tab Tab Tab Return
    within is_active Doublon
    xdotool key Return
    within is_active Vendel
    xdotool key shift+Tab shift+Tab shift+Tab Down
    hold Return
    within records 1 Ticket
    hold space
    within records 2 Ticket
    xdotool key Tab Down
    hold space
    within records 1 Ticket
    xdotool key Return
    within records 0 Ticket
}

@test "one stray key loses no text of the receipt, and giving it up leaves the keyboard to the settings" {
    go_to_the_amount
    xdotool key alt Down Return
    within is_active Config
    xdotool key Tab Tab Tab Tab Return
    within is_active 'Formulaire Impression Ticket'
    xdotool type x
    for stray in Return space Escape; do
        xdotool key Escape
        within is_active Sauvegarde
        xdotool key "$stray"
        within is_active 'Formulaire Impression Ticket'
    done
    xdotool key Escape
    within is_active Sauvegarde
    xdotool key Left Return
    within is_active Config
}

@test "a stock that needs no update leaves the keyboard to its editor" {
    go_to_the_amount
    xdotool key alt Down Up Return
    within is_active 'Vendel Historique'
    xdotool key alt Down Return
    within is_active 'Saisie Stock'
    xdotool key Tab
    for said in nothing 'Mettre à jour' 'Mettre à jour' 'Mettre à jour' 'Mettre à jour' 'Mettre à jour'; do
        xdotool key Return
        within is_active 'Mise à jour Stock'
        xdotool key Tab Return
        if [ "$said" != nothing ]; then
            within is_active "$said"
            xdotool key Return
        fi
        within is_active 'Saisie Stock'
    done
}

@test "the sales screen offers to be minimized and closed, but not maximized" {
    window=$(xdotool search --onlyvisible --name '^Vendel$')
    actions=$(xprop -id "$window" _NET_WM_ALLOWED_ACTIONS)
    grep -q _NET_WM_ACTION_MINIMIZE <<<"$actions"
    grep -q _NET_WM_ACTION_CLOSE <<<"$actions"
    [[ $actions != *MAXIMIZE* ]]
    # Functions: resize, move, minimize and close; decorations: border, handle, title, menu, minimize.
    xprop -id "$window" _MOTIF_WM_HINTS | grep -qF '= 0x3, 0x2e, 0x3e, 0x0, 0x0'
}
