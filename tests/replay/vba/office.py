"""Runs VBA macros in the Basic of an office suite: a request a line on standard input, an answer a line on standard output.

Started by the system's Python, which has the suite's bridge. A request is {"text": the macro, "drawing": a text or ""}, its
answer {"calls": [...]}, {"line": the first line with which the macro doesn't compile} or {"error": what it ran into}.
"""
import json
import os
import re
import subprocess
import sys
import tempfile
import time
from pathlib import Path

import uno
import unohelper
from com.sun.star.beans import PropertyValue
from com.sun.star.connection import NoConnectException
from com.sun.star.script import XInvocation2

sys.path.insert(0, str(Path(__file__).resolve().parent.parent))
import api  # noqa: E402
import automation  # noqa: E402

RETURNED = {"PromptForKeyword2": 7}  # the kind of the answer, not its text
ANY = None  # the class of an object that only the drawing would know
CLASSES = api.classes()
ENUMERATIONS = {name: [constant for constant, _ in constants] for name, constants in api.enumerations().items()}
PLAIN = {"real": (int, float), "int": int, "bool": bool, "text": str}
LISTS = {"reals": "real", "ints": "int", "texts": "text", "objects": "object"}

# Runs the macro, so that what it runs into comes back as a text.
START = """Option VBASupport 1
Sub main(replayed, outcome)
    On Error GoTo Failed
    Macro.main replayed
    outcome.done ""
    Exit Sub
Failed:
    outcome.done Error$
End Sub
"""


def lower(names):
    return {name.lower(): found for name, found in names.items()}


# Basic doesn't tell small letters from capitals.
METHODS, PROPERTIES = {}, {}
for class_name, found_class in CLASSES.items():
    methods = {}
    for found in automation.methods(found_class, RETURNED):
        methods.setdefault(found.member.name, []).append((class_name, found))
    METHODS[class_name] = lower(methods)
    PROPERTIES[class_name] = lower({name: (class_name, name, *types)
                                    for name, types in automation.properties(found_class).items()})


def line_of(kind):
    """A class and its bases; all classes where it isn't known."""
    if kind is ANY:
        yield from CLASSES
    while kind:
        yield kind
        kind = CLASSES[kind].base


class Story:
    """The calls of one macro, and the drawing that answers its selections."""

    def __init__(self, drawing):
        self.calls, self.count, self.selected = [], 0, None
        self.selections = []
        for words in filter(None, map(str.split, drawing.splitlines())):
            if words[0] == "window":
                self.selections.append([])
            elif words[0] == "entity":
                self.selections[-1].append((words[1], {}))
            else:
                self.selections[-1][-1][1][words[1]] = [float(word) for word in words[2:]]


class Outcome(unohelper.Base, XInvocation2):
    """Takes what a run came to; without an answer the macro didn't compile."""

    def __init__(self):
        self.error = None

    def getIntrospection(self):
        return INTROSPECTION.inspect(self)

    def hasMethod(self, name):
        return name.lower() == "done"

    def hasProperty(self, _):
        return False

    def invoke(self, _, values, __, ___):
        self.error = values[0]
        return None, (), ()


class StandIn(unohelper.Base, XInvocation2):
    def __init__(self, story, kind, values=None):
        story.count += 1
        self.story, self.kind, self.number, self.values = story, kind, story.count, values or {}

    def getIntrospection(self):
        return INTROSPECTION.inspect(self)

    def members(self, table, name):
        for kind in line_of(self.kind):
            found = table[kind].get(name.lower())
            if found:
                return found
        return None

    def hasMethod(self, name):
        return self.members(METHODS, name) is not None

    def hasProperty(self, name):
        return name == "ReplayNumber" or self.members(PROPERTIES, name) is not None

    def getValue(self, name):
        if name == "ReplayNumber":
            return f"{self.number} {self.kind or ''}"
        owner, name, _, got = self.members(PROPERTIES, name)
        if not got:
            return None  # Basic looks at what it is about to put something into
        call = Call(self, owner, f"get_{name}", ())
        value = call.give(got)
        call.end()
        return value

    def setValue(self, name, value):
        owner, name, put, _ = self.members(PROPERTIES, name)
        if not any(fits(value, kind) for kind in put):
            raise TypeError(f"{owner}.{name} can't be {value!r}")
        call = Call(self, owner, f"put_{name}", ())
        call.add(value)
        call.end()

    def invoke(self, name, values, _, __):
        for owner, method in self.members(METHODS, name):
            taken = [method.member.arguments[index] for index in method.written]
            if len(taken) == len(values) and all(a.way not in ("in", "handle") or fits(v, a.type)
                                                 for a, v in zip(taken, values)):
                return self.call(owner, method, values)
        raise TypeError(f"{self.kind}.{name} doesn't take {values}")

    def call(self, owner, method, values):
        member = method.member
        call = Call(self, owner, member.name, values)
        result, out = None, list(values)
        changed = 0
        for index, argument in enumerate(member.arguments):
            if index == method.result:
                result = call.give(argument.type)
                continue
            place = method.written.index(index)
            if argument.way in ("in", "handle"):
                call.add(values[place])
            else:
                before = values[place] if argument.way == "inout" and argument.type in ("real", "int") else None
                out[place] = call.give(argument.type, before)
                changed = place + 1
        if member.result:
            result = call.give(member.result.type)
        call.end()
        # Basic takes the values of changed arguments in the order of the arguments, whatever their places are.
        return result, tuple(range(changed)), tuple(out[:changed])


class Call:
    def __init__(self, target, owner, member, values):
        self.target, self.owner, self.member, self.values = target, owner, member, values
        self.arguments, self.marks = [], 0
        index = values[0] if values and isinstance(values[0], int) and not isinstance(values[0], bool) else ""
        self.known = target.values.get(f"{member}{index}")

    def add(self, value):
        self.arguments.append(told(value))

    def give(self, kind, before=None):
        """What the API gives back. Numbers with a fraction are the drawing's, or tell their place."""
        story = self.target.story
        entity = None
        if self.member == "GetSelectedObject" and story.selected is not None:
            entity = story.selected[self.values[1]]
        if kind in PLAIN or kind in ENUMERATIONS or kind in LISTS:
            self.arguments.append(before)
        if kind == "real":
            self.marks += 1
            return self.known[self.marks - 1] if self.known else 900000.5 + self.marks - 1
        if kind == "int":
            return len(story.selected) if self.member == "GetSelectedObjectCount" and story.selected is not None else 1
        if kind == "bool":
            return True
        if kind == "text":
            return "given"
        if kind in LISTS:
            return tuple(StandIn(story, ANY) for _ in range(4))
        if kind in ENUMERATIONS:
            return entity[0] if entity and kind == "kvObjectType_e" else next(iter(ENUMERATIONS[kind]), f"{kind}_none")
        if kind == "object":
            made = StandIn(story, entity[0][len("kv"):-len("Type")], entity[1]) if entity else StandIn(story, ANY)
        else:
            made = StandIn(story, kind)
        self.arguments.append({"out": made.number})
        return made

    def end(self):
        story = self.target.story
        story.calls.append({"object": self.target.number, "class": self.owner, "member": self.member,
                            "arguments": self.arguments})
        if self.member == "SelectByWindow":
            story.selected = story.selections.pop(0) if story.selections else None
        elif self.member == "ClearSelections":
            story.selected = None


def told(value):
    if isinstance(value, (tuple, list)):
        return [told(entry) for entry in value]
    if value is None or isinstance(value, (bool, int, float, str)):
        return value
    return {"object": int(value.ReplayNumber.split()[0])}


def fits(value, kind):
    if kind in LISTS and (value is None or value == 0):
        return True  # nothing in place of a list
    if kind in LISTS:
        return isinstance(value, tuple) and all(fits(entry, LISTS[kind]) for entry in value)
    if kind in PLAIN:
        if kind == "int" and value in ENUMERATIONS["kvObjectType_e"]:
            return True  # macros hand types on as numbers
        return isinstance(value, PLAIN[kind]) and (kind == "bool" or not isinstance(value, bool))
    if kind in ENUMERATIONS:
        return value in ENUMERATIONS[kind] or isinstance(value, int) and not isinstance(value, bool)
    if value is None:
        return True
    if not hasattr(value, "ReplayNumber"):
        return False
    of = value.ReplayNumber.split()[1:]
    return kind == "object" or not of or kind in line_of(of[0])


def in_basic(text):
    """The macro as this Basic can have it: it knows neither the API's types nor its constants."""
    text = re.sub(r"\b(?:Morvane\.)?kv\w+_e\.(kv\w+)", r'"\1"', text)
    text = re.sub(r"\bAs (?:Morvane\.)?kv\w+_e\b", "As Variant", text)
    text = re.sub(r"\bAs Morvane\.\w+", "As Object", text)
    # What goes into a method's argument may come back by it, and this Basic's own True and False can't be written to.
    text = re.sub(r"(?i)(?<=[,(\w] )(true|false)(?=,| ?\)| ?_?\n)", r"CBool(\1)", text)
    text = text.replace('GetObject(, "Morvane.Application")', "replayed").replace("Sub main()", "Sub main(replayed)")
    return "Option VBASupport 1\n" + text


BLOCKS = [("End If", re.compile(r"\s*if\b.*\bthen\s*", re.I), re.compile(r"\s*end if\b", re.I)),
          ("Next", re.compile(r"\s*for\b.*", re.I), re.compile(r"\s*next\b", re.I)),
          ("End Sub", re.compile(r"\s*sub\b.*", re.I), re.compile(r"\s*end sub\b", re.I))]


def statements(text):
    """The statements of a macro: lines, with those that they go on in."""
    return re.findall(r"(?:.* _\n)*.*\n", text if text.endswith("\n") else text + "\n")


def cut_off(lines):
    """The first lines of a macro, with what ends the blocks that are open behind them."""
    opened = []
    for line in lines:
        joined = line.replace(" _\n", " ").rstrip("\n")
        for end, begins, ends in BLOCKS:
            if begins.fullmatch(joined):
                opened.append(end)
            elif ends.match(joined) and opened and opened[-1] == end:
                opened.pop()
    return "".join(lines) + "".join(f"{end}\n" for end in reversed(opened))


class Office:
    def __init__(self, folder):
        name = f"replay{os.getpid()}"
        self.process = subprocess.Popen(["soffice", "--headless", "--norestore", "--nologo", "--nodefault",
                                         f"-env:UserInstallation=file://{folder}/profile",
                                         f"--accept=pipe,name={name};urp;"],
                                        stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        resolver = LOCAL.ServiceManager.createInstanceWithContext("com.sun.star.bridge.UnoUrlResolver", LOCAL)
        end = time.monotonic() + 60
        while True:
            try:
                context = resolver.resolve(f"uno:pipe,name={name};urp;StarOffice.ComponentContext")
                break
            except NoConnectException:
                if time.monotonic() > end or self.process.poll() not in (None, 0):
                    raise
                time.sleep(0.1)
        self.desktop = context.ServiceManager.createInstanceWithContext("com.sun.star.frame.Desktop", context)
        options = [PropertyValue(Name=name, Value=value) for name, value in
                   (("Hidden", True), ("MacroExecutionMode", uno.getConstantByName(
                       "com.sun.star.document.MacroExecMode.ALWAYS_EXECUTE_NO_WARN")))]
        self.document = self.desktop.loadComponentFromURL("private:factory/swriter", "_blank", 0, tuple(options))
        libraries = self.document.BasicLibraries
        if not libraries.hasByName("Standard"):
            libraries.createLibrary("Standard")
        self.library = libraries.getByName("Standard")
        self.library.insertByName("Start", START)

    def run(self, text, story):
        """What a macro ran into, "" for nothing, None when it doesn't compile."""
        if self.library.hasByName("Macro"):
            self.library.removeByName("Macro")
        self.library.insertByName("Macro", text)
        outcome = Outcome()
        self.document.getScriptProvider().getScript(
            "vnd.sun.star.script:Standard.Start.main?language=Basic&location=document").invoke(
                (StandIn(story, "Application"), outcome), (), ())
        return outcome.error

    def compiles(self, text):
        """Whether a macro compiles; it isn't run."""
        return self.run(text.replace("Sub main(replayed)\n", "Sub main(replayed)\nExit Sub\n"), Story("")) is not None

    def answer(self, request):
        text, story = in_basic(request["text"]), Story(request["drawing"])
        if self.compiles(text):
            # This Basic declares a variable when it comes to the Dim, which may stand in a branch that isn't run.
            error = self.run(text.replace("Option Explicit\n", ""), story)
            return {"error": f"{error} after {story.calls[-1:]}"} if error else {"calls": story.calls}
        # The suite keeps to itself what it doesn't like: the shortest beginning of the macro that doesn't compile tells.
        lines = statements(text)
        good, bad = 0, len(lines)
        while bad - good > 1:
            middle = (good + bad) // 2
            good, bad = (middle, bad) if self.compiles(cut_off(lines[:middle])) else (good, middle)
        return {"line": lines[bad - 1]}

    def close(self):
        self.desktop.terminate()
        self.process.wait(30)


LOCAL = uno.getComponentContext()
INTROSPECTION = LOCAL.ServiceManager.createInstanceWithContext("com.sun.star.beans.Introspection", LOCAL)
if __name__ == "__main__":
    with tempfile.TemporaryDirectory(prefix="replay-office-", ignore_cleanup_errors=True) as scratch:
        office = Office(scratch)
        for given in sys.stdin:
            print(json.dumps(office.answer(json.loads(given))), flush=True)
        office.close()
