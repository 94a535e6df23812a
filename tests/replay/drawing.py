"""The drawing that answers a macro's selections by a window: what the search of a trim finds.

A text of words, a line each, read by the stand-ins of every language:

    window                          the next selection by a window finds what follows
    entity kvLineType
    value GetFirstPoint 0 50 0      what a getter of the entity gives; the index of an indexed getter stands behind its name
"""
from journal import handle_of

TRIM = 6

# The type of a class in the API and the getters that tell an entity, with how many of its six reals each gives.
POINTS = (3, 3)
SHAPES = {
    "AcDbLine": ("kvLineType", ("GetFirstPoint", "GetSecondPoint"), POINTS),
    "AcDbRay": ("kvRayType", ("GetBasePoint", "GetThroughPoint"), POINTS),
    "AcDbArc": ("kvCircleArcType", ("GetCenter", "get_Radius", "get_StartAngle", "get_EndAngle"), (3, 1, 1, 1)),
    "AcDbEllipse": ("kvEllipseArcType", ("GetCenter", "get_MajorRadius", "get_MinorRadius"), (3, 1, 1)),
    "AcDb3dPolyline": ("kvPolyLine3DType", ("GetVertexCoordinate0", "GetVertexCoordinate1"), POINTS),
    "AcDbSpline": ("kvSplineType", ("GetControlPointCoordinate0", "GetControlPointCoordinate1"), POINTS),
    "AcDbPolyline": ("kvPolyLineType", ("GetVertexCoordinate0", "GetVertexCoordinate1"), POINTS),
}
FOUND = 2  # what is looked for stands behind two others


def made_by(data, known):
    """The entities that a trim makes: (handle, class, point at which it can be selected, six reals).

    `known` has the classes of the objects by handle; the new ones are entered.
    """
    for number, (handle, kind) in enumerate(zip(data[5]["handles"], data[6]["classes"])):
        handle = handle_of(handle)
        if known.get(handle) != kind:
            known[handle] = kind
            yield handle, kind, data[7]["points"][number], data[8]["doubles"][6 * number:][:6]


def new_entities(records):
    """The entities that the trims of a journal make."""
    known = {}
    for record in filter(None, records):
        if "added" in record:
            known[handle_of(record["added"]["handle"])] = record["added"]["class"]
        elif record.get("action", {}).get("id") == TRIM:
            yield from made_by(record["action"]["data"], known)


def entity(kind, reals):
    name, getters, counts = SHAPES[kind]
    yield f"entity {name}"
    rest = list(reals)
    for getter, count in zip(getters, counts):
        yield " ".join(["value", getter, *(repr(float(real)) for real in rest[:count])])
        del rest[:count]


def text(records):
    """The drawing: each window finds two entities that lie elsewhere, too, one of them of another class."""
    lines = []
    for _, kind, _, reals in new_entities(records):
        other = "AcDbRay" if kind == "AcDbLine" else "AcDbLine"
        lines += ["window", *entity(other, [real + 0.5 for real in reals])]
        # The last real that the search compares is another.
        last = {"AcDbEllipse": 4, "AcDbPolyline": 4}.get(kind, 5)
        elsewhere = [real + 0.5 * (index == last) for index, real in enumerate(reals)]
        lines += [*entity(kind, elsewhere), *entity(kind, reals)]
    return "".join(line + "\n" for line in lines)
