"""Journals that the tests make up."""
import api
import drawing
import story


def random_journal(chance):
    """Every option and every kind of prompt with every type of answer, and curves with some of their properties."""
    values = {"real": 1234.56789, "angle": 0.7853981633974483, "text": "12", "point": [1.5, -2.25, 1e7], "bool": True,
              "int16": -3, "int32": 70000, "double": 1e-7, "string": "_Yes", "point2d": [4.0, 5.0],
              "point3d": [1, 2, 3]}
    texts = ("", "Specify<br>", "<b>Pick</b> one: ", "First<br>&raquo; second: ", "<i></i>")
    yield {"journal": {"version": 1}}
    yield {"drawing": {"currentLayout": "Plan"}}
    yield {"object": {"class": "AcDbLayerTableRecord", "handle": "A0", "name": "Walls"}}
    yield {"command": "PROMPTS"}
    for kind in range(11):
        for key, value in values.items():
            prompt = {"kind": story.KINDS[kind] if chance.random() < 0.5 else kind, "text": chance.choice(texts),
                      "answer": chance.choice((value, {key: value})) if key in ("real", "text") else {key: value}}
            if chance.random() < 0.5:
                prompt["keywords"] = {"local": ["Ja", "Nein"], "global": ["_Yes", "_No"]}
            yield {"prompt": prompt}
        yield {"prompt": {"kind": kind, "text": "not answered: "}}
    yield {"end": "PROMPTS"}
    by_kind = {"Bool": {"bool": True}, "Double": {"real": 1e6 / 7}, "Int8": {"int8": -2}, "Int16": {"int16": 300},
               "Int32": {"int32": -100000}, "String": {"text": "any"}, "Point2d": {"point2d": [0.1, 2e-5]},
               "Point3d": {"point3d": [1, 2.5, 1 / 3]}}
    for variable, (kind, _) in {**api.options("Application"), **api.options("Command")}.items():
        if variable is None:
            continue  # an option that commands write themselves
        yield {"sysvar": {"name": variable, "value": {"text": "17"} if variable == "CECOLOR" else by_kind[kind]}}
    yield {"sysvar": {"name": "NOSUCH", "value": 1}}
    for number in range(60):
        handle, kind = f"{number % 40 + 256:X}", chance.choice(list(story.CHANGES))
        created = ({"Start", "End", "Center", "Position", "Base point", "Second point", "Major axis vector"})
        names = [f"{point} {axis}" for point in sorted(created) for axis in "XYZ"]
        names += ["Radius", "Start Angle", "End Angle", "Start angle", "End angle", "Minor radius", "Major radius",
                  "Radius ratio", "Area", "Circumference", "Diameter", "LineScale", "Thickness"]
        properties = [{"name": name, "value": chance.choice((0, chance.uniform(0.1, 1e4)))}
                      for name in chance.sample(names, chance.randint(0, len(names)))]
        others = {"LineColor": {"color": chance.choice(("byLayer", "byBlock", {"index": 7}, {"rgb": [1, 2, 255]}))},
                  "Layer": {"id": chance.choice(("A0", "0a0", "FF0"))},
                  "LineWeight": {"int": chance.choice((-3, -2, -1, 0, 5, 7, 100, 211))}, "PrintStyle": "Plain",
                  "Transparency": {"transparency": chance.choice(("byLayer", {"alpha": chance.randint(0, 255)}))},
                  "Erased": chance.choice(("NO", "YES", "yes"))}
        properties += [{"name": name, "value": others[name]} for name in others if chance.random() < 0.4]
        yield {"command": "DRAW"}
        yield {"added": {"class": kind, "handle": handle, "properties": properties}}
        yield {"modified": {"class": kind, "handle": handle, "properties": chance.sample(properties, len(properties))}}
        if chance.random() < 0.1:
            yield {"other": "UnknownEvent"}
        yield {"changed": {"class": kind, "handle": handle, "property": {"name": "Radius", "value": 2.5}}}
        yield {"end": "DRAW"}


def trim_journal():
    """A trim that makes entities of each class that its search can tell, each of them moved afterwards."""
    yield {"journal": {"version": 1}}
    yield {"settings": {"EDGEMODE": 1}}
    yield {"command": "LINE"}
    for handle in ("2A", "2B"):
        yield {"added": {"class": "AcDbLine", "handle": handle, "properties": [{"name": "End X", "value": 50}]}}
    yield {"end": "LINE"}
    classes = [*drawing.SHAPES, "AcDbArc", "AcDbLine"]
    made = [f"{0x40 + number:X}" for number in range(len(classes))]
    reals = [number * 7 + place + 0.25 for number in range(len(classes)) for place in range(6)]
    lines = {"classes": ["AcDbLine"]}
    yield {"command": "TRIM"}
    yield {"action": {"id": drawing.TRIM, "data": [
        {"handles": ["2A"]}, lines, {"handles": ["2B"]}, lines, {"points": [[10, 0, 0]]},
        {"handles": ["2B", *made]}, {"classes": ["AcDbLine", *classes]},
        {"points": [[number * 10, -number, 0.5] for number in range(len(made) + 1)]},
        {"doubles": [0, 0, 0, 10, 0, 0, *reals]}]}}
    yield {"end": "TRIM"}
    for number, (handle, kind) in enumerate(zip(made, classes)):
        yield {"command": "MOVE"}
        yield {"action": {"id": 3, "data": [{"handles": [handle]}, {"classes": [kind]}, {"vector": [number, 0, 0]}]}}
        yield {"end": "MOVE"}
