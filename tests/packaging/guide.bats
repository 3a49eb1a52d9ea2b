#!/usr/bin/env bats
# SPDX-License-Identifier: MIT
# The guide explains all that the till says, and its pictures are there.

setup() {
    cd "$VENDEL_SOURCE" || return
    guide=docs/guide.fr.md
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

# launcherTexts: what the launcher says in French, in the pieces between what it inserts.
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
        }' launcher/Sentences.h
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
