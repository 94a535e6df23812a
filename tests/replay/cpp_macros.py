"""Compiles and runs macros of the C++ API."""
import re
import shutil

import cpp_stand_ins
from language import HERE, Language

COMPILE = ("g++", "-std=c++11", "-w", "-O0", "-I.")  # macros are the API's texts: their warnings aren't ours


class Cpp(Language):
    name = "cpp"
    extension = "cpp"
    error = re.compile(r": (?:fatal )?error: (.*)")

    def prepare(self):
        """The headers, precompiled, and the main function."""
        shutil.copy(HERE / "cpp" / "recorder.h", self.folder)
        shutil.copy(HERE / "cpp" / "run.cpp", self.folder)
        cpp_stand_ins.write(self.folder)
        self.compile("-x", "c++-header", "api.h")
        self.compile("-c", "run.cpp")

    def compile(self, *arguments):
        self.tool(*COMPILE, *arguments)

    def run(self, macro):
        """The calls that a macro makes: compiled with its add-in's files, connected, executed."""
        program = macro.parent / "macro"
        self.compile("-include", "api.h", f"-I{macro.parent}", str(macro), str(macro.parent / "kvAddinConnection.cpp"),
                     "run.o", "-o", str(program))
        return self.calls(macro, str(program))
