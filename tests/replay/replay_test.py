#!/usr/bin/env python3
# Converts the examples, compiles and runs their macros against stand-ins of the application, and compares what the macros
# do with what their journals tell.
import os
import re
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

SOURCE = Path(os.environ["KV_SOURCE_DIR"])
PROGRAM = os.environ["KV_PROGRAM"]
HERE = SOURCE / "tests" / "replay"
sys.path.insert(0, str(HERE))

import cpp_macros  # noqa: E402
import story  # noqa: E402

LANGUAGES = [cpp_macros.Language]
EXAMPLES = ["bracket.jsonl", "curves.jsonl"]
DRAWINGS = sorted((SOURCE / "examples" / "drawings").glob("*.jsonl"))


def refused_texts(language):
    """What a language is known to refuse: [(message, text to take out)] by operation."""
    lines = (HERE / "not_compiling.txt").read_text(encoding="utf-8").splitlines()
    rows = [line.split(" | ") for line in lines if line and not line.startswith("#")]
    return {operation: (message, text) for name, operation, message, text in rows if name == language}


def drawn(steps):
    """The lines, circles and arcs of a story: their numbers and their layers."""
    found = {}
    for number, step in enumerate((s for s in steps if s[0] == "insert"), 1):
        if step[1] in ("Line", "Circle", "CircleArc"):
            found[number] = [step[1], step[2], None]
    for step in steps:
        if step[0] == "set" and step[2] == "Layer" and step[1] in found and found[step[1]][2] is None:
            found[step[1]][2] = step[3]
    return list(found.values())


class ReplayTest(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        scratch = tempfile.TemporaryDirectory(prefix="replay-test-")
        cls.addClassCleanup(scratch.cleanup)
        cls.scratch = Path(scratch.name)
        cls.languages = []
        for language in LANGUAGES:
            folder = cls.scratch / f"{language.name}-stand-ins"
            folder.mkdir()
            cls.languages.append(language(folder))
        cls.needed = set()

    def convert(self, journal, language):
        """The converted macro's file."""
        folder = self.scratch / language.name / journal.stem
        done = subprocess.run([PROGRAM, "convert", journal, "--language", language.name, "--output", folder, "--force"],
                              capture_output=True, text=True, check=False)
        self.assertEqual(done.returncode, 0, done.stderr)
        return folder / f"{journal.stem}.{language.extension}"

    def told(self, journal, language):
        """What the journal's macro does, without the texts that its language is known to refuse."""
        macro = self.convert(journal, language)
        refused = refused_texts(language.name)
        try:
            return language.story(language.run(macro))
        except cpp_macros.DoesNotCompile as refusal:
            text = macro.read_text(encoding="utf-8-sig")
            for error in refusal.errors:
                operation = next((o for o, (message, _) in refused.items() if re.search(message, error)), None)
                self.assertIsNotNone(operation, f"{journal.name} in {language.name}: {refusal}")
                self.needed.add((language.name, operation))
                text = re.sub(refused[operation][1], "", text)
            macro.write_text(text, encoding="utf-8")
            return language.story(language.run(macro))

    def test_examples_do_what_their_journals_tell(self):
        for language in self.languages:
            for name in EXAMPLES:
                with self.subTest(language=language.name, journal=name):
                    journal = SOURCE / "examples" / name
                    expected = story.of_journal(journal)
                    self.assertGreater(len(expected), 40)
                    self.assertIsNone(story.first_difference(expected, self.told(journal, language)))

    def test_drawings_draw_each_curve_on_its_layer(self):
        self.assertEqual(len(DRAWINGS), 5)
        for language in self.languages:
            for journal in DRAWINGS:
                with self.subTest(language=language.name, journal=journal.name):
                    # A macro may draw more, inside blocks and for dimensions: the journal's come in their order.
                    rest = iter(drawn(self.told(journal, language)))
                    for expected in drawn(story.of_journal(journal)):
                        self.assertTrue(any(story.same(expected, found) for found in rest), f"not drawn: {expected}")
            known = {(language.name, operation) for operation in refused_texts(language.name)}
            self.assertEqual(known - self.needed, set(), "compiles by now: take it out of not_compiling.txt")

    def test_a_step_that_differs_is_found(self):
        steps = story.of_journal(SOURCE / "examples" / "curves.jsonl")
        for change in (lambda s: s[1][2].__setitem__(0, 1e-8), lambda s: s.pop(), lambda s: s.insert(3, s.pop(4)),
                       lambda s: s[0].__setitem__(1, "Sheet 1")):
            other = story.of_journal(SOURCE / "examples" / "curves.jsonl")
            change(other)
            self.assertIsNotNone(story.first_difference(steps, other))


class CppStandInsTest(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        scratch = tempfile.TemporaryDirectory(prefix="stand-ins-test-")
        cls.addClassCleanup(scratch.cleanup)
        cls.folder = Path(scratch.name)
        cls.language = cpp_macros.Language(cls.folder)

    def compile(self, text):
        source = self.folder / "text.cpp"
        source.write_text(text, encoding="utf-8")
        self.language.compile(["-fsyntax-only", "-include", "api.h", source.name])

    def test_the_texts_of_every_family_compile(self):
        self.compile((HERE / "cpp" / "texts.cpp").read_text(encoding="utf-8"))

    def test_what_is_spelled_otherwise_does_not(self):
        for text in ("line->put_Colour( color );", "line->put_Layer( 5 );", "line->put_Radius( 1.0 );",
                     "line->put_LineWeight( kvLnWt_036 );", "line->put_LineWeight( kvCircleType );",
                     "sketch->InsertLine( 0, 0, 0, 1, 1, &line );", "sketch->InsertCircle( 0, 0, 0, 1, &line );"):
            with self.subTest(text), self.assertRaises(cpp_macros.DoesNotCompile):
                self.compile(f"void macro( kvLine_ptr line, kvColor_ptr color, kvSketchManager_ptr sketch )\n{{ {text} }}\n")


if __name__ == "__main__":
    unittest.main()
