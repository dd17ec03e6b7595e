#!/usr/bin/env python3
"""Measures which faults the test suite catches.

Each fault below is one exact textual replacement in one source file of the core
library. For every fault the script applies the replacement, builds, runs the tests
(all but golden_outputs), records the test programs that failed and puts the file
back byte for byte, also when it is interrupted. At the end it prints a table.

Files are found by their base name anywhere under src/, so the faults keep working
when files move to other folders.

    scripts/fault-injection.py --src . --build build
    scripts/fault-injection.py --src . --build build --only 3,7,12
"""

import argparse
import os
import re
import signal
import subprocess
import sys
import time

# (file base name, exact old text, new text, description)
FAULTS = [
    # ---- Document: reading and writing files, page lengths, assignments, clipboard
    ("ScheduleFile.cpp",
     "    v.NextStripId = in.integerIn(0, MaxNextStripId, \"the last strip serial number\");\n"
     "    v.HoldDays = in.integerIn(-HoldDaysLimit, HoldDaysLimit, \"the hold days threshold\");\n",
     "    v.HoldDays = in.integerIn(-HoldDaysLimit, HoldDaysLimit, \"the hold days threshold\");\n"
     "    v.NextStripId = in.integerIn(0, MaxNextStripId, \"the last strip serial number\");\n",
     "file reading takes next strip id and hold days in swapped order"),
    ("ScheduleFile.cpp",
     "if (cr && end < m_text.size() && m_text[end] == u'\\n')",
     "if (cr && end < m_text.size() && m_text[end] == u'\\r')",
     "file reading counts CR LF as two line ends"),
    ("DocumentOperations.cpp",
     "if (eighths >= 8.0) {",
     "if (eighths > 8.0) {",
     "page length rounding to 8/8 is not carried into a whole page"),
    ("LegacyText.cpp",
     "if (text.size() < 3)",
     "if (text.size() < 2)",
     "Pad3 pads to two characters (assignment duplicate test)"),
    ("Clipboard.cpp",
     "AddAssignment(doc, strip, k - 1);",
     "AddAssignment(doc, strip, k);",
     "deleting an element does not renumber later assignments"),
    # ---- Scheduling: day numbering, dates, automatic dividers
    ("DayCalculation.cpp",
     "const double serial = startSerial + day - 1;",
     "const double serial = startSerial + day;",
     "day dates are one day late"),
    ("DayCalculation.cpp",
     "d += days;",
     "d += 1;",
     "a banner of n days counts one production day"),
    ("DayDividers.cpp",
     "if (!(double(p) > max)) {",
     "if (!(double(p) >= max)) {",
     "auto dividers: a day of exactly the maximum pages overflows"),
    ("DayCalculation.cpp",
     "if (kind == SceneKind) {\n            p = float(double(p) + PageLengthOf(rows[i]));",
     "if (kind == SceneKind) {\n            p = float(PageLengthOf(rows[i]));",
     "divider page total keeps only the day's last scene"),
    # ---- Breakdown: sorting, elements, scenes
    ("StripOrder.cpp",
     "from >= 1 && from <= oldCount",
     "from >= 1 && from < oldCount",
     "sorting strips loses the last strip of the board"),
    ("StripOrder.cpp",
     "keys.append(leadingNumber(row.at(column)));",
     "keys.append(leadingNumber(row.at(SortColumn::Strip)));",
     "sorting by scene number sorts by strip number"),
    ("ElementEditing.cpp",
     "QString::number(page.categoryPosition + 1)",
     "QString::number(page.categoryPosition)",
     "saved element gets the category before the chosen one"),
    ("SceneEditing.cpp",
     "for (int element = 1; element <= elements; ++element) {",
     "for (int element = 1; element < elements; ++element) {",
     "saving a scene drops the assignment of the last element"),
    # ---- Board: drawing texts, moving strips
    ("DrawBoard.cpp",
     "QStringLiteral(\"END SHOOT DAY \") + strip[StripField::ShootDayNumber]",
     "QStringLiteral(\"END SHOOT DAY \") + strip[StripField::DayNumber]",
     "divider shows the production day as the shooting day"),
    ("BoardMoves.cpp",
     "if (target > first)\n        target -= moved;",
     "if (target < first)\n        target -= moved;",
     "moving strips corrects the wrong direction for removed rows"),
    # ---- Import: script and Final Draft reports
    ("ScriptImport.cpp",
     "scene.sceneNumber = QString::number(m_strips.lastScene() + 1);",
     "scene.sceneNumber = QString::number(m_strips.lastScene() + 2);",
     "imported scene numbers start at 2"),
    ("ScriptImport.cpp",
     "if (pages < 0.125)\n        pages = 0.125;",
     "if (pages < 0.0)\n        pages = 0.125;",
     "imported scenes lose the one-eighth minimum length"),
    ("FinalDraftImport.cpp",
     "for (int field = 0; field < 3; ++field)",
     "for (int field = 0; field < 2; ++field)",
     "Final Draft scene report: length read from the wrong column"),
    # ---- Reports: values printed
    ("BreakdownReport.cpp",
     "QString::number(*lastDay - *firstDay + 1)",
     "QString::number(*lastDay - *firstDay)",
     "element summary total days one short"),
    ("ScheduleReport.cpp",
     "m_dayPages[strip[StripField::DayNumber]] += PageLengthOf(strip);",
     "m_dayPages[strip[StripField::DayNumber]] = PageLengthOf(strip);",
     "schedule day footer shows the last scene's pages, not the day's"),
]


class Interrupted(Exception):
    pass


def on_terminate(signum, frame):
    raise Interrupted("signal %d" % signum)


def log(text):
    print(text, file=sys.stderr, flush=True)


def find_source(src_dir, basename):
    """The one file with this base name under src/, or an error text."""
    root = os.path.join(src_dir, "src")
    found = []
    for folder, dirs, files in os.walk(root):
        dirs[:] = [d for d in dirs if not d.startswith(".")]
        if basename in files:
            found.append(os.path.join(folder, basename))
    if not found:
        return None, "no file %s under %s" % (basename, root)
    if len(found) > 1:
        return None, "%d files named %s under %s" % (len(found), basename, root)
    return found[0], None


def run(command, timeout=None):
    return subprocess.run(command, stdout=subprocess.PIPE, stderr=subprocess.STDOUT,
                          universal_newlines=True, errors="replace", timeout=timeout)


def build(build_dir):
    result = run(["cmake", "--build", build_dir, "-j2"])
    return result.returncode == 0, result.stdout


FAILED_LINE = re.compile(r"^\s*\d+\s+-\s+(\S+)\s+\((.*)\)\s*$")


def run_tests(build_dir, test_timeout):
    """The names of the failing tests (with the reason when it is not a plain failure)."""
    command = ["ctest", "--test-dir", build_dir, "-j2", "--output-on-failure",
               "-E", "golden_outputs", "--timeout", str(test_timeout)]
    result = run(command)
    failed = []
    in_list = False
    for line in result.stdout.splitlines():
        if line.startswith("The following tests FAILED"):
            in_list = True
            continue
        if in_list:
            match = FAILED_LINE.match(line)
            if not match:
                if line.strip():
                    in_list = False
                continue
            name, reason = match.group(1), match.group(2)
            failed.append(name if reason == "Failed" else "%s (%s)" % (name, reason))
    if result.returncode != 0 and not failed:
        failed.append("ctest exit %d" % result.returncode)
    if "No tests were found" in result.stdout:
        failed.append("no tests found")
    return failed, result.stdout


def write_bytes(path, data):
    with open(path, "wb") as f:
        f.write(data)


def try_fault(number, fault, src_dir, build_dir, test_timeout):
    basename, old, new, description = fault
    path, error = find_source(src_dir, basename)
    if error:
        return "fault not applicable: " + error
    with open(path, "rb") as f:
        original = f.read()
    text = original.decode("utf-8")
    occurrences = text.count(old)
    if occurrences != 1:
        return "fault not applicable: old text occurs %d times in %s" % (occurrences, basename)
    changed = text.replace(old, new, 1).encode("utf-8")
    log("[%2d] %s: %s" % (number, basename, description))
    try:
        write_bytes(path, changed)
        ok, output = build(build_dir)
        if not ok:
            log("     build failed")
            return "build failed"
        failed, _ = run_tests(build_dir, test_timeout)
        log("     " + (", ".join(failed) if failed else "NOT CAUGHT"))
        return ", ".join(failed) if failed else "NOT CAUGHT"
    finally:
        write_bytes(path, original)
        with open(path, "rb") as f:
            if f.read() != original:
                raise RuntimeError("could not restore " + path)


def print_table(rows, out):
    if not rows:
        print("No faults tried.", file=out)
        return
    headers = ("#", "File", "Fault", "Failing tests")
    widths = [max(len(headers[i]), *(len(r[i]) for r in rows)) for i in range(3)]
    line = "%-*s  %-*s  %-*s  %s"
    print(line % (widths[0], headers[0], widths[1], headers[1], widths[2], headers[2], headers[3]), file=out)
    print(line % (widths[0], "-" * widths[0], widths[1], "-" * widths[1], widths[2], "-" * widths[2],
                  "-" * len(headers[3])), file=out)
    for r in rows:
        print(line % (widths[0], r[0], widths[1], r[1], widths[2], r[2], r[3]), file=out)
    caught = sum(1 for r in rows if r[3] != "NOT CAUGHT" and not r[3].startswith(("build failed", "fault not")))
    not_caught = sum(1 for r in rows if r[3] == "NOT CAUGHT")
    others = len(rows) - caught - not_caught
    summary = "Caught %d of %d faults; not caught %d" % (caught, len(rows), not_caught)
    if others:
        summary += "; not measured (build failed or not applicable) %d" % others
    print("\n" + summary + ".", file=out)


def main():
    parser = argparse.ArgumentParser(description="Injects known faults one at a time and records which tests catch them.")
    parser.add_argument("--src", required=True, help="the source tree (the folder holding src/)")
    parser.add_argument("--build", required=True, help="a configured build folder of that tree, with tests")
    parser.add_argument("--only", help="comma-separated fault numbers (1-based) to try, e.g. 3,7,12")
    parser.add_argument("--output", help="also write the table to this file")
    parser.add_argument("--test-timeout", type=int, default=120, help="seconds per test program (default 120)")
    parser.add_argument("--list", action="store_true", help="list the faults and stop")
    parser.add_argument("--check", action="store_true",
                        help="only check that every fault's file is found and its old text occurs once")
    args = parser.parse_args()

    if args.list:
        for n, (basename, _, _, description) in enumerate(FAULTS, 1):
            print("%2d  %-24s %s" % (n, basename, description))
        return 0

    src_dir = os.path.abspath(args.src)
    build_dir = os.path.abspath(args.build)
    if not os.path.isdir(os.path.join(src_dir, "src")):
        parser.error("%s holds no src/ folder" % src_dir)
    if not os.path.isfile(os.path.join(build_dir, "CMakeCache.txt")):
        parser.error("%s is not a configured build folder" % build_dir)

    numbers = list(range(1, len(FAULTS) + 1))
    if args.only:
        try:
            numbers = sorted({int(n) for n in args.only.split(",") if n.strip()})
        except ValueError:
            parser.error("--only takes numbers separated by commas")
        bad = [n for n in numbers if n < 1 or n > len(FAULTS)]
        if bad:
            parser.error("no fault numbered %s (there are %d)" % (",".join(map(str, bad)), len(FAULTS)))

    signal.signal(signal.SIGTERM, on_terminate)
    if hasattr(signal, "SIGHUP"):
        signal.signal(signal.SIGHUP, on_terminate)

    if args.check:
        problems = 0
        for n in numbers:
            basename, old, _, _ = FAULTS[n - 1]
            path, error = find_source(src_dir, basename)
            if not error:
                with open(path, "rb") as f:
                    count = f.read().decode("utf-8").count(old)
                if count != 1:
                    error = "old text occurs %d times in %s" % (count, path)
            if error:
                problems += 1
            print("%2d  %s" % (n, error or "ok  " + os.path.relpath(path, src_dir)))
        return 1 if problems else 0

    started = time.time()
    rows = []
    try:
        log("Building and testing the unchanged tree first...")
        ok, output = build(build_dir)
        if not ok:
            log(output[-4000:])
            log("The unchanged tree does not build; nothing measured.")
            return 2
        failed, output = run_tests(build_dir, args.test_timeout)
        if failed:
            log(output[-4000:])
            log("Tests fail on the unchanged tree (%s); nothing measured." % ", ".join(failed))
            return 2
        for n in numbers:
            fault = FAULTS[n - 1]
            result = try_fault(n, fault, src_dir, build_dir, args.test_timeout)
            rows.append((str(n), fault[0], fault[3], result))
    except (KeyboardInterrupt, Interrupted):
        log("\nInterrupted; the source files are restored.")
        if rows:
            print_table(rows, sys.stdout)
        return 130
    finally:
        # The build folder is brought back in line with the restored sources.
        ok, _ = build(build_dir) if rows else (True, "")
        if not ok:
            log("warning: the final rebuild of the restored tree failed")

    print_table(rows, sys.stdout)
    if args.output:
        with open(args.output, "w") as f:
            print_table(rows, f)
    log("Done in %d s." % (time.time() - started))
    return 0


if __name__ == "__main__":
    sys.exit(main())
