"""Makes the stand-in headers of the application's C++ API: api.h, and a header by each name that macros include."""
from pathlib import Path

import api

PLAIN = {"real": "double", "int": "long", "bool": "bool", "text": "kvString", "reals": "kvDoubleArray",
         "ints": "kvLongArray", "texts": "kvStringArray", "objects": "kvObjectPtrArray", "object": "kvObject*"}
BY_REFERENCE = ("text", "reals", "ints", "texts", "objects")


def class_name(name):
    return "kvObject" if name == "Object" else f"kv{name}_c"


def type_name(word):
    if word in PLAIN:
        return PLAIN[word]
    return word if word.endswith("_e") else class_name(word) + "*"


def parameter(argument, index):
    name = type_name(argument.type)
    if argument.way == "handle":
        return f"kv{argument.type}_ptr* a{index}"
    if argument.way != "in":
        return f"{name}* a{index}"
    return f"const {name}& a{index}" if argument.type in BY_REFERENCE else f"{name} a{index}"


def recording(argument, index):
    """The statements that record one argument and give back what the API gives back."""
    name = f"a{index}"
    if argument.way in ("in", "handle"):
        return f"call.add(replay::json({name}));"
    if argument.way == "inout":
        return f"call.add(replay::json(*{name}));"
    if argument.way == "unset":
        return f'call.type({name}); call.add("null");'
    given = {"real": "call.mark()", "int": "call.whole()", "bool": "true", "text": 'kvString(L"given")'}
    if argument.type in given:
        return f'*{name} = {given[argument.type]}; call.add("null");'
    if argument.type.endswith("_e"):
        return f'*{name} = static_cast<{argument.type}>(0); call.add("null");'
    if argument.type in PLAIN and argument.type != "object":
        return f'{name}->values().assign({{new kvObject, new kvObject, new kvObject, new kvObject}}); call.add("null");'
    made = "call.entity()" if argument.type == "object" else f"new {class_name(argument.type)}"
    return f'*{name} = {made}; call.add(replay::object("out", (*{name})->number));'


def member_text(owner, member):
    """A member's declaration, and its definition outside of the class: all classes are declared by then."""
    parameters = ", ".join(parameter(a, i) for i, a in enumerate(member.arguments))
    statements = [f'replay::Call call(this, "{owner}", "{member.name}");']
    statements += [recording(a, i) for i, a in enumerate(member.arguments)]
    result = "void"
    if member.result and member.result.way == "handle":
        result = f"kv{member.result.type}_ptr*"
        statements += [f"{result} made = new {result[:-1]};",
                       'call.add(replay::object("out", made->number));', "return made;"]
    elif member.result:
        result = type_name(member.result.type)
        statements.append(f"return static_cast<{result}>(0);")
    declaration = f"    {result} {member.name}({parameters});"
    definition = f"inline {result} {class_name(owner)}::{member.name}({parameters})\n{{\n    " + \
                 "\n    ".join(statements) + "\n}\n"
    return declaration, definition


def entities(classes):
    """What makes the entities of a drawing by the constants of their types."""
    constants = [name for name, _ in api.enumerations()["kvObjectType_e"]]
    types = "".join(f'    if (name == "{name}")\n        return {name};\n' for name in constants)
    news = "".join(f'    if (selected()->type == "kv{name}Type")\n        made = new {class_name(name)};\n'
                   for name in classes if f"kv{name}Type" in constants)
    return (f"template <>\ninline kvObjectType_e replay::named(const std::string& name)\n{{\n{types}"
            "    std::abort();\n}\n"
            f"inline kvObject* replay::Call::entity() const\n{{\n"
            f"    if (!selected())\n        return new kvObject;\n    kvObject* made = nullptr;\n{news}"
            "    Drawing::only().know(made->number, *selected());\n    return made;\n}\n")


def header():
    classes = api.classes()
    handles = {a.type for c in classes.values() for m in c.members for a in (*m.arguments, *filter(None, [m.result]))
               if a.way == "handle"}
    parts = ["// Made from the list of the API's members; don't edit.", "#pragma once", '#include "recorder.h"', ""]
    for enumeration, constants in api.enumerations().items():
        names = [name for name, _ in constants] or [f"{enumeration}_none"]
        parts.append(f"enum {enumeration}\n{{\n    " + ",\n    ".join(names) + "\n};")
        cases = "".join(f'\n    case {name}:\n        return "\\"{name}\\"";' for name in names)
        parts.append(f"namespace replay\n{{\ninline std::string json({enumeration} value)\n{{\n"
                     f"    switch (value)\n    {{{cases}"
                     f"\n    }}\n    return std::to_string(static_cast<int>(value));\n}}\n}}")
    # Arrays of whole numbers take the constants of object types, and record them by name.
    parts.append("struct kvLongArray : replay::Array<long>\n{\n    using replay::Array<long>::add;\n"
                 "    void add(kvObjectType_e value)\n    {\n"
                 '        replay::Call(this, "Array", "add").add(replay::json(value));\n'
                 "        values().push_back(value);\n    }\n};")
    for name in classes:
        if name != "Object":
            parts.append(f"struct {class_name(name)};")
            if name in handles:
                parts.append(f"struct kv{name}_ptr;")
            else:
                parts.append(f"using kv{name}_ptr = replay::Pointer<{class_name(name)}>;")
    definitions = []
    inherited = {}
    for name, found in classes.items():
        above = inherited.get(found.base, set())
        own = {member.name for member in found.members}
        inherited[name] = above | own
        base = class_name(found.base) if found.base else "replay::Numbered"
        lines = [f"    using {base}::{shared};" for shared in sorted(above & own)]
        for member in found.members:
            declaration, definition = member_text(name, member)
            lines.append(declaration)
            definitions.append(definition)
        parts.append(f"struct {class_name(name)} : {base}\n{{\n" + "\n".join(lines) + "\n};")
        if name in handles:
            parts.append(f"struct kv{name}_ptr : {class_name(name)}\n{{\n}};")
    parts.append('inline std::string replay::json(const kvObject* value)\n{\n'
                 '    return value ? object("object", value->number) : "null";\n}\n')
    parts.append(entities(classes))
    return "\n".join(parts + definitions)


def write(folder):
    """Writes the headers into a folder. Each header that a macro may name includes the one that has it all."""
    folder = Path(folder)
    (folder / "api.h").write_text(header(), encoding="utf-8")
    for name in (*(f"kv{c}_c" for c in api.classes() if c != "Object"), "kvInterfacePtr"):
        (folder / f"{name}.h").write_text('#pragma once\n#include "api.h"\n', encoding="utf-8")
