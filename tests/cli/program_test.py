# The program as a user runs it: usage, exit statuses, and files that are whole or not there at all.
import json
import os
import pathlib
import random
import re
import resource
import shutil
import signal
import subprocess
import sys
import tempfile
import time
import unittest

PROGRAM = os.environ["KV_PROGRAM"]
STAGING = ".kvmacro-staging-"
LANGUAGES = {"cpp": ".cpp", "csharp": ".cs", "javascript": ".html", "vbnet": ".vb", "cppcom": ".cpp", "vba": ".bas"}
GUID = re.compile(rb"[0-9A-Fa-f]{8}(-[0-9A-Fa-f]{4}){3}-[0-9A-Fa-f]{12}")


def tree(folder):
    """Every file below the folder with its bytes, every folder with None."""
    return {str(path.relative_to(folder)): None if path.is_dir() else path.read_bytes()
            for path in pathlib.Path(folder).rglob("*")}


def lines(count, x=1.0):
    """The records of a journal with so many lines drawn outside a command."""
    yield {"journal": {"version": 1}}
    for number in range(count):
        properties = [{"name": f"{end} {axis}", "group": "Geometry", "value": x + number}
                      for end in ("Start", "End") for axis in "XYZ"]
        yield {"added": {"class": "AcDbLine", "handle": f"{number + 256:X}", "properties": properties}}


class ProgramTest(unittest.TestCase):
    def setUp(self):
        self.folder = pathlib.Path(tempfile.mkdtemp(prefix="program-test-"))
        self.addCleanup(shutil.rmtree, self.folder, ignore_errors=True)
        self.journal("small", lines(3))

    def journal(self, name, records, tail=""):
        text = "".join(json.dumps(record) + "\n" for record in records) + tail
        (self.folder / f"{name}.jsonl").write_text(text, encoding="utf-8")

    def run_program(self, *arguments, status=0, **options):
        done = subprocess.run([PROGRAM, *arguments], cwd=self.folder, capture_output=True, text=True,
                              encoding="utf-8", timeout=120, **options)
        self.assertEqual(done.returncode, status, done.stdout + done.stderr)
        return done

    def convert(self, name="small", output="out", *more, language="cpp", status=0, **options):
        return self.run_program("convert", f"{name}.jsonl", "--language", language, "--output", output, *more,
                                status=status, **options)

    def has_all_languages(self):
        probe = subprocess.run([PROGRAM, "convert", "small.jsonl", "--language", "all", "--output", "probe"],
                               cwd=self.folder, capture_output=True)
        shutil.rmtree(self.folder / "probe", ignore_errors=True)
        return probe.returncode == 0

    def assert_same(self, now, wanted, told=""):
        """Compares two trees and tells only the names of what differs."""
        differing = [name for name in {**now, **wanted} if now.get(name, 0) != wanted.get(name, 0)]
        self.assertEqual(differing, [], told)


class Usage(ProgramTest):
    def test_help_and_version(self):
        self.assertRegex(self.run_program("--version").stdout, r"^kvmacro \d+\.\d+\.\d+\n$")
        for command in ([], ["convert"], ["check"]):
            text = self.run_program(*command, "--help").stdout
            self.assertIn("Examples:\n  kvmacro ", text)
            self.assertNotIn("--staged", text)

    def test_examples_of_the_help_run(self):
        source = pathlib.Path(os.environ.get("KV_SOURCE_DIR", "."))
        if not (source / "examples").is_dir():
            self.skipTest("no examples")
        every = self.has_all_languages()
        for command in ([], ["convert"], ["check"]):
            for example in re.findall(r"^  kvmacro (.*)$", self.run_program(*command, "--help").stdout, re.MULTILINE):
                if every or "--language cpp" in example or "--language" not in example:
                    words = [str(source / word) if word.startswith("examples/") else word for word in example.split()]
                    self.run_program(*words)

    def test_faults_of_usage_give_2_and_write_nothing(self):
        before = tree(self.folder)
        good = ["convert", "small.jsonl", "--language", "cpp", "--output", "out"]
        wrong = [[], ["turn"], ["convert"], good[:4], good[:2] + good[4:], good + ["--fast"], good + ["--mode", "x"],
                 ["convert", "small.jsonl", "--language", "perl", "--output", "out"],
                 ["check", "small.jsonl", "--language", "all"], ["convert", "none.jsonl", *good[2:]],
                 good + ["--module", "none.so"], ["convert", ".jsonl", *good[2:]], [*good[:4], "--output", ""]]
        wrong += [good + ["--name", name] for name in ("", "a/b", "a\\b", "a.b", "..", "a\nb")]
        for arguments in wrong:
            with self.subTest(arguments=arguments):
                self.assertNotEqual(self.run_program(*arguments, status=2).stderr, "")
        self.assert_same(tree(self.folder), before)


class Results(ProgramTest):
    def test_writes_macro_and_says_so(self):
        written = self.convert(output="new/deep").stdout.splitlines()
        self.assertEqual(sorted(written), sorted("new/deep/" + name for name in os.listdir(self.folder / "new/deep")))
        self.assertEqual(written[-1], "new/deep/small.cpp")

    def test_name(self):
        self.journal("a.b", lines(1))
        self.convert("a.b")
        self.convert("a.b", "other", "--name", "my macro-2")
        self.assertTrue((self.folder / "out/a.cpp").is_file())
        self.assertTrue((self.folder / "other/my macro-2.cpp").is_file())

    def test_names_beyond_ascii_in_any_locale(self):
        self.journal("größe 図", lines(1))
        for locale in ("C", "C.UTF-8"):
            environment = dict(os.environ, LC_ALL=locale)
            self.convert("größe 図", f"aus gäbe {locale}", env=environment)
            self.assertTrue((self.folder / f"aus gäbe {locale}" / "größe 図.cpp").is_file())
            self.assertIn("größe 図.jsonl:2:", self.fault("größe 図", environment))
            self.journal("größe 図", lines(1))

    def fault(self, name, environment):
        self.journal(name, lines(0), tail="nonsense\n")
        return self.convert(name, "never", status=2, env=environment).stderr

    def test_remarks_leave_the_status_0(self):
        self.journal("cut", [{"journal": {"version": 1, "weather": "fine"}}, {"command": "LINE"}], tail='{"prom')
        remarks = self.convert("cut").stderr
        self.assertEqual(remarks.count("cut.jsonl:1: "), 1, remarks)
        self.assertEqual(remarks.count("cut.jsonl:3: "), 2, remarks)  # the cut-off line and the open command
        self.assertIn("cut.jsonl:1: ", self.run_program("check", "cut.jsonl").stderr)

    def test_faults_are_told_once_and_nothing_is_written(self):
        self.convert()
        self.journal("small", lines(0), tail='{"end":"LINE"}\nnonsense\n')
        before = tree(self.folder)
        for language in ("cpp", "all"):
            faults = self.convert("small", "out", "--force", "--name", "x", language=language, status=2).stderr
            for line in (2, 3):
                self.assertEqual(faults.count(f"small.jsonl:{line}: "), 1, faults)
        self.assertIn("small.jsonl:2: ", self.run_program("check", "small.jsonl", status=2).stderr)
        self.assert_same(tree(self.folder), before)

    def test_failed_conversion_gives_1_and_keeps_what_was(self):
        self.convert()
        self.journal("small", [*lines(1), {"other": "CZtSomethingNew"}])
        before = tree(self.folder)
        for language in ("cpp", "all"):
            message = self.convert("small", "out", "--force", language=language, status=1).stderr
            self.assertIn("cpp gave -5001", message)
        self.convert("small", "fresh/folder", status=1)
        self.assert_same(tree(self.folder), before)

    def test_no_file_is_replaced_unasked(self):
        self.convert()
        others = [name for name in os.listdir(self.folder / "out") if name != "small.cpp"]
        self.journal("small", lines(5))
        for kept in ["small.cpp", *others[:2]]:
            shutil.rmtree(self.folder / "out")
            (self.folder / "out").mkdir()
            (self.folder / "out" / kept).write_text("mine")
            before = tree(self.folder)
            self.assertIn(f"out/{kept}", self.convert(status=2).stderr)
            self.assert_same(tree(self.folder), before)
        self.convert("small", "out", "--force")
        self.assertFalse(b"mine" in tree(self.folder / "out").values())

    def test_all_gives_what_six_runs_give(self):
        if not self.has_all_languages():
            self.skipTest("the module doesn't have every language")
        told = self.convert(output="all", language="all").stdout
        for language, extension in LANGUAGES.items():
            self.convert(output=f"one/{language}", language=language)
            self.assertIn(f"all/{language}/small{extension}\n", told)

        def masked(folder):
            return {name: data and GUID.sub(b"GUID", data) for name, data in tree(self.folder / folder).items()}
        self.assert_same(masked("all"), masked("one"))

    def test_all_or_nothing(self):
        (self.folder / "out/vba").mkdir(parents=True)
        (self.folder / "out/vba/small.bas").write_text("mine")
        before = tree(self.folder)
        self.assertIn("out/vba/small.bas", self.convert(language="all", status=2).stderr)
        self.assert_same(tree(self.folder), before)

    def test_check_lists_events(self):
        self.journal("events", [*lines(2), {"command": "LINE"}, {"action": {"id": 12, "data": ["Nowhere"]}}, {"end": "LINE"}, None])
        before = tree(self.folder)
        table = self.run_program("check", "events.jsonl").stdout
        self.assertRegex(table, r"(?m)^ *2  added +AcDbLine +translated$")
        self.assertRegex(table, r"(?m)^ *4  command +LINE ")
        self.assertRegex(table, r"(?m)^ *5  action +12 +no text$")
        summary = self.run_program("check", "events.jsonl", "--summary").stdout
        self.assertTrue(table.endswith("\n\n" + summary))
        self.assertRegex(summary, r"(?m)^added +2 +2 +0 +0 +0$")
        self.assertRegex(summary, r"(?m)^all +4 ")
        self.journal("events", [*lines(1), {"other": "CZtSomethingNew"}, *list(lines(1))[1:]][:3])
        failing = self.run_program("check", "events.jsonl", status=1)
        self.assertRegex(failing.stdout, r"(?m)^ *3  other .*failed: -5001$")
        self.assertEqual({name for name in tree(self.folder)}, set(before))


class Failures(ProgramTest):
    def setUp(self):
        super().setUp()
        self.journal("big", lines(400))

    def refused(self, text, *arguments, **options):
        before = tree(self.folder)
        self.assertIn(text, self.convert("big", *arguments, status=1, **options).stderr)
        self.assert_same(tree(self.folder), before)

    def test_targets_that_are_no_files_or_folders(self):
        self.convert("big")
        (self.folder / "out/big.cpp").unlink()
        (self.folder / "out/big.cpp").mkdir()
        self.refused("out/big.cpp: Is a directory", "out", "--force")
        self.refused("small.jsonl: Not a directory", "small.jsonl")
        self.refused("small.jsonl: Not a directory", "small.jsonl/sub")

    def test_macro_never_replaces_its_journal(self):
        shutil.copy(self.folder / "small.jsonl", self.folder / "small.cpp")
        before = tree(self.folder)
        self.run_program("convert", "small.cpp", "--language", "cpp", "--output", ".", "--force", status=2)
        self.assert_same(tree(self.folder), before)

    def test_limit_of_the_file_size(self):
        self.convert("big")
        size = (self.folder / "out/big.cpp").stat().st_size
        for limit in (100, 4096, size // 2, size - 1):
            self.refused("File too large", "out", "--force",
                         preexec_fn=lambda limit=limit: resource.setrlimit(resource.RLIMIT_FSIZE, (limit, limit)))

    def test_full_disk(self):
        disk = self.folder / "disk"
        disk.mkdir()
        if subprocess.run(["mount", "-t", "tmpfs", "-o", "size=64k", "none", disk], capture_output=True).returncode:
            self.skipTest("no small file system can be mounted")
        self.addCleanup(subprocess.run, ["umount", disk])
        self.convert("small", "disk", "--name", "big")
        self.journal("big", lines(2000))
        self.refused("No space left on device", "disk", "--force")
        self.refused("No space left on device", "disk/sub")

    @unittest.skipIf(os.geteuid() == 0, "permissions don't hold for root")
    def test_read_only_folder(self):
        self.convert("small", "out", "--name", "big")
        for folder in (self.folder / "out", self.folder):
            folder.chmod(0o555)
            self.addCleanup(folder.chmod, 0o755)
        self.refused("Permission denied", "out", "--force")


class BrokenJournals(ProgramTest):
    """Journals broken at random: a clear message or a macro, and no other file."""

    def broken(self, text, number):
        choose = random.Random(number)
        place = choose.randrange(len(text))
        way = number % 6
        if way == 0:
            return text[:place]
        if way == 1:
            return text[:place] + bytes([choose.randrange(256)]) + text[place + 1:]
        if way == 2:
            return text[:place] + choose.choice([b"\xff", b"\xed\xa0\x80", b"\0"]) + text[place:]
        if way == 3:
            return text[:place] + b" " * (3 << 20) + text[place:]
        # The others are JSON still: a value of another kind, a key less.
        records = [json.loads(line) for line in text.splitlines()]
        part = choose.choice(records)
        while True:
            key = choose.choice(list(part) if isinstance(part, dict) else range(len(part)))
            if not isinstance(part[key], (dict, list)) or not part[key] or choose.random() < 0.2:
                break
            part = part[key]
        if way == 4:
            del part[key]
        else:
            part[key] = choose.choice([None, True, -1, 1.5, 1e308, 10**30, "", "%1", [], {}, {"int": 1}])
        return "".join(json.dumps(record) + "\n" for record in records).encode()

    def test_are_told_or_converted(self):
        source = pathlib.Path(os.environ["KV_SOURCE_DIR"]) / "examples/curves.jsonl"
        journal = self.folder / "broken.jsonl"
        seen = set()
        for number in range(20 if os.environ.get("KV_SANITIZED") == "1" else 100):
            journal.write_bytes(self.broken(source.read_bytes(), number))
            language, extension = list(LANGUAGES.items())[number % len(LANGUAGES)]
            before = tree(self.folder)
            done = subprocess.run([PROGRAM, "convert", "broken.jsonl", "--language", language, "--output", "out"],
                                  cwd=self.folder, capture_output=True, timeout=60)
            with self.subTest(number=number, stderr=done.stderr):
                self.assertIn(done.returncode, (0, 1, 2))
                if done.returncode == 0:
                    self.assertTrue((self.folder / f"out/broken{extension}").is_file())
                else:
                    start = rb"broken\.jsonl:\d+: " if done.returncode == 2 else rb"kvmacro: "
                    self.assertRegex(done.stderr, rb"(?m)^" + start)
                    self.assert_same(tree(self.folder), before)
            shutil.rmtree(self.folder / "out", ignore_errors=True)
            seen.add(done.returncode)
        self.assertLessEqual({0, 2}, seen)


class Interruptions(ProgramTest):
    def start(self, name, output, *more):
        return subprocess.Popen([PROGRAM, "convert", f"{name}.jsonl", "--language", "cpp", "--output", output, "--force",
                                 "--name", "macro", *more], cwd=self.folder, stdout=subprocess.DEVNULL,
                                stderr=subprocess.DEVNULL)

    def stagings(self):
        return [name for name in tree(self.folder) if STAGING in name]

    def setUp(self):
        super().setUp()
        self.journal("old", lines(1500, 1.0))
        self.journal("new", lines(1400, 7.5))
        began = time.monotonic()
        self.assertEqual(self.start("old", "old").wait(), 0)
        self.duration = time.monotonic() - began
        self.assertEqual(self.start("new", "new").wait(), 0)
        self.old, self.new = tree(self.folder / "old"), tree(self.folder / "new")
        self.assertTrue(self.old["macro.cpp"] != self.new["macro.cpp"])

    def test_terminated_runs_leave_nothing(self):
        before = tree(self.folder)
        for number in (signal.SIGINT, signal.SIGTERM, signal.SIGHUP):
            for part in (0.2, 0.4, 0.6, 0.8):
                run = self.start("new", "old")
                time.sleep(self.duration * part)
                run.send_signal(number)
                self.assertIn(run.wait(), (0, -number))
                after = tree(self.folder)
                self.assertEqual(self.stagings(), [])
                self.assertTrue(tree(self.folder / "old") in (self.old, self.new))
                if run.returncode != 0:
                    self.assert_same(after, before)
                before = after

    def test_killed_runs_leave_whole_files(self):
        turns = 12 if os.environ.get("KV_SANITIZED") == "1" else 40
        random.seed(7)
        killed = 0
        for _ in range(turns):
            shutil.rmtree(self.folder / "old")
            shutil.copytree(self.folder / "new", self.folder / "old")
            for name, data in self.old.items():
                (self.folder / "old" / name).write_bytes(data)
            run = self.start("new", "old")
            time.sleep(random.uniform(0, self.duration * 1.1))
            run.kill()
            killed += run.wait() != 0
            files = tree(self.folder / "old")
            self.assertEqual(files.keys(), self.old.keys())
            for name, data in files.items():
                self.assertTrue(data in (self.old[name], self.new[name]), name)
            if files["macro.cpp"] == self.new["macro.cpp"]:
                self.assert_same(files, self.new)
        self.assertGreater(killed, 0)
        self.assertEqual(self.start("new", "old").wait(), 0)
        self.assert_same(tree(self.folder / "old"), self.new)
        self.assertEqual(self.stagings(), [])

    def test_ignored_signals_stay_ignored(self):
        run = subprocess.Popen([PROGRAM, "convert", "new.jsonl", "--language", "cpp", "--output", "ignored"],
                               cwd=self.folder, stdout=subprocess.DEVNULL,
                               preexec_fn=lambda: signal.signal(signal.SIGHUP, signal.SIG_IGN))
        time.sleep(self.duration / 2)
        run.send_signal(signal.SIGHUP)
        self.assertEqual(run.wait(), 0)


if __name__ == "__main__":
    sys.exit(unittest.main(verbosity=2))
