#!/bin/sh
# Runs every fuzz target of a fuzz build for a while, one after the other.
#   fuzz/run-fuzzers.sh BUILD SECONDS [TARGET...]
# Each target starts from its committed corpus (fuzz/corpus/<target>) and the inputs found by
# earlier runs (BUILD/fuzz-corpus/<target>); the new inputs it finds go to the latter only, so
# the repository does not grow on every run. Crashes, hangs, leaks and failed checks are saved
# in BUILD/fuzz-findings/<target>/ and stop the run with a failure.
# With FUZZ_MERGE=1 the run ends by minimising the committed corpus together with the new inputs
# into fuzz/corpus/<target> (for keeping what a run found). The merge counts edges only, not how
# often each runs, so that the committed corpus stays at a few dozen small files; the scratch
# corpus keeps the rest.
set -eu

build=$1
seconds=$2
shift 2
here=$(cd "$(dirname "$0")" && pwd)
targets=${*:-"tokenizer target_file oob workspace template import bmp"}

for target in $targets; do
    committed=$here/corpus/$target
    scratch=$build/fuzz-corpus/$target
    findings=$build/fuzz-findings/$target
    # A binary format has a dictionary of its own; the text formats share one.
    dict=$here/$target.dict
    [ -f "$dict" ] || dict=$here/harnwick.dict
    mkdir -p "$committed" "$scratch" "$findings"
    echo "fuzz: $target for ${seconds}s"
    "$build/fuzz/fuzz_$target" "$scratch" "$committed" \
        -dict="$dict" -max_total_time="$seconds" \
        -timeout=2 -rss_limit_mb=2560 -malloc_limit_mb=256 \
        -artifact_prefix="$findings/" -print_final_stats=1 2>"$build/fuzz-$target.log" \
        || {
            grep -E 'fuzz check failed|first:|second:|runtime error|ERROR:|SUMMARY|Test unit written' \
                "$build/fuzz-$target.log"
            echo "fuzz: $target found a fault, saved in $findings (log: $build/fuzz-$target.log)"
            exit 1
        }
    grep -E '^(Done|stat::number_of_executed_units|stat::average_exec_per_sec|stat::new_units_added|stat::peak_rss_mb)' \
        "$build/fuzz-$target.log" | sed "s/^/fuzz: $target: /"
    if [ "${FUZZ_MERGE:-0}" = 1 ]; then
        merged=$build/fuzz-merged/$target
        rm -rf "$merged" && mkdir -p "$merged"
        "$build/fuzz/fuzz_$target" -merge=1 -use_counters=0 "$merged" "$committed" "$scratch" \
            -dict="$dict" -timeout=2 -rss_limit_mb=2560 -malloc_limit_mb=256 \
            2>"$build/fuzz-$target-merge.log"
        rm -f "$committed"/* && cp "$merged"/* "$committed"/
        echo "fuzz: $target: committed corpus now $(ls "$committed" | wc -l) files"
    fi
done
