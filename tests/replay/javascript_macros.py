"""Runs JavaScript macros: the script of their page in node."""
import json
import re
import shutil

import api
from language import HERE, Language


def _argument(member, index):
    """An argument as a script sees it: only what it writes, and everything that comes back.

    A value that goes in and out is written unless the argument before it is the same value as a default.
    """
    argument = member.arguments[index]
    before = member.arguments[index - 1] if index else None
    doubled = before is not None and before.way == "in" and before.type == argument.type
    written = argument.way in ("in", "handle") or (
        argument.way == "inout" and not doubled and not argument.type.endswith("_e"))
    return {"type": argument.type, "written": written, "returned": argument.way in ("out", "inout", "unset")}


def library():
    """The API for the stand-ins, as a script."""
    classes = {}
    for name, found in api.classes().items():
        members = [{"name": member.name, "owner": name, "result": member.result and member.result.type,
                    "arguments": [_argument(member, index) for index in range(len(member.arguments))]}
                   for member in found.members]
        classes[name] = {"base": found.base, "members": members}
    enumerations = {name: [constant for constant, _ in constants] for name, constants in api.enumerations().items()}
    return "var API = " + json.dumps({"classes": classes, "enumerations": enumerations}) + ";\n"


class JavaScript(Language):
    name = "javascript"
    extension = "html"
    error = re.compile(r"^(\w*Error: .*)", re.MULTILINE)
    records_selections = False

    def prepare(self):
        """The script library."""
        (self.folder / "api.js").write_text(library(), encoding="utf-8")
        for name in ("stand_ins.js", "run.js"):
            shutil.copy(HERE / "javascript" / name, self.folder)

    def page_script(self):
        """What a browser loads in place of the library."""
        names = (self.folder / "api.js", self.folder / "stand_ins.js", HERE / "javascript" / "page.js")
        return "".join(name.read_text(encoding="utf-8") for name in names)

    def run(self, macro):
        """The calls that the page's button makes."""
        return self.calls(macro, "node", "run.js", "api.js", "stand_ins.js", str(macro))
