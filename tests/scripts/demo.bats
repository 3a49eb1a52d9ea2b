#!/usr/bin/env bats
# SPDX-License-Identifier: MIT
# shellcheck disable=SC2016,SC2086,SC2154  # stubs, split words, variables of the helpers

setup() {
    demo="$VENDEL_BUILD/demo/vendel-demo"
    shop="$BATS_TEST_TMPDIR/shop"
}

make_shop() { "$demo" "$shop" --until 2024-06-15; }

ask() { sqlite3 "$shop/Vendel.db" "$1"; }

@test "the same day gives the same shop" {
    make_shop
    "$demo" "$BATS_TEST_TMPDIR/again" --until 2024-06-15
    [ "$(ask .dump)" = "$(sqlite3 "$BATS_TEST_TMPDIR/again/Vendel.db" .dump)" ]
}

@test "some forty articles have names of fifteen letters at most" {
    make_shop
    [ "$(ask "select count(*) from Article")" -eq 43 ]
    [ "$(ask "select max(length(article)) from Article")" -eq 15 ]
    [ "$(ask "select count(*) from Article where article like '%''%'")" -ge 2 ]
    [ "$(ask "select count(*) from Article where prix <= 0")" -eq 0 ]
}

@test "one name occurs twice, at two prices" {
    make_shop
    [ "$(ask "select article, count(*), count(distinct prix) from Article
        group by article having count(*) > 1")" = "Limonade|2|2" ]
}

@test "all that gets printed is in the printer's code page, and no line is too long" {
    make_shop
    cd "$shop"
    sqlite3 Vendel.db "select article from Article union select article from Historique" |
        cat - EnteteFormulaire.dat PiedFormulaire.dat | iconv -f UTF-8 -t CP858 >/dev/null
    grep -q '^titre:' EnteteFormulaire.dat
    grep -q '€' PiedFormulaire.dat
    [ "$(LC_ALL=C awk '{ if (length > most) most = length } END { print most }' ./*.dat)" -le 47 ]
}

@test "the rate is twenty per cent and the printer is off" {
    make_shop
    [ "$(ask "select group_concat(param || '=' || valeur) from Config")" = \
        "TVA=20,Epson TM-T20II=0" ]
}

@test "the sales are those of the two years before, without Mondays" {
    make_shop
    [ "$(ask "select date(min(date_heure)), date(max(date_heure)) from Historique")" = \
        "2022-06-16|2024-06-14" ]
    [ "$(ask "select count(*) from Historique where strftime('%w', date_heure) = '1'")" -eq 0 ]
    [ "$(ask "select count(distinct date(date_heure)) from Historique")" -eq 626 ]
    [ "$(ask "select count(*) from Historique where length(date_heure) <> 23")" -eq 0 ]
}

@test "a small shop has the sales of some days only" {
    "$demo" "$shop" --until 2024-06-15 --days 3
    [ "$(ask "select date(min(date_heure)), date(max(date_heure)) from Historique")" = \
        "2024-06-12|2024-06-14" ]
}

@test "without a date the sales end yesterday" {
    "$demo" "$shop"
    [ "$(ask "select count(*) from Historique where date_heure >= date('now', 'localtime')")" -eq 0 ]
    [ "$(ask "select count(*) from Historique
        where date_heure >= date('now', 'localtime', '-3 days')")" -gt 0 ]
}

@test "a withdrawn article keeps its recipe, and its successor has none yet" {
    make_shop
    [ "$(ask "select s.article, count(*) from ArticleStock s join DoseStock d on d.id = s.id
        where s.id not in (select id from Article) group by s.id")" = "Bière bouteille|2" ]
    [ "$(ask "select count(*) from ArticleStock where article = 'Bière blonde'")" -eq 1 ]
    [ "$(ask "select count(*) from DoseStock d join ArticleStock s on s.id = d.id
        where s.article = 'Bière blonde'")" -eq 0 ]
    [ "$(ask "select max(date(date_heure)) from Historique where article = 'Bière bouteille'")" \
        \< "2024-06-01" ]
}

@test "two new articles are not yet in the stock" {
    make_shop
    [ "$(ask "select group_concat(article) from Article
        where id not in (select id from ArticleStock)")" = "Mousse chocolat,Thé glacé" ]
    [ "$(ask "select count(*) from DoseStock where unite not in ('cl', 'g')")" -eq 0 ]
}

@test "a directory that holds a shop is left alone" {
    make_shop
    ask "delete from Article"
    run "$demo" "$shop"
    [ "$status" -eq 1 ]
    [ "$output" = "vendel-demo: $shop holds a shop already" ]
    [ "$(ask "select count(*) from Article")" -eq 0 ]
}

@test "wrong arguments end with the usage" {
    for arguments in "" "one two" "--fast" "shop --until yesterday" "shop --until 2024-02-30" \
        "shop --days 0" "shop --days many"; do
        cd "$BATS_TEST_TMPDIR"
        run "$demo" $arguments
        [ "$status" -eq 2 ]
        [ "${lines[-1]}" = "usage: vendel-demo OUTDIR [--until YYYY-MM-DD] [--days N]" ]
        [ ! -e shop ]
    done
}
