# SPDX-License-Identifier: MIT
# shellcheck shell=bash disable=SC2034,SC2154
# The stock: a recipe is entered, the menu's new articles are carried over, a withdrawn article's
# recipe moves to its successor, and the month's consumption is computed.

# click_at TITLE X Y: clicks a place of a window that the layout keeps there.
click_at() {
    point_at "$@"
    xdotool click 1
}

# The window with the keyboard is so many pixels high: the editor and its composition window have
# the same title.
keyboard_is_in() {
    local WINDOW X Y WIDTH HEIGHT SCREEN
    eval "$(xdotool getwindowgeometry --shell "$(xdotool getwindowfocus)" 2>/dev/null)"
    [ "${HEIGHT-}" = "$1" ]
}
has_one_window() { [ "$(xdotool search --onlyvisible --name "^$1\$" | wc -l)" = 1 ]; }

# leave TITLE X Y: no window manager gives the keyboard back to the window below; a click does.
leave() {
    click_at "$@"
    answer "$1" Escape
}

# await_row TITLE X Y COLOUR: waits until the blank place X, Y of a list belongs to a row.
row_is_at() {
    local WINDOW X Y WIDTH HEIGHT SCREEN
    eval "$(xdotool getwindowgeometry --shell "$(window_of "$1")")"
    import -window root -crop "1x1+$((X + $2))+$((Y + $3))" +repage -depth 8 txt:- \
        | grep -q "#$4"
}
await_row() { await "a row in \"$1\"" row_is_at "$@"; }

# choose_stock_menu ENTRY: the entry of the history window's menu, counted from 1.
choose_stock_menu() {
    local entry
    click_at "Vendel Historique" 28 9
    for ((entry = 0; entry < $1; ++entry)); do
        xdotool key Down
    done
    xdotool key Return
}

blue=ADD8E6
start_till "$(new_shop stock)"
await_window FormVendelStart
dismiss_splash
click_at FormVendel 25 -10
xdotool key Up Return
await_window "Vendel Historique"
choose_stock_menu 1
await_window "Saisie Stock"

click_at "Saisie Stock" 83 496
await_row "Saisie Stock" 380 58 $blue
click_at "Saisie Stock" 250 38
xdotool type Infusion
xdotool key Return
await "the composition window" keyboard_is_in 86
xdotool type Verveine
xdotool key Tab
xdotool type 2,5
xdotool key Tab Down
picture composition
xdotool key Return
await_rows "the recipe" "select composition || ' ' || dose || ' ' || unite from DoseStock
    where id = (select id from ArticleStock where article = 'Infusion')" "Verveine 2.5 g"
await "end of the composition window" has_one_window "Saisie Stock"
picture stock

click_at "Saisie Stock" 238 496
await_window "Mise à jour Stock"
picture stock-update
click_at "Mise à jour Stock" 492 32
await_no_window "Mise à jour Stock"
expect "articles that the stock lacks" "$(ask "select count(*) from Article
    where id not in (select id from ArticleStock)")" 0

withdrawn="(select id from ArticleStock where id not in (select id from Article))"
successor=$(ask "select id from Article where article = 'Bière blonde'")
lines=$(ask "select count(*) from DoseStock where id = $withdrawn")
click_at "Saisie Stock" 820 496
await_window "Couper / Coller"
await "the keyboard" has_keyboard "Couper / Coller"
xdotool type "$successor"
click_at "Couper / Coller" 200 73
for ((line = lines; line > 0; --line)); do
    await_row "Couper / Coller" 750 73 FFFFFF
    click_at "Couper / Coller" 560 73
    [ "$line" -lt "$lines" ] || picture transfer
    click_at "Couper / Coller" 764 22
    answer Modifier Return
    await_rows "a line moved" "select count(*) from DoseStock where id = $withdrawn" $((line - 1))
done
expect "the successor's recipe" "$(ask "select group_concat(composition, ', ') from (select
    composition from DoseStock where id = $successor order by composition)")" \
    "Bière blonde, Citron vert"
leave "Couper / Coller" 800 300
leave "Saisie Stock" 420 200

last_day=$(ask "select strftime('%m/%d/%Y', max(date_heure), '+1 day') from Historique")
first_day=$(ask "select strftime('%m/%d/%Y', max(date_heure), '-30 days') from Historique")
click_at "Vendel Historique" 600 9
await "the keyboard" has_keyboard "Vendel Historique"
xdotool type "$first_day"
xdotool key Tab
xdotool type "$last_day"
choose_stock_menu 2
await_window "Calcul Stock"
click_at "Calcul Stock" 667 26
await_row "Calcul Stock" 620 100 $blue
picture consumption
leave "Calcul Stock" 400 26
stop_till
