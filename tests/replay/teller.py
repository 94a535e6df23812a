"""Tells the story of a macro from the calls that it made."""
import re

INSERTIONS = {"InsertLine": "Line", "InsertCircle": "Circle", "InsertPoint": "Point", "InsertRay": "Ray",
              "InsertArc": "CircleArc", "InsertInfiniteLine": "InfiniteLine",
              "InsertPolyline2D": "PolyLine", "InsertPolyline3D": "PolyLine3D", "InsertSpline": "Spline",
              "InsertSimpleNote": "SimpleNote", "InsertNote": "Note", "InsertBlock2": "BlockInstance",
              "InsertEllipseDistanceToOtherAxis": "Ellipse", "InsertEllipseArcDistanceToOtherAxis": "EllipseArc"}


# The calls of commands; the ones that count entities' types beside the entities have them before the entities.
COMMANDS = {"TrimEntities", "FilletEntities", "MoveEntities", "CopyEntities", "MirrorEntities"}
WITH_TYPES = {"CopyEntities", "MirrorEntities"}
SYSTEMS = {"SetActiveCustomCoordinateSystemOrigin", "SaveActiveViewAs", "AlignActiveCustomCoordinateSystemXYPlane"}


def is_text(value):
    return isinstance(value, str) or isinstance(value, list) and bool(value) and isinstance(value[0], str)


class Teller:
    """Turns recorded calls into the steps of story.py; calls that only fetch something are passed over."""

    def __init__(self):
        self.steps = []
        self.inserted = 0
        self.numbers = {}    # number of a recorded object -> number of the story's object
        self.values = {}     # colours, points, transparencies by recorded number
        self.owners = {}     # transparency -> the object that it was taken from
        self.added = {}      # array -> what was added to it
        self.selecting = []  # arrays of objects in the order of their first entry
        self.start = (None, None)  # number and name of the sheet that the macro's head asks for
        self.windows = 0           # selections by a window
        self.looked = None         # how many entities of the last one the macro has looked at
        self.begun = False         # true when the macro's head has got what draws

    def story(self, calls):
        for call in calls:
            self.tell(call["object"], call["class"], call["member"], call["arguments"])
        return self.steps

    def tell(self, target, owner, member, arguments):
        if member in INSERTIONS:
            self.insert(INSERTIONS[member], arguments)
        elif member.startswith("Insert") and "Dimension" in member:
            self.insert(member[len("Insert"):], arguments)
        elif member == "InsertTable":
            self.insert("Table", arguments[:6] + arguments[7:])  # the type of a cell is a cast number
        elif member.startswith("InsertHatchBy"):
            self.insert(member[len("Insert"):], arguments)
        elif member in COMMANDS:
            numbers = arguments[:-2] + arguments[-1:] if member in WITH_TYPES else arguments
            self.steps.append([member, *map(self.told, numbers)])
        elif self.arranged(target, owner, member, arguments):
            pass
        elif member == "GetGeneralDimension":
            self.numbers[arguments[-1]["out"]] = self.numbers[target]
        elif owner == "Document" and member == "GetSheet":
            self.values[arguments[-1]["out"]] = arguments[0]
            if not self.begun:
                self.start = (arguments[-1]["out"], arguments[0])
        elif owner == "Sheet" and member == "Activate" and target == self.start[0]:
            self.steps.append(["start", self.start[1]])
        elif member == "GetSketchManager":
            self.begun = True
        elif target in self.numbers:
            self.change(target, member, arguments)
        elif owner == "CommandMessage":
            self.prompt(member.replace("PromptFor", ""), arguments)
        elif re.match("Set(Command|Application)Option", member):
            self.steps.append(["option", arguments[0], arguments[1] if len(arguments) == 3 else arguments[1:-1]])
        elif member in ("GetColorByIndex", "GetRGBColor"):
            color = {"index": arguments[0]} if member == "GetColorByIndex" else {"rgb": arguments[:3]}
            self.values[arguments[-1]["out"]] = color
        elif member == "CreatePoint":
            self.values[arguments[-1]["out"]] = arguments[:3]
        elif owner == "Transparency":
            self.values[target] = {"alpha": arguments[0]} if arguments else {"by": member[len("SetBy"):].lower()}
        elif owner == "Array":
            self.fill(target, arguments[0])

    def insert(self, kind, arguments):
        self.inserted += 1
        self.numbers[arguments[-1]["out"]] = self.inserted
        # Texts stand in macros as they are, whatever they hold: only numbers are compared.
        self.steps.append(["insert", kind, [self.told(value) for value in arguments[:-1] if not is_text(value)]])

    def told(self, value):
        """An argument with the story's numbers of its entities."""
        if isinstance(value, list):
            return [self.told(entry) for entry in value]
        return self.numbers.get(value["object"]) if isinstance(value, dict) else value

    def arranged(self, target, owner, member, arguments):
        """True for the calls that arrange what is drawn: sheets, coordinate systems, groups, windows, colours."""
        values = [self.values.get(a["object"]) if isinstance(a, dict) and "object" in a else a for a in arguments]
        if owner == "CustomCoordinateSystemManager" and member in SYSTEMS:
            self.steps.append(["system", member, *(v for v in values if v is not None and not isinstance(v, dict))])
        elif owner == "CustomCoordinateSystem" and member == "Activate":
            self.steps.append(["system", member])
        elif member in ("CreateSheet", "CopySheet"):
            self.steps.append(["sheet", member, *(v for v in values if isinstance(v, str))])
        elif owner in ("Sheet", "Model") and member in ("Activate", "put_Name") and target != self.start[0]:
            self.steps.append(["sheet", member, self.values.get(target, "Model"), *values])
        elif member == "CreateGroup":
            self.steps.append(["group", values[0]])
        elif member == "Zoom":
            self.steps.append(["zoom", *values])
        elif member == "SetGradientData":
            self.steps.append(["gradient", *values])
        elif member == "SelectByWindow" and arguments[2]:
            self.windows += 1
            self.looked = 0
            self.steps.append(["window", *values[:2]])
        elif member == "ClearSelections":
            self.looked = None
        elif member == "GetSelectedObject" and self.looked is not None:
            self.numbers[arguments[-1]["out"]] = f"{self.looked} of window {self.windows}"
            self.looked += 1
        else:
            return False
        return True

    def change(self, target, member, arguments):
        number = self.numbers[target]
        if member.startswith("put_"):
            value = arguments[0]
            if isinstance(value, dict):
                value = self.values.get(value["object"])
            self.steps.append(["set", number, member[len("put_"):], value])
        elif member == "get_Transparency":
            self.owners[arguments[0]["out"]] = number
        elif member.startswith("Set") and len(arguments) == 3 and None not in arguments:
            # The coordinates that were only handed on are the ones that the getter gave, each its own mark.
            for axis, value, mark in zip("XYZ", arguments, (900000.5, 900001.5, 900002.5)):
                if value != mark:
                    self.steps.append(["coordinate", number, member[len("Set"):], axis, value])
        elif not member.startswith(("Get", "get_")):
            self.steps.append([member, number, *arguments])

    def prompt(self, kind, arguments):
        if kind == "Selection":
            # What the macro put into its array of objects until now; the array of their types comes first.
            entities = self.added.pop(self.selecting.pop(), []) if self.selecting else []
            self.selecting.clear()
            self.steps.append(["select", *entities])
            return
        if kind == "PointOrKeyword":
            default = self.values[arguments[6]["object"]]
        elif kind == "Point":
            default = arguments[1:4]
        elif kind == "String":
            arguments = arguments[1:]
            default = arguments[1]
        elif kind == "Keyword2":
            kind, default = "Keyword", arguments[5]
        else:
            default = arguments[1]
            # Where the variable only takes the answer, nothing is known of what it held.
            if arguments[2] not in (None, default):
                default = f"{arguments[1]}, but {arguments[2]} in the variable"
        self.steps.append(["prompt", kind, arguments[0], default])

    def fill(self, array, value):
        if isinstance(value, dict) or value is None:
            if array not in self.selecting:
                self.selecting.append(array)
            self.added.setdefault(array, []).append(self.numbers.get(value["object"]) if value else None)
