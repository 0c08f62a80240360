#!/bin/sh
# Runs every benchmark and the measuring scripts; prints figures only.
build=${1:-build}
for b in "$build"/bench/*_bench; do
  [ -x "$b" ] || continue
  echo "== $(basename "$b")"
  ./tests/tools/isolated "$b" --benchmark_min_time=0.2 || echo "(failed: $b)"
done
# Modules that the scripts share are not benchmarks of their own.
for s in bench/*_bench.sh bench/*_bench.py; do
  [ -f "$s" ] || continue
  echo "== $(basename "$s")"
  case "$s" in
    *idle_bench.py)
      ./tests/tools/isolated /usr/bin/python3 "$s" "$build"
      echo "== $(basename "$s") --cpu 0"
      ./tests/tools/isolated /usr/bin/python3 "$s" "$build" --cpu 0 ;;
    *.py) ./tests/tools/isolated /usr/bin/python3 "$s" "$build" ;;
    *) sh "$s" "$build" ;;
  esac
done
