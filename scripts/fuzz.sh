#!/usr/bin/env bash
# Builds the libFuzzer targets with clang (address and undefined-behaviour sanitizers)
# in build-fuzz/ and runs each for the given number of seconds, one after the other.
#   scripts/fuzz.sh SECONDS [TARGET...]
# Seeds: the examples, the test data, the templates and tests/fuzz/<target>/ (the
# inputs that once crashed, kept as regression inputs). What a run finds is left in
# build-fuzz/crashes/; turn each into a file under tests/fuzz/<target>/ once fixed.
set -euo pipefail
cd "$(dirname "$0")/.."

seconds=${1:-60}
shift || true
targets=("$@")
if [ ${#targets[@]} -eq 0 ]; then
    targets=(fuzz_schedule fuzz_textimport fuzz_finaldraft fuzz_fountain fuzz_fdx fuzz_template fuzz_settings fuzz_callsheet)
fi

# clang and its fuzzer runtime.
if ! command -v clang++ >/dev/null 2>&1 || ! ls /usr/lib/llvm-*/lib/clang/*/lib/linux/libclang_rt.fuzzer-x86_64.a >/dev/null 2>&1; then
    sudo=""
    [ "$(id -u)" -ne 0 ] && sudo="sudo"
    $sudo apt-get install -y clang libclang-rt-14-dev
fi

launcher=()
command -v ccache >/dev/null 2>&1 && launcher=(-DCMAKE_CXX_COMPILER_LAUNCHER=ccache)
cmake -S . -B build-fuzz -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo \
    -DCMAKE_C_COMPILER=clang -DCMAKE_CXX_COMPILER=clang++ "${launcher[@]}" \
    -DCMAKE_CXX_FLAGS="-fsanitize=fuzzer-no-link,address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer" \
    -DTB_BUILD_TESTS=OFF -DTB_BUILD_FUZZ=ON >/dev/null
cmake --build build-fuzz -j "${JOBS:-2}" --target "${targets[@]}"

seed() { # target, then files or folders to copy into its seed folder
    local dir=build-fuzz/seeds/$1
    shift
    rm -rf "$dir"
    mkdir -p "$dir"
    for source in "$@" "tests/fuzz/$target"; do
        if [ -d "$source" ]; then
            find "$source" -type f -exec cp {} "$dir"/ \;
        elif [ -f "$source" ]; then
            cp "$source" "$dir"/
        fi
    done
}

mkdir -p build-fuzz/crashes
export UBSAN_OPTIONS=print_stacktrace=1 ASAN_OPTIONS=detect_leaks=0
summary=()
for target in "${targets[@]}"; do
    case $target in
    fuzz_schedule) seed "$target" examples/*.tbf tests/malformed/schedule ;;
    fuzz_textimport) seed "$target" tests/core/import/data/screenplays/*.txt tests/malformed/script ;;
    fuzz_fountain) seed "$target" tests/core/import/data/*.fountain ;;
    fuzz_fdx) seed "$target" tests/core/import/data/*.fdx ;;
    fuzz_finaldraft)
        seed "$target"
        { cat tests/core/import/data/fd-scene-report.txt; printf '\f'; cat tests/core/import/data/fd-script-report.txt; } \
            >build-fuzz/seeds/$target/reports.txt ;;
    fuzz_template) seed "$target" templates/*.dfm tests/malformed/template ;;
    fuzz_callsheet) seed "$target" ;; # a saved sheet is kept in tests/fuzz/fuzz_callsheet
    fuzz_settings)
        seed "$target" tests/malformed/settings
        printf '[Files]\r\nAutosavetime=5\r\n[Strips]\r\nCB1=clRed\r\nCT1=$00FF00FF\r\nDescLine1=12\r\nFont=Arial\r\n[Printing]\r\nPerfMargin=5,4\r\n' \
            >build-fuzz/seeds/$target/settings.ini ;;
    esac
    corpus=build-fuzz/corpus/$target
    mkdir -p "$corpus"
    log=build-fuzz/$target.log
    echo "== $target: ${seconds} s"
    status=0
    build-fuzz/fuzz/$target -max_total_time="$seconds" -timeout=20 -rss_limit_mb=2560 -max_len=65536 \
        -artifact_prefix=build-fuzz/crashes/$target- -print_final_stats=1 "$corpus" build-fuzz/seeds/$target \
        >"$log" 2>&1 || status=$?
    runs=$(grep -o 'stat::number_of_executed_units: *[0-9]*' "$log" | grep -o '[0-9]*$' || echo "?")
    took=$(grep -o 'Done [0-9]* runs in [0-9]* second' "$log" | grep -o 'in [0-9]*' | grep -o '[0-9]*' || echo "?")
    if [ $status -eq 0 ]; then
        line="$target: $runs executions in $took s, no crash"
    else
        line="$target: FAILED after $runs executions (exit $status), see $log and build-fuzz/crashes/"
    fi
    echo "$line"
    summary+=("$line")
done
echo "== summary"
printf '%s\n' "${summary[@]}"
for line in "${summary[@]}"; do
    case $line in *FAILED*) exit 1 ;; esac
done
