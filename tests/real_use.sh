#!/usr/bin/env bash
# Uses the desktop program on a virtual screen, in a copy of the data. It has to end by itself, with status 0 and nothing
# on standard error.
#
#     tests/real_use.sh PROGRAM [FOLDER-FOR-PICTURES [WIDTHxHEIGHT [SCALE]]]
set -euo pipefail
program=$1
pictures=${2:-}
size=${3:-1366x768}
export QT_SCALE_FACTOR=${4:-1} QT_QPA_PLATFORM=xcb

scratch=$(mktemp -d)
trap 'kill $(jobs -p) 2>/dev/null; rm -rf "$scratch"' EXIT
cp -r "$(dirname "$0")/../data" "$scratch/data"
mkdir -p "$scratch/config/zol" "$scratch/files" "$scratch/run"
chmod 700 "$scratch/run"
echo "data_root = $scratch/data/ZOL" >"$scratch/config/zol/zol.conf"
export XDG_CONFIG_HOME=$scratch/config XDG_RUNTIME_DIR=$scratch/run HOME=$scratch

# The server picks a free display and tells its number.
Xvfb -displayfd 3 -screen 0 "${size}x24" 3>"$scratch/display" >/dev/null 2>&1 &
for _ in $(seq 100); do [ -s "$scratch/display" ] && break; sleep 0.1; done
DISPLAY=:$(cat "$scratch/display")
export DISPLAY
openbox >/dev/null 2>&1 &

status=0
timeout 240 "$program" "$scratch/files" ${pictures:+"$pictures"} 2>"$scratch/errors" || status=$?
if [ "$status" -ne 0 ] || [ -s "$scratch/errors" ]; then
  echo "status $status; on standard error:"
  cat "$scratch/errors"
  exit 1
fi
