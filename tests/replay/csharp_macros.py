"""Compiles and runs C# macros."""
import re
import shutil

import csharp_stand_ins
from language import HERE, Language

COMPILE = ("mcs", "-langversion:3", "-nologo", "-warn:0")
LIBRARY = (*COMPILE, "-unsafe", "-target:library", "-out:Morvane.dll", "Morvane.cs", "recorder.cs")
DRIVER = """static class Driver
{{
    static void Main()
    {{
        new KVAPIMacros.{name}().Run( (Morvane.Application)new Morvane.Made() );
    }}
}}
"""


class CSharp(Language):
    name = "csharp"
    extension = "cs"
    error = re.compile(r"error (CS\d+: .*)")
    records_selections = False

    def prepare(self):
        """The automation library."""
        (self.folder / "Morvane.cs").write_text(csharp_stand_ins.source(), encoding="utf-8")
        shutil.copy(HERE / "csharp" / "recorder.cs", self.folder)
        self.tool(*LIBRARY)

    def run(self, macro):
        """The calls that a macro makes. Its own program looks for a running application; it is compiled, too."""
        driver = macro.parent / "driver.cs"
        driver.write_text(DRIVER.format(name=macro.stem), encoding="utf-8")
        program = macro.parent / "macro.exe"
        self.tool(*COMPILE, "-r:Morvane.dll", "-main:Driver", f"-out:{program}", str(macro),
                  str(macro.parent / "Program.cs"), str(driver))
        return self.calls(macro, "mono", str(program), MONO_PATH=str(self.folder))
