# SPDX-License-Identifier: MIT
# shellcheck shell=bash disable=SC2154
# What a disturbed act may leave behind, and the table of the outcomes.

refusal=$'box\tPayer\tLa vente n'"'"$'est pas enregistrée Le ticket est gardé'

# judge: the outcome of an act of try_share; fails with what is wrong.
judge() {
    local state outcome
    state=$(state_of "$shop")
    case $state in
        "$(state_after nothing)") outcome="undone" ;;
        "$(state_after "$act")") outcome="done" ;;
        "$(state_after sold)") outcome="sold" ;;
        *)
            diff <(state_after nothing) <(printf '%s\n' "$state") | sed -n 's/^> //p'
            return 1
            ;;
    esac
    # The one state in between is a sale whose ticket is still there.
    [ "$outcome" != sold ] || [ "$act" = payment ] || { say "a sale out of nothing" && return 1; }
    case $fault in
        kill) judge_kill ;;
        none) judge_end && [ "$outcome" = "done" ] || { say "not done" && return 1; } ;;
        *) judge_end && judge_error && judge_screen ;;
    esac || return 1
    say "$outcome"
}

shows() { grep -qxF -- "$1" "$folder/report"; }

judge_kill() {
    [ "$ended" -eq 137 ] || { say "the till was not killed, it ended with $ended" && return 1; }
    [ "$(grep -c "$name(" "$folder/trace")" = "$number" ] \
        || { say "it was killed at another call" && return 1; }
}

judge_end() {
    [ "$ended" -ne 124 ] || { say "the till hung" && return 1; }
    [ "$ended" -eq 0 ] || { say "the till ended with $ended" && return 1; }
    shows over || { say "the act did not end" && return 1; }
}

judge_error() {
    grep -q INJECTED "$folder/trace" || { say "the call did not fail" && return 1; }
}

# judge_screen: what was not done must not look done.
judge_screen() {
    case $act-$outcome in
        payment-undone)
            if [ "$phase" = reading ]; then
                grep -q ^box "$folder/report" || { say "nobody was told" && return 1; }
                return
            fi
            shows "$refusal" || { say "the box is missing" && return 1; }
            ! shows receipt || { say "there is a receipt" && return 1; }
            shows $'rows\t3' || { say "the ticket is not listed" && return 1; }
            ;;
        payment-*) ! shows "$refusal" || { say "a sale that is there was refused" && return 1; } ;;
        line-undone) shows $'rows\t3' || { say "the line is not listed" && return 1; } ;;
        stock-undone) shows $'rows\t2' || { say "the article is not listed" && return 1; } ;;
    esac
}

# table: the outcomes, as docs/quality.md shows them.
table() {
    local act fault calls
    printf '| act | its calls | fault | tried | not done | done | sold, ticket kept |\n'
    printf '|---|---:|---|---:|---:|---:|---:|\n'
    for act in $acts; do
        calls=$(grep -vc ' none$' "$work/$act.calls")
        for fault in kill EIO ENOSPC; do
            printf '| %s | %s | %s | %s | %s | %s | %s |\n' "$(name_of "$act")" "$calls" "$fault" \
                "$(count "$act $fault ")" "$(count "$act $fault undone")" \
                "$(count "$act $fault done")" "$(count "$act $fault sold")"
        done
    done
}

count() { grep -c "^$1" "$work/outcomes" || true; }

name_of() {
    case $1 in
        payment) say "payment of three lines" ;;
        line) say "removal of a ticket's line" ;;
        stock) say "removal of a stock article and its recipe" ;;
        article) say "change of an article" ;;
        purge) say "purge of a day" ;;
    esac
}
