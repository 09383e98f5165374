#!/usr/bin/env bash
# scripts/release and its package check, on copies of this build's stand-in client.
set -u
SRC=$1 BUILD=$2
export RELEASE_BUILD_DIR=$BUILD QT_QPA_PLATFORM=offscreen
T=$(mktemp -d) && trap 'rm -rf "$T"' EXIT && cd "$T" || exit 1
unshare --pid --fork --mount-proc true 2>/dev/null || { echo "skipped: no PID namespace"; exit 77; }
bad=0
expect() { [ "$1" = "$2" ] || { echo "FAIL: $3: got $1, want $2"; bad=1; }; }
cp -a "$BUILD/ui-client/launcher/bundle/stage/Nimbulo.app" ok && mkdir o taken taken/Nimbulo.app
cp -a ok noexec && chmod -x noexec/Contents/MacOS/nimbulo-pelora-ui
cp -a ok escape && ln -s ../../.. escape/Contents/up
cp -a ok fifo && mkfifo fifo/Contents/pipe
# Bad input: the status, the message, and nothing left in the output folders.
while IFS='|' read -r args status msg; do
    "$SRC/scripts/release" $args >/dev/null 2>err; expect $? "$status" "$args"
    grep -qF "$msg" err || { echo "FAIL: $args: no '$msg' in: $(cat err)"; bad=1; }
    expect "$(ls -A o taken)" "$(printf 'o:\n\ntaken:\nNimbulo.app')" "$args leaves nothing"
done <<'ROWS'
ok 1.2 o|2|must be MAJOR.MINOR.BUILD or MAJOR.MINOR.BUILD.OVERLAY
ok 1.2.3.4.5 o|2|decimal numbers only
ok 1.-2.3 o|2|decimal numbers only
ok 1.2.2147483648 o|2|VERSION part '2147483648' is larger than 2147483647
ok 1.2.3.99999999999 o|2|is larger than 2147483647
ok 1.2.3 o --format rar|2|unknown format 'rar'
missing 1.2.3 o|1|client folder 'missing' does not exist
noexec 1.2.3 o|1|nimbulo-pelora-ui' is not executable
escape 1.2.3 o|1|link 'Contents/up' points outside the client folder
ok 1.2.3 taken|1|'taken/Nimbulo.app' already exists (use --force to replace it)
ok 1.2.3 /proc|1|cannot write into output folder '/proc'
fifo 1.2.3 o|1|spk-pack could not pack 'fifo'
ROWS
# The checker refuses a package whose version file is not last, or that disagrees with the bundle.
"$BUILD/tools/spk-pack/spk-pack" --format 7z ok late.7z && "$BUILD/tools/spk-pack/spk-pack" --format zip ok ok.zip
"$BUILD/tools/spk-check/spk-check" late.7z ok/Contents/Resources/INFO 2>&1 | grep -q 'the last entry is' || { echo "FAIL: order"; bad=1; }
printf '[Version]\nmajor_version=3\nminor_version=1\nbuild_version=1\nicon_overlay_version=1\n' >other
"$BUILD/tools/spk-check/spk-check" ok.zip other 2>&1 | grep -q "the package's INFO says" || { echo "FAIL: INFO"; bad=1; }
# A good run installs and starts the client, with 3.4.1.7 in both INFO files.
"$SRC/scripts/release" ok 3.4.1.7 o | grep -q '^  version  3.4.1.7$'; expect "$?" 0 "release"
HOME=$T/h unshare --pid --fork --mount-proc bash -c 'o/Nimbulo.app/Contents/MacOS/Nimbulo >/dev/null 2>&1
  for i in {1..100}; do [ -s h/.Nimbulo/ui.pid ] && break; sleep 0.1; done
  readlink /proc/$(sed -n "s/^pid=//p" h/.Nimbulo/ui.pid)/exe' >exe
expect "$(cat exe)" "$T/h/.Nimbulo/Nimbulo.app/Contents/MacOS/nimbulo-pelora-ui" "client started"
for f in o/Nimbulo.app h/.Nimbulo/Nimbulo.app; do expect "$(tr '\n' , <$f/Contents/Resources/INFO)" \
    "[Version],major_version=3,minor_version=4,build_version=1,icon_overlay_version=7," "$f INFO"; done
# Other times, owners, listing order and time zone: the same package bytes.
cp -a ok ok2 && touch -d 2001-02-03 ok2/Contents/* && chown -R nobody ok2 && mkdir o2
TZ=Asia/Tokyo "$SRC/scripts/release" ok2 3.4.1.7 o2 >/dev/null
expect "$(sha256sum <o2/Nimbulo.app/Contents/Resources/package/nimbulo.spk)" \
    "$(sha256sum <o/Nimbulo.app/Contents/Resources/package/nimbulo.spk)" "same bytes"
exit $bad
