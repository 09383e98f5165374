#!/usr/bin/env python3
# The launcher bundle run as a real process, one row per scenario.
#
#   scenarios.py --list
#   scenarios.py ROW BUNDLE SPK_PACK CLIENT     exit 0 passed, 1 failed, 77 skipped
#
# A row sets up a temporary HOME (installed copy, backups, ~/.Nimbulo/app,
# ui.pid, a running client), a copy of BUNDLE with a package that SPK_PACK made
# (or a damaged one) and the debug switch file, runs the launcher, and checks
# from outside: the installed tree, backups left, log lines, the "lib path"
# line, the exit status and the record file of the stand-in CLIENT. Each row
# runs in PID and mount namespaces of its own, under a shell as process 1 that
# reaps the clients it adopts; rows that need to differ in permissions run the
# launcher as user 65534.
import ctypes, hashlib, io, os, random, re, resource, shutil, subprocess, sys, tarfile, tempfile, time

CLIENT, INFO = "Contents/MacOS/nimbulo-pelora-ui", "Contents/Resources/INFO"
PLIST = "<plist><dict><key>CFBundleExecutable</key><string>nimbulo-pelora-ui</string></dict></plist>\n"
ALL7 = "launcher_debug=7\nservice_debug=7\nextractor_debug=7\n"
NOBODY = 65534
ACCENTED = "Contents/Resources/R\u00e9sum\u00e9-\u65e5\u672c.txt"
ROLLBACK = "[ERROR] nimbulo-service(N): Failed to extract package, rollback to old installation"
FAILED = "[ERROR] launcher(N): Failed to upgrade package"
NO_NEED = "[DEBUG] launcher(N): no need to upgrade"
NOT_READ = "[NOTE] mac/mac-service(N): Failed to read pid file '~/.Nimbulo/ui.pid', not exist ?"
def decision(s, t): return f"[DEBUG] mac/mac-service(N): source version = {s}, target version = {t}"
def no_pid(v): return f"[NOTE] mac/mac-service(N): pid file '~/.Nimbulo/ui.pid' holds no valid pid '{v}', no need to terminate"
def backup_failed(i, last=""):
    return (f"[ERROR] nimbulo-service(N): failed to backup app from '~/.Nimbulo/Nimbulo.app' -> "
            f"'~/.Nimbulo/Nimbulo.app_tmp{i or ''}'{last}")
def not_client(pid, runs):
    return (f"[NOTE] mac/mac-service(N): pid {pid} runs '{runs}', not the client '~/.Nimbulo/Nimbulo.app/{CLIENT}', "
            "no need to terminate")
def info(build): return f"[Version]\nmajor_version=3\nminor_version=1\nbuild_version={build}\nicon_overlay_version=1\n"
UPGRADE_LOG = [  # an upgrade of build 100 to 312 with every debug component at 7
    "[DEBUG] launcher(N): running", "[INFO] nimbulo-service(N): target_version = (3, 1, 312, 1)",
    "[INFO] nimbulo-service(N): source_version = (3, 1, 100, 1)",
    "[DEBUG] mac/mac-service(N): Source version: ('100', '1')",
    "[DEBUG] mac/mac-service(N): Target version: ('312', '1')", decision(100, 312),
    "[DEBUG] mac/mac-service(N): local appdata exist",
    "[DEBUG] mac/mac-service(N): pid file '~/.Nimbulo/ui.pid' does not exist, no need to terminate",
    "[INFO] nimbulo-service(N): extract package: 'B/Contents/Resources/package/nimbulo.spk' -> '~/.Nimbulo/Nimbulo.app'",
    "[DEBUG] extractor(N): decompress from 'B/Contents/Resources/package/nimbulo.spk' to '~/.Nimbulo/Nimbulo.app'",
    "[INFO] nimbulo-service(N): user installation is ready, removing backup app",
    "[INFO] nimbulo-service(N): removing aged app folder ~/.Nimbulo/app", "[DEBUG] launcher(N): done"]

# Row fields. Starting state: home (folder name), old (installed build, None:
# nothing installed), old_info (its INFO text), old_client (its executable
# present), ship (build in the bundle's INFO, None: no INFO), pkg_build (build in
# the package's INFO when it differs), fmt (spk-pack format), pkg (damage: missing empty garbage truncated truncated_gz dotdot
# absolute), extra (more package entries), backups (indices of stale backups),
# aged (~/.Nimbulo/app present), running (old client started first, with
# delay: its NIMBULO_SAMPLE_STOP_DELAY_MS), pid (ui.pid text; {sleeper},
# {root_sleeper}, {gone}, {self} (the runner), {launcher}, {nobody_client} (the
# old client run by uid 65534) are replaced), debug (debug switch file),
# env (None unsets; a relative HOME runs with the home bound over /root),
# user (uid to run the launcher as), nokill (root without CAP_KILL), prep (folder
# modes), via (link: a relative link in another folder, chain: a relative link
# to that, started by a relative path from /, path: the link's name on PATH),
# stdio (descriptors closed, or gone_reader: stdout a pipe without reader),
# bundle (where the copy lies), mode (crash:<point> with a package of 1,500 entries, fullvol, second: another start while
# the first stops the client, pair: a copy of the bundle started alongside, 1,500 entries).
# Outcome: tree (new, old, none), starts (builds started by the run), left
# (backups left), log (whole lines in this order; {name} and {name_exe} stand
# for the pids above and what they run), exact (the whole log; stderr if given),
# once (texts in exactly one log line), nolog, stderr (lines in order on
# stderr), fds (the client runs holding only 0, 1, 2, none of them ours),
# within (most seconds from the stop to the extraction, by the log's time
# stamps: the stop schedule's probes take five).
BASE = dict(home="home", old="100", old_info=None, old_client=True, ship="312", pkg_build=None, fmt="tar.gz", pkg=None,
            extra=(), backups=(), aged=True, running=False, delay=0, pid=None, debug=ALL7, env={}, user=None,
            nokill=False, prep=None, via=None, stdio=None, bundle="b/Nimbulo.app", mode=None, tree="new",
            starts=("312",), left=(), log=(), exact=False, once=(), nolog=(), stderr=(), fds=False, within=None)
ROWS = {}
def row(name, **kw):
    assert not set(kw) - set(BASE), kw
    # Without HOME the home is "/": only an unprivileged launcher is kept from writing there.
    assert kw.get("env", {}).get("HOME", "") is not None or kw.get("user"), name
    ROWS[name] = dict(BASE, name=name, **kw)

# ---- the version decision
row("install_fresh", old=None, log=["[INFO] nimbulo-service(N): source does not exist", decision(0, 312)])
row("upgrade_newer", exact=True, log=UPGRADE_LOG)
row("equal_build_stays", old="312", tree="old", log=[decision(312, 312), NO_NEED])
row("older_bundle_never_downgrades", ship="100", old="312", tree="old", log=[decision(312, 100)])
row("missing_client_repaired", old="312", old_client=False, log=[decision(312, 312)],
    nolog=["local appdata exist"])
row("bundle_info_missing", ship=None, tree="old", starts=("100",), log=[decision(100, 0)])
row("build_text_counts_as_zero", old_info=info("abc"), log=[decision(0, 312)])
row("bundle_build_text_never_upgrades", ship="abc", tree="old", starts=("100",), log=[decision(100, 0)])
row("build_leading_digits", ship="0400abc", starts=("0400abc",), log=[decision(100, 400)])
row("build_negative", old_info=info("-5"), log=[decision(-5, 312)])
row("installed_build_key_missing", old_info="[Version]\nmajor_version=3\n", log=[decision(0, 312)])
# ---- backups
row("backup_0_taken_uses_1", backups=[0], log=[backup_failed(0), UPGRADE_LOG[8]])
row("backup_0_to_8_taken_uses_9", backups=range(9), log=[backup_failed(8), UPGRADE_LOG[8]])
row("backup_all_ten_taken", backups=range(10), tree="old", starts=("100",), left=range(10),
    log=[backup_failed(0)] + [backup_failed(i) for i in range(1, 10)] + [backup_failed(9, " at max retries, exiting"), FAILED])
row("backup_higher_stale_stays", backups=[5], left=[5])
row("backup_rollback_after_taken_0", backups=[0], pkg="garbage", tree="old", starts=("100",), left=[0],
    log=[backup_failed(0), ROLLBACK, FAILED])
# ---- rollback of a package that cannot be installed
row("package_missing", pkg="missing", tree="old", starts=("100",),
    log=["[ERROR] extractor(N): Failed to calculate total file numbers, ret: -1", ROLLBACK, FAILED])
row("package_empty", pkg="empty", tree="old", starts=("100",),
    log=["[ERROR] extractor(N): Failed to calculate total file numbers, ret: 0", ROLLBACK, FAILED])
row("package_garbage", pkg="garbage", tree="old", starts=("100",), log=[ROLLBACK, FAILED])
row("package_truncated", pkg="truncated", tree="old", starts=("100",),
    log=["[ERROR] extractor(N): archive_read_extract2 failed: ''", ROLLBACK])
row("package_truncated_gz", pkg="truncated_gz", tree="old", starts=("100",), log=[ROLLBACK, FAILED])
row("package_dotdot_entry", pkg="dotdot", tree="old", starts=("100",),
    log=["[ERROR] extractor(N): archive_read_extract2 failed: 'Path contains '..''", ROLLBACK])
row("package_absolute_entry_stays_inside", pkg="absolute")  # the name is kept below the installation
row("package_damaged_nothing_to_roll_back", old=None, pkg="garbage", tree="none", starts=(),
    log=["[ERROR] nimbulo-service(N): Failed to extract package, and no old installation to rollback", FAILED])
# ---- every format spk-pack offers; non-ASCII names without a UTF-8 locale
for f in ("tar", "tar.xz", "zip", "7z"):
    row("format_" + f.replace(".", "_"), fmt=f, extra=[(ACCENTED, "accent\n")])
row("locale_c_non_ascii_names", env={"LANG": "C", "LC_ALL": "C"}, extra=[(ACCENTED, "accent\n")])
row("home_non_ascii", home="H\u00f4me-\u65e5\u672c \u00e9", log=UPGRADE_LOG[8:])
row("locale_latin1_non_ascii", home="H\u00f4me \u00e9", env={"LC_ALL": "fr_FR.ISO-8859-1"}, extra=[(ACCENTED, "accent\n")],
    log=UPGRADE_LOG[8:])
# ---- the aged folder, the running client and its pid file
row("aged_folder_removed_without_upgrade", old="312", tree="old", log=[
    "[INFO] nimbulo-service(N): removing aged app folder ~/.Nimbulo/app"])
row("client_running_not_started_twice", old="312", running=True, tree="old", starts=())
row("pid_unrelated_process_does_not_block_start", old="312", pid="pid={sleeper}\n", tree="old")
row("client_not_executable_counts_as_present", old="312", prep={f".Nimbulo/Nimbulo.app/{CLIENT}": 0o644}, tree="old",
    starts=(), log=[decision(312, 312), NO_NEED, "[ERROR] mac/mac-service(N): Failed to launch Nimbulo UI"])
row("launch_failure_logged", old="312", old_client=False, pkg="missing", tree="old", starts=(),
    log=[ROLLBACK, FAILED, "[ERROR] mac/mac-service(N): Failed to launch Nimbulo UI"])
row("stop_polite_client", running=True, delay=500, nolog=["kill:"])
row("stop_stubborn_client", running=True, delay=60000)
row("pid_stale_nothing_logged", pid="pid={gone}\n", nolog=["mac/mac-service(N): pid", "kill:"])
row("pid_zero", pid="pid=0\n", log=[no_pid("0")])
row("pid_minus_one", pid="pid=-1\n", log=[no_pid("-1")])
row("pid_huge", pid="pid=9223372036854775807\n", log=[no_pid("9223372036854775807")])
row("pid_wraps_to_minus_one", pid="pid=4294967295\n", log=[no_pid("4294967295")])
row("pid_garbage", pid="\x01\xfe garbage\npid=1\n", log=[NOT_READ])
# ---- a pid that is not the installed client's is never signalled, and costs no wait
row("pid_names_the_launcher", pid="pid={launcher}\n", log=[not_client("{launcher}", "B/Contents/MacOS/Nimbulo")])
row("pid_one_left_alone", pid="pid=1\n", within=2, log=[not_client(1, "{init_exe}"), UPGRADE_LOG[8]])
row("pid_unrelated_process_on_upgrade", pid="pid={sleeper}\n", within=2,
    log=[not_client("{sleeper}", "{sleeper_exe}"), UPGRADE_LOG[8]])
row("pid_other_users_process", user=NOBODY, pid="pid={root_sleeper}\n", within=2,
    log=[not_client("{root_sleeper}", "unknown (Permission denied)"), UPGRADE_LOG[8]])
row("pid_refused_eperm", nokill=True, pid="pid={nobody_client}\n",  # the client, but kill() is refused
    log=["[ERROR] mac/mac-service(N): kill: Operation not permitted (1)", UPGRADE_LOG[8]])
# ---- log lines and thresholds
row("log_default_threshold", pkg="missing", debug=None, tree="old", starts=("100",), exact=True, log=[
    "[ERROR] extractor(N): archive_read_open_filename failed: 'Failed to open 'B/Contents/Resources/package/nimbulo.spk''",
    "[ERROR] extractor(N): Failed to calculate total file numbers, ret: -1", ROLLBACK, FAILED])
row("log_service_only", debug="service_debug=7\n", exact=True, log=UPGRADE_LOG[1:9] + UPGRADE_LOG[10:12])
row("log_folder_unwritable", user=NOBODY, prep={".Nimbulo/log": 0o555}, pkg="missing", tree="old",
    starts=("100",), stderr=[ROLLBACK, FAILED])
row("home_unwritable", user=NOBODY, old=None, aged=False, prep={".": 0o555}, tree="none", starts=(),
    stderr=["[ERROR] nimbulo-service(N): failed to create folder: '~/.Nimbulo/Nimbulo.app'",
            "[ERROR] nimbulo-service(N): Failed to extract package, and no old installation to rollback"])
# ---- the process: single instance, plug-ins, descriptors
row("second_instance_refused", mode="second", running=True, delay=4000,
    log=["[DEBUG] main(N): app has already launched, return"])
row("plugins_searched_in_bundle", env={"QT_DEBUG_PLUGINS": "1"},
    stderr=['QFactoryLoader::QFactoryLoader() checking directory path "B/Contents/Frameworks/plugins/platforms" ...'])
row("client_gets_only_std_fds", fds=True)
# one installs and starts the client; the other waits, then finds nothing to do
row("pair_fresh_home", mode="pair", old=None, once=["extract package:", NO_NEED], nolog=["[ERROR]"])
row("pair_upgrade_running_client", mode="pair", running=True, once=["extract package:", NO_NEED], nolog=["[ERROR]"])
row("stderr_closed", stdio=(2,), fds=True)
row("all_streams_closed", stdio=(0, 1, 2), fds=True)
row("stdout_closed", stdio=(1,), fds=True)
row("stdout_reader_gone", stdio="gone_reader")
# ---- however it is started: the bundle is where the executable really is
row("via_link", via="link")
row("via_relative_chain_from_root", via="chain")
row("via_path", via="path")
row("bundle_path_blanks_non_ascii", bundle="My Apps \u00e9/Nimbulo \u00fc.app")
row("no_display_goes_offscreen", env={"DISPLAY": None, "WAYLAND_DISPLAY": None, "QT_QPA_PLATFORM": None},
    once=["[NOTE] main(N): no dialog can be shown, DISPLAY is not set"])
row("display_unreachable_goes_offscreen", env={"DISPLAY": ":97", "WAYLAND_DISPLAY": None, "QT_QPA_PLATFORM": None},
    once=["[NOTE] main(N): no dialog can be shown, the X display ':97' cannot be reached"])
row("no_display_user_platform_kept", env={"DISPLAY": None, "QT_QPA_PLATFORM": "minimal"}, nolog=["no dialog"])
row("home_unset_no_passwd_home", user=NOBODY, env={"HOME": None}, old=None, aged=False, tree="none", starts=(),
    exact=True, stderr=["[ERROR] main(N): no home folder: HOME is not an absolute path and the password database "
                        "names no existing folder, nothing done"])
row("home_relative_uses_passwd_home", env={"HOME": "relative/home"})
# ---- a package whose INFO lags the bundle's reinstalls at every start: said once
row("package_info_older_than_bundle", old=None, ship="9", pkg_build="1", starts=("1",), once=[
    "[WARNING] nimbulo-service(N): installed build 1 is still older than the bundle's build 9: the package's INFO "
    "does not match the bundle's, so every start installs it again"])
# ---- crash consistency and a full volume
row("crash_after_backup", mode="crash:backup")
row("crash_mid_extraction", mode="crash:entries:800")
row("crash_after_last_entry", mode="crash:last", left=["0?"])  # known: Nimbulo.app_tmp may stay
row("full_volume_keeps_old", mode="fullvol", tree="old", starts=("100",))


def fail(r, msg):
    print(f"scenario.{r['name']}: {msg}", file=sys.stderr)
    return False


def write(path, data, mode=None):
    os.makedirs(os.path.dirname(path), exist_ok=True)
    with open(path, "wb") as f:
        f.write(data.encode() if isinstance(data, str) else data)
    if mode:
        os.chmod(path, mode)


def read(path, encoding="utf-8"):
    try:
        with open(path, "rb") as f:
            data = f.read()
    except OSError:
        data = b""
    return data.decode(encoding, "replace") if encoding else data


def tree(root):
    """Every object below root: type and permission bits, content digest or link target."""
    out = {}
    for d, dirs, files in os.walk(root):
        for n in dirs + files:
            p = os.path.join(d, n)
            st = os.lstat(p)
            what = os.readlink(p) if os.path.islink(p) else (
                hashlib.sha1(read(p, None)).hexdigest() if os.path.isfile(p) else "dir")
            out[os.path.relpath(p, root)] = (oct(st.st_mode), what)
    return out


def stage_app(path, build, client, extra=(), many=0, big=0):
    write(f"{path}/Contents/Info.plist", PLIST, 0o644)
    write(f"{path}/Contents/Resources/readme.txt", f"build {build}\n", 0o644)
    os.symlink("readme.txt", f"{path}/Contents/Resources/current")
    for name, data in extra:
        write(f"{path}/{name}", data, 0o644)
    for i in range(many):
        write(f"{path}/Contents/Resources/d{i // 50}/f{i}.txt", f"entry {i}\n" * 20, 0o644)
    if big:
        write(f"{path}/Contents/Resources/big.bin", random.Random(build).randbytes(big), 0o644)
    os.makedirs(f"{path}/Contents/MacOS", exist_ok=True)
    shutil.copy(client, f"{path}/{CLIENT}")
    os.chmod(f"{path}/{CLIENT}", 0o755)
    write(f"{path}/{INFO}", info(build), 0o644)
    for d, dirs, _ in os.walk(path):
        for n in dirs:
            os.chmod(os.path.join(d, n), 0o755)


def hostile_tar(spk, stage, name):
    """The staged folder as a tar, with one entry spk-pack would never write."""
    with tarfile.open(spk, "w", format=tarfile.PAX_FORMAT) as t:
        t.add(stage, arcname=".", recursive=True)
        ti = tarfile.TarInfo(name)
        ti.size, ti.mode = 8, 0o644
        t.addfile(ti, io.BytesIO(b"hostile\n"))


class Scene:
    def __init__(self, r, args):
        self.r, self.work, self.bundle_src, self.spk_pack, self.client = r, *args
        os.chmod(self.work, 0o755)
        self.home = os.path.join(self.work, r["home"])
        self.nim = os.path.join(self.home, ".Nimbulo")
        self.app = os.path.join(self.nim, "Nimbulo.app")
        self.bundle = os.path.join(self.work, r["bundle"])
        self.record = os.path.join(self.work, "record")
        self.runs = 0
        write(self.record, "", 0o666)
        # The sanitizers' settings, their suppression files copied here once: another user may not read the
        # source tree.
        copy = lambda m: "suppressions=" + shutil.copy(m.group(1), self.work)
        self.san = {k: re.sub(r"\bsuppressions=([^:]+)", copy, v) for k, v in os.environ.items()
                    if k.endswith("SAN_OPTIONS") or k == "LD_PRELOAD"}

    def backup(self, i):
        return self.app + "_tmp" + (str(i) if i else "")

    def build_bundle(self):
        r, b = self.r, self.bundle
        os.makedirs(f"{b}/Contents/Frameworks")
        shutil.copytree(f"{self.bundle_src}/Contents/MacOS", f"{b}/Contents/MacOS")
        # Copied, not linked: rows run as another user, who may not enter the build folder.
        shutil.copytree(f"{self.bundle_src}/Contents/Frameworks/plugins", f"{b}/Contents/Frameworks/plugins")
        shutil.copytree(f"{self.bundle_src}/Contents/Resources", f"{b}/Contents/Resources")
        many = 1500 if (r["mode"] or "").startswith("crash") or r["mode"] == "pair" else 0
        big = 2 << 20 if r["mode"] == "fullvol" else 0
        self.new = f"{self.work}/stage/new/Nimbulo.app"
        stage_app(self.new, r["pkg_build"] or r["ship"] or "312", self.client, r["extra"], many, big)
        spk = f"{b}/Contents/Resources/package/nimbulo.spk"
        os.remove(spk)
        damage = r["pkg"]
        if damage in ("dotdot", "absolute"):
            hostile_tar(spk, self.new, "Contents/../../../escaped.txt" if damage == "dotdot" else f"{self.work}/abs.txt")
            if damage == "absolute":  # expected below the installation
                write(f"{self.new}/{self.work}/abs.txt", "hostile\n", 0o644)
        elif damage != "missing":
            fmt = "tar" if damage == "truncated" else r["fmt"]
            # Few descriptors: packing 1,500 entries must not hold one per file.
            subprocess.run([self.spk_pack, "--format", fmt, self.new, spk], check=True,
                           preexec_fn=lambda: resource.setrlimit(resource.RLIMIT_NOFILE, (64, 64)))
        if damage in ("empty", "garbage"):
            write(spk, random.Random(11).randbytes(100000) if damage == "garbage" else "")
        elif damage in ("truncated", "truncated_gz"):
            os.truncate(spk, os.path.getsize(spk) * 6 // 10)
        if r["ship"] is None:
            os.remove(f"{b}/{INFO}")
        else:
            write(f"{b}/{INFO}", info(r["ship"]))
        if r["debug"] is not None:
            write(f"{b}/log/launcher.debug", r["debug"])
        if r["mode"] == "pair":
            shutil.copytree(b, b + "-copy", symlinks=True)

    def build_home(self):
        r = self.r
        os.makedirs(self.home)
        if r["mode"] == "fullvol":
            os.makedirs(self.nim)
            size = (sum(os.path.getsize(f"{self.work}/stage/old/{p}") for p in tree(f"{self.work}/stage/old")
                        if os.path.isfile(f"{self.work}/stage/old/{p}")) >> 10) + 1024
            subprocess.run(["mount", "-t", "tmpfs", "-o", f"size={size}k", "tmpfs", self.nim], check=True)
        if r["old"]:
            shutil.copytree(f"{self.work}/stage/old/Nimbulo.app", self.app, symlinks=True)
        for i in r["backups"]:
            write(f"{self.backup(i)}/stale.txt", f"stale {i}\n")
        if r["aged"]:
            write(f"{self.nim}/app/Contents/old.txt", "aged\n")
        for rel, mode in (r["prep"] or {}).items():  # an existing file or folder, or a new folder
            p = os.path.join(self.home, rel)
            os.path.exists(p) or os.makedirs(p)
            os.chmod(p, mode)
        self.old_tree = tree(self.app)
        if "fr_FR.ISO-8859-1" in r["env"].values():  # not installed here: built for the row
            os.makedirs(f"{self.work}/loc")
            subprocess.run(["localedef", "-i", "fr_FR", "-f", "ISO-8859-1", f"{self.work}/loc/fr_FR.ISO-8859-1"], check=True)
        if r["user"]:
            subprocess.run(["chown", "-R", f"{r['user']}:{r['user']}", self.home], check=True)

    def stage_old(self):
        r = self.r
        if r["old"]:
            old = f"{self.work}/stage/old/Nimbulo.app"
            many = 1500 if (r["mode"] or "").startswith("crash") else 0
            stage_app(old, r["old"], self.client, (("Contents/Resources/old-only.txt", "old\n"),), many)
            if r["old_info"] is not None:
                write(f"{old}/{INFO}", r["old_info"])
            if not r["old_client"]:
                os.remove(f"{old}/{CLIENT}")

    def env(self, extra=None):
        env = {"PATH": f"{self.work}/bin:{self.bundle}/Contents/MacOS:/usr/sbin:/usr/bin:/sbin:/bin", "HOME": self.home,
               "LANG": "C.UTF-8", "QT_QPA_PLATFORM": "offscreen", "NIMBULO_SAMPLE_RECORD": self.record,
               "ASAN_OPTIONS": "detect_leaks=0", "XDG_RUNTIME_DIR": self.work}
        if os.path.isdir(f"{self.work}/loc"):
            env["LOCPATH"] = f"{self.work}/loc"
        env.update(self.san)
        env.update(self.r["env"], **(extra or {}))
        return {k: v for k, v in env.items() if v is not None}

    def detached(self, argv, env, uid=None):
        """Started through a shell that ends at once, so that process 1 adopts and reaps it."""
        pre = (lambda: (os.setgroups([]), os.setgid(uid), os.setuid(uid))) if uid else None
        p = subprocess.Popen(["sh", "-c", '"$@" >/dev/null 2>&1 & echo $!', "sh"] + argv, env=env,
                             stdout=subprocess.PIPE, preexec_fn=pre)
        return int(p.communicate()[0])

    def starts(self):
        return [l for l in read(self.record).splitlines() if l.startswith("start ")]

    def launch(self, crash=None):
        """One run of the launcher; its exit status, or 'killed'."""
        r, n = self.r, self.runs
        self.runs += 1
        exe = f"{self.bundle}/Contents/MacOS/Nimbulo"
        argv, cwd = [exe], self.work
        if r["via"] and not os.path.lexists(f"{self.work}/link2"):
            os.makedirs(f"{self.work}/bin")
            os.symlink(os.path.relpath(exe, f"{self.work}/bin"), f"{self.work}/bin/nimbulo")
            os.symlink("bin/nimbulo", f"{self.work}/link2")
        if r["via"]:
            argv = [{"link": f"{self.work}/bin/nimbulo", "chain": f"{self.work[1:]}/link2", "path": "nimbulo"}[r["via"]]]
            cwd = "/"
        out = open(f"{self.work}/out.{n}", "wb")
        err = open(f"{self.work}/err.{n}", "wb")
        if r["stdio"] == "gone_reader":
            rd, out = os.pipe()
            os.close(rd)
        uid, pidfile = r["user"], r["pid"] or ""
        def pre():
            if "{launcher}" in pidfile:  # the launcher's own pid, known only here
                write(f"{self.nim}/ui.pid", pidfile.format(launcher=os.getpid()))
            for fd in r["stdio"] if isinstance(r["stdio"], tuple) else ():
                os.close(fd)
            if r["nokill"]:  # PR_CAPBSET_DROP of CAP_KILL: root loses it at the exec
                ctypes.CDLL(None, use_errno=True).prctl(24, 5) == 0 or os._exit(99)
            if uid:
                os.setgroups([]), os.setgid(uid), os.setuid(uid)
        if not (r["env"].get("HOME") or "/").startswith("/"):  # the password database's home, bound to this row's
            subprocess.run(["mount", "--bind", self.home, "/root"], check=True)
        p = subprocess.Popen(argv, env=self.env(), stdout=out, stderr=err, preexec_fn=pre, cwd=cwd)
        self.pid = p.pid
        for f in {out, err}:
            f.close() if hasattr(f, "close") else os.close(f)
        pair = r["mode"] == "pair" and subprocess.Popen([f"{self.bundle}-copy/Contents/MacOS/Nimbulo"], env=self.env(),
                                                        stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        deadline, self.t_signal = time.time() + 120, None
        while p.poll() is None and time.time() < deadline:
            if crash and crash():
                p.kill()
                p.wait()
                return "killed"
            if self.t_signal is None and "\nsignal " in "\n" + read(self.record):
                self.t_signal = time.time()
                if r["mode"] == "second":
                    second = subprocess.run([exe], env=self.env(), stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
                    self.second = (second.returncode, p.poll() is None)
            time.sleep(0.0005 if crash else 0.02)
        rc, self.t_exit = p.wait(1), time.time()
        return rc if not pair else (rc or pair.wait(120))

    def wait_starts(self, count, none_expected=False):
        # The client starts detached, after the launcher may have ended; 30 s is
        # ample even under the sanitizers, and keeps a launcher that starts no
        # client from costing each row a minute.
        deadline = time.time() + (3 if none_expected else 30)
        while time.time() < deadline and (none_expected or len(self.starts()) < count):
            time.sleep(0.05)

    def log(self):
        text = read(f"{self.nim}/log/launcher.log")
        return self.mask(text)

    def mask(self, text):
        text = text.replace(self.bundle, "B").replace(self.home, "~")
        text = re.sub(r"^\S+ [ \d]\d \d\d:\d\d:\d\d ", "", text, flags=re.M)  # %b follows the locale
        return re.sub(r"^(\[[A-Z]+\] [a-z/-]+)\(\d+\): ", r"\1(N): ", text, flags=re.M).splitlines()


def alive(pid):
    stat = read(f"/proc/{pid}/stat")
    return bool(stat) and stat.rsplit(")", 1)[1].split()[0] != "Z"


def stamp(lines, text):
    """Second of the day of the first line holding text."""
    h, m, sec = re.search(r" (\d\d):(\d\d):(\d\d) ", next(l for l in lines if text in l)).groups()
    return int(h) * 3600 + int(m) * 60 + int(sec)


def exe_of(pid):
    try:
        return os.readlink(f"/proc/{pid}/exe")
    except OSError:
        return None


def in_order(want, have):
    """The first line of want not found, in order, among the lines of have (None: all found)."""
    it = iter(have)
    return next((w for w in want if not any(h == w for h in it)), None)


def crash_point(s, point):
    """When to kill: backup (made), entries:N (extracted), last (the last entry is written)."""
    a_info, backup = f"{s.app}/{INFO}", s.backup(0)
    if point == "backup":
        return lambda: os.path.isdir(backup)
    if point.startswith("entries:"):
        n = int(point[8:])
        return lambda: os.path.isdir(backup) and sum(len(f) + len(d) for _, d, f in os.walk(s.app)) >= n
    return lambda: os.path.isdir(backup) and os.path.exists(a_info)


def run_row(r, args):
    s = Scene(r, args)
    ok = True
    s.stage_old()
    s.build_bundle()
    s.build_home()
    env = s.env({"NIMBULO_SAMPLE_STOP_DELAY_MS": str(r["delay"])})
    sleepers = {"sleeper": s.detached(["sleep", "1000"], env, r["user"]), "root_sleeper": s.detached(["sleep", "1000"], env),
                "gone": s.detached(["true"], env), "self": os.getpid()}
    if r["running"]:
        s.detached([f"{s.app}/{CLIENT}"], env, r["user"])
        s.wait_starts(1)
        if not os.path.exists(f"{s.nim}/ui.pid"):
            return fail(r, "the old client did not start")
    if "{nobody_client}" in (r["pid"] or ""):
        sleepers["nobody_client"] = s.detached([f"{s.app}/{CLIENT}"], env, NOBODY)
        s.wait_starts(1)
    if r["pid"] and "{launcher}" not in r["pid"]:
        write(f"{s.nim}/ui.pid", r["pid"].format(**sleepers))
        if r["user"]:
            os.chown(f"{s.nim}/ui.pid", r["user"], r["user"])
    sleepers["init"] = 1
    exes = {k + "_exe": exe_of(v) for k, v in sleepers.items()}  # while they run
    before = len(s.starts())
    if r["mode"] and r["mode"].startswith("crash:"):
        if s.launch(crash_point(s, r["mode"][6:])) != "killed":
            return fail(r, f"the launcher ended before the point {r['mode']}")
        before = len(s.starts())
    rc = s.launch()
    s.wait_starts(before + len(r["starts"]), not r["starts"])
    if r["mode"] == "pair":  # time for a second client to show up
        time.sleep(2)
    if os.path.ismount("/root"):
        subprocess.run(["umount", "-l", "/root"], check=True)
    started = [re.search(r" build=(\S*)", l).group(1) for l in s.starts()[before:]]
    log, err = s.log(), s.mask(read(f"{s.work}/err.{s.runs - 1}"))
    pids = dict(sleepers, launcher=s.pid, **exes)
    expand = lambda lines: [re.sub(r"\{(\w+)\}", lambda m: str(pids.get(m.group(1), m.group(0))), l) for l in lines]
    if rc != 0:
        ok = fail(r, f"exit status {rc}")
    if started != list(r["starts"]):
        ok = fail(r, f"clients started: {started}, expected {list(r['starts'])}")
    want_tree = {"new": lambda: tree(s.new), "old": lambda: s.old_tree}.get(r["tree"])
    if want_tree and tree(s.app) != want_tree():
        a, b = tree(s.app), want_tree()
        ok = fail(r, f"installed tree is not the {r['tree']} one: " + str(sorted(set(a.items()) ^ set(b.items()))[:6]))
    if r["tree"] == "none" and os.path.exists(f"{s.app}/{CLIENT}"):
        ok = fail(r, "a client executable was installed")
    if os.path.exists(f"{s.work}/abs.txt") or os.path.exists(f"{s.home}/escaped.txt"):
        ok = fail(r, "the package wrote outside the installation")
    left = sorted(n for n in os.listdir(s.nim) if n.startswith("Nimbulo.app_")) if os.path.isdir(s.nim) else []
    allowed = sorted(os.path.basename(s.backup(int(str(i).rstrip("?")))) for i in r["left"])
    if left != allowed and not (left == [] and all("?" in str(i) for i in r["left"])):
        ok = fail(r, f"backups left: {left}, expected {allowed}")
    if r["aged"] and os.path.exists(f"{s.nim}/app"):
        ok = fail(r, "~/.Nimbulo/app was not removed")
    if r["stdio"] is None and r["env"].get("HOME", "") is not None:
        line = f"lib path = '{s.bundle}/Contents/Frameworks/plugins'"
        if read(f"{s.work}/out.{s.runs - 1}").splitlines()[:1] != [line]:
            ok = fail(r, f"stdout does not start with {line!r}: {read(f'{s.work}/out.{s.runs - 1}')!r}")
    for what, want, have in (("log", expand(r["log"]), log), ("stderr", r["stderr"], err)):
        if r["exact"] and want and have != want:
            ok = fail(r, f"{what} differs:\n  " + "\n  ".join(have) + "\nexpected:\n  " + "\n  ".join(want))
        missing = in_order(want, have)
        if missing is not None:
            ok = fail(r, f"{what} lacks, in order: {missing!r}\n  " + "\n  ".join(have))
    for bad in r["nolog"]:
        if any(bad in l for l in log):
            ok = fail(r, f"log has {bad!r}")
    for text in r["once"]:
        if sum(text in l for l in log) != 1:
            ok = fail(r, f"log has {sum(text in l for l in log)} lines with {text!r}, expected one:\n  " + "\n  ".join(log))
    raw = read(f"{s.nim}/log/launcher.log").splitlines()
    if r["within"] and (stamp(raw, "extract package:") - stamp(raw, "local appdata exist")) % 86400 > r["within"]:
        ok = fail(r, "the stop waited before the extraction:\n  " + "\n  ".join(raw))
    if r["env"].get("HOME", "") is None and (os.listdir(s.home) or os.path.lexists("/.Nimbulo")):
        ok = fail(r, f"without a home something was created: {os.listdir(s.home)}")
    for name in ("sleeper", "root_sleeper"):
        if not alive(sleepers[name]):
            ok = fail(r, f"the {name} (pid {sleepers[name]}) was signalled")
    rec = read(s.record).splitlines()
    if r["running"] and r["mode"] is None and r["tree"] == "new":
        old = rec[0].split()[1]
        mine = [l.split()[0] for l in rec if l.split()[1] == old]
        want = ["start", "signal", "stop"] if r["delay"] < 5000 else ["start", "signal"]
        if mine != want or (r["delay"] < 5000 and " present=1 " not in [l for l in rec if l.startswith("stop ")][0]):
            ok = fail(r, f"old client should {'stop before the rename' if r['delay'] < 5000 else 'be killed'}:\n" + "\n".join(rec))
        if alive(old[4:]):
            ok = fail(r, "the old client still runs")
        waited = s.t_exit - (s.t_signal or s.t_exit)
        if r["delay"] >= 5000 and waited < 4.9:
            ok = fail(r, f"SIGKILL {waited:.1f} s after SIGTERM, before the five one-second probes")
        if r["delay"] < 5000 and waited > 4.5:  # about 1 s expected; the probes went on
            ok = fail(r, f"the run took {waited:.1f} s after SIGTERM though the client was gone")
    if r["mode"] == "second":
        if getattr(s, "second", None) != (0, True):
            ok = fail(r, f"second instance (exit status, first still busy): {getattr(s, 'second', None)}")
        if sum("extract package:" in l for l in log) != 1:
            ok = fail(r, "the second instance extracted too")
    if r["fds"]:
        fds = [l.split(" fds=")[1].split()[0] for l in s.starts()[before:]]
        if [sorted(map(int, f.split(","))) for f in fds] != [[0, 1, 2]]:
            ok = fail(r, f"the client inherited descriptors {fds}")
        for pid in [re.search(r" pid=(\d+)", l).group(1) for l in s.starts()[before:]]:
            links = [os.path.realpath(f"/proc/{pid}/fd/{fd}") for fd in range(3)]
            if not alive(pid) or any(l.startswith(s.nim) for l in links):
                ok = fail(r, f"the client {'holds ' + str(links) if alive(pid) else 'has ended'}")
    if not ok:
        print(f"scenario.{r['name']}: kept for inspection: {s.work}", file=sys.stderr)
    return ok


def main():
    if sys.argv[1:] == ["--list"]:
        print("\n".join(ROWS))
        return 0
    if len(sys.argv) == 7 and sys.argv[1] == "--inside":
        try:
            return 0 if run_row(ROWS[sys.argv[2]], sys.argv[3:]) else 1
        except Exception as e:
            fail(ROWS[sys.argv[2]], f"runner error: {e!r}")
            raise
    name, args = sys.argv[1], sys.argv[2:]
    r = ROWS[name]
    probe = "mount -t tmpfs -o size=1m tmpfs /mnt"
    if subprocess.run(["unshare", "--pid", "--fork", "--mount-proc", "sh", "-c", probe], capture_output=True).returncode:
        print(f"scenario.{name}: SKIPPED: unshare --pid --fork --mount-proc with a tmpfs mount is not permitted here; "
              "the launcher may signal ui.pid values such as 0 or -1 only inside a PID namespace")
        return 77
    if r["user"] and os.geteuid() != 0:
        print(f"scenario.{name}: SKIPPED: running the launcher as uid {r['user']} needs root")
        return 77
    work = tempfile.mkdtemp(prefix="nimbulo-scen-")
    rc = subprocess.run(["unshare", "--pid", "--fork", "--mount-proc", "sh", "-c", '"$@" & wait $!', "sh",
                         sys.executable, os.path.abspath(__file__), "--inside", name, work] + args).returncode
    if rc == 0:  # only now, with every client of the row gone: a late one would make its home again
        subprocess.run(["rm", "-rf", work])
    if rc < 0 or rc > 128:
        print(f"scenario.{name}: the runner was killed (status {rc}): the launcher signalled its process group or every process")
    return rc


if __name__ == "__main__":
    sys.exit(main())
