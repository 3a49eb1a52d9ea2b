# SPDX-License-Identifier: MIT
# One line for each work from the reports of the measurements, in milliseconds of CPU time. The best of
# the repetitions counts, because other load on the machine only adds to it.
def shown:
    if . == null then "-" elif type == "number" then . * 1000 | round / 1000 | tostring else . end;

def measurement:
    {"ns": 1e-6, "us": 1e-3, "ms": 1, "s": 1e3} as $milliseconds
    | {
        work: (.run_name | gsub("/(manual_time|(iterations|repeats):[0-9]+|program|floor)\\b"; "")),
        isFloor: (.run_name | test("/floor\\b")),
        time: ((if .run_name | test("/manual_time") then .real_time else .cpu_time end)
            * $milliseconds[.time_unit]),
        limit,
        limit_ms,
        limit_bytes,
        bytes,
        plan: .label
    };

def line:
    (map(select(.isFloor | not).time) | min) as $program
    | (map(select(.isFloor).time) | min) as $floor
    | (if $floor then $program / $floor else null end) as $ratio
    | .[0] as {$work, $limit, $limit_ms, $limit_bytes}
    | (map(.plan // empty) | unique | join(", ")) as $plan
    | (map(.bytes // 0) | max) as $bytes
    | [$work, $program, $floor, $ratio]
    + if $limit then ["ratio \($limit)", if $ratio <= $limit then "kept" else "missed" end]
      elif $limit_ms then ["\($limit_ms * 1000 | round / 1000) ms", if $program <= $limit_ms then "kept" else "missed" end]
      elif $limit_bytes then ["\($bytes | round) of \($limit_bytes) bytes a row",
        if $bytes <= $limit_bytes then "kept" else "missed" end]
      else ["-", "-"] end
    | .[:4] + [if $plan == "" then "-" else $plan end] + .[4:];

["work", "program ms", "floor ms", "ratio", "memory, or how SQLite looks it up", "limit", ""],
([.[].benchmarks[] | select(.run_type == "iteration") | measurement] | group_by(.work)[] | line)
| map(shown)
| @tsv
