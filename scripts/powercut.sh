#!/usr/bin/env bash
# Cuts the power at 20 moments after a save and after a backup, each growing and shrinking, and looks whether the file is
# whole: ./scripts/powercut.sh. For root, on a machine with loop devices. A file system of its own lies in a file; what
# that file holds at a moment is what the disk would hold. A copy of it is mounted, which replays the journal as a start
# after a cut does. The last lines are a control: the same by a program that does not flush.
set -euo pipefail
cd "$(dirname "$0")/.."

[ "$(id -u)" -eq 0 ] || { echo "Only root may mount."; exit 2; }
cmake --preset test --log-level=WARNING
cmake --build --preset test --target powercut_writer
writer=$PWD/build/test/tests/powercut/powercut_writer

work=$(mktemp -d)
live=$work/live after=$work/after
mkdir "$live" "$after"
# shellcheck disable=SC2317 # called by the trap
cleanUp() {
  mountpoint -q "$after" && umount "$after"
  mountpoint -q "$live" && umount "$live"
  rm -rf "$work"
}
trap cleanUp EXIT

moments=(0 0.3 0.6 1 1.5 2 3 4 5 6 8 10 12 15 18 21 24 27 30 33)
failed=0

noise() { head -c "$1" /dev/urandom; }

newDisk() {
  truncate -s 96M "$work/disk"
  mkfs.ext4 -q -F "$work/disk"
  mount -o loop "$work/disk" "$live"
  mkdir "$live/pictures" "$live/templates" "$live/backups"
}

# cutAfter TITLE FILE COMMAND...: runs the command and cuts the power at each moment after it
cutAfter() {
  local title=$1 file=$2 whole=0 start expected
  shift 2
  sync -f "$live"
  "$@"
  start=$(date +%s.%N)
  expected=$(md5sum <"$live/$file")
  for moment in "${moments[@]}"; do
    sleep "$(echo "$start $moment $(date +%s.%N)" | awk '{ d = $1 + $2 - $3; print (d > 0 ? d : 0) }')"
    cp --sparse=always "$work/disk" "$work/cut"
    mount -o loop "$work/cut" "$after"
    if [ "$(md5sum <"$after/$file" 2>/dev/null)" = "$expected" ]; then whole=$((whole + 1)); fi
    umount "$after"
  done
  umount "$live"
  printf '%-42s whole after %2d of %d cuts\n' "$title" "$whole" "${#moments[@]}"
  lastWhole=$whole
}

saveCase() { # TITLE OLD NEW
  newDisk
  noise "$2" >"$live/shop.xml"
  cutAfter "$1" shop.xml "$writer" save "$live/shop.xml" "$3"
  [ "$lastWhole" -eq "${#moments[@]}" ] || failed=1
}

backUpCase() { # TITLE OLD NEW
  newDisk
  noise 1000 >"$live/shop.xml"
  noise "$2" >"$live/backups/x.kvb"
  noise "$3" >"$live/pictures/picture.png"
  cutAfter "$1" backups/x.kvb "$writer" backup "$live" x
  [ "$lastWhole" -eq "${#moments[@]}" ] || failed=1
}

# shellcheck disable=SC2317 # called by its name
unflushed() { head -c "$1" /dev/zero | tr '\0' n >"$live/shop.xml"; }

mega=1000000
saveCase "a save that grows from 4 to 12 MB" $((4 * mega)) $((12 * mega))
saveCase "a save that shrinks from 12 to 4 MB" $((12 * mega)) $((4 * mega))
backUpCase "a backup that grows from 4 to 12 MB" $((4 * mega)) $((12 * mega))
backUpCase "a backup that shrinks from 12 to 4 MB" $((12 * mega)) $((4 * mega))
newDisk
noise $((4 * mega)) >"$live/shop.xml"
cutAfter "control: written without a flush" shop.xml unflushed $((12 * mega))
exit $failed
