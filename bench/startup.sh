#!/usr/bin/env bash
# Compares start-up (exec to the first painted window) and resident memory of the program, and of its practice screen,
# with a bare window of the toolkit. The programs start in turn on a private X server and session bus.
# usage: bench/startup.sh [ROUNDS]   default 9; build the release preset first
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
rounds=${1:-9}
bin=build/release/bin
programs=(bare_window practice_window cijferwerf)

if [ -z "${CIJFERWERF_BENCH_BUS:-}" ]; then
    CIJFERWERF_BENCH_BUS=1 exec dbus-run-session -- "$0" "$rounds"
fi
results=$(mktemp -d)
mkfifo "$results/display"
Xvfb -displayfd 3 -noreset -screen 0 1280x1024x24 3>"$results/display" 2>/dev/null &
server=$!
trap 'kill "$server" 2>/dev/null || true; rm -rf "$results"' EXIT
read -r number <"$results/display"
export DISPLAY=:$number QT_QPA_PLATFORM=xcb

for program in "${programs[@]}"; do "$bin/first_paint" "$bin/$program" >/dev/null; done # fills the disk cache
for ((round = 1; round <= rounds; ++round)); do
    for program in "${programs[@]}"; do "$bin/first_paint" "$bin/$program" >>"$results/$program"; done
done

median() { cut -d' ' -f"$2" "$results/$1" | sort -n | sed -n "$(((rounds + 1) / 2))p"; }
base_paint=$(median bare_window 2)
base_memory=$(median bare_window 3)
printf 'medians of %d        painted ms   ratio   resident MiB   ratio\n' "$rounds"
for program in "${programs[@]}"; do
    awk -v name="$program" -v paint="$(median "$program" 2)" -v memory="$(median "$program" 3)" \
        -v base_paint="$base_paint" -v base_memory="$base_memory" 'BEGIN {
            printf "%-18s %13.1f %7.2f %14.1f %7.2f\n", name, paint, paint / base_paint, memory / 1024, memory / base_memory
        }'
done
