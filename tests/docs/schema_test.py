# The JSON Schema of a journal's line: it takes the examples, and knows and refuses what the program knows and refuses.
import json
import os
import pathlib
import re
import subprocess
import tempfile
import unittest

import jsonschema

PROGRAM = os.environ["KV_PROGRAM"]
SOURCE = pathlib.Path(os.environ["KV_SOURCE_DIR"])
SCHEMA = json.loads((SOURCE / "docs/journal.schema.json").read_text(encoding="utf-8"))
VALIDATOR = jsonschema.Draft202012Validator(SCHEMA)
MOST_FAULTS = 20

GOOD = """
{"journal":{"version":1.0,"recordingMode":0,"unknown":[]}}
null
{"settings":{"TRIMMODE":-1,"CMDDIA":true,"LANG":"de","LTSCALE":0.5}}
{"translations":{"property_values":{"Yes":"Ja"}}}
{"drawing":{"currentLayout":"Sheet 1","chamferAngle":1e-3}}
{"object":{"class":"AcDbCircle","handle":"0f","center":[1,2,3],"erased":true,"xdata":{"PE_URL":["a",{"code":1002,"value":"{"}]}}}
{"object":{"class":"AcDbOrdinateDimension","handle":"F1","origin":[0,0,0],"fit":5,"associations":["1",null]}}
{"object":{"class":"AcDbLayerTable","handle":"F2"}}
{"added":{"class":"Anything","handle":"0","properties":[{"name":"","group":"","value":null,"tag":{"points":[[1,2,3]]}}]}}
{"modified":{"class":"AcDbArc","handle":"1","properties":[{"name":"a","value":{"collection":{"index":-1,"elements":[{"tag":null,"value":{"id":"1"}}]}}}]}}
{"prompt":{"kind":-7,"answer":null}}
{"sysvar":{"name":"X","value":{"point2d":[1,2]}}}
{"action":{"id":99,"data":[null,true,1,"a",{"class":null},{"classes":[null,"AcDbLine"]},{"vector":[0,0,1]},{"points2d":[]}]}}
""".split("\n")[1:-1]

BAD = """
[]
{}
{"other":"a","end":"b"}
{"unknown":1}
{"journal":{"recordingMode":1}}
{"journal":{"version":2}}
{"journal":{"version":1,"recordingMode":0.5}}
{"drawing":{"thickness":"1"}}
{"drawing":{"currentlayer":"0"}}
{"settings":{"TRIMMODE":32768}}
{"settings":{"CMDDIA":null}}
{"translations":{"property_values":{"Yes":1}}}
{"object":{"class":"AcDbLine"}}
{"object":{"class":"AcDbLine","handle":"00"}}
{"object":{"class":"AcDbLine","handle":"12345678901234567"}}
{"object":{"class":"AcDbNothing","handle":"F"}}
{"object":{"class":"AcDbLine","handle":"F","radius":1}}
{"object":{"class":"AcDbLine","handle":"F","startPoint":[1,2]}}
{"object":{"class":"AcDbMText","handle":"F","attachment":10}}
{"object":{"class":"AcDbFace","handle":"F","edges":[true]}}
{"object":{"class":"AcDbLine","handle":"F","reactors":[null]}}
{"object":{"class":"AcDbLine","handle":"F","xdata":{"A":[{"code":1040,"value":"a"}]}}}
{"object":{"class":"AcDbLine","handle":"F","xdata":{"A":[{"code":1010,"value":1}]}}}
{"object":{"class":"AcDbLine","handle":"F","xdata":{"A":[{"code":999,"value":"a"}]}}}
{"command":1}
{"added":{"class":"AcDbLine","handle":"1"}}
{"added":{"class":"AcDbLine","handle":"xyz","properties":[]}}
{"added":{"class":"AcDbLine","handle":"1","properties":[{"name":"a"}]}}
{"added":{"class":"AcDbLine","handle":"1","properties":[{"name":"a","group":null,"value":1}]}}
{"added":{"class":"AcDbLine","handle":"1","properties":[{"name":"a","value":{"real":1}}]}}
{"added":{"class":"AcDbLine","handle":"1","properties":[{"name":"a","value":[1,2,3]}]}}
{"added":{"class":"AcDbLine","handle":"1","properties":[{"name":"a","value":{"color":{"index":257}}}]}}
{"added":{"class":"AcDbLine","handle":"1","properties":[{"name":"a","value":{"color":{"rgb":[1,2]}}}]}}
{"added":{"class":"AcDbLine","handle":"1","properties":[{"name":"a","value":{"transparency":"byColor"}}]}}
{"added":{"class":"AcDbLine","handle":"1","properties":[{"name":"a","value":{"int":1,"id":"1"}}]}}
{"changed":{"class":"AcDbLine","handle":"1","property":[]}}
{"changed":{"class":null,"handle":"1","property":{"name":"a","value":1}}}
{"prompt":{"kind":"length"}}
{"prompt":{"text":"a"}}
{"prompt":{"kind":0,"keywords":{"local":[]}}}
{"prompt":{"kind":0,"answer":{"int":1}}}
{"sysvar":{"name":"A"}}
{"sysvar":{"name":"A","value":{"int8":128}}}
{"select":{"handles":["1"]}}
{"select":{"handles":["1"],"classes":[null]}}
{"action":{"id":2147483648,"data":[]}}
{"action":{"id":1,"data":[{"handle":null}]}}
{"action":{"id":1,"data":[{"handles":"1"}]}}
""".split("\n")[1:-1]


class Schema(unittest.TestCase):
    def check(self, lines):
        """What the program says of a journal with these lines, and its exit status."""
        with tempfile.TemporaryDirectory(prefix="schema-test-") as folder:
            journal = pathlib.Path(folder) / "lines.jsonl"
            journal.write_text("\n".join([*lines, ""]), encoding="utf-8")
            done = subprocess.run([PROGRAM, "check", journal.name], cwd=folder, capture_output=True, text=True,
                                  encoding="utf-8", timeout=120)
            return done.stderr, done.returncode

    def faults(self, lines):
        """The program's fault of each line behind a head; None where it has none."""
        found = {}
        for begin in range(0, len(lines), MOST_FAULTS):
            told, _ = self.check(['{"journal":{"version":1}}', *lines[begin:begin + MOST_FAULTS]])
            for number, message in re.findall(r"^lines\.jsonl:(\d+): (.*)$", told, re.MULTILINE):
                found[begin + int(number) - 2] = message
        return [found.get(number) for number in range(len(lines))]

    def test_is_a_schema(self):
        jsonschema.Draft202012Validator.check_schema(SCHEMA)

    def test_examples(self):
        journals = [*SOURCE.glob("examples/*.jsonl"), *SOURCE.glob("examples/drawings/*.jsonl")]
        self.assertNotEqual(journals, [])
        for journal in journals:
            for number, line in enumerate(journal.read_text(encoding="utf-8").splitlines(), 1):
                error = jsonschema.exceptions.best_match(VALIDATOR.iter_errors(json.loads(line)))
                self.assertIsNone(error, f"{journal.name}:{number}: {error and error.message}")

    def test_schema_and_program_take_the_same_lines(self):
        for line in GOOD:
            error = jsonschema.exceptions.best_match(VALIDATOR.iter_errors(json.loads(line)))
            self.assertIsNone(error, line)
        told, status = self.check(GOOD)
        self.assertNotEqual(status, 2, told)

    def test_schema_and_program_refuse_the_same_lines(self):
        for line, fault in zip(BAD, self.faults(BAD)):
            with self.subTest(line=line):
                self.assertFalse(VALIDATOR.is_valid(json.loads(line)), "the schema takes the line")
                self.assertIsNotNone(fault, "the program takes the line")

    def test_records_are_the_programs(self):
        known = self.faults(['{"unknown":1}'])[0].partition("expected one of ")[2].split(", ")
        self.assertEqual(set(SCHEMA["properties"]), set(known))

    def test_classes_and_their_keys_are_the_programs(self):
        described = SCHEMA["$defs"]["object"]
        classes = described["properties"]["class"]["enum"]
        source = (SOURCE / "src/host/db/classes.cpp").read_text(encoding="utf-8")
        self.assertEqual(set(classes), set(re.findall(r'"(AcDb\w+)"', source)) - {"AcDbDatabase"})
        asked = [json.dumps({"object": {"class": name, "handle": "1", "?": 0}}) for name in classes]
        for name, fault in zip(classes, self.faults(asked)):
            known = set(fault.partition(f"a key of {name}: ")[2].split(", ")) - {""}
            keys = set(described["properties"])
            for branch in described["allOf"]:
                condition = branch["if"]["properties"]["class"]
                if name in condition.get("enum", [condition.get("const")]):
                    keys |= set(branch["then"]["properties"])
            self.assertEqual(keys, known, name)


if __name__ == "__main__":
    unittest.main()
