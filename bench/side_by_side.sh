#!/bin/sh
# side_by_side.sh repairs generated decks with quillmere-cli and with its peers, in turn, and shows
# the medians of user time, system time and memory, and the ratios that the program must keep:
#   user time            at most 0.4 of tidy's, and less than xmllint's
#   user + system time   at most 8 times that of a program that only reads and writes the bytes
#   memory               at most 4 MB
# and with --standard-output:
#   user time            at most 0.6 of tidy's
#   memory               at most 4 MB more than the deck
# It fails where one is not kept. The decks are of 1 to 2 KB, with 8-bit text, a third of them broken;
# tidy, which writes over its input, gets new copies in each round.
# Needs tidy and xmllint (Debian: tidy, libxml2-utils). Environment: BIN (directory of the built
# programs, default build/release/bin), DECKS (number, 1000), ROUNDS (9).
set -eu

bin=$(cd "${BIN:-$(dirname "$0")/../build/release/bin}" && pwd)
decks=${DECKS:-1000}
rounds=${ROUNDS:-9}
for program in tidy xmllint; do
    command -v "$program" >/dev/null || { echo "side_by_side: $program is missing" >&2; exit 1; }
done

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
"$bin/make-decks" "$decks" "$work/decks" --seed 7 --min 1024 --max 2048 --broken 0.33
mkdir "$work/copies" "$work/repaired" "$work/mended" "$work/bytes"

# run NAME COMMAND...: a line "NAME USER SYSTEM KIB", times in microseconds. What the programs say
# and their status are left out: broken decks are meant to be complained of.
run() {
    name=$1
    shift
    "$bin/run-measured" "$@" >/dev/null 2>"$work/said" || true
    echo "$name $(tail -n 1 "$work/said")" >>"$work/figures"
}

round=0
while [ "$round" -lt "$rounds" ]; do
    round=$((round + 1))
    cp "$work"/decks/*.wml "$work/copies"
    run quillmere "$bin/quillmere-cli" repair --out-dir "$work/repaired" "$work"/decks/*.wml
    run standard "$bin/quillmere-cli" repair --standard-output --out-dir "$work/mended" "$work"/decks/*.wml
    run tidy tidy -xml -q -m -latin1 --force-output yes "$work"/copies/*.wml
    run xmllint xmllint --recover --nonet "$work"/decks/*.wml
    run copy "$bin/copy-bytes" "$work/bytes" "$work"/decks/*.wml
done

written=$(ls "$work/repaired" | wc -l)
echo "$written of $decks decks repaired, the others refused; medians of $rounds rounds"
[ "$written" -ge $((decks * 9 / 10)) ] || { echo "side_by_side: too few to compare" >&2; exit 1; }
sort "$work/figures" | awk '
    function median(name, field,    values, count, i, j, held) {
        for (i = 1; i <= rows[name]; ++i) {
            held = figure[name, i, field]
            for (j = i - 1; j > 0 && values[j] > held; --j) values[j + 1] = values[j]
            values[j + 1] = held
        }
        count = rows[name]
        return (count % 2) ? values[(count + 1) / 2] : (values[count / 2] + values[count / 2 + 1]) / 2
    }
    function target(text, value, limit, unit) {
        bad = value > limit
        printf "%-44s %6.2f%s  at most %g%s%s\n", text, value, unit, limit, unit, bad ? "  MISSED" : ""
        missed += bad
    }
    { n = ++rows[$1]; for (f = 2; f <= 4; ++f) figure[$1, n, f] = $f; figure[$1, n, 5] = $2 + $3 }
    END {
        printf "%-12s %10s %10s %10s %10s\n", "", "user ms", "system ms", "both ms", "KiB"
        split("quillmere standard tidy xmllint copy", names, " ")
        for (i = 1; i <= 5; ++i) {
            name = names[i]
            printf "%-12s %10.1f %10.1f %10.1f %10d\n", name, median(name, 2) / 1000, \
                median(name, 3) / 1000, median(name, 5) / 1000, median(name, 4)
        }
        print ""
        target("user time against tidy", median("quillmere", 2) / median("tidy", 2), 0.4, "")
        target("user time against xmllint", median("quillmere", 2) / median("xmllint", 2), 1, "")
        target("user and system time against copying", median("quillmere", 5) / median("copy", 5), 8, "")
        target("memory", median("quillmere", 4) / 1024, 4, " MB")
        target("standard: user time against tidy", median("standard", 2) / median("tidy", 2), 0.6, "")
        target("standard: memory", median("standard", 4) / 1024, 4, " MB")
        exit missed > 0
    }'
