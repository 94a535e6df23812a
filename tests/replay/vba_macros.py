"""Runs VBA macros in the Basic of an office suite. The suite is large: without it the language is left out."""
import json
import re
import shutil
import subprocess
import threading

from language import HERE, Language, Refused

PYTHON = "/usr/bin/python3"  # the one that the suite's bridge is installed for


def missing():
    if not shutil.which("soffice"):
        return "no soffice"
    if subprocess.run([PYTHON, "-c", "import uno"], capture_output=True, check=False).returncode:
        return f"no uno module for {PYTHON}"
    return None


class Vba(Language):
    name = "vba"
    extension = "bas"
    records_selections = False
    missing = missing()

    def prepare(self):
        self.lock = threading.Lock()  # one macro at a time
        self.office = subprocess.Popen([PYTHON, str(HERE / "vba" / "office.py")], cwd=self.folder,
                                       env=self.environment(), text=True, stdin=subprocess.PIPE, stdout=subprocess.PIPE)

    def close(self):
        self.office.stdin.close()
        self.office.wait(60)

    def run(self, macro):
        drawing = macro.with_suffix(".drawing")
        request = {"text": macro.read_text(encoding="utf-8-sig"),
                   "drawing": drawing.read_text(encoding="utf-8") if drawing.exists() else ""}
        with self.lock:
            self.office.stdin.write(json.dumps(request) + "\n")
            self.office.stdin.flush()
            answer = json.loads(self.office.stdout.readline())
        if "line" in answer:
            raise Refused(f"{macro.name} doesn't compile with: {answer['line']}", [answer["line"]])
        if "error" in answer:
            raise Refused(f"{macro.name}: {answer['error']}", [answer["error"]])
        return answer["calls"]
