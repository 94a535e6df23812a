"""The lists of the application's API, read for the makers of stand-ins and for the reader of journals."""
import re
from collections import namedtuple
from pathlib import Path

HERE = Path(__file__).resolve().parent

Argument = namedtuple("Argument", "way type")  # way: in, out, inout, unset or handle
Member = namedtuple("Member", "name arguments result")
ApiClass = namedtuple("ApiClass", "name base members")


def _lines(name):
    for number, line in enumerate((HERE / name).read_text(encoding="utf-8").splitlines(), 1):
        if line.strip() and not line.startswith("#"):
            yield f"{name}:{number}", line


def _argument(text):
    words = text.split()
    return Argument(words[0], words[1]) if len(words) == 2 else Argument("in", words[0])


def classes():
    """The classes by name, in the list's order; a base stands before what derives from it."""
    found = {}
    members = None
    for place, line in _lines("api_members.txt"):
        head = re.fullmatch(r"class (\w+)(?: : (\w+))?", line)
        if head:
            base = head[2] or (None if head[1] == "Object" else "Object")
            if head[1] in found or base not in (None, *found):
                raise ValueError(f"{place}: {line.strip()}: listed twice, or its base isn't above it")
            members = []
            found[head[1]] = ApiClass(head[1], base, members)
            continue
        for text in line.strip().split("; "):
            member = re.fullmatch(r"(\w+)\((.*)\)(?: -> ((?:handle )?\w+))?", text)
            if not member or members is None:
                raise ValueError(f"{place}: neither a class nor a member: {text}")
            arguments = [_argument(argument) for argument in member[2].split(", ") if argument]
            members.append(Member(member[1], arguments, member[3] and _argument(member[3])))
    return found


def enumerations():
    """The enumerators of each enumeration: [(name, system variable or None)]."""
    found = {}
    for _, line in _lines("api_constants.txt"):
        if line.startswith(" "):
            for text in line.strip().split(", "):
                words = text.split()
                stem = current.removesuffix("_e") if words[0].startswith("_") else ""
                found[current].append((stem + words[0], words[1] if len(words) > 1 else None))
        else:
            current = line.strip()
            found[current] = []
    return found


def options(kind):
    """The option constants of "Command" or "Application" by system variable: {"LUNITS": ("Int16", constant)}."""
    found = {}
    for enumeration, constants in enumerations().items():
        head = re.fullmatch(rf"kv{kind}Option(\w+)_e", enumeration)
        if head:
            found.update({variable: (head[1], constant) for constant, variable in constants})
    return found
