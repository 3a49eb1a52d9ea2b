#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Measures what tills send: a year of many tills goes to a PostgreSQL of its own.
. "$(dirname -- "${BASH_SOURCE[0]}")/lib.sh"

usage="usage: scripts/bench-central.sh [--tills N] [--docs]
  --tills N   how many tills of 330,000 lines each; 100 without it, which takes about 20 minutes and 10 GB
  --docs      writes the figures into docs/quality.md"
tills=100
docs=false
while [ $# -gt 0 ]; do
    case $1 in
        --tills) tills=${2-} && shift ;;
        --docs) docs=true ;;
        -h | --help) say "$usage" && exit ;;
        *) unknown_option "$usage" "$1" ;;
    esac
    shift || true
done
[[ $tills =~ ^[1-9][0-9]*$ ]] || unknown_option "$usage" "--tills $tills"

"$root/scripts/install.sh" build test
configure release
build release vendel-central vendel-demo
central=$root/build/release/packaging/vendel-central
servers=(/usr/lib/postgresql/*/bin/postgres)
postgres=$(dirname "${servers[-1]}")

work=$(mktemp -d)
server=
clean_up() {
    [ -z "$server" ] || { kill -INT "$server" && wait "$server"; } 2>/dev/null || true
    rm -rf "$work"
}
trap clean_up EXIT
# PostgreSQL refuses to run as root.
as_nobody=()
if [ "$(id -u)" -eq 0 ]; then
    chown nobody "$work"
    as_nobody=(setpriv --reuid=65534 --regid=65534 --clear-groups)
fi
(cd / && "${as_nobody[@]}" "$postgres/initdb" -D "$work/data" -A trust -U owner --no-locale -E UTF8) \
    >/dev/null
"${as_nobody[@]}" "$postgres/postgres" -D "$work/data" -k "$work" -c listen_addresses= \
    -c shared_buffers=1GB -c max_wal_size=4GB >/dev/null 2>&1 &
server=$!
until "$postgres/pg_isready" -q -h "$work"; do sleep 0.05; done
uri="postgresql://owner@${work//\//%2F}/postgres"
ask() { "$postgres/psql" -h "$work" -U owner -d postgres -AtXq "$@"; }
"$central" --preparer "$uri" >/dev/null
# A till with a year of sales: 330,000 lines from 8 to 22 o'clock, 60 articles.
"$root/build/release/demo/vendel-demo" "$work/till" --days 1 >/dev/null
sqlite3 "$work/till/Vendel.db" 'delete from Historique'
send_till() {
    local folder=$work/till-$1
    mkdir "$folder"
    cp "$work/till/Vendel.db" "$folder/"
    sqlite3 "$folder/Vendel.db" "with recursive n(i) as (select 0 union all select i + 1 from n
        where i < 329999) insert into Historique (id, article, prix, date_heure)
        select i % 60 + 1, 'Article ' || (i % 60), 2 + i % 60 / 10.0, strftime('%Y-%m-%d %H:%M:%f',
        '2025-01-01 08:00:00', (i / 905) || ' days', (i % 905 * 55 + $1 % 55 + 0.001 * $1)
        || ' seconds') from n"
    # A till that was sold with just now is read slowly.
    touch -d '1 hour ago' "$folder/Vendel.db"
    "$central" --envoyer "$uri" --dossier "$folder" --nom "Caisse $1" >/dev/null
    rm -r "$folder"
}
begun=$SECONDS
for ((till = 1; till <= tills; till += 2)); do
    send_till "$till" &
    first=$!
    [ "$till" -eq "$tills" ] || send_till $((till + 1))
    wait "$first"
done
taken=$((SECONDS - begun))
lines=$(ask -c 'select count(*) from vendel.line')
[ "$lines" -eq $((tills * 330000)) ] || fail "$lines lines have arrived"

figures() {
    echo '| what | figure |'
    echo '|---|---:|'
    printf '| lines of %s tills | %s |\n' "$tills" "$lines"
    printf '| lines sent a second, two tills at once, making their databases included | %s |\n' \
        $((lines / taken))
    printf '| bytes a line in the book, indexes and sums included | %s |\n' \
        "$(ask -c "select pg_database_size('postgres') / count(*) from vendel.line")"
}
if $docs; then
    figures | write_figures "central book"
else
    figures
fi
