#!/bin/sh
# real_decks.sh DIR repairs each deck of a directory and shows what that costs, by element: in how
# many decks it is concerned, and how often it is lost, added, changed and moved. Then it names the
# decks whose result is not well-formed or would change once more, those that are refused, with the
# message, and those where the program crashes, hangs or has no message; these make it fail. With
# xmllint it also counts the well-formed decks that came out byte for byte, and names the rules that
# mended the others.
# Environment: BIN (directory of the built programs, default build/release/bin), OPTIONS for
# quillmere-cli, such as --standard-output.
set -eu

[ $# -eq 1 ] && [ -d "$1" ] || { echo "usage: real_decks.sh DIR" >&2; exit 1; }
cli=${BIN:-$(dirname "$0")/../build/release/bin}/quillmere-cli
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
: >"$work/reports"
: >"$work/refused"
: >"$work/failed"
: >"$work/same"
: >"$work/mended"

count=0
for deck in "$1"/*.wml; do
    count=$((count + 1))
    name=$(basename "$deck")
    status=0
    # shellcheck disable=SC2086 # options are words
    timeout 10 "$cli" repair --report --json ${OPTIONS:-} -o "$work/out.wml" "$deck" \
        >"$work/json" 2>"$work/said" || status=$?
    message=$(tr '\n' ' ' <"$work/said")
    case $status in
    0) [ -z "$message" ] || echo "$name: done, and yet: $message" >>"$work/failed" ;;
    2 | 3) if [ -n "$message" ]; then echo "$name: $message" >>"$work/refused"
        else echo "$name: status $status without a message" >>"$work/failed"; fi ;;
    124) echo "$name: takes more than 10 s" >>"$work/failed" ;;
    *) echo "$name: status $status $message" >>"$work/failed" ;;
    esac
    [ "$status" -ne 0 ] || { echo "deck $name"; cat "$work/json"; } >>"$work/reports"
    [ "$status" -eq 0 ] && xmllint --nonet --noout "$deck" 2>/dev/null || continue
    if cmp -s "$deck" "$work/out.wml"; then echo "$name" >>"$work/same"
    else echo "$name:" $(grep -o '"rule": "[^"]*"' "$work/json" | cut -d'"' -f4 | sort | uniq -c) >>"$work/mended"; fi
done

# The report has each row of its summary on a line of its own.
awk '
    function value(key) {
        if (!match($0, "\"" key "\": (\"[^\"]*\"|[a-z0-9]+)")) return ""
        text = substr($0, RSTART + length(key) + 4, RLENGTH - length(key) - 4)
        gsub(/"/, "", text)
        return text
    }
    /^deck / { deck = substr($0, 6); ++decks; next }
    /"wellFormed": false/ { ill = ill "\n  " deck ": " value("reason") " (" value("line") ":" value("column") ")"; ++ills }
    /"stable": false/ { unstable = unstable "\n  " deck; ++unstables }
    /^ *\{"subject": .*"moved": / {
        name = value("name") == "" ? "(" value("subject") ")" : value("name")
        ++concerned[name]
        lost[name] += value("lost"); added[name] += value("added")
        changed[name] += value("changed"); moved[name] += value("moved")
    }
    END {
        printf "%-28s %8s %8s %8s %8s %8s\n", "", "decks", "lost", "added", "changed", "moved"
        order = "sort -k1,1"
        for (name in concerned) {
            shown = name
            gsub(/ /, "@", shown) # an attribute stands behind its element
            printf "%-28s %8d %8d %8d %8d %8d\n", shown, concerned[name], lost[name], added[name], \
                changed[name], moved[name] | order
        }
        close(order)
        printf "\n%d decks repaired\n%d not well-formed:%s\n%d change once more:%s\n", decks, ills, ill, \
            unstables, unstable
    }' "$work/reports"
echo "$(wc -l <"$work/same") well-formed decks byte for byte as they were, $(wc -l <"$work/mended") changed:"
sed 's/^/  /' "$work/mended"
echo "$(wc -l <"$work/refused") refused:"
sed 's/^/  /' "$work/refused"
echo "$(wc -l <"$work/failed") of $count crashed, hung or left without a clear message:"
sed 's/^/  /' "$work/failed"
[ ! -s "$work/failed" ]
