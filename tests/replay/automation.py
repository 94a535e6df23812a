"""How the API's members look to automation: C#, JavaScript and COM call them with results in place of out arguments."""
from collections import namedtuple

# A member with the arguments that the caller writes and the one that the member returns, as indices; the result is None
# where nothing is returned.
Method = namedtuple("Method", "member written result")


def method(member, returned):
    """The last value that a member gives back is returned, unless it is a number with a fraction or an enumeration.

    What a language has otherwise, `returned` holds: member name -> index or None.
    """
    result = None
    for index in reversed(range(len(member.arguments))):
        argument = member.arguments[index]
        if argument.way == "in":
            break
        if argument.way == "out" and argument.type != "real" and not argument.type.endswith("_e"):
            result = index
            break
    result = returned.get(member.name, result)
    return Method(member, [index for index in range(len(member.arguments)) if index != result], result)


def methods(found, returned):
    """The methods of a class. Those that differ in the result alone are one, the one with it."""
    kept = {}
    for member in sorted(found.members, key=lambda m: len(m.arguments), reverse=True):
        if not member.name.startswith(("put_", "get_")):
            made = method(member, returned)
            kept.setdefault((member.name, *(member.arguments[index] for index in made.written)), made)
    return list(kept.values())


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
