# Shared by scripts/crash-consistency and scripts/full-disk (sourced, bash).
#
# Builds what the harnesses run (the bundle, spk-pack, the sample client and
# crash_driver) in $BUILD, and offers:
#   stage_app DIR BUILD N [BIG_KB]  an application folder of N entries or so
#   make_bundle DIR SPK BUILD       a copy of the built bundle shipping SPK
#   manifest DIR                    type, mode, size, link target and checksum
#                                   of everything below DIR, one line each
#   in_namespace CMD...             CMD as process 1 of new PID and mount
#                                   namespaces (signals cannot leave it)

SRC=$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd)
BUILD=${NIMBULO_BUILD_DIR:-$SRC/build-asan}
export QT_QPA_PLATFORM=offscreen
export ASAN_OPTIONS=${ASAN_OPTIONS:-detect_leaks=0}
export LC_ALL=C.UTF-8

harness_build() {
    if [ ! -f "$BUILD/CMakeCache.txt" ]; then
        cmake -S "$SRC" -B "$BUILD" -G Ninja -DNIMBULO_BUILD_BENCH=OFF >/dev/null || return 1
    fi
    cmake --build "$BUILD" -j "${JOBS:-$(nproc)}" --target NimbuloBundle spk-pack nimbulo-pelora-ui crash_driver >/dev/null
}

namespaces_usable() {
    unshare --mount --pid --fork --mount-proc sh -c 'mount -t tmpfs -o size=1m tmpfs /mnt' 2>/dev/null
}

in_namespace() {
    unshare --mount --propagation private --pid --fork --mount-proc "$@"
}

SAMPLE_CLIENT=""
SPK_PACK=""
DRIVER=""
harness_paths() {
    SAMPLE_CLIENT=$(find "$BUILD/tools/sample-client" -maxdepth 1 -name nimbulo-pelora-ui -type f | head -1)
    SPK_PACK=$(find "$BUILD/tools/spk-pack" -maxdepth 1 -name spk-pack -type f | head -1)
    DRIVER=$BUILD/tests/reliability/crash_driver
    [ -x "$SAMPLE_CLIENT" ] && [ -x "$SPK_PACK" ] && [ -x "$DRIVER" ] && [ -x "$BUILD/Nimbulo.app/Contents/MacOS/Nimbulo" ]
}

info_text() {
    printf '[Version]\nmajor_version=3\nminor_version=1\nbuild_version=%s\nicon_overlay_version=1\n' "$1"
}

# stage_app DIR BUILD N [BIG_KB]: N small files in folders of 50, plus one
# incompressible file of BIG_KB KiB when given.
stage_app() {
    local dir=$1 build=$2 n=$3 big=${4:-0}
    rm -rf "$dir"
    mkdir -p "$dir/Contents/MacOS" "$dir/Contents/Resources/data"
    cp "$SAMPLE_CLIENT" "$dir/Contents/MacOS/nimbulo-pelora-ui"
    info_text "$build" >"$dir/Contents/Resources/INFO"
    printf '<plist><dict><key>CFBundleExecutable</key><string>nimbulo-pelora-ui</string></dict></plist>\n' \
        >"$dir/Contents/Info.plist"
    local i folder
    for ((i = 0; i < n; i++)); do
        folder=$dir/Contents/Resources/data/d$((i / 50))
        [ $((i % 50)) -eq 0 ] && mkdir -p "$folder"
        printf 'build %s file %d\n%0*d\n' "$build" "$i" $((i % 700)) 0 >"$folder/f$i.txt"
    done
    if [ "$big" -gt 0 ]; then
        head -c $((big * 1024)) /dev/urandom >"$dir/Contents/Resources/big.bin"
    fi
}

# make_bundle DIR SPK BUILD: DIR/Nimbulo.app, the built bundle with another
# package and version, and a debug switch file that lets the service's lines
# through (the crash driver watches them).
make_bundle() {
    local dir=$1 spk=$2 build=$3
    local b=$dir/Nimbulo.app
    rm -rf "$dir"
    mkdir -p "$b/Contents/MacOS" "$b/Contents/Frameworks" "$b/log"
    cp "$BUILD/Nimbulo.app/Contents/MacOS/Nimbulo" "$b/Contents/MacOS/"
    ln -s "$BUILD/Nimbulo.app/Contents/Frameworks/plugins" "$b/Contents/Frameworks/plugins"
    cp "$BUILD/Nimbulo.app/Contents/Info.plist" "$b/Contents/"
    cp -r "$BUILD/Nimbulo.app/Contents/Resources" "$b/Contents/"
    cp "$spk" "$b/Contents/Resources/package/nimbulo.spk"
    info_text "$build" >"$b/Contents/Resources/INFO"
    printf 'service_debug=7\nlauncher_debug=7\n' >"$b/log/launcher.debug"
}

manifest() {
    (cd "$1" && find . -mindepth 1 -printf '%P %y %m %l\n' | LC_ALL=C sort &&
        find . -type f -print0 | LC_ALL=C sort -z | xargs -0 -r md5sum)
}
