"""How the API's members look to automation: C#, JavaScript and COM call them with results in place of out arguments."""
from collections import namedtuple

# Which arguments the caller writes and which one the member returns, as indices; result is None where nothing returns.
Shape = namedtuple("Shape", "written result")

# What isn't the rule: here the returned value is the kind of the answer.
RETURNED = {"PromptForKeyword2": 7}


def _returned(member):
    if member.name in RETURNED:
        return RETURNED[member.name]
    for index in reversed(range(len(member.arguments))):
        argument = member.arguments[index]
        if argument.way == "in":
            break
        if argument.way == "out" and argument.type != "real" and not argument.type.endswith("_e"):
            return index
    return None


def shape(member):
    """The last value that a member gives back is returned, unless it is a number with a fraction or an enumeration."""
    result = _returned(member)
    return Shape([index for index in range(len(member.arguments)) if index != result], result)


def properties(found):
    """The properties of a class by name: (types that can be put, type that can be got or None).

    A put_X beside a method X isn't one: automation has a name once.
    """
    methods = {member.name for member in found.members}
    names = {}
    for member in found.members:
        way, _, name = member.name.partition("_")
        if way in ("put", "get") and name not in methods:
            put, got = names.setdefault(name, ([], []))
            (put if way == "put" else got).append(member.arguments[0].type)
    return {name: (put, got[0] if got else None) for name, (put, got) in names.items()}
