"""Checks C++ COM macros and the files of their projects with the compilers of MinGW; they aren't run."""
import re
import shutil

import com_stand_ins
from language import HERE, Language, Refused

TOOLS = "x86_64-w64-mingw32-"
COMPILE = (f"{TOOLS}g++", "-std=gnu++17", "-DUNICODE", "-D_UNICODE", "-fpermissive", "-w", "-I.")
BRACES = re.compile(r"uuid\(\{([^}]*)\}\)")


class Com(Language):
    name = "cppcom"
    extension = "cpp"
    error = re.compile(r": (?:fatal )?error: (.*)")
    runs = False

    def prepare(self):
        """The stand-ins of ATL and of automation, precompiled, and of the system's type libraries."""
        for path in (HERE / "com").iterdir():
            shutil.copy(path, self.folder)
        (self.folder / "imports.h").write_text(com_stand_ins.header(), encoding="utf-8")
        (self.folder / "api.h").write_text('#pragma once\n#include <list>\n#include "atlcom.h"\n#include "imports.h"\n',
                                           encoding="utf-8")
        self.tool(*COMPILE, "-x", "c++-header", "api.h")
        self.tool(f"{TOOLS}widl", "-I.", "-t", "-o", "stdole2.tlb", "stdole2.idl")

    def run(self, macro):
        """Checks the project; there are no calls."""
        folder, name = macro.parent, macro.stem
        self.interfaces(folder, name)
        stdafx = folder / "stdafx.h"
        text = stdafx.read_text(encoding="utf-8-sig")
        if len(re.findall("(?m)^#import ", text)) not in (0, 2):
            raise Refused(f"{stdafx} imports something else", ["not two #import lines"])
        stdafx.write_text(re.sub("(?m)^#import .*", "", text), encoding="utf-8-sig")
        for source in ("KvAddinConnection.cpp", "stdafx.cpp", f"{name}.cpp"):
            self.tool(*COMPILE, "-include", "api.h", "-fsyntax-only", f"-I{folder}", str(folder / source))
        self.tool(f"{TOOLS}windres", f"-I{folder}", str(folder / f"{name}.rc"), "-O", "coff", "-o", str(folder / "rc.o"))
        for definitions in (f"{name}.def", f"{name}ps.def"):
            said = self.tool("sh", "-c", f'{TOOLS}dlltool -d "$0" -l "$1" 2>&1', str(folder / definitions),
                             str(folder / "exports.a"))
            if said:  # its status is 0 even so
                raise Refused(f"{definitions}: {said}", [said])
        self.tool("xmllint", "--noout", str(folder / f"{name}.vcproj"))
        return []

    def interfaces(self, folder, name):
        """Makes the header and the type library. The braces that the format keeps in the .idl are its only error."""
        idl = folder / f"{name}.idl"
        text = idl.read_text(encoding="utf-8")
        try:
            self.tool(f"{TOOLS}widl", "-I.", "-h", "-H", str(folder / "braces.h"), str(idl))
        except Refused as refusal:
            if not (BRACES.search(text) and [error for error in refusal.errors if "unexpected '{'" in error]):
                raise
        else:
            raise Refused(f"{idl} keeps no braces", ["no braces"])
        fixed = folder / "fixed.idl"
        fixed.write_text(BRACES.sub(r"uuid(\1)", text), encoding="utf-8")
        self.tool(f"{TOOLS}widl", "-I.", "-h", "-H", str(folder / f"{name}_i.h"), str(fixed))
        self.tool(f"{TOOLS}widl", "-I.", "-L.", "-t", "-o", str(folder / f"{name}.tlb"), str(fixed))
