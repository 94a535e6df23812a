# The documents hold: their links lead somewhere, and what the README shows is what the program does.
import os
import pathlib
import re
import subprocess
import tempfile
import unittest

PROGRAM = pathlib.Path(os.environ["KV_PROGRAM"]).resolve()
SOURCE = pathlib.Path(os.environ["KV_SOURCE_DIR"]).resolve()
DOCUMENTS = [*SOURCE.glob("*.md"), *(path for folder in ("docs", "examples", "tests", "bench")
                                     for path in (SOURCE / folder).rglob("*.md"))]


def unindented(text):
    return "\n".join(line.strip() for line in text.strip().splitlines())


def anchors(document):
    headings = re.findall(r"^#+ +(.*)$", document.read_text(encoding="utf-8"), re.MULTILINE)
    return {re.sub(r"[^\w\- ]", "", heading.lower()).replace(" ", "-") for heading in headings}


class Links(unittest.TestCase):
    def test_lead_to_files_and_headings(self):
        for document in DOCUMENTS:
            text = re.sub(r"^```.*?^```", "", document.read_text(encoding="utf-8"), flags=re.DOTALL | re.MULTILINE)
            for link in re.findall(r"\]\(([^)\s]+)\)", text):
                with self.subTest(document=document.name, link=link):
                    file, _, anchor = link.partition("#")
                    target = document.parent / file if file else document
                    self.assertTrue(target.exists())
                    self.assertTrue(not anchor or anchor in anchors(target))

    def test_paths_of_the_source_exist(self):
        """Words in code quotes that begin with a folder of the project are files of it, or stand for one."""
        for document in DOCUMENTS:
            for path in re.findall(r"`((?:src|tests|docs|examples|tools|bench)/[^`\s<>*:(){}]*)`",
                                   document.read_text(encoding="utf-8")):
                with self.subTest(document=document.name, path=path):
                    self.assertTrue((SOURCE / path).exists())


class Code(unittest.TestCase):
    def test_shown_in_how_to_is_that_of_the_source(self):
        sources = [unindented(file.read_text(encoding="utf-8")) for pattern in ("*.h", "*.cpp", "*.def")
                   for file in (SOURCE / "src").rglob(pattern)]
        text = (SOURCE / "docs/adding-an-operation.md").read_text(encoding="utf-8")
        blocks = re.findall(r"^ *```cpp\n(.*?)^ *```", text, re.DOTALL | re.MULTILINE)
        self.assertNotEqual(blocks, [])
        for block in blocks:
            with self.subTest(block=block):
                self.assertTrue(any(unindented(block) in source for source in sources))


class Readme(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory(prefix="documents-test-")
        self.addCleanup(folder.cleanup)
        self.folder = pathlib.Path(folder.name)
        (self.folder / "examples").symlink_to(SOURCE / "examples")
        self.text = (SOURCE / "README.md").read_text(encoding="utf-8")

    def block(self, language):
        return re.search(rf"^```{language}\n(.*?)^```", self.text, re.DOTALL | re.MULTILINE).group(1)

    def run_line(self, line):
        program, *arguments = line.split()
        self.assertEqual(program, "kvmacro")
        done = subprocess.run([PROGRAM, *arguments], cwd=self.folder, capture_output=True, text=True,
                              encoding="utf-8", timeout=120)
        self.assertEqual((done.returncode, done.stderr), (0, ""), line)
        return done.stdout

    def test_commands_run_in_order(self):
        commands = self.block("sh").splitlines()
        self.assertGreater(len(commands), 1)
        for command in commands:
            self.run_line(command)

    def test_journal_becomes_the_macro_shown(self):
        journal = (SOURCE / "examples/bracket.jsonl").read_text(encoding="utf-8")
        self.assertIn("\n" + self.block("json"), journal)
        self.run_line("kvmacro convert examples/bracket.jsonl --language cpp --output out")
        self.assertIn("\n" + self.block("cpp"), (self.folder / "out/bracket.cpp").read_text(encoding="utf-8"))

    def test_check_prints_the_rows_shown(self):
        heading, rows = self.block("text").split("\n", 1)
        printed = self.run_line("kvmacro check examples/bracket.jsonl")
        self.assertEqual(printed.splitlines()[0].split(), heading.split())
        self.assertIn("\n" + rows, printed)

    def test_languages_and_their_macros(self):
        rows = dict(re.findall(r"^\| `(\w+)` \| `NAME(\.\w+)`", self.text, re.MULTILINE))
        self.run_line("kvmacro convert examples/bracket.jsonl --language all --output all --name NAME")
        self.assertEqual(set(rows), {path.name for path in (self.folder / "all").iterdir()})
        for language, extension in rows.items():
            self.assertTrue((self.folder / "all" / language / f"NAME{extension}").is_file(), language)


if __name__ == "__main__":
    unittest.main()
