#!/usr/bin/env bash
# Runs every whole-document command of torvanbridge-cli on the example schedule, on
# generated schedules and on the sample screenplays, and writes one line per output
# (its name and a checksum) to a manifest. Two manifests that compare equal mean the
# commands gave the same bytes.
#
#   scripts/golden-outputs.sh CLI OUTDIR            write OUTDIR/outputs/* and OUTDIR/MANIFEST
#   scripts/golden-outputs.sh CLI OUTDIR --check F  ... and compare the manifest with F
#
# PDF files carry their creation time, so they are compared by their text (pdftotext)
# and page count; everything else is compared byte for byte.
set -uo pipefail

cli=$(realpath "$1")
out=$(realpath -m "$2")
check=""
[ "${3:-}" = "--check" ] && check=$(realpath "$4")

top=$(cd "$(dirname "$0")/.." && pwd)
screenplays_dir="$top/tests/core/import/data/screenplays"
data="$top/tests/core/import/data"

rm -rf "$out"
mkdir -p "$out/outputs" "$out/work"
cd "$out/work" || exit 2

# Settings come from a private, empty folder so that the user's own never change the result.
export HOME="$out/home" XDG_CONFIG_HOME="$out/home/config" XDG_DATA_HOME="$out/home/data"
export QT_QPA_PLATFORM=offscreen LC_ALL=C.UTF-8 LANG=C.UTF-8 TZ=UTC
# Reports print the time they were made; this one fixed time makes them repeatable.
export SOURCE_DATE_EPOCH=1800000000

run() { # run NAME ARGS...: stdout, stderr and exit code of one command
    local name=$1
    shift
    "$cli" --locale en_GB "$@" >"$out/outputs/$name.stdout" 2>"$out/outputs/$name.stderr"
    echo $? >"$out/outputs/$name.exit"
}

# The schedules every command runs on.
python3 "$top/scripts/make-example.py" raw-gen1.tbf 11 >/dev/null
python3 "$top/scripts/make-example.py" raw-gen2.tbf 23 >/dev/null
cp "$top/examples/harbour-lights.tbf" example.tbf
run resave-gen1 resave raw-gen1.tbf -o gen1.tbf
run resave-gen2 resave raw-gen2.tbf -o gen2.tbf
run resave-example resave example.tbf -o resaved.tbf
cp gen1.tbf gen2.tbf resaved.tbf "$out/outputs/"
docs="example gen1 gen2"
for s in "$screenplays_dir"/*.txt; do
    b=$(basename "$s" .txt)
    run "import-text-$b" import-text "$s" -o "import-$b.tbf"
    cp "import-$b.tbf" "$out/outputs/" 2>/dev/null
    docs="$docs import-$b"
done
run import-fd import-fd "$data/fd-scene-report.txt" "$data/fd-script-report.txt" -o import-fd.tbf
cp import-fd.tbf "$out/outputs/" 2>/dev/null
docs="$docs import-fd"

# Screenplay imports: the text import's review, Fountain and Final Draft scripts. Their
# schedules are recorded with their summary and board, not run through every command.
screenplays=""
for s in "$screenplays_dir"/*.txt; do
    b=$(basename "$s" .txt)
    run "import-text-review-$b" import-text "$s" -o "import-review-$b.tbf" --review auto
    screenplays="$screenplays import-review-$b"
done
for s in "$data"/*.fountain; do
    b=$(basename "$s" .fountain)
    run "import-fountain-$b" import-fountain "$s" -o "fountain-$b.tbf"
    screenplays="$screenplays fountain-$b"
done
run import-fdx-garden-party import-fdx "$data/garden-party.fdx" -o fdx-garden-party.tbf
screenplays="$screenplays fdx-garden-party"
for d in $screenplays; do
    [ -f "$d.tbf" ] || continue
    cp "$d.tbf" "$out/outputs/"
    run "$d-info" info "$d.tbf"
    run "$d-board-png" board "$d.tbf" -o "$d-board.png"
    cp "$d-board.png" "$out/outputs/" 2>/dev/null
done

for d in $docs; do
    in="$d.tbf"
    [ -f "$in" ] || continue
    run "$d-info" info "$in"
    cmd() { # cmd TAG ARGS... : a command that writes a schedule
        local tag=$1
        shift
        run "$d-$tag" "$@"
        [ -f "$d-$tag.tbf" ] && cp "$d-$tag.tbf" "$out/outputs/"
    }
    cmd add-divider add-divider "$in" -o "$d-add-divider.tbf"
    cmd insert-divider add-divider "$in" -o "$d-insert-divider.tbf" --before 3
    cmd remove-dividers remove-dividers "$in" -o "$d-remove-dividers.tbf"
    cmd remove-banners remove-banners "$in" -o "$d-remove-banners.tbf"
    cmd auto-pages-keep auto-pages "$in" -o "$d-auto-pages-keep.tbf" --max 3
    cmd auto-pages-split auto-pages "$in" -o "$d-auto-pages-split.tbf" --max 2 --mode split
    cmd start-date start-date "$in" -o "$d-start-date.tbf" --date 2027-03-01
    cmd clear-date start-date "$in" -o "$d-clear-date.tbf" --clear
    run "$d-dated" start-date "$in" -o "$d-dated.tbf" --date 2027-03-01
    cmd rest-d rest-days "$d-dated.tbf" -o "$d-rest-d.tbf" --rule D67
    cmd rest-s rest-days "$d-dated.tbf" -o "$d-rest-s.tbf" --rule S5
    cmd convert-rest convert-rest-days "$d-rest-d.tbf" -o "$d-convert-rest.tbf"
    cmd lock lock "$d-dated.tbf" -o "$d-lock.tbf" --from 2 --to 3 --date 2027-03-04
    cmd hold-days hold-days "$in" -o "$d-hold-days.tbf" --days 4
    cmd sort sort "$in" -o "$d-sort.tbf"
    cmd sort-keys sort "$in" -o "$d-sort-keys.tbf" --keys scene,daynight,synopsis
    cmd conform conform "$in" -o "$d-conform.tbf" -- 3 1 + 2 - "*TRAVEL DAY" 4
    cmd renumber renumber "$in" -o "$d-renumber.tbf"
    cmd sort-elements sort-elements "$in" -o "$d-sort-elements.tbf"
    cmd reset-cast reset-cast "$in" -o "$d-reset-cast.tbf"
    cmd add-scene add-scene "$in" -o "$d-add-scene.tbf" --scene 99A --pages "1 3/8" --int-ext I/E \
        --day-night N --location "HARBOUR, NORTH" --set "QUAY \"END\"" --synopsis "A, b" --elements 1,2
    cmd add-element add-element "$in" -o "$d-add-element.tbf" --description "NEW, ONE" --category 1
    cmd details details "$in" -o "$d-details.tbf" --title "Night, \"Rain\"" --company "Brenholt" \
        --address "1 Quay Street, Truro" --address "TR1 2AB" --ad "Kim Ode" --logo "" \
        --crew "Gaffer=Jo Smith=07700 900123" --crew "Grip=Sam Lee"
    run "$d-info-details" info "$in" --details
    run "$d-details-info" info "$d-details.tbf" --details
    run "$d-export-csv" export "$in" -o "$d-export.csv"
    run "$d-export-html" export "$in" -o "$d-export.html"
    run "$d-export-plain" export "$in" -o "$d-export-plain.htm" --colours plain
    cp "$d-export.csv" "$d-export.html" "$d-export-plain.htm" "$out/outputs/" 2>/dev/null
    run "$d-board-png" board "$in" -o "$d-board.png"
    run "$d-board-classic" board "$in" -o "$d-board-classic.png" --colours classic --scale 0.8
    run "$d-board-pdf" board "$in" -o "$d-board.pdf"
    cp "$d-board.png" "$d-board-classic.png" "$d-board.pdf" "$out/outputs/" 2>/dev/null
    for k in schedule oneline breakdown elements; do
        run "$d-report-$k" report "$k" "$in" -o "$d-report-$k.pdf" --trace
        cp "$d-report-$k.pdf" "$out/outputs/" 2>/dev/null
    done
    run "$d-report-letter" report schedule "$in" -o "$d-report-letter.pdf" --paper letter
    run "$d-report-oneline-all" report oneline "$in" -o "$d-report-oneline-all.pdf" --all-days --trace
    run "$d-report-elements-all" report elements "$in" -o "$d-report-elements-all.pdf" \
        --categories 1,2,3,4,5,6,7,8,9,10,11,12,13,14,15 --trace
    cp "$d-report-letter.pdf" "$d-report-oneline-all.pdf" "$d-report-elements-all.pdf" "$out/outputs/" 2>/dev/null
    run "$d-dood" dood "$in"
    run "$d-dood-totals" dood "$in" --no-holds --totals --category 2 -o "$d-dood-totals.csv"
    run "$d-dood-pdf" dood "$in" -o "$d-dood.pdf" --color --totals
    run "$d-print-board" print-board "$in" -o "$d-print-board.pdf"
    run "$d-print-board-perf" print-board "$in" -o "$d-print-board-perf.pdf" --perforated --bw --all-headers \
        --from 2 --to 9 --margin 3 --strip-width 9.565
    cp "$d-dood-totals.csv" "$d-dood.pdf" "$d-print-board.pdf" "$d-print-board-perf.pdf" "$out/outputs/" 2>/dev/null
done

# The call sheet of a day of the example (with its call sheet file, printed again from
# that file), and an end of day that marks two of that day's scenes shot.
cd "$out/work" || exit 2
run example-callsheet callsheet example.tbf --date 2027-04-06 -o example-callsheet.pdf \
    --weather "Bright, 14C, wind W 12 mph" --trace --save-sheet example-callsheet.tbs
run example-callsheet-sheet callsheet example.tbf --sheet example-callsheet.tbs -o example-callsheet-sheet.pdf \
    --paper letter
run example-end-of-day end-of-day example.tbf -o example-end-of-day.tbf --date 2027-04-06 --shot 9,35
run example-end-of-day-board board example-end-of-day.tbf -o example-end-of-day-board.png
cp example-callsheet.pdf example-callsheet.tbs example-callsheet-sheet.pdf example-end-of-day.tbf \
    example-end-of-day-board.png "$out/outputs/" 2>/dev/null

# The manifest: one checksum per output, PDFs by their text and page count.
cd "$out/outputs" || exit 2
for f in $(ls | sort); do
    case "$f" in
    *.pdf)
        sum=$( { pdfinfo "$f" 2>/dev/null | grep '^Pages:'; pdftotext -layout "$f" - 2>/dev/null; } | sha256sum | cut -c1-16)
        ;;
    *) sum=$(sha256sum <"$f" | cut -c1-16) ;;
    esac
    echo "$sum  $f"
done >"$out/MANIFEST"

echo "$(wc -l <"$out/MANIFEST") outputs in $out/MANIFEST"
if [ -n "$check" ]; then
    if diff "$check" "$out/MANIFEST" >"$out/DIFF"; then
        echo "identical to $check"
    else
        echo "DIFFERENT from $check:"
        cat "$out/DIFF"
        exit 1
    fi
fi
