"""Makes the stand-in of what the two #import lines of C++ COM macros give: the interfaces and constants of automation.

As #import declares them, methods return their results and properties are raw get_ and put_.
"""
import uuid

import api
import automation

PLAIN = {"real": "double", "int": "long", "bool": "VARIANT_BOOL"}
RETURNED = {"PromptForKeyword2": None}  # the answer and its kind are both arguments
LISTS = ("reals", "ints", "texts", "objects")
ADDIN = """struct IKvAddin : IDispatch
{
    virtual HRESULT STDMETHODCALLTYPE ConnectToMorvane(IDispatch*, long, VARIANT_BOOL*) = 0;
    virtual HRESULT STDMETHODCALLTYPE DisconnectFromMorvane(VARIANT_BOOL*) = 0;
};"""
LIBRARIES = ("LIBID_KvAddinLib", "LIBID_Morvane", "DIID__IApplicationEvents", "DIID__ICommandEvents")


def interface(name):
    if name == "object":
        return "IDispatch"
    return "IKvObject" if name == "Object" else f"I{name}"


def parameter(argument):
    word = argument.type
    plain = PLAIN.get(word) or (word if word.endswith("_e") else None)
    if argument.way in ("in", "handle"):
        if word == "text":
            return "_bstr_t"
        return plain or ("_variant_t" if word in LISTS else f"{interface(word)}*")
    if word == "text":
        return "BSTR*"
    return f"{plain}*" if plain else "VARIANT*" if word in LISTS else f"{interface(word)}**"


def result_type(word):
    if word in LISTS:
        return "_variant_t"
    return PLAIN.get(word) or ("_bstr_t" if word == "text" else word if word.endswith("_e") else f"{interface(word)}Ptr")


def method(member, written, result):
    returned = member.result or (member.arguments[result] if result is not None else None)
    parameters = ", ".join(parameter(member.arguments[index]) for index in written)
    return f"    {result_type(returned.type) if returned else 'HRESULT'} {member.name}({parameters});"


def declaration(name, bases):
    """An interface's name with an identifier of its own, and its smart pointer."""
    number = uuid.uuid5(uuid.NAMESPACE_OID, name)
    text = number.hex
    bytes_ = ", ".join(f"0x{text[index:index + 2]}" for index in range(16, 32, 2))
    lines = [f"struct {name};", f"__CRT_UUID_DECL({name}, 0x{text[:8]}, 0x{text[8:12]}, 0x{text[12:16]}, {bytes_})"]
    return lines + ([f"_COM_SMARTPTR_TYPEDEF({name}, __uuidof({name}));"] if bases else [])


def header():
    classes = api.classes()
    parts = ["// Made from the list of the API's members; don't edit.", "#pragma once", "#include <comdef.h>",
             "_COM_SMARTPTR_TYPEDEF(IDispatch, __uuidof(IDispatch));"]
    for enumeration, constants in api.enumerations().items():
        parts.append(f"enum {enumeration} {{ " + ", ".join(name for name, _ in constants) + " };")
    for name in classes:
        parts += declaration(interface(name), True)
    for name, found in classes.items():
        base = interface(found.base) if found.base else "IDispatch"
        lines = [method(*shape) for shape in automation.methods(found, RETURNED)]
        # Their texts are raw, without the conversion that the methods' wrappers make.
        lines += [f"    HRESULT {m.name}({', '.join(map(parameter, m.arguments)).replace('_bstr_t', 'BSTR')});"
                  for m in found.members if m.name.startswith(("put_", "get_"))]
        parts.append(f"struct {interface(name)} : {base}\n{{\n" + "\n".join(lines) + "\n};")
    parts += [*declaration("IKvAddin", False), ADDIN]
    parts += [f'extern "C" const GUID __declspec(selectany) {name} = {{1, 2, 3, {{4}}}};' for name in LIBRARIES]
    return "\n".join(parts) + "\n"
