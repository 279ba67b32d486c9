#!/bin/sh
# One map by 1, 2 and 3 processes gives the same bytes; one process killed ends the run, and --resume completes it.
# map_ranks_test.sh ZOL_BATCH MPIRUN CRYSTAL
set -eu
batch=$1 mpirun="$2 --oversubscribe --allow-run-as-root" crystal=$3
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
cd "$folder"
# 24 x 40 patterns of 60 x 60 pixels, EDAX .up1, version 3: four bright stripes on grey, turned from point to point.
LC_ALL=C awk 'function u32(n) { printf "%c%c%c%c", n % 256, int(n / 256) % 256, int(n / 65536) % 256, 0 }
BEGIN { u32(3); u32(60); u32(60); u32(42); printf "%c", 0; u32(24); u32(40); printf "%c", 0
  for (i = 0; i < 2; ++i) printf "%c%c%c%c%c%c%c%c", 0, 0, 0, 0, 0, 0, 240, 63
  for (point = 0; point < 960; ++point)
    for (y = -30; y < 30; ++y)
      for (x = -30; x < 30; ++x) {
        v = 90 + (x * 7 + y * 13 + point * 5) % 11
        for (k = 0; k < 4; ++k) { a = 0.4 + 0.8 * k + point / 900; d = x * cos(a) + y * sin(a) - 6 * k + 8; if (d * d < 9) v += 30 }
        printf "%c", v } }' >scan.up1
run() { out=$1; shift; "$@" "$batch" map scan.up1 -c "$crystal" --pc 0.5,0.3,0.6 --master none -j 1 -q -o "$out"; }
run plain.csv
for ranks in 1 2 3; do
  run "$ranks.csv" $mpirun -n "$ranks"
  cmp plain.csv "$ranks.csv"
done
# The second of three is killed once a tile is done.
cat >mortal <<'END'
#!/bin/sh
[ "${OMPI_COMM_WORLD_RANK:-0}" = 1 ] && {
  until [ "$(stat -c %s killed.csv.part 2>/dev/null || echo 0)" -gt 16 ]; do sleep 0.02; done
  kill -9 $$
} &
exec "$@"
END
chmod +x mortal
if run killed.csv $mpirun -n 3 ./mortal 2>message; then echo "the run outlived a killed process"; exit 1; fi
grep -q "signal 9" message || { cat message; exit 1; }
[ -s killed.csv.part ] && [ ! -e killed.csv ]
"$batch" map scan.up1 -c "$crystal" --pc 0.5,0.3,0.6 --master none -j 1 -q -o killed.csv --resume
cmp plain.csv killed.csv
