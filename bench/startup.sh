#!/usr/bin/env bash
# Compares start-up (exec to the first painted window) and resident memory of the program, and of its practice screen,
# with a bare window of the toolkit of the same size. The programs start in turn on a private X server and session bus.
# Exit status 1 when a ratio is above what is allowed.
# usage: bench/startup.sh [ROUNDS]   default 9; build the release preset first
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
rounds=${1:-9}
bin=build/release/bin
programs=(bare_window cijferwerf practice_window)
allowed_paint=(1 1.05 1.15)
allowed_memory=(1 1.05 1.1)

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

# A first start of each fills the disk cache; that of the program tells the size of its window.
read -r _ _ _ width height < <("$bin/first_paint" "$bin/cijferwerf")
start() { "$bin/first_paint" "$bin/$1" "$width" "$height"; }
for program in "${programs[@]}"; do start "$program" >/dev/null; done
for ((round = 1; round <= rounds; ++round)); do
    for program in "${programs[@]}"; do start "$program" >>"$results/$program"; done
done

median() { cut -d' ' -f"$2" "$results/$1" | sort -n | sed -n "$(((rounds + 1) / 2))p"; }
base_paint=$(median bare_window 2)
base_memory=$(median bare_window 3)
within=0
printf '%dx%d, medians of %-2d  painted ms   ratio allowed   resident MiB   ratio allowed\n' "$width" "$height" "$rounds"
for i in "${!programs[@]}"; do
    awk -v name="${programs[i]}" -v paint="$(median "${programs[i]}" 2)" -v memory="$(median "${programs[i]}" 3)" \
        -v base_paint="$base_paint" -v base_memory="$base_memory" \
        -v allowed_paint="${allowed_paint[i]}" -v allowed_memory="${allowed_memory[i]}" 'BEGIN {
            printf "%-22s %12.1f %7.2f %7.2f %14.1f %7.2f %7.2f\n", name, paint, paint / base_paint, allowed_paint,
                memory / 1024, memory / base_memory, allowed_memory
            exit paint / base_paint > allowed_paint || memory / base_memory > allowed_memory
        }' || within=1
done
exit "$within"
