# kvmacro run as a user meets it: usage, saving, scripts on standard input and a session at a terminal.
import os
import pathlib
import pty
import re
import select
import shutil
import subprocess
import tempfile
import time
import unittest

PROGRAM = os.environ["KV_PROGRAM"]
SOURCE = pathlib.Path(os.environ["KV_SOURCE_DIR"])
HEAD = '{"journal":{"version":1}}\n'
LINE = '{"object":{"class":"AcDbLine","handle":"1","endPoint":[1,1,0]}}\n'


class RunTest(unittest.TestCase):
    def setUp(self):
        self.folder = pathlib.Path(tempfile.mkdtemp(prefix="run-test-"))
        self.addCleanup(shutil.rmtree, self.folder, ignore_errors=True)
        self.drawing = self.folder / "d.jsonl"
        self.drawing.write_text(HEAD + LINE)
        (self.folder / "s.lin").write_bytes(b"*DASHED,Dashed\r\nA,1,-1\r\n")

    def run_program(self, command, *arguments, answers=(), status=0):
        done = subprocess.run([PROGRAM, "run", command, *arguments], cwd=self.folder, capture_output=True, text=True,
                              input="".join(answer + "\n" for answer in answers), encoding="utf-8", timeout=120)
        self.assertEqual(done.returncode, status, done.stdout + done.stderr)
        return done


class Program(RunTest):
    def test_names_of_commands(self):
        for name in ("-LINESTYLE", "LINESTYLE", "_-LINESTYLE", "linestyle"):
            done = self.run_program(name, "--drawing", "d.jsonl", answers=[""])
            self.assertIn("Active LineStyle: ByLayer\n[? to list/", done.stdout)
        self.assertIn("-LINESTYLE, -HYPERLINK", self.run_program("LINE", "--drawing", "d.jsonl", status=2).stderr)
        self.run_program("-LINESTYLE", status=2)
        self.run_program("-LINESTYLE", "--drawing", "none.jsonl", status=2)
        self.drawing.write_text(HEAD + "{}\n")
        self.assertIn("d.jsonl:2: ", self.run_program("-LINESTYLE", "--drawing", "d.jsonl", status=2).stderr)

    def test_examples_of_the_help(self):
        shutil.copytree(SOURCE / "examples", self.folder / "examples")
        folder = self.folder / "bin"
        folder.mkdir()
        (folder / "kvmacro").symlink_to(pathlib.Path(PROGRAM).resolve())
        commands = []
        for arguments in (["--help"], ["run", "--help"]):
            text = subprocess.run([PROGRAM, *arguments], capture_output=True, text=True, check=True).stdout
            examples = re.sub(r"\|\n\s+", "| ", text.split("Examples:\n")[1])
            commands += re.findall(r"^  (.*kvmacro run .*)$", examples, re.MULTILINE)
        self.assertEqual(len(commands), 4)
        for command in commands:
            with self.subTest(command=command):
                environment = {**os.environ, "PATH": f"{folder}:{os.environ['PATH']}"}
                done = subprocess.run(command, shell=True, cwd=self.folder, input="\n", capture_output=True, text=True,
                                      env=environment, timeout=60)
                self.assertEqual((done.returncode, done.stderr), (0, ""))

    def test_a_cancel_saves_nothing(self):
        for last in ("", "\x1b", "\x04"):
            answers = ["Load", "*", "s.lin", *([last] if last else [])]
            done = self.run_program("-LINESTYLE", "--drawing", "d.jsonl", "--save", "d.jsonl", answers=answers, status=1)
            self.assertIn("-5002", done.stderr)
            self.assertIn("*Cancel*", done.stdout)
        self.run_program("-LINESTYLE", "--drawing", "d.jsonl", "--save", "new.jsonl", status=1)
        self.assertEqual(self.drawing.read_text(), HEAD + LINE)
        self.assertEqual(sorted(path.name for path in self.folder.iterdir()), ["d.jsonl", "s.lin"])

    def test_saving_replaces_a_file_whole_or_not_at_all(self):
        load = ["Load", "*", "s.lin", ""]
        saved = HEAD + LINE + ('{"object":{"class":"AcDbLinetypeTableRecord","handle":"2","name":"DASHED",'
                               '"description":"Dashed","pattern":[1,-1]}}\n')
        self.drawing.chmod(0o640)
        (self.folder / "link.jsonl").symlink_to("d.jsonl")
        self.run_program("-LINESTYLE", "--drawing", "d.jsonl", "--save", "link.jsonl", answers=load)
        self.assertEqual(self.drawing.read_text(), saved)
        self.assertEqual(self.drawing.stat().st_mode & 0o777, 0o640)
        self.assertTrue((self.folder / "link.jsonl").is_symlink())

        (self.folder / "folder").mkdir()
        for target in ("none/new.jsonl", "folder"):
            self.run_program("-LINESTYLE", "--drawing", "d.jsonl", "--save", target, answers=load[:-1] + ["No", ""],
                             status=1)
        limited = f"ulimit -f 0; exec '{PROGRAM}' run -LINESTYLE --drawing d.jsonl --save d.jsonl"
        done = subprocess.run(["bash", "-c", limited], cwd=self.folder, input="\n", capture_output=True, text=True)
        self.assertEqual((done.returncode, "can't be written" in done.stderr), (1, True), done.stderr)
        self.assertEqual(self.drawing.read_text(), saved)
        self.assertEqual(sorted(path.name for path in self.folder.iterdir()),
                         ["d.jsonl", "folder", "link.jsonl", "s.lin"])

    def test_many_styles(self):
        count = 100000
        text = "".join(f"*S{number},Number {number}\r\nA,{number},-1\r\n" for number in range(count))
        (self.folder / "many.lin").write_text(text, newline="")
        begin = time.monotonic()
        self.run_program("-LINESTYLE", "--drawing", "d.jsonl", "--save", "d.jsonl", answers=["Load", "*", "many.lin", ""])
        self.assertLess(time.monotonic() - begin, 60, "not in proportion")
        lines = self.drawing.read_text().splitlines()
        self.assertEqual(len(lines), count + 2)
        self.assertIn('"name":"S99999"', lines[-1])
        done = self.run_program("-LINESTYLE", "--drawing", "d.jsonl", answers=["Set", "s99999", ""])
        self.assertIn("Active LineStyle: S99999\n", done.stdout)


class Terminal(RunTest):
    """The program at a pseudo-terminal; `talk` waits for each text and then types the answer."""

    def talk(self, arguments, exchanges):
        child, terminal = pty.fork()
        if child == 0:
            os.chdir(self.folder)
            os.environ.update({"TERM": "xterm", "LC_ALL": "C.UTF-8"})
            os.execv(PROGRAM, [PROGRAM, "run", *arguments])
        self.addCleanup(os.close, terminal)
        shown = b""

        def read_until(wanted):
            nonlocal shown
            end = time.monotonic() + 30
            while wanted is None or wanted.encode() not in shown:
                ready, _, _ = select.select([terminal], [], [], max(0, end - time.monotonic()))
                self.assertTrue(ready, f"{wanted!r} isn't shown: {shown!r}")
                try:
                    data = os.read(terminal, 4096)
                except OSError:
                    data = b""
                if not data:
                    self.assertIsNone(wanted, shown)
                    return
                shown += data
            shown = shown[shown.index(wanted.encode()) + len(wanted.encode()):]

        for wanted, typed in exchanges:
            read_until(wanted)
            os.write(terminal, typed.encode())
        read_until(None)
        return os.waitstatus_to_exitcode(os.waitpid(child, 0)[1])

    def test_a_session_with_line_editing(self):
        backspace, left, up = "\x7f", "\x1b[D", "\x1b[A"
        status = self.talk(["-HYPERLINK", "--drawing", "d.jsonl", "--save", "d.jsonl"], [
            ("[Insert/Remove]: ", "Inx" + backspace + "sert\r"),
            ("<Entity>: ", "E\r"),
            ("Select entities or [Window/ALL]: ", "1\r"),
            ("1 found, 1 total", ""),
            ("Select entities or [Window/ALL]: ", "\r"),
            ("<Enter to use active drawing>: ", "a/\u00e4c" + left + "b\r"),
            ("<Enter for none>: ", up + "\r"),
            ("<Enter for none>: ", "\r"),
        ])
        self.assertEqual(status, 0)
        self.assertIn('"PE_URL":["a/\u00e4bc",{"code":1002,"value":"{"},"","a/\u00e4bc",',
                      self.drawing.read_text(encoding="utf-8"))

    def test_cancel_keys(self):
        for key in ("\x04", "\x1b", "ab\x1b", "ab\x04"):
            status = self.talk(["-LINESTYLE", "--drawing", "d.jsonl", "--save", "d.jsonl"], [
                ("Set]: ", "Load\r"),
                ("Specify LineStyle: ", key),
                ("*Cancel*", ""),
                ("-5002", ""),
            ])
            self.assertEqual(status, 1)
        self.assertEqual(self.drawing.read_text(), HEAD + LINE)


if __name__ == "__main__":
    unittest.main()
