#!/usr/bin/env bats
# SPDX-License-Identifier: MIT
# The guide explains all that the till says, and its pictures are there, in the page for the browser too.

setup() {
    cd "$VENDEL_SOURCE" || return
    guide=docs/guide.fr.md
    page=$VENDEL_BUILD/packaging/guide/guide.fr.html
}

# Entries of the catalogue with several texts that are no boxes: headings of lists and columns, tips
# over lists, and two notices that no window shows.
noBoxes='8 48 58 64 65 66 67 68 69 70 71 72 97 99 126 128 143 144 147 156 157 165 166 169'

# boxTexts: the texts of every message box, one a line, a line break as " / ".
boxTexts() {
    perl -0777 -ne '
        my %not = map { $_ => 1 } split / /, $ENV{noBoxes};
        while (/Entry<(\d)> Messages::Messages(\d+)\s*\{(.*?)\};/gs) {
            my ($count, $number, $body) = ($1, $2, $3);
            next if $count < 2 || $not{$number};
            $body =~ s/"\s*\n\s*"//g;
            while ($body =~ /"((?:[^"\\]|\\.)*)"/g) {
                my $text = $1;
                $text =~ s{\\n}{ / }g;
                $text =~ s/^ +| +$//g;
                print "$text\n";
            }
        }' common/Messages.cpp
}

# launcherTexts: what the launcher and vendel-central say in French, in the pieces between what it inserts.
launcherTexts() {
    perl -0777 -ne '
        s/"\s*\n\s*"//g;
        while (/Sentence (\w+)\s*\{\s*"((?:[^"\\]|\\.)*)"/g) {
            my ($name, $text) = ($1, $2);
            next if $name eq "usage";
            for my $piece (split /%\d(?:\/[\w.]+)?/, $text) {
                $piece =~ s/^\s+|\s+$//g;
                print "$piece\n" if $piece =~ /\w{3}/;
            }
        }' launcher/Sentences.h central/Sentences.h
}

# captions: what is written on the windows' buttons, menus, boxes to tick and fields. Labels that the till fills or that
# need no word are left out.
captions() {
    perl -0777 -ne '
        while (m{<(?:widget class="(\w+)"|action)([^>]*)>\s*((?:<property.*?</property>\s*)*)}gs) {
            my ($class, $properties) = ($1 // "QAction", $3);
            next if $class !~ /^Q(PushButton|CheckBox|RadioButton|Menu|Action|GroupBox|Label)$/;
            next if $properties !~ m{<property name="(?:text|title)">\s*<string[^>]*>([^<]*)<}s;
            my $text = $1;
            $text =~ s/&#10;/ /g;
            next if $text =~ /^(DateTime|Article :|Pèriode du|au|Système Vendel|Version .*)$/;
            print "$text\n" if $text =~ /\w{2}/;
        }' app/*.ui forms/*.ui | sort -u
}

# explained: every line of standard input is in the guide.
explained() {
    lines=0
    while IFS= read -r text; do
        lines=$((lines + 1))
        grep -qF -- "$text" "$guide" || {
            echo "the guide does not explain: $text"
            return 1
        }
    done
    [ "$lines" -ge "$1" ]
}

# pictures FILE: the pictures that a document shows.
pictures() {
    grep -oE '!\[[^]]*\]\([^)]*\)' "$1" | sed -E 's/.*\((.*)\)/\1/'
}

@test "every message box is explained" {
    export noBoxes
    explained 90 < <(boxTexts)
}

@test "every button, menu, field and box to tick is named" {
    explained 30 < <(captions)
}

@test "every sentence of the launcher is explained" {
    explained 30 < <(launcherTexts)
}

@test "every picture of a document is there, with a text for those who do not see it" {
    for document in README.md docs/*.md; do
        folder=$(dirname "$document")
        while read -r picture; do
            [ -f "$folder/$picture" ]
        done < <(pictures "$document")
        [ "$(grep -cF '![](' "$document")" -eq 0 ]
    done
}

@test "every picture is shown somewhere" {
    for picture in docs/images/*.png; do
        grep -qF "images/${picture##*/})" README.md docs/*.md
    done
}

@test "every file that a document leads to is there" {
    for document in README.md CONTRIBUTING.md docs/*.md; do
        while read -r file; do
            [ -e "$(dirname "$document")/$file" ] || {
                echo "$document: $file"
                false
            }
        done < <(grep -oE '\]\([^)#:]+\)' "$document" | sed -E 's/^\]\(|\)$//g')
    done
}

@test "every link within a document leads somewhere" {
    for document in README.md CONTRIBUTING.md docs/*.md; do
        anchors=$(grep -E '^#+ ' "$document" | sed -E 's/^#+ //' \
            | perl -CSD -Mutf8 -ne 'chomp; $_ = lc; s/[^\w\s-]//g; s/ /-/g; print "$_\n"')
        while read -r anchor; do
            grep -qxF "$anchor" <<<"$anchors" || {
                echo "$document: #$anchor"
                false
            }
        done < <(grep -oE '\]\(#[^)]*\)' "$document" | sed -E 's/^\]\(#|\)$//g')
    done
}

# values ATTRIBUTE: what it is set to in the page, one value a line.
values() {
    perl -CSD -0777 -ne 'print "$1\n" while /\s'"$1"'="([^"]*)"/gs' "$page"
}

# words: the page's text without its tags, its style and what is to be typed.
words() {
    perl -CSD -0777 -pe 's{<(style|pre|code)\b.*?</\1>}{}gs; s/<!--.*?-->//gs; s/<[^>]*>//gs' "$page"
}

@test "every link in the page leads somewhere" {
    [ "$(values href | wc -l)" -ge 60 ]
    while read -r link; do
        [[ "$link" == '#'* ]] && values id | grep -qxF -- "${link#?}" || {
            echo "the page leads nowhere: $link"
            false
        }
    done < <(values href)
    [ -z "$(values id | sort | uniq -d)" ]
}

@test "every picture of the guide is in the page and beside it" {
    [ "$(values src)" = "$(pictures "$guide")" ]
    while read -r picture; do
        [ -f "${page%/*}/$picture" ]
    done < <(values src)
    [ "$(values alt | grep -c .)" -eq "$(values src | wc -l)" ]
}

@test "every chapter is in the page's table of contents, which is there once" {
    contents=$(perl -CSD -0777 -ne 'print m{<nav.*?</nav>}gs' "$page")
    while read -r anchor; do
        [ "$(grep -cF "href=\"#$anchor\"" <<<"$contents")" -eq 1 ]
    done < <(perl -CSD -ne 'print "$1\n" if /<h[23] id="([^"]*)"/' "$page")
    run perl -CSD -0777 -ne 'print m{<main>(.*?)<h2}s' "$page"
    [[ "$output" == *'Guide de la caisse Vendel'* ]]
    [[ "$output" != *'<li>'* ]]
}

@test "no Markdown is left in the page" {
    text=$(words)
    [[ "$text" == *'Pressez «'* ]]
    run grep -nE '\*\*|`|\]\(|^ *#|^ *\||^ *(-|[0-9]+\.) |\$[a-z-]+\$' <<<"$text"
    [ -z "$output" ]
}

@test "quotation marks stay with their words at the end of a line" {
    [ "$(words | grep -c '«')" -ge 100 ]
    run grep -nP '«(?!\x{a0})|(?<!\x{a0})»' < <(words)
    [ -z "$output" ]
}
