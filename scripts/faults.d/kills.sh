# SPDX-License-Identifier: MIT
# shellcheck shell=bash disable=SC2034,SC2154
# A shop whose till is killed in the middle of its work, and what must have stayed.

lines_of_a_ticket=500
shop_bought="select count(*) from Historique where article like 'Ligne %'
    and article = 'Ligne ' || id and prix = id + 0.5"

# cut_off WORK: one round of it, in a shop of its own.
cut_off() {
    station="$1, round $round of $kills, seed $seed"
    [ -d "$work/sample" ] || new_shop sample >/dev/null
    shop=$work/shop
    rm -rf -- "$shop"
    cp -r "$work/sample" "$shop"
    prepare_ticket
    sold_before=$(ask "select count(*) from Historique")
    start_till "$shop"
    dismiss_splash
    "begin_$1"
    expect "the database" "$(ask "pragma integrity_check")" ok
    "check_$1"
}

# kill_within MILLISECONDS: ends the till at some moment of this time.
kill_within() {
    local pause=$((RANDOM % $1))
    sleep "0.$(printf '%03d' "$pause")"
    kill -KILL "$till_pid"
    wait "$till_pid" 2>/dev/null || true
    till_pid=""
}

counts() { outcomes["$1"]=$((${outcomes["$1"]-0} + 1)); }

prepare_ticket() {
    ask "with recursive line(id) as (select 1 union all select id + 1 from line
            where id < $lines_of_a_ticket)
        insert into Ticket (id, article, prix) select id, 'Ligne ' || id, id + 0.5 from line"
}

begin_payment() {
    point_at widget FormVendel btn_Payer
    xdotool click 1 &
    clicking=$!
    kill_within 120
    wait "$clicking" || true
}

check_payment() {
    local waiting sold
    waiting=$(ask "select count(*) from Ticket where article = 'Ligne ' || id and prix = id + 0.5")
    sold=$(ask "$shop_bought")
    expect "other lines sold" $(($(ask "select count(*) from Historique") - sold)) "$sold_before"
    case $waiting-$sold in
        "$lines_of_a_ticket-0") counts "payment, not begun" ;;
        "$lines_of_a_ticket"-*) counts "payment, cut off" ;;
        "0-$lines_of_a_ticket") counts "payment, done" ;;
        *) broken "$waiting lines on the ticket and $sold in the history" ;;
    esac
}

begin_additions() {
    press FormVendel btn_Afficher
    answer Doublon OK
    point_at row FormVendel tableView1 "Café|1.50\$"
    xdotool click --repeat 20 --delay 12 1 &
    clicking=$!
    kill_within 250
    wait "$clicking" || true
}

check_additions() {
    local shown added
    shown=$(row_count FormVendel tableView2 || true)
    added=$(ask "select count(*) from Ticket where article = 'Café' and prix = 1.5")
    expect "the ticket's other lines" $(($(ask "select count(*) from Ticket") - added)) \
        "$lines_of_a_ticket"
    expect "lines sold" "$(ask "select count(*) from Historique")" "$sold_before"
    [ "$shown" -le $((added + lines_of_a_ticket)) ] || broken "a line that was seen is gone"
    case $added in
        0) counts "additions, not begun" ;;
        20) counts "additions, done" ;;
        *) counts "additions, cut off" ;;
    esac
}

begin_purge() {
    local first second
    first=$(purge_day 2)
    second=$(purge_day 6)
    purged_lines=$(ask "select count(*) from Historique where date_heure
        between '$(iso "$first")' and '$(iso "$second")'")
    choose FormVendel Vendel Historique
    await_window FormVendelHistorique
    fill FormVendelHistorique txt_First_Date "$first"
    fill FormVendelHistorique txt_Second_Date "$second"
    press FormVendelHistorique btn_Clear
    await_box Purger
    point_at widget Purger "" Oui
    xdotool click 1 &
    clicking=$!
    kill_within 30
    wait "$clicking" || true
}

purge_day() {
    ask "select strftime('%m/%d/%Y', date_heure) from Historique group by date(date_heure)
        order by date_heure limit 1 offset $1 - 1"
}
iso() { printf '%s-%s-%s' "${1:6:4}" "${1:0:2}" "${1:3:2}"; }

check_purge() {
    local left
    left=$(ask "select count(*) from Historique")
    expect "the ticket" "$(ask "select count(*) from Ticket")" "$lines_of_a_ticket"
    case $left in
        "$sold_before") counts "purge, not begun" ;;
        $((sold_before - purged_lines))) counts "purge, done" ;;
        *) broken "$left of $sold_before lines are left after a purge of $purged_lines" ;;
    esac
}
