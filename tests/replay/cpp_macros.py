"""Compiles and runs macros of the C++ API, and tells their story from the calls that they made."""
import json
import os
import re
import shutil
import subprocess
from pathlib import Path

import cpp_stand_ins

HERE = Path(__file__).resolve().parent
COMPILE = ["g++", "-std=c++11", "-w", "-O0"]  # macros are the API's texts: their warnings aren't ours

INSERTIONS = {"InsertLine": "Line", "InsertCircle": "Circle", "InsertPoint": "Point", "InsertRay": "Ray",
              "InsertArc": "CircleArc", "InsertInfiniteLine": "InfiniteLine",
              "InsertEllipseDistanceToOtherAxis": "Ellipse", "InsertEllipseArcDistanceToOtherAxis": "EllipseArc"}


ERROR = re.compile(r": (?:fatal )?error: (.*)")


class DoesNotCompile(Exception):
    """A macro that the compiler refuses, with its errors as the compiler words them."""

    def __init__(self, messages):
        super().__init__(messages)
        self.errors = ERROR.findall(messages)


class Language:
    """The tools of one language: what `kvmacro --language` calls it, how to run a macro and to tell its story."""
    name = "cpp"
    extension = "cpp"

    def __init__(self, folder):
        """Prepares the stand-ins in a folder: the headers, precompiled, and the main function."""
        self.folder = Path(folder)
        shutil.copy(HERE / "cpp" / "recorder.h", self.folder)
        shutil.copy(HERE / "cpp" / "run.cpp", self.folder)
        cpp_stand_ins.write(self.folder)
        self.compile(["-x", "c++-header", "api.h"])
        self.compile(["-c", "run.cpp"])

    def compile(self, arguments):
        """Calls the compiler in the folder of the stand-ins."""
        done = subprocess.run([*COMPILE, "-I.", *arguments], cwd=self.folder, env={**os.environ, "LC_ALL": "C"},
                              capture_output=True, text=True, check=False)
        if done.returncode:
            raise DoesNotCompile(done.stderr)

    def run(self, macro):
        """The calls that a macro makes: compiled with its add-in's files, connected, executed."""
        macro = Path(macro)
        program = macro.parent / "macro"
        self.compile(["-include", "api.h", f"-I{macro.parent}", str(macro), str(macro.parent / "kvAddinConnection.cpp"),
                      "run.o", "-o", str(program)])
        done = subprocess.run([program], capture_output=True, text=True, timeout=60, check=False)
        if done.returncode:
            raise RuntimeError(f"{macro.name} ended with {done.returncode}: {done.stderr}")
        return [json.loads(line) for line in done.stdout.splitlines()]

    @staticmethod
    def story(calls):
        return Teller().story(calls)


class Teller:
    """Turns recorded calls into the steps of story.py; calls that only fetch something are passed over."""

    def __init__(self):
        self.steps = []
        self.numbers = {}    # number of a recorded object -> number of the story's object
        self.values = {}     # colours, points, transparencies by recorded number
        self.owners = {}     # transparency -> the object that it was taken from
        self.added = {}      # array -> what was added to it
        self.selecting = []  # arrays of objects in the order of their first entry
        self.start = None    # the sheet that the macro's head asks for
        self.begun = False   # true behind the macro's head

    def story(self, calls):
        for call in calls:
            self.tell(call["object"], call["class"], call["member"], call["arguments"])
        return self.steps

    def tell(self, target, owner, member, arguments):
        if member in INSERTIONS:
            self.insert(INSERTIONS[member], arguments)
        elif owner == "Document" and member == "GetSheet":
            self.start = arguments[0]
        elif owner == "Sheet" and member == "Activate" and not self.begun:
            self.steps.append(["start", self.start])
        elif member == "GetViewManager":
            self.begun = True
        elif target in self.numbers:
            self.change(target, member, arguments)
        elif owner == "CommandMessage":
            self.prompt(member.replace("PromptFor", ""), arguments)
        elif re.match("Set(Command|Application)Option", member):
            self.steps.append(["option", arguments[0], arguments[1] if len(arguments) == 3 else arguments[1:-1]])
        elif member in ("GetColorByIndex", "GetRGBColor"):
            color = {"index": arguments[0]} if member == "GetColorByIndex" else {"rgb": arguments[:3]}
            self.values[arguments[-1]["out"]] = color
        elif member == "CreatePoint":
            self.values[arguments[-1]["out"]] = arguments[:3]
        elif owner == "Transparency":
            self.values[target] = {"alpha": arguments[0]} if arguments else {"by": member[len("SetBy"):].lower()}
        elif owner == "Array":
            self.fill(target, arguments[0])

    def insert(self, kind, arguments):
        number = arguments[-1]["out"]
        self.numbers[number] = len(self.numbers) + 1
        self.steps.append(["insert", kind, arguments[:-1]])

    def change(self, target, member, arguments):
        number = self.numbers[target]
        if member.startswith("put_"):
            value = arguments[0]
            if isinstance(value, dict):
                value = self.values.get(value["object"])
            self.steps.append(["set", number, member[len("put_"):], value])
        elif member == "get_Transparency":
            self.owners[arguments[0]["out"]] = number
        elif member.startswith("Set") and len(arguments) == 3:
            # The coordinates that were only handed on are the ones that the getter gave, each its own mark.
            for axis, value, mark in zip("XYZ", arguments, (900000.5, 900001.5, 900002.5)):
                if value != mark:
                    self.steps.append(["coordinate", number, member[len("Set"):], axis, value])
        elif not member.startswith(("Get", "get_")):
            self.steps.append([member, number, *arguments])

    def prompt(self, kind, arguments):
        if kind == "Selection":
            # What the macro put into its array of objects until now; the array of their types comes first.
            entities = self.added.pop(self.selecting.pop(), []) if self.selecting else []
            self.selecting.clear()
            self.steps.append(["select", *entities])
            return
        if kind == "PointOrKeyword":
            default = self.values[arguments[6]["object"]]
        elif kind == "Point":
            default = arguments[1:4]
        elif kind == "String":
            arguments = arguments[1:]
            default = arguments[1]
        elif kind == "Keyword2":
            kind, default = "Keyword", arguments[5]
        else:
            default = arguments[1]
            if arguments[1] != arguments[2]:
                default = f"{arguments[1]}, but {arguments[2]} in the variable"
        self.steps.append(["prompt", kind, arguments[0], default])

    def fill(self, array, value):
        if isinstance(value, dict) or value is None:
            if array not in self.selecting:
                self.selecting.append(array)
            self.added.setdefault(array, []).append(self.numbers.get(value["object"]) if value else None)
