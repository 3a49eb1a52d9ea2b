# SPDX-License-Identifier: MIT
# shellcheck shell=bash disable=SC2034,SC2154
# The shop whose till is disturbed, and the contents of its database before and after each act.

work=$(mktemp -d)
clean_up() {
    local running
    running=$(jobs -p)
    # shellcheck disable=SC2086  # one word for each number
    [ -z "$running" ] || { kill $running && wait; } 2>/dev/null || true
    rm -rf -- "$work"
}
trap clean_up EXIT
trap 'exit 1' HUP INT TERM

export QT_QPA_PLATFORM=offscreen LC_ALL=C.UTF-8 TZ=Europe/Paris XDG_RUNTIME_DIR="$work"
unset QT_STYLE_OVERRIDE QT_SCALE_FACTOR

# The till makes its own database: a small one, because every system call is tried.
make_shop() {
    mkdir "$work/shop"
    if ! play "$work/shop" start "$work"; then
        cat "$work/till.log" >&2
        fail "the till does not start, or strace cannot watch it"
    fi
    sqlite3 "$work/shop/Vendel.db" <<'SQL'
insert into Article (article, prix) values ('Café', 1.5), ('Thé', 2.5), ('Eau', 2);
insert into ArticleStock (id, article) values (1, 'Café'), (2, 'Thé');
insert into DoseStock (id, composition, dose, unite) values
    (1, 'Café moulu', 7, 'g'), (1, 'Sucre', 5, 'g'), (2, 'Thé vert', 2.5, 'g');
insert into Historique values (1, 'Café', 1.5, '2026-01-05 08:00:00.000'),
    (2, 'Thé', 2.5, '2026-01-05 09:00:00.000'), (3, 'Eau', 2, '2026-01-06 08:00:00.000');
insert into Ticket (id, article, prix) values
    (1, 'Café', 1.5), (2, 'Thé', 2.5), (0, '----', -0.5);
SQL
}

# state_of SHOP: the contents of its database, one table on a line, and whether SQLite finds it intact.
state_of() {
    sqlite3 -separator ' ' "$1/Vendel.db" 2>&1 <<'SQL'
pragma integrity_check;
select 'articles', group_concat(id || ' ' || article || ' ' || prix, ', ') from Article;
select 'stock', group_concat(id || ' ' || article, ', ') from ArticleStock;
select 'doses', group_concat(id || ' ' || composition || ' ' || dose, ', ') from DoseStock;
select 'history', group_concat(id || ' ' || article || ' ' || prix, ', ') from Historique;
select 'ticket', group_concat(id || ' ' || article || ' ' || prix, ', ') from Ticket;
SQL
}

articles="1 Café 1.5, 2 Thé 2.5, 3 Eau 2"
stock="1 Café, 2 Thé"
doses="1 Café moulu 7, 1 Sucre 5, 2 Thé vert 2.5"
history="1 Café 1.5, 2 Thé 2.5, 3 Eau 2"
ticket="1 Café 1.5, 2 Thé 2.5, 0 ---- -0.5"

# state: the state of these variables, as state_of shows one.
state() {
    printf '%s\n' ok "articles $articles" "stock $stock" "doses $doses" "history $history" \
        "ticket $ticket"
}

# state_after ACT
state_after() {
    local articles=$articles stock=$stock doses=$doses history=$history ticket=$ticket
    case $1 in
        payment) history="$history, $ticket" ticket="" ;;
        sold) history="$history, $ticket" ;;
        line) ticket="1 Café 1.5, 0 ---- -0.5" ;;
        stock) stock="2 Thé" doses="2 Thé vert 2.5" ;;
        article) articles="1 Grand cafe 2.8, 2 Thé 2.5, 3 Eau 2" ;;
        purge) history="3 Eau 2" ;;
    esac
    state
}
