#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Attacks the console program from outside, with the demo service as its peer, and counts which promises break.

    tests/robustness/robustness.py BIN_FOLDER [--seed N] [--kills 500] [--other-kills 300] [--only WORD]
                                     [--tell 4]

BIN_FOLDER holds vell-console and vell-demo-service of a build without sanitizers (build/release/bin). Kills come at
random moments of downloads over HTTP and FTP, of clippings that are published again meanwhile, and of setup, schedule,
open, print and delete; transfers break; two clients share a download folder; then every call that opens or changes a
file fails in its turn, once or from then on, and the program is killed before and after each of them. Needs gcc; takes
some ten minutes; ends with a table, and with 1 if anything broke. The same seed makes the same moves, but no two
machines kill at the same instruction.
"""
import argparse
import collections
import errno
import pathlib
import random
import re
import signal
import subprocess
import sys
import tempfile
import time

from world import DATE, MARKS, SIZES, Box, Service

HERE = pathlib.Path(__file__).resolve().parent
ERRORS = (errno.ENOSPC, errno.EIO, errno.EACCES)


class Tally:
    """The figures of one scenario, and the first few faults of each kind in words."""

    told = 4

    def __init__(self, name):
        self.name, self.attacks, self.hits, self.faults = name, 0, 0, collections.Counter()
        self.began, self.took = time.time(), 0.0

    def add(self, found, how):
        for kind, what in found:
            self.faults[kind] += 1
            if self.faults[kind] <= self.told:
                print(f"  {self.name}: {kind}: {what} [{how}]", flush=True)

    def row(self):
        faults = ", ".join(f"{kind} {count}" for kind, count in sorted(self.faults.items())) or "none"
        return f"{self.name:<26}{self.attacks:>8}{self.hits:>8}{self.took:>7.0f} s   {faults}"


def killed(process, seconds):
    """Whether the process was still there to be killed."""
    try:
        process.communicate(b"", timeout=seconds)
        return False
    except subprocess.TimeoutExpired:
        process.kill()
        process.communicate()
        return True


def duration(box, prepare, *words):
    times = []
    for _ in range(5):
        prepare()
        began = time.monotonic()
        box.run(*words)
        times.append(time.monotonic() - began)
    return sorted(times)[2]


def said(errors):
    """Without the raw list, which Debug=1 shows."""
    return " ".join(line for line in errors.splitlines() if line and "||" not in line)[-200:]


def recover(box, tally, how):
    code, _, errors = box.download()
    if code != 0 or box.incomplete():
        tally.add([("not made good", f"code {code}, {box.incomplete()}, {said(errors)}")], how)
        box.reset()


def kills_in_downloads(box, chance, tally, count):
    usual = duration(box, box.reset, "download", "--date", DATE)
    box.reset({**box.service.current()})
    while tally.hits < count:
        move = chance.random()
        if move < 0.25:
            box.reset({"OPENED.DIR": MARKS} if move < 0.1 else {})
        for name in SIZES if move < 0.6 else ():
            if chance.random() < 0.5:
                box.service.publish(name)
        before, how = box.files(), f"kill {tally.attacks}"
        tally.attacks += 1
        tally.hits += killed(box.start("download", "--date", DATE), chance.uniform(0.01, usual * 1.02))
        tally.add(box.broken(before), how)
        if chance.random() < 0.5:
            recover(box, tally, how)


def runs_over_a_bad_line(box, chance, tally, count):
    """Files break half way; the service never gets better. What counts as met are the runs that end with 1."""
    for number in range(count):
        if chance.random() < 0.2:
            box.reset()
        for name in SIZES:
            if chance.random() < 0.5:
                box.service.publish(name)
        before, how = box.files(), f"run {number}"
        code, _, errors = box.download()
        tally.attacks += 1
        tally.hits += code == 1
        tally.add(box.broken(before), how)
        if code not in (0, 1) or bool(code) != bool(box.incomplete()):
            tally.add([(f"exit {code} is untrue", f"{box.incomplete()} {said(errors)}")], how)


def two_clients(one, other, chance, tally, count):
    """Two program folders on one download folder, at the same time: a run of each, then a mark of each."""
    usual = duration(one, one.reset, "download", "--date", DATE)
    for number in range(count):
        if chance.random() < 0.3:
            one.reset()
        for name in SIZES:
            if chance.random() < 0.5:
                one.service.publish(name)
        before, how = one.files(), f"pair {number}"
        first = one.start("download", "--date", DATE)
        time.sleep(chance.uniform(0, usual))
        second = other.start("download", "--date", DATE)
        errors = [process.communicate(b"", timeout=60)[1].decode() for process in (first, second)]
        tally.attacks += 1
        tally.hits += first.returncode == second.returncode == 0
        for process, words in zip((first, second), errors):
            if process.returncode not in (0, 1):
                tally.add([("wrong exit code", f"{process.returncode} {said(words)}")], how)
        tally.add(one.broken(before), how)
        recover(one, tally, how)
        marks = [box.start("open", f"{name}_20040307.PDF", "--date", DATE)
                 for box, name in ((one, "AAA01"), (other, "BBB02"))]
        codes = [(process.communicate(b"", timeout=60), process.returncode)[1] for process in marks]
        kept = one.files().get("OPENED.DIR", b"")
        if codes != [0, 0] or not (b"AAA01_20040307.PDF=1" in kept and b"BBB02_20040307.PDF=1" in kept):
            tally.add([("marks lost", f"codes {codes}: {kept}")], how)
        (one.day / "OPENED.DIR").unlink(missing_ok=True)


# What the commands do, each on a day that is whole: the words, and whether the folders tell that it is done.
def commands(box):
    def ini():
        return (box.program / "vell.ini").read_text("latin-1")

    def marked(index):
        path = box.day / index
        return path.exists() and b"\r\nAAA01_20040307.PDF=1\r\n" in path.read_bytes()

    return {
        "setup": (("setup", "TimeOut", "7"), lambda: "TimeOut=7\n" in ini()),
        "schedule add": (("schedule", "add", "Fri 10:10"), lambda: "=Fri 10:10\n" in ini()),
        "schedule remove": (("schedule", "remove", "2"), lambda: "=Tue Thu 07:15\n" not in ini()),
        "open": (("open", "AAA01.PDF".replace(".", "_20040307."), "--date", DATE), lambda: marked("OPENED.DIR")),
        "print": (("print", "AAA01_20040307.PDF", "--date", DATE), lambda: marked("PRINTED.DIR")),
        "delete": (("delete", DATE, "--yes"), lambda: not box.day.exists()),
    }


def lines_of(settings):
    """The settings without the numbers of the schedule's lines, and without the one that a command changes."""
    text = re.sub(r"Schedule\d+=", "Schedule=", settings.decode("latin-1"))
    changing = re.compile(r"TimeOut=|Schedule=(Fri 10:10|Tue Thu 07:15)")
    return {line for line in text.splitlines() if line and not changing.match(line)}


def broken_by_command(box, name, before):
    files, found = box.files(), []
    if not box.other.exists():
        found.append(("lost file", box.other.name))
    lost = lines_of(box.settings) - lines_of((box.program / "vell.ini").read_bytes())
    if lost:
        found.append(("settings lost", ", ".join(sorted(lost))))
    if name != "schedule remove" and b"Tue Thu 07:15" not in (box.program / "vell.ini").read_bytes():
        found.append(("settings lost", "Tue Thu 07:15"))
    for file, content in before.items():
        if file.endswith(".DIR") and file != "ALLFILES.DIR" and name != "delete":
            if not set(content.splitlines()) <= set(files.get(file, b"").splitlines()):
                found.append(("marks lost", file))
        elif files.get(file, content if name == "delete" else None) != content:
            found.append(("lost file", file))
    return found


def kills_in_commands(box, chance, tally, count, whole):
    table = commands(box)
    usual = {name: duration(box, lambda: box.reset(whole), *words) for name, (words, _) in table.items()}
    while tally.hits < count:
        name = chance.choice(list(table))
        box.reset(whole)
        tally.attacks += 1
        tally.hits += killed(box.start(*table[name][0]), chance.uniform(usual[name] * 0.3, usual[name]))
        again(box, tally, name, table[name], whole, f"kill {tally.attacks} in {name}")


def again(box, tally, name, command, before, how):
    tally.add(broken_by_command(box, name, before), how)
    if not command[1]():
        code, _, errors = box.run(*command[0])
        if code != 0 or not command[1]():
            tally.add([("not made good", f"code {code} {said(errors)}")], how)


class Faults:
    def __init__(self, folder, box, in_log=False):
        self.in_log = in_log  # it is opened and written hundreds of times in a run, so it gets a scenario of its own
        self.library, self.report, self.box = folder / "faults.so", folder / "report", box
        subprocess.run(["gcc", "-shared", "-fPIC", "-O1", "-o", self.library, HERE / "faults.c", "-ldl"], check=True)

    def environment(self, at, how, number):
        self.report.unlink(missing_ok=True)
        return {"LD_PRELOAD": str(self.library), "FAULT_ROOT": str(self.box.root), "FAULT_AT": str(at),
                "FAULT_HOW": how, "FAULT_ERRNO": str(number), "FAULT_REPORT": str(self.report),
                "FAULT_SKIP": "" if self.in_log else ".log"}

    def told(self):
        words = self.report.read_text().split(" ", 2) if self.report.exists() else ["0"]
        return int(words[0]), f"{words[1]} {pathlib.Path(words[2]).name}" if len(words) == 3 else ""


def log_of(box):
    path = box.program / "vell.log"
    lines = path.read_text("cp1253").splitlines() if path.exists() else []
    return {re.sub(r"[0-9.,/:() ]+", " ", line) for line in lines}


def keeps_no_log(errors):
    """Whether it ended before it could know that there is to be a log."""
    return "vell-console:" in errors or "settings file" in errors


def every_fault(box, faults, tally, words, prepare, check):
    """The n-th call fails, once and from then on, n rising until the program makes no such call any more."""
    prepare()
    box.run(*words, **faults.environment(0, "", 0))
    usual_log, total = log_of(box), faults.told()[0]
    some = {round(1.5 ** i) for i in range(18)} if faults.in_log else set(range(1, total + 1))
    for at in sorted(some & set(range(1, total + 1))):
        for how in ("once", "on", "before", "after"):
            error = ERRORS[at % len(ERRORS)]
            before = prepare()
            code, out, errors = box.run(*words, **faults.environment(at, how, error))
            hit = faults.told()[1]
            tally.attacks += 1
            tally.hits += bool(hit)
            label = f"{' '.join(words)}: {how} {at}/{total} {errno.errorcode[error]} {hit}"
            if how in ("before", "after"):
                tally.add([("not killed", str(code))] if hit and code != -9 else [], label)
            elif code not in (0, 1):
                tally.add([("wrong exit code", f"{code} {said(errors)}")], label)
            elif code and not said(errors) and "error" not in out.lower() and not log_of(box) - usual_log:
                tally.add([("silent failure", out[-120:])], label)
            elif code and not (faults.in_log or log_of(box) - usual_log or keeps_no_log(errors)):
                tally.add([("not in the log", f"{out[-120:]} {said(errors)}")], label)
            check(before, code, label)


def faults_in_downloads(box, faults, tally, first):
    whole = None

    def prepare():
        box.reset(whole if not first else {"OPENED.DIR": MARKS})
        return box.files()

    if not first:
        box.reset()
        box.download()
        whole = {name: content for name, content in box.files().items()}
        for name in list(SIZES)[:3]:
            box.service.publish(name)

    def check(before, code, label):
        tally.add(box.broken(before), label)
        if code == 0 and box.incomplete():
            tally.add([("exit 0 is untrue", str(box.incomplete()))], label)
        recover(box, tally, label)

    every_fault(box, faults, tally, ("download", "--date", DATE), prepare, check)


def faults_in_commands(box, faults, tally, whole):
    for name, (words, is_done) in commands(box).items():
        def prepare():
            box.reset(whole)
            return dict(whole)

        def check(before, code, label, name=name, words=words, is_done=is_done):
            if code == 0 and not is_done():
                tally.add([("exit 0 is untrue", "nothing was done")], label)
            again(box, tally, name, (words, is_done), before, label)

        every_fault(box, faults, tally, words, prepare, check)


def main():
    parser = argparse.ArgumentParser(description=__doc__.split("\n")[0])
    parser.add_argument("bin", type=pathlib.Path)
    parser.add_argument("--seed", type=int, default=1)
    parser.add_argument("--kills", type=int, default=500, help="of downloads, over each protocol")
    parser.add_argument("--other-kills", type=int, default=300, help="of the other commands together")
    parser.add_argument("--only", default="", help="only scenarios whose name has this word")
    parser.add_argument("--tell", type=int, default=4, help="so many faults of each kind in words")
    options = parser.parse_args()
    Tally.told = options.tell
    signal.signal(signal.SIGTERM, lambda *_: sys.exit(143))
    tallies = []
    with tempfile.TemporaryDirectory(prefix="vell-robustness-") as name:
        folder = pathlib.Path(name)
        samples = HERE.parents[1] / "demo/samples"
        service = Service(options.bin / "vell-demo-service", folder, samples)
        bad = {each: Service(options.bin / "vell-demo-service", folder / f"bad{each}", samples, "--break-each",
                             str(each)) for each in (3, 1)}
        try:
            boxes = {protocol: Box(options.bin / "vell-console", folder, service, protocol)
                     for protocol in ("HTTP", "FTP")}
            http = boxes["HTTP"]

            def scenario(title, attack):
                if options.only in title:
                    tallies.append(Tally(title))
                    attack(random.Random(f"{options.seed} {title}"), tallies[-1])
                    tallies[-1].took = time.time() - tallies[-1].began
                    print(tallies[-1].row(), flush=True)

            for protocol, box in boxes.items():
                scenario(f"kills in downloads, {protocol}",
                         lambda chance, tally, box=box: kills_in_downloads(box, chance, tally, options.kills))
                for each, line in bad.items():
                    bad_box = Box(options.bin / "vell-console", folder / f"bad{each}", line, protocol)
                    scenario(f"each {each}. file breaks, {protocol}",
                             lambda chance, tally, box=bad_box: runs_over_a_bad_line(box, chance, tally, 60))
                other = Box(options.bin / "vell-console", folder, service, protocol, number=2)
                scenario(f"two clients, {protocol}",
                         lambda chance, tally, box=box, other=other: two_clients(box, other, chance, tally, 60))
                faults = Faults(folder, box)
                for first in (True, False):
                    scenario(f"faults, {'first' if first else 'second'} fetch, {protocol}",
                             lambda _, tally, box=box, faults=faults, first=first:
                             faults_in_downloads(box, faults, tally, first))
                in_log = Faults(folder, box, in_log=True)
                scenario(f"faults with the log, {protocol}",
                         lambda _, tally, box=box, in_log=in_log: faults_in_downloads(box, in_log, tally, True))
            http.reset()
            http.download()
            whole = {**http.files(), "OPENED.DIR": MARKS, "PRINTED.DIR": MARKS.replace(b"VIEW", b"PRINT")}
            scenario("kills in commands",
                     lambda chance, tally: kills_in_commands(http, chance, tally, options.other_kills, whole))
            scenario("faults in commands",
                     lambda _, tally: faults_in_commands(http, Faults(folder, http), tally, whole))
        finally:
            for one in (service, *bad.values()):
                one.process.terminate()
                one.process.wait()
    print(f"\nseed {options.seed}\n{'':<26}{'attacks':>8}{'met':>8}{'time':>9}   faults")
    for tally in tallies:
        print(tally.row())
    return 1 if any(tally.faults for tally in tallies) else 0


if __name__ == "__main__":
    sys.exit(main())
