#!/usr/bin/env bats
# SPDX-License-Identifier: MIT
# Every file names its licence.

setup() {
    cd "$VENDEL_SOURCE" || return
}

# sources: every file that can hold a comment and is ours.
sources() {
    find . -path ./build -prune -o -path ./.git -prune -o -type f \
        \( -name '*.cpp' -o -name '*.h' -o -name '*.sh' -o -name '*.bats' -o -name '*.bash' \
        -o -name '*.cmake' -o -name CMakeLists.txt -o -name '*.svg' -o -name '*.xml' \
        -o -name '*.in' -o -name '*.rules' -o -name '*.desktop' -o -name '*.[1-9]' \) -print
}

@test "every source names its licence at its head" {
    [ "$(sources | wc -l)" -gt 200 ]
    while read -r file; do
        run head -n 2 "$file"
        case $output in
        *"SPDX-License-Identifier"': MIT'*) ;;
        *)
            echo "$file"
            false
            ;;
        esac
    done < <(sources)
}

@test "reuse is content" {
    command -v reuse >/dev/null || skip "there is no reuse here"
    run reuse lint
    echo "$output"
    [ "$status" -eq 0 ]
    # A notice that it cannot read is skipped and no failure.
    [[ "$output" != *ERROR* ]]
}

@test "the licence text is the same wherever it is" {
    cmp LICENSE LICENSES/MIT.txt
    text=$(awk '/^License: MIT$/ { text = ""; next } { sub(/^ \.?/, ""); text = text $0 "\n" }
        END { printf "%s", text }' packaging/debian/copyright)
    [ "$text" = "$(sed '1,4d' LICENSE)" ]
}
