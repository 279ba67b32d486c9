#!/usr/bin/env bash
# Feeds the readers and the script language with made-up inputs: tools/fuzz.sh SECONDS [TARGET...]
# Builds the preset "fuzz", then runs each target (all of fuzz/CMakeLists.txt when none is named) for so many seconds, one
# after the other. What was learned stays in build-fuzz/corpus/TARGET, inputs that went wrong in build-fuzz/findings/.
set -euo pipefail
cd "$(dirname "$0")/.."
. packaging/setup.sh

seconds=${1:?usage: tools/fuzz.sh SECONDS [TARGET...]}
shift
ensure_packages $build_packages $fuzz_packages
build_preset fuzz build-fuzz

targets=("$@")
[ ${#targets[@]} -gt 0 ] || targets=($(sed -n '/foreach(name IN ITEMS/,/)$/p' fuzz/CMakeLists.txt | sed 's/.*ITEMS//; s/)//'))

# Where a target's first inputs come from.
seeds() {
  case $1 in
    number_text | text_records | camera_file) echo data/ZOL/Camera_Parameters_New data/ZOLDATA/Quartz.cry ;;
    crystal_file) echo data/ZOLDATA/* ;;
    space_group) echo data/ZOL/SpaceGr/No{001,014,152,167,225,227}.dat ;;
    scatter_table) echo data/ZOL/Asf/*.csv ;;
    cif) echo examples/cif/*.cif ;;
    structure) echo examples/cif/*.cif fuzz/seeds/structure/* data/ZOLDATA/Quartz.cry ;;
    icsd | atom_lists | measured_curve) echo fuzz/seeds/"$1"/* ;;
    bitmap) echo fuzz/seeds/bitmap/* shell/desktop/images/* ;;
    scan_* | lzf) echo fuzz/seeds/"$1"/* ;;
    kept_work) echo fuzz/seeds/kept_work/* ;;
    script) echo examples/*.zs examples/cif/*.zs tests/scripts/*.zs ;;
  esac
}

# Words of the seeds, as a dictionary of libFuzzer.
dictionary() {
  cat $(seeds "$1") | LC_ALL=C grep -aoE '[A-Za-z0-9_.()+-]{2,40}' | LC_ALL=C sort -u | head -2000 | sed 's/.*/"&"/'
}

status=0
for target in "${targets[@]}"; do
  folder=build-fuzz/corpus/$target
  mkdir -p "$folder" "build-fuzz/findings/$target"
  for seed in $(seeds "$target"); do cp -n "$seed" "$folder/$(basename "$seed")"; done
  dictionary "$target" >"build-fuzz/$target.dict"
  echo "== $target"
  build-fuzz/fuzz_"$target" "$PWD/$folder" -max_total_time="$seconds" -timeout=60 -rss_limit_mb=3000 -max_len=20000 \
    -dict="build-fuzz/$target.dict" -artifact_prefix="$PWD/build-fuzz/findings/$target/" -print_final_stats=1 -verbosity=1 \
    >"build-fuzz/$target.log" 2>&1 || { status=1; grep -aE 'ERROR|SUMMARY|does not hold|runtime error|uncaught|what' "build-fuzz/$target.log" || true; }
  grep -aE 'number_of_executed_units|new_units_added' "build-fuzz/$target.log" || true
  find "build-fuzz/findings/$target" -type f
done
exit $status
