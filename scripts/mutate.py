#!/usr/bin/env python3
"""Changes the product one operator, constant or condition at a time and looks whether the folder's own tests notice.

Works on a copy of the tree in build/mutate, so the working tree is never changed. The spots are random and spread over
the folders by their lines of code. A change that does not compile does not count; one whose tests run into the time
limit counts as killed. The survivors of the last run are in build/mutate/survivors.txt; --again tries only those.
"""
import argparse
import filecmp
import json
import os
import random
import re
import shutil
import signal
import subprocess
import sys
import tempfile
import time
from collections import Counter, namedtuple
from pathlib import Path

TOP = Path(__file__).resolve().parent.parent
WORK = TOP / "build/mutate"
TREE = WORK / "tree"
BUILD = WORK / "build"
SURVIVORS = WORK / "survivors.txt"

NOT_PRODUCT = {"bench", "data", "fuzz", "packaging", "scripts", "tests", "tools"}
# Test programs that are elsewhere than in tests/<folder>, with the cases to run.
OTHER_TESTS = {
    "chain": {"chain_test": "*"},
    "articles": {"road_test": "*PluFile*:*TableFile*"},
    "command": {"road_test": "*CommandLine*:*PluFile*:*TableFile*:Night*"},
    "customers": {"shell_forms_test": "FrmSetup*"},
    "paper": {"overlay_sheet_test": "*", "overlay_print_queue_test": "*", "reports_pages_test": "*"},
}

# What is changed, and into what. The formatter puts blanks around binary operators only, so template brackets,
# pointers and references do not match.
OPERATORS = {
    "==": "!=", "!=": "==", "<": "<=", "<=": "<", ">": ">=", ">=": ">", "&&": "||", "||": "&&",
    "+": "-", "-": "+", "*": "/", "/": "*", "%": "*", "+=": "-=", "-=": "+=",
}
WORDS = {"true": "false", "false": "true", "++": "--", "--": "++"}
PATTERNS = [
    (re.compile(r"(?<=\s)(?:" + "|".join(map(re.escape, OPERATORS)) + r")(?=\s)"), lambda old: OPERATORS[old]),
    (re.compile(r"\btrue\b|\bfalse\b|\+\+|--"), lambda old: WORDS[old]),
    (re.compile(r"!(?=[\w(])"), lambda old: ""),
    (re.compile(r"(?<![\w.<])\d+(?![\w.>])"), lambda old: str(int(old) + 1)),
    (re.compile(r"(?<![\w.])\d+\.\d+(?![\w.])"), lambda old: str(float(old) + 1)),
]
NOT_CODE = re.compile(r"""//[^\n]*|/\*.*?\*/|R"(\w*)\(.*?\)\1"|"(?:\\.|[^"\\\n])*"|'(?:\\.|[^'\\\n])'"""
                      r"""|^[ \t]*\#(?:\\\n|[^\n])*""", re.DOTALL | re.MULTILINE)

# at: offset in the file; line: 1-based
Spot = namedtuple("Spot", "file line at old new")


def conditions(code):
    """Yields (offset, condition) of each "if" and "while" that declares nothing."""
    for match in re.finditer(r"\b(?:if|while) \(", code):
        depth, end = 1, match.end()
        while depth:
            depth += {"(": 1, ")": -1}.get(code[end], 0)
            end += 1
        condition = code[match.end():end - 1]
        if ";" not in condition and " = " not in condition:
            yield match.end(), condition


def spots_of(file):
    """Every change that the tables know for a file."""
    text = (TREE / file).read_text(encoding="utf-8")
    code = NOT_CODE.sub(lambda match: re.sub(r"[^\n]", " ", match[0]), text)
    changes = [(m.start(), m[0], new(m[0])) for pattern, new in PATTERNS for m in pattern.finditer(code)]
    for at, condition in conditions(code):
        old = text[at:at + len(condition)]
        changes.append((at, old, f"!({old})"))
    return [Spot(file, code.count("\n", 0, at) + 1, at, old, new) for at, old, new in changes]


def files_of(folder):
    return sorted(str(path.relative_to(TREE)) for path in (TREE / folder).rglob("*.cpp"))


def random_spots(folder, rng):
    """One change for each line that has any, in random order."""
    by_line = {}
    for file in files_of(folder):
        for spot in spots_of(file):
            by_line.setdefault((file, spot.line), []).append(spot)
    lines = sorted(by_line)
    rng.shuffle(lines)
    return [rng.choice(by_line[line]) for line in lines]


def shares(count, folders):
    """How many of the changes each folder gets, by its lines of code."""
    lines = {folder: sum((TREE / file).read_bytes().count(b"\n") for file in files_of(folder)) for folder in folders}
    exact = {folder: count * lines[folder] / sum(lines.values()) for folder in folders}
    result = {folder: int(exact[folder]) for folder in folders}
    for folder in sorted(folders, key=lambda f: result[f] - exact[f])[:count - sum(result.values())]:
        result[folder] += 1
    return result


def update_copy():
    """Makes the copy equal to the working tree. What is equal keeps its time, so only the rest is built again."""
    listed = subprocess.run(["git", "ls-files", "-coz", "--exclude-standard"], cwd=TOP, check=True, capture_output=True)
    files = {name for name in os.fsdecode(listed.stdout).split("\0") if (TOP / name).is_file()}
    for old in TREE.rglob("*"):
        if old.is_file() and str(old.relative_to(TREE)) not in files:
            old.unlink()
    for name in files:
        target = TREE / name
        if not target.exists() or not filecmp.cmp(TOP / name, target, shallow=False):
            target.parent.mkdir(parents=True, exist_ok=True)
            shutil.copyfile(TOP / name, target)
            shutil.copymode(TOP / name, target)


def tests_of(folder):
    """The test programs of a folder and the cases to run of each."""
    listed = TREE / "tests" / folder / "CMakeLists.txt"
    names = re.findall(r"^norvane_test\((\w+)", listed.read_text(), re.MULTILINE) if listed.exists() else []
    return dict.fromkeys(names, "*") | OTHER_TESTS.get(folder, {})


def run(command, seconds=None, **options):
    """Returns the exit code, or None at the time limit. Kills everything that the command started at the end."""
    child = subprocess.Popen(command, stdin=subprocess.DEVNULL, start_new_session=True, **options)
    try:
        return child.wait(seconds)
    except subprocess.TimeoutExpired:
        return None
    finally:
        try:
            os.killpg(child.pid, signal.SIGKILL)
        except ProcessLookupError:
            pass
        child.wait()


def build(tests, output):
    with open(output, "wb") as log:
        return run(["cmake", "--build", BUILD, "--target", *tests], stdout=log, stderr=subprocess.STDOUT) == 0


def run_tests(tests, seconds, output):
    """Returns "survived", "killed" or "timed out"."""
    environment = os.environ | {"QT_QPA_PLATFORM": "offscreen"}
    for name, cases in tests.items():
        program = next(path for path in (BUILD / "tests").rglob(name) if path.is_file())
        with tempfile.TemporaryDirectory(prefix="mutate") as scratch, open(output, "wb") as log:
            os.chmod(scratch, 0o755)  # a database server of a test may run as another user
            code = run([program, f"--gtest_filter={cases}", "--gtest_fail_fast", "--gtest_brief=1"], seconds,
                       cwd=program.parent, env=environment | {"TMPDIR": scratch}, stdout=log, stderr=subprocess.STDOUT)
        if code != 0:
            return "timed out" if code is None else "killed"
    return "survived"


def outcome_of(spot, tests, seconds):
    source = TREE / spot.file
    text = source.read_text(encoding="utf-8")
    try:
        source.write_text(text[:spot.at] + spot.new + text[spot.at + len(spot.old):], encoding="utf-8")
        if not build(tests, WORK / "build.log"):
            return "not compiled"
        return run_tests(tests, seconds, WORK / "test.log")
    finally:
        source.write_text(text, encoding="utf-8")


def time_limit(tests):
    """Runs the tests without a change. Under load they may take five times as long. Returns None when they fail."""
    if not build(tests, WORK / "build.log"):
        return None
    start = time.monotonic()
    passed = run_tests(tests, None, WORK / "test.log") == "survived"
    return 30 + 5 * (time.monotonic() - start) if passed else None


def described(spot):
    return f"{spot.file}:{spot.line}: {' '.join(spot.old.split())} -> {' '.join(spot.new.split()) or 'nothing'}"


def try_folder(folder, spots, count, results):
    """Tries changes until @p count of them have compiled, those of one file one after the other."""
    tests = tests_of(folder)
    seconds = time_limit(tests)
    if not seconds:
        print(f"{folder}: without a change its tests do not build or pass, see {WORK}/build.log and test.log", flush=True)
        return
    while count > 0 and spots:
        batch, spots = sorted(spots[:count]), spots[count:]
        for spot in batch:
            outcome = outcome_of(spot, tests, seconds)
            results.append((spot, outcome))
            print(f"{outcome:12}  {described(spot)}", flush=True)
            count -= outcome != "not compiled"


def report(results):
    counts = {}
    for spot, outcome in results:
        for row in (spot.file.split("/")[0], "all"):
            counts.setdefault(row, Counter())[outcome] += 1
    counts["all"] = counts.pop("all", Counter())
    print(f"\n{'folder':12} compiled   killed  timed out  survived    rate")
    for row, c in counts.items():
        compiled = c.total() - c["not compiled"]
        rate = 100 * (compiled - c["survived"]) / max(compiled, 1)
        print(f"{row:12} {compiled:8} {c['killed']:8} {c['timed out']:10} {c['survived']:9} {rate:6.1f}%")
    survivors = [spot for spot, outcome in results if outcome == "survived"]
    for spot in survivors:
        print(f"\n{described(spot)}\n    {(TREE / spot.file).read_text().splitlines()[spot.line - 1].strip()}")
    SURVIVORS.write_text("".join(json.dumps(spot) + "\n" for spot in survivors))


def last_survivors(folder):
    """Those of the last run whose place is still the same."""
    listed = [Spot(*json.loads(line)) for line in SURVIVORS.read_text().splitlines()]
    return [spot for spot in listed if spot.file.startswith(folder + "/") and spot in spots_of(spot.file)]


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--count", type=int, default=20, help="changes that compile (20)")
    parser.add_argument("--seed", type=int, default=int(time.time()), help="the same seed makes the same changes")
    parser.add_argument("--folder", action="append", help="only this folder, may be repeated (all)")
    parser.add_argument("--again", action="store_true", help="only the survivors of the last run")
    arguments = parser.parse_args()
    for number in (signal.SIGTERM, signal.SIGHUP):
        signal.signal(number, lambda *_: sys.exit(1))

    TREE.mkdir(parents=True, exist_ok=True)
    SURVIVORS.touch()
    update_copy()
    folders = arguments.folder or sorted({path.parent.name for path in TREE.glob("*/*.cpp")} - NOT_PRODUCT)
    subprocess.run(["cmake", "-S", TREE, "-B", BUILD, "-G", "Ninja", "-DCMAKE_CXX_COMPILER_LAUNCHER=ccache",
                    "-DCMAKE_BUILD_TYPE=Debug", "-DCMAKE_CXX_FLAGS_DEBUG=-O0 -w -D_GLIBCXX_ASSERTIONS"],
                   check=True, stdout=subprocess.DEVNULL)
    print(f"seed {arguments.seed}", flush=True)
    count = shares(arguments.count, folders)
    results = []
    try:
        for folder in folders:
            spots = last_survivors(folder) if arguments.again else \
                random_spots(folder, random.Random(f"{arguments.seed} {folder}"))
            wanted = len(spots) if arguments.again else count[folder]
            if wanted:
                try_folder(folder, spots, wanted, results)
    except KeyboardInterrupt:
        pass
    finally:
        report(results)


main()
