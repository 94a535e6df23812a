"""What the modules of the languages share: their tools, and what a tool refuses."""
import json
import os
import subprocess
from pathlib import Path

import teller

HERE = Path(__file__).resolve().parent


class Refused(Exception):
    """A macro that a language refuses, with the errors as its tool words them."""

    def __init__(self, messages, errors):
        super().__init__(messages)
        self.errors = errors


class Language:
    """The tools of one language. A module of a language gives the names, the errors' form, `prepare` and `run`."""
    name = None       # as in kvmacro --language
    extension = None  # of the macro's file
    error = None      # the pattern of an error in the messages of the tools
    # An API array records what is added to it; where arrays are the language's own, the entries of a selection are
    # only in the macro's text.
    records_selections = True
    runs = True       # or is only compiled
    missing = None    # why the tools of the language can't be used here

    def __init__(self, folder):
        """Prepares the stand-ins in a folder of their own."""
        self.folder = Path(folder)
        self.prepare()

    def close(self):
        """Ends what `prepare` began."""

    def environment(self):
        """The variables for tools: messages in English, and what they leave behind goes with the folder."""
        return {**os.environ, "LC_ALL": "C", "TMPDIR": str(self.folder)}

    def tool(self, *command, **variables):
        """Runs a tool in the folder of the stand-ins, with variables of its environment, and gives what it printed."""
        done = subprocess.run(command, cwd=self.folder, env={**self.environment(), **variables}, capture_output=True,
                              text=True, timeout=120, check=False)
        if done.returncode:
            messages = done.stdout + done.stderr
            raise Refused(f"{command[0]} ended with {done.returncode}: {messages}", self.error.findall(messages))
        return done.stdout

    def calls(self, macro, *command, **variables):
        """The calls that a running macro printed, a line each. A drawing beside the macro answers its selections."""
        drawing = macro.with_suffix(".drawing")
        if drawing.exists():
            variables["KV_DRAWING"] = str(drawing)
        return [json.loads(line) for line in self.tool(*command, **variables).splitlines()]

    def story(self, calls):
        return teller.Teller().story(calls)
