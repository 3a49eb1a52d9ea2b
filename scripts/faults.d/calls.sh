# SPDX-License-Identifier: MIT
# shellcheck shell=bash disable=SC2034,SC2154
# Finds the system calls by which an act reaches the database, and disturbs the till at each.

# play SHOP ACT FOLDER [STRACE OPTION]...: the till does one act in the shop and ends. The folder
# gets strace's record as "trace", the hand's notes as "report" and the till's output as "till.log".
# Returns how the till ended: 137 when it was killed, 124 when it hung.
play() {
    local shop=$1 act=$2 folder=$3
    shift 3
    rm -f -- "$folder/report" "$folder/trace"
    (cd "$shop" && exec timeout -k 5 60 strace -f -o "$folder/trace" "$@" \
        -P "$shop" -P "$shop/Vendel.db" -P "$shop/Vendel.db-journal" -P "$shop/Vendel.db-wal" \
        -P the-act-begins -E VENDEL_HAND_ACT="$act" -E VENDEL_HAND_REPORT="$folder/report" \
        -E LD_PRELOAD="$build/tests/scripts/libtill-hand.so" "$build/vendel") \
        >"$folder/till.log" 2>&1
}

# list_calls ACT: lets the act succeed once, and writes its calls into the file ACT.calls, one on a line:
# NAME NUMBER PHASE FAULTS. The number counts the till's calls of this name from its start, as strace
# does. "recording" is the first connection that writes, what precedes it is "reading", the rest
# "after". The last lines are calls that the act does not reach.
list_calls() {
    local act=$1 state
    cp -r "$work/shop" "$work/$act"
    play "$work/$act" "$act" "$work" || undisturbed_is_broken "$act"
    state=$(state_of "$work/$act")
    [ "$state" = "$(state_after "$act")" ] || undisturbed_is_broken "$act" "$state"
    awk '
        # From a write lock back to a read lock: like an unlock, it cannot be refused.
        function follow_lock(line) {
            gives_way = exclusive && line ~ /F_RDLCK.*l_len=510/
            exclusive = line ~ /F_WRLCK.*l_len=510/ || exclusive && !gives_way
        }
        function faults(name, line) {
            if (name == "close" || line ~ /F_UNLCK|F_[GS]ETFD/ || gives_way) { return "kill" }
            return "kill EIO ENOSPC"
        }
        !match($2, /^[a-z_0-9]+\(/) { next }
        { name = substr($2, 1, RLENGTH - 1); ++number[name] }
        /the-act-begins/ { begun = 1; next }
        !begun { next }
        { ++calls; names[calls] = name; numbers[calls] = number[name] }
        /openat.*Vendel\.db"/ { ++connection }
        /Vendel\.db-journal".*O_CREAT/ && !recording { recording = connection }
        { connections[calls] = connection; follow_lock($0); tried[calls] = faults(names[calls], $0) }
        END {
            for (call = 1; call <= calls; ++call) {
                phase = connections[call] < recording ? "reading" \
                    : connections[call] == recording ? "recording" : "after"
                print names[call], numbers[call], phase, tried[call]
                last[names[call]] = numbers[call]
            }
            for (name in last) { print name, last[name] + 1, "after", "none" }
        }' "$work/trace" >"$work/$act.calls"
}

undisturbed_is_broken() {
    cat "$work/till.log" >&2
    [ -z "${2-}" ] || diff <(state_after "$1") <(printf '%s\n' "$2") >&2 || true
    fail "the act \"$1\" does not go well even when nothing disturbs it"
}

# tries: one line for each fault to try, ACT NAME NUMBER PHASE FAULT.
tries() {
    local act name number phase faults fault
    for act in $acts; do
        while read -r name number phase faults; do
            for fault in $faults; do
                printf '%s %s %s %s %s\n' "$act" "$name" "$number" "$phase" "$fault"
            done
        done <"$work/$act.calls"
    done
}

# try_all: each processor takes its share; the results are in the files "outcomes" and "broken".
try_all() {
    local jobs job
    jobs=$(nproc)
    tries | awk -v every="$every" 'NR % every == 0' >"$work/tries"
    say "Trying $(wc -l <"$work/tries") faults"
    for ((job = 0; job < jobs; ++job)); do
        mkdir "$work/$job"
        try_share "$work/$job" < <(awk -v job="$job" -v jobs="$jobs" 'NR % jobs == job' "$work/tries") &
    done
    wait
    cat "$work"/*/outcomes | sort >"$work/outcomes"
    sort "$work"/*/broken >"$out/broken" 2>/dev/null || true
    [ "$(wc -l <"$work/outcomes")" = "$(wc -l <"$work/tries")" ] || fail "some faults were not tried"
}

# try_share FOLDER: tries the faults that standard input lists.
try_share() {
    # The shell would report each killed till.
    exec 2>/dev/null
    local folder=$1 shop=$1/shop act name number phase fault ended outcome
    local -a how
    while read -r act name number phase fault; do
        rm -rf -- "$shop"
        cp -r "$work/shop" "$shop"
        # strace loses a signal, not an error, when the kernel filters the calls for it.
        case $fault in
            kill | none) how=(-e "inject=$name:signal=KILL:when=$number") ;;
            *) how=(--seccomp-bpf -e "inject=$name:error=$fault:when=$number") ;;
        esac
        ended=0
        play "$shop" "$act" "$folder" -e "trace=$name" "${how[@]}" </dev/null || ended=$?
        if outcome=$(judge 2>&1); then
            printf '%s %s %s\n' "$act" "$fault" "$outcome" >>"$folder/outcomes"
        else
            printf '%s %s broken\n' "$act" "$fault" >>"$folder/outcomes"
            printf '%s, %s of %s %s (%s): %s\n' "$act" "$fault" "$name" "$number" "$phase" \
                "${outcome//$'\n'/; }" >>"$folder/broken"
            cp "$folder/till.log" "$out/$act-$fault-$name-$number.log"
        fi
    done
}
