"""Makes the stand-in of the application's automation library for C#: its interfaces, and one class that is them all.

Any object of the stand-in can be cast to any interface: what is behind an `object` is only known to the drawing.
"""
import api
import automation

PLAIN = {"real": "double", "int": "int", "bool": "bool", "text": "string", "reals": "double[]", "ints": "int[]",
         "texts": "object[]", "objects": "object[]", "object": "object"}

RETURNED = {"PromptForKeyword2": 7}  # the kind of the answer, not its text


def type_name(word):
    if word in PLAIN:
        return PLAIN[word]
    if word == "Object":
        return "KvObject"  # System.Object has the name already
    return f"Morvane.{word}"


def result_type(word):
    return "object" if word == "objects" else type_name(word)  # a VARIANT: macros cast it


def parameter(argument, index):
    way = "out " if argument.way in ("out", "inout", "unset") else ""
    return f"{way}{type_name(argument.type)} a{index}"


def given(word, before="null"):
    """What the API gives back for a type, recorded: what the caller's variable held before, or an object's number."""
    values = {"real": "call.Mark()", "int": "call.Whole()", "bool": "true", "text": '"given"',
              "objects": "(object)new object[] { new Made(), new Made(), new Made(), new Made() }"}
    if word in values:
        return f"call.Give({values[word]}, {before})"
    if word == "object":
        return "call.Give(call.Found())"
    if word == "kvObjectType_e":
        return f"call.Give(call.Type(), {before})"
    if word.endswith("_e"):
        return f"call.Give(({type_name(word)})0, {before})"
    return f"call.Give<{type_name(word)}>(new Made())"


def recording(argument, index):
    """The statement that records an argument."""
    name = f"a{index}"
    if argument.way in ("in", "handle"):
        return f"call.Add({name});"
    if argument.way == "inout" and argument.type in ("real", "int"):
        # C# hides what a variable held before it became an out argument; the pointer still sees it.
        plain = type_name(argument.type)
        return f"{plain} b{index}; fixed ({plain}* p = &{name}) b{index} = *p; {name} = " \
               f"{given(argument.type, f'b{index}')};"
    return f"{name} = {given(argument.type)};"


def method(owner, member, written, result):
    """A method's declaration in its interface, and its definition in the class."""
    parameters = ", ".join(parameter(member.arguments[index], index) for index in written)
    returned = member.result or (member.arguments[result] if result is not None else None)
    kind = result_type(returned.type) if returned else "void"
    statements = [f'{kind} result = {given(argument.type)};' if index == result else recording(argument, index)
                  for index, argument in enumerate(member.arguments)]
    if member.result:
        statements.append(f"{kind} result = {given(member.result.type)};")
    body = " ".join([f'var call = new Replay.Call(this, "{owner}", "{member.name}");', *statements, "call.End();",
                     *(["return result;"] if returned else [])])
    return (f"{kind} {member.name}({parameters});",
            f"unsafe {kind} {type_name(owner)}.{member.name}({parameters}) {{ {body} }}")


def property_texts(owner, name, put, got):
    """A property's declaration and definition. One that takes several types takes an object."""
    types = {*put, *([got] if got else [])}
    kind = "object" if len(types) > 1 else type_name(types.pop())
    getter = setter = ""
    if got:
        getter = f'get {{ var call = new Replay.Call(this, "{owner}", "get_{name}"); var result = {given(got)}; ' \
                 "call.End(); return result; }"
    if put:
        setter = f'set {{ var call = new Replay.Call(this, "{owner}", "put_{name}"); call.Add(value); call.End(); }}'
    declared = ("get; " if got else "") + ("set; " if put else "")
    return f"{kind} {name} {{ {declared}}}", f"{kind} {type_name(owner)}.{name} {{ {getter} {setter} }}"


def source():
    """The library's text."""
    parts = ["// Made from the list of the API's members; don't edit.", "namespace Morvane", "{"]
    for enumeration, constants in api.enumerations().items():
        parts.append(f"public enum {enumeration} {{ " + ", ".join(name for name, _ in constants) + " }")
    bodies = []
    for name, found in api.classes().items():
        texts = [method(name, *found_method) for found_method in automation.methods(found, RETURNED)]
        texts += [property_texts(name, word, *types) for word, types in automation.properties(found).items()]
        base = f" : {type_name(found.base)}" if found.base else ""
        own = type_name(name).removeprefix("Morvane.")
        parts.append(f"public interface {own}{base}\n{{\n    " + "\n    ".join(t[0] for t in texts) + "\n}")
        bodies += [text[1] for text in texts]
    bases = ", ".join(["Replay.Numbered", *map(type_name, api.classes())])
    parts.append(f"public class Made : {bases}\n{{\n    " + "\n    ".join(bodies) + "\n}\n}")
    return "\n".join(parts) + "\n"
