#!/usr/bin/env python3
r"""Plants the faults listed in tests/mutants.txt one at a time and reports
which of them the test suite catches.

    scripts/mutants.py                   every fault in the list
    scripts/mutants.py --only ID [ID...] just these faults
    scripts/mutants.py --list            the faults and whether each still
                                         applies; builds and runs nothing
    scripts/mutants.py --markdown FILE   also write the result table as
                                         Markdown (FILE "-": standard output)

Other options: --jobs N (ninja and ctest, default 2), --timeout S (bound on
the tests of one fault; by default twice the unmutated run plus a minute),
--no-baseline (skip the unmutated run; the bound is then 20 minutes unless
given), --sanitize (the AddressSanitizer and UndefinedBehaviorSanitizer
build instead of RelWithDebInfo), --work DIR (where the mirror and its build
live, default /tmp/calderix-mutants/<name of the checkout>).

The list: one fault per line, four fields separated by a TAB:

    id  file  original text  replacement

file is relative to the top of the checkout. In the two texts "\t", "\n"
and "\\" stand for a TAB, a line feed and a backslash (so a C escape such
as \n in the source is written \\n); no other backslash sequence is
allowed. An empty replacement deletes the text. Lines starting with "#" and
blank lines are ignored. The original text must occur exactly once in its
file, or the fault is reported as stale and not run: pick a whole statement
or expression, so that small edits elsewhere leave the row valid.

How a run goes. The checkout is mirrored into WORK/tree (the files git
tracks or would track, uncommitted edits included; only files whose content
differs are copied, so the build stays incremental, and a fault left behind
by a killed run is undone here at the latest). WORK/build is configured once
(Ninja, ccache when installed, benchmarks off). Unless --no-baseline, the
unmutated suite is built and run first and must pass: otherwise every fault
would count as caught. Then, for each fault: write the mutant into the
mirror, build with ninja, run ctest with --stop-on-failure and without the
valgrind label, and put the original file back; the original is written
back before anything else happens on any way out, Ctrl-C and SIGTERM
included. The developer's checkout is never written to.

Test order. With -j, ctest starts the tests that failed in its previous run
first and then the rest in decreasing order of their measured duration
(CTestCostData.txt). That order finishes a passing run soonest, which is
what a surviving fault costs anyway, but with --stop-on-failure a killed
fault would wait behind minute-long whole-launcher scenarios before the
quick test that catches it gets its turn. So each fault runs the suite in
up to three ctest calls, each in ctest's own order within it and none
repeating a test: (1) the tests that caught this fault or another fault of
the same file before (kept in WORK/killers.json across runs), (2) the
suites labelled for the file (FIRST_LABELS), (3) everything else. A second
run of the list thus costs little more than the builds for the faults that
are caught; the first run learns as it goes, since the list keeps the
faults of one file together.

Outcomes: killed (a test failed; the first failing tests are named),
survived (every test passed: a gap in the suite), timeout (the tests ran
past the bound; a hang that ctest's own per-test limit would report
later), did-not-compile, stale. Exit status 0 when every fault applied and
none survived or timed out, 1 otherwise, 2 for a bad list, a failing
baseline or a failing configure.
"""

import argparse
import fcntl
import filecmp
import json
import os
import re
import shutil
import signal
import subprocess
import sys
import time
from dataclasses import dataclass, field
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent
FAULTS_FILE = ROOT / "tests" / "mutants.txt"

# ctest labels (a regular expression) of the suites that test a source
# file, by path prefix; the first match wins. Files without an entry go
# straight to the whole suite.
FIRST_LABELS = [
    ("lib/libustring/", "ustring"),
    ("lib/liblogger/", "common"),
    ("libcommon/config", "common"),
    ("libcommon/", "localisation"),
    ("lib/libsingleapp/", "singleapp"),
    ("lib/libplatform/launch_services", "service"),
    ("lib/libplatform/process_info", "service|e2e"),
    ("lib/libplatform/user_home", "e2e"),
    ("lib/liblayout/", "tools|e2e"),
    ("lib/libpackagerules/", "tools|extractor"),
    ("lib/libfile/", "file"),
    ("lib/libtmpname/", "file"),
    ("lib/libplatform/", "file"),
    ("ui-client/launcher/extractor", "extractor"),
    ("ui-client/launcher/launcher", "controller"),
    ("ui-client/launcher/main", "e2e"),
    ("ui-client/launcher/", "service|e2e"),
    ("tools/vpkpack/", "tools"),
    ("tools/demo-ui/", "tools"),
]

ESCAPES = {"t": "\t", "n": "\n", "\\": "\\"}


class ListError(Exception):
    pass


@dataclass
class Fault:
    id: str
    file: str
    original: str
    replacement: str
    problem: str = ""  # why the fault is stale, empty when it applies


@dataclass
class Result:
    fault: Fault
    outcome: str
    seconds: float = 0.0  # build and tests
    build_seconds: float = 0.0
    caught_by: list = field(default_factory=list)


def unescape(text, line_no):
    out = []
    i = 0
    while i < len(text):
        c = text[i]
        if c == "\\":
            nxt = text[i + 1 : i + 2]
            if nxt not in ESCAPES:
                raise ListError(f"line {line_no}: unknown escape '\\{nxt}'")
            out.append(ESCAPES[nxt])
            i += 2
        else:
            out.append(c)
            i += 1
    return "".join(out)


def read_faults(path):
    faults = []
    seen = set()
    for line_no, raw in enumerate(path.read_text(encoding="utf-8").splitlines(), 1):
        if not raw.strip() or raw.lstrip().startswith("#"):
            continue
        parts = raw.split("\t")
        if len(parts) != 4:
            raise ListError(f"line {line_no}: {len(parts)} TAB-separated fields, expected 4")
        fid, file, original, replacement = parts
        if not re.fullmatch(r"[A-Za-z0-9][A-Za-z0-9._-]*", fid):
            raise ListError(f"line {line_no}: bad id '{fid}'")
        if fid in seen:
            raise ListError(f"line {line_no}: id '{fid}' used twice")
        seen.add(fid)
        original = unescape(original, line_no)
        replacement = unescape(replacement, line_no)
        if not original:
            raise ListError(f"line {line_no}: empty original text")
        if original == replacement:
            raise ListError(f"line {line_no}: replacement equals the original")
        if Path(file).is_absolute() or ".." in Path(file).parts:
            raise ListError(f"line {line_no}: file '{file}' is not inside the checkout")
        faults.append(Fault(fid, file, original, replacement))
    return faults


def check_applies(fault, tree):
    """Sets fault.problem when the original text is not exactly once in its file."""
    path = tree / fault.file
    if not path.is_file():
        fault.problem = "file missing"
        return
    count = path.read_text(encoding="utf-8").count(fault.original)
    if count != 1:
        fault.problem = "text missing" if count == 0 else f"text found {count} times"


def first_label(file):
    for prefix, label in FIRST_LABELS:
        if file.startswith(prefix):
            return label
    return None


# --- the mirror ---------------------------------------------------------


def tracked_files(root):
    out = subprocess.run(
        ["git", "-C", str(root), "ls-files", "-z", "--cached", "--others", "--exclude-standard"],
        check=True, capture_output=True,
    ).stdout
    return sorted({name for name in out.decode().split("\0") if name and (root / name).is_file()})


def sync_mirror(root, tree):
    """Makes tree hold exactly the checkout's files; copies only those whose
    content or mode differs, each with a fresh mtime so ninja sees it."""
    wanted = tracked_files(root)
    copied = []
    for name in wanted:
        src, dst = root / name, tree / name
        if dst.is_file() and os.stat(src).st_mode == os.stat(dst).st_mode \
                and filecmp.cmp(src, dst, shallow=False):
            continue
        dst.parent.mkdir(parents=True, exist_ok=True)
        if dst.exists():
            dst.unlink()
        shutil.copyfile(src, dst)
        shutil.copymode(src, dst)
        copied.append(name)
    keep = set(wanted)
    for path in sorted(tree.rglob("*"), reverse=True):
        rel = path.relative_to(tree).as_posix()
        if path.is_dir():
            if not any(path.iterdir()):
                path.rmdir()
        elif rel not in keep:
            path.unlink()
    return copied


def configure(work, tree, build, sanitize):
    """Configures build (again: cheap, and an older build dir gets today's
    settings); False (after saying why, with build removed) on failure."""
    args = ["cmake", "-S", str(tree), "-B", str(build), "-G", "Ninja", "-DCALDERIX_BUILD_BENCH=OFF"]
    if sanitize:
        args += ["-DCMAKE_BUILD_TYPE=Debug", "-DCALDERIX_SANITIZE=ON"]
    else:
        args += ["-DCMAKE_BUILD_TYPE=RelWithDebInfo"]
    if shutil.which("ccache"):
        args += ["-DCMAKE_C_COMPILER_LAUNCHER=ccache", "-DCMAKE_CXX_COMPILER_LAUNCHER=ccache"]
    # Most of a fault's build is relinking the test binaries; lld does that
    # four to six times faster than the default linker here. Linker flags
    # leave the objects as they are, so switching costs one relink.
    lld = "-fuse-ld=lld" if shutil.which("ld.lld") else ""
    for kind in ("EXE", "SHARED", "MODULE"):
        args.append(f"-DCMAKE_{kind}_LINKER_FLAGS={lld}")
    log = work / "configure.log"
    with open(log, "w") as out:
        if subprocess.run(args, stdout=out, stderr=subprocess.STDOUT).returncode == 0:
            return True
    shutil.rmtree(build, ignore_errors=True)
    print(f"mutants: configure failed, see {log}", file=sys.stderr)
    return False


# --- building and testing ----------------------------------------------


def run_logged(args, log, cwd=None, timeout=None):
    """Runs args in a session of its own with output appended to log.
    Returns the exit status, or None when it was stopped at timeout."""
    with open(log, "a") as out:
        out.write(f"$ {' '.join(args)}\n")
        out.flush()
        proc = subprocess.Popen(args, cwd=cwd, stdout=out, stderr=subprocess.STDOUT,
                                start_new_session=True)
        try:
            return proc.wait(timeout=timeout)
        except subprocess.TimeoutExpired:
            return None
        finally:
            if proc.poll() is None:
                stop_group(proc)


def stop_group(proc):
    for sig, grace in ((signal.SIGTERM, 5), (signal.SIGKILL, 30)):
        try:
            os.killpg(proc.pid, sig)
        except ProcessLookupError:
            return
        try:
            proc.wait(timeout=grace)
            return
        except subprocess.TimeoutExpired:
            pass


def failed_tests(log):
    """The test names in the last "tests FAILED" block of log."""
    names = []
    lines = log.read_text(errors="replace").splitlines()
    for i, line in enumerate(lines):
        if line.startswith("The following tests FAILED"):
            names = []
            for row in lines[i + 1 :]:
                m = re.match(r"\s+\d+ - (\S+)", row)
                if not m:
                    break
                names.append(m.group(1))
    return names


def ctest_regex(names):
    return "^(" + "|".join(re.sub(r"([][.*+?^$|(){}\\])", r"\\\1", n) for n in names) + ")$"


def run_tests(build, first, label, jobs, budget, log):
    """Runs the suite and returns (outcome, failed tests): the tests named in
    first, then the suites labelled label, then the rest."""
    base = ["ctest", "--stop-on-failure", "-j", str(jobs)]
    skip = ["-E", ctest_regex(first)] if first else []
    calls = []
    if first:
        calls.append(base + ["-R", ctest_regex(first), "-LE", "^valgrind$"])
    if label:
        calls.append(base + ["-L", f"^({label})$"] + skip)
    calls.append(base + ["-LE", f"^(valgrind|{label})$" if label else "^valgrind$"] + skip)
    deadline = time.monotonic() + budget
    for call in calls:
        status = run_logged(call, log, cwd=build, timeout=max(1, deadline - time.monotonic()))
        if status is None:
            return "timeout", []
        if status != 0:
            return "killed", failed_tests(log)
    return "survived", []


class Killers:
    """The tests that caught each fault and the faults of each file, kept in
    WORK/killers.json across runs; they run first next time."""

    def __init__(self, path):
        self.path = path
        self.data = {"faults": {}, "files": {}}
        if path.exists():
            try:
                self.data = json.loads(path.read_text())
            except ValueError:
                pass

    def first(self, fault):
        names = self.data["faults"].get(fault.id, []) + self.data["files"].get(fault.file, [])
        return list(dict.fromkeys(names))[:8]

    def record(self, fault, caught):
        caught = [n for n in caught if not n.startswith("(")][:3]
        if not caught:
            return
        self.data["faults"][fault.id] = caught
        files = self.data["files"]
        files[fault.file] = list(dict.fromkeys(caught + files.get(fault.file, [])))[:8]
        self.path.write_text(json.dumps(self.data, indent=1, sort_keys=True))


def build_tree(build, jobs, log):
    return run_logged(["ninja", "-C", str(build), "-j", str(jobs)], log) == 0


class Interrupted(Exception):
    pass


def on_signal(signum, _frame):
    raise Interrupted(signal.Signals(signum).name)


def run_fault(fault, tree, build, jobs, budget, logs, killers):
    path = tree / fault.file
    saved = path.read_bytes()
    text = saved.decode("utf-8")
    log = logs / f"{fault.id}.log"
    log.unlink(missing_ok=True)
    start = time.monotonic()
    try:
        path.write_text(text.replace(fault.original, fault.replacement, 1), encoding="utf-8")
        built = build_tree(build, jobs, log)
        build_seconds = time.monotonic() - start
        if not built:
            # A test binary that fails while listing its tests fails the build too.
            if "Error running test executable" in log.read_text(errors="replace"):
                return Result(fault, "killed", build_seconds, build_seconds, ["(test discovery)"])
            return Result(fault, "did-not-compile", build_seconds, build_seconds)
        outcome, caught = run_tests(build, killers.first(fault), first_label(fault.file), jobs, budget,
                                    log)
        if outcome == "killed":
            killers.record(fault, caught)
        return Result(fault, outcome, time.monotonic() - start, build_seconds, caught)
    finally:
        path.write_bytes(saved)


# --- reporting ------------------------------------------------------------

OUTCOMES = ["killed", "survived", "timeout", "did-not-compile", "stale"]


def describe(result):
    if result.outcome == "stale":
        return result.fault.problem
    if result.caught_by:
        more = f" (+{len(result.caught_by) - 2})" if len(result.caught_by) > 2 else ""
        return ", ".join(result.caught_by[:2]) + more
    return ""


def totals_line(results):
    counts = {o: sum(r.outcome == o for r in results) for o in OUTCOMES}
    return ", ".join(f"{counts[o]} {o}" for o in OUTCOMES) + f" (of {len(results)})"


def markdown(results):
    rows = ["| Fault | File | Outcome | Caught by | Seconds |", "|---|---|---|---|---|"]
    for r in results:
        caught = describe(r).replace("|", "\\|")
        seconds = f"{r.seconds:.0f}" if r.outcome != "stale" else ""
        rows.append(f"| {r.fault.id} | {r.fault.file} | {r.outcome} | {caught} | {seconds} |")
    rows.append("")
    rows.append(f"Totals: {totals_line(results)}.")
    return "\n".join(rows) + "\n"


# --- main -------------------------------------------------------------------


def main():
    parser = argparse.ArgumentParser(description=__doc__.split("\n\n")[0],
                                     formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--only", nargs="+", metavar="ID", help="run only these faults")
    parser.add_argument("--list", action="store_true", help="list the faults and whether each applies")
    parser.add_argument("--markdown", metavar="FILE", help="write the result table as Markdown")
    parser.add_argument("--jobs", type=int, default=2, help="parallel jobs for ninja and ctest")
    parser.add_argument("--timeout", type=float, help="seconds the tests of one fault may take")
    parser.add_argument("--no-baseline", action="store_true", help="skip the unmutated run")
    parser.add_argument("--sanitize", action="store_true", help="use the ASan+UBSan build")
    parser.add_argument("--work", type=Path, help="folder for the mirror and its build")
    args = parser.parse_args()

    try:
        faults = read_faults(FAULTS_FILE)
    except (ListError, UnicodeDecodeError) as e:
        print(f"mutants: {FAULTS_FILE}: {e}", file=sys.stderr)
        return 2
    if args.only:
        known = {f.id for f in faults}
        unknown = [i for i in args.only if i not in known]
        if unknown:
            print(f"mutants: no such fault: {' '.join(unknown)}", file=sys.stderr)
            return 2
        faults = [f for f in faults if f.id in args.only]
    for fault in faults:
        check_applies(fault, ROOT)

    if args.list:
        width = max((len(f.id) for f in faults), default=0)
        for f in faults:
            print(f"{f.id:<{width}}  {f.file}  {'stale: ' + f.problem if f.problem else 'ok'}")
        stale = sum(bool(f.problem) for f in faults)
        print(f"{len(faults)} faults, {stale} stale")
        return 1 if stale else 0

    work = args.work or Path("/tmp/calderix-mutants") / ROOT.name
    tree = work / "tree"
    build = work / ("build-asan" if args.sanitize else "build")
    logs = work / "logs"
    for folder in (tree, logs):
        folder.mkdir(parents=True, exist_ok=True)
    lock = open(work / "lock", "w")
    try:
        fcntl.flock(lock, fcntl.LOCK_EX | fcntl.LOCK_NB)
    except BlockingIOError:
        print(f"mutants: another run is using {work}", file=sys.stderr)
        return 2

    signal.signal(signal.SIGTERM, on_signal)
    if signal.getsignal(signal.SIGHUP) != signal.SIG_IGN:  # not under nohup
        signal.signal(signal.SIGHUP, on_signal)
    results = []
    try:
        copied = sync_mirror(ROOT, tree)
        names = ": " + " ".join(copied) if 0 < len(copied) <= 5 else ""
        print(f"mirror {tree}: {len(copied)} files updated{names}", flush=True)
        if not configure(work, tree, build, args.sanitize):
            return 2
        budget = args.timeout or 1200.0
        if not args.no_baseline:
            log = logs / "baseline.log"
            log.unlink(missing_ok=True)
            start = time.monotonic()
            if not build_tree(build, args.jobs, log):
                print(f"mutants: the unmutated tree does not build, see {log}", file=sys.stderr)
                return 2
            built = time.monotonic()
            outcome, failed = run_tests(build, [], None, args.jobs, 3600.0, log)
            if outcome != "survived":
                print(f"mutants: the unmutated suite fails ({outcome}: {' '.join(failed)}), see {log}",
                      file=sys.stderr)
                return 2
            tested = time.monotonic() - built
            print(f"baseline: build {built - start:.0f}s, tests {tested:.0f}s", flush=True)
            budget = args.timeout or 2 * tested + 60
        killers = Killers(work / "killers.json")
        width = max((len(f.id) for f in faults), default=0)
        for n, fault in enumerate(faults, 1):
            if fault.problem:
                result = Result(fault, "stale")
            else:
                result = run_fault(fault, tree, build, args.jobs, budget, logs, killers)
            results.append(result)
            seconds = ""
            if result.outcome != "stale":
                seconds = f"{result.seconds:4.0f}s (build {result.build_seconds:.0f}s)"
            print(f"[{n:>3}/{len(faults)}] {fault.id:<{width}}  {result.outcome:<15} {seconds:<18}  "
                  f"{describe(result)}", flush=True)
            if args.markdown and args.markdown != "-":  # kept current, for a run cut short
                Path(args.markdown).write_text(markdown(results))
    except (KeyboardInterrupt, Interrupted) as e:
        print(f"\nmutants: interrupted ({str(e) or 'Ctrl-C'}); the mirror holds the original files; "
              f"so far: {totals_line(results)}", file=sys.stderr)
        return 130

    print(f"totals: {totals_line(results)}")
    if args.markdown == "-":
        sys.stdout.write(markdown(results))
    bad = [r for r in results if r.outcome in ("survived", "timeout", "stale")]
    return 1 if bad else 0


if __name__ == "__main__":
    sys.exit(main())
