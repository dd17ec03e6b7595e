#!/usr/bin/env bash
# The README's list of command-line commands is the output of torvanbridge-cli --help,
# between the lines "<!-- torvanbridge-cli --help -->" and "<!-- end of --help -->".
#
#   scripts/readme-help.sh CLI            fails when the README and --help differ
#   scripts/readme-help.sh CLI --update   writes the current --help into the README
set -euo pipefail
cli=$1
top=$(cd "$(dirname "$0")/.." && pwd)
readme="$top/README.md"
begin='<!-- torvanbridge-cli --help -->'
end='<!-- end of --help -->'

expected=$(mktemp)
current=$(mktemp)
trap 'rm -f "$expected" "$current"' EXIT
{ echo '```text'; "$cli" --help; echo '```'; } >"$expected"
awk -v b="$begin" -v e="$end" '$0 == e { inside = 0 } inside { print } $0 == b { inside = 1 }' "$readme" >"$current"

if [ "${2:-}" = "--update" ]; then
    awk -v b="$begin" -v e="$end" -v f="$expected" '
        $0 == b { print; while ((getline line < f) > 0) print line; skip = 1; next }
        $0 == e { skip = 0 }
        !skip { print }' "$readme" >"$readme.new"
    mv "$readme.new" "$readme"
    exit 0
fi
if ! diff -u "$current" "$expected"; then
    echo "README.md and torvanbridge-cli --help differ; run scripts/readme-help.sh $cli --update" >&2
    exit 1
fi
