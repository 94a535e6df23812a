// Stand-ins of the application's script library: objects that know the members of their class and record each call in
// the form of the C++ API. Runs in node and in a browser; `API`, the lists of classes and enumerations, comes before it.
"use strict";

var kvStringArray = [];

// What selections by a window find; drawing.py says how the text looks. Without it no window is answered.
function readDrawing(text)
{
    const selections = [];
    for (const words of text.split("\n").map(line => line.split(" ")))
    {
        const last = selections[selections.length - 1];
        if (words[0] === "window")
            selections.push([]);
        else if (words[0] === "entity")
            last.push({type: words[1], values: {}});
        else if (words[0] === "value")
            last[last.length - 1].values[words[1]] = words.slice(2).map(Number);
    }
    return selections;
}

function replayLibrary(record, drawing = "")
{
    const selections = readDrawing(drawing);
    let selected;  // what the last window found
    let count = 0;
    const ANY = "any class";

    class Numbered
    {
        constructor(type) { this.type = type; this.number = ++count; }
    }

    function members(type, name)
    {
        if (type === ANY)
            return Object.values(API.classes).flatMap(found => found.members.filter(member => member.name === name));
        const found = API.classes[type];
        const own = found.members.filter(member => member.name === name);
        return own.length || !found.base ? own : members(found.base, name);
    }

    // The checks of arguments. What a constant or an array of the API is, only these know.
    const all = check => value => Array.isArray(value) && value.every(check);
    const checks = {
        real: value => typeof value === "number",
        int: value => Number.isInteger(value),
        bool: value => typeof value === "boolean",
        text: value => typeof value === "string"
    };
    checks.reals = all(checks.real);
    checks.ints = all(checks.int);
    checks.texts = all(checks.text);

    function isOf(type, wanted)
    {
        return type === ANY || type === wanted || Boolean(API.classes[type].base) &&
            isOf(API.classes[type].base, wanted);
    }

    function fits(value, type)
    {
        if (checks[type])
            return checks[type](value);
        if (type in API.enumerations)
            return API.enumerations[type].includes(value) || value in API.enumerations[type];
        if (type === "objects")
            return all(entry => fits(entry, "object"))(value);
        if (value === null)
            return true;
        const number = value && value.replayed;
        return Boolean(number) && (type === "object" || isOf(number.type, type));
    }

    function told(value)
    {
        if (Array.isArray(value))
            return value.map(told);
        return value && value.replayed ? {object: value.replayed.number} : value === undefined ? null : value;
    }

    // What the API gives back for an argument or a result: [value, how it is recorded]. Numbers with a fraction are the
    // drawing's, or tell their place, so that a macro that hands them on shows where they are from.
    function given(type, asked)
    {
        switch (type)
        {
        case "real":
            return [asked.values ? asked.values[asked.marks++] : 900000.5 + asked.marks++, null];
        case "int":
            return [asked.member === "GetSelectedObjectCount" && selected ? selected.length : 1, null];
        case "bool":
            return [true, null];
        case "text":
            return ["given", null];
        case "objects":
            return [[1, 2, 3, 4].map(() => make(ANY)), null];
        default:
            const entity = asked.member === "GetSelectedObject" && selected && selected[asked.written[1]];
            if (type === "kvObjectType_e" && entity)
                return [entity.type, null];
            if (type in API.enumerations)
                return [API.enumerations[type][0], null];
            const made = make(type !== "object" ? type : entity ? entity.type.slice(2, -"Type".length) : ANY);
            if (type === "object" && entity)
                made.replayed.values = entity.values;
            return [made, {out: made.replayed.number}];
        }
    }

    // Several results are an array; two or three numbers are a point. Outcomes of calls are dropped; what is created
    // comes in an object.
    function result(values, member)
    {
        const wanted = values.filter(([type]) => !/(Result|Error)_e$/.test(type));
        if (wanted.length > 1 && wanted[wanted.length - 1][0] === "bool")
            wanted.pop();
        if ([2, 3].includes(wanted.length) && wanted.every(([type]) => type === "real"))
            return Object.fromEntries(wanted.map(([, value], axis) => ["XYZ"[axis], value]));
        if (member.arguments.some(argument => argument.type === "kvCreateObjectResult_e"))
            return {[wanted[0][0]]: wanted[0][1]};
        return wanted.length > 1 ? wanted.map(([, value]) => value) : wanted.length ? wanted[0][1] : undefined;
    }

    function call(target, member, values)
    {
        const getter = member.name + (typeof values[0] === "number" ? values[0] : "");
        const asked = {member: member.name, written: values, values: target.values && target.values[getter], marks: 0};
        const recorded = [];
        const results = [];
        let next = 0;
        for (const argument of member.arguments)
        {
            if (argument.written)
                recorded.push(told(values[next++]));
            if (argument.returned)
            {
                const [value, text] = given(argument.type, asked);
                results.push([argument.type, value]);
                if (!argument.written)
                    recorded.push(text);
            }
            else if (!argument.written)
                recorded.push(null);
        }
        if (member.result)
        {
            const [value, text] = given(member.result, asked);
            results.push([member.result, value]);
            if (text)
                recorded.push(text);
        }
        record({object: target.number, class: member.owner, member: member.name, arguments: recorded});
        if (member.name === "SelectByWindow")
            selected = selections.shift();
        else if (member.name === "ClearSelections")
            selected = undefined;
        return result(results, member);
    }

    function make(type)
    {
        const target = new Numbered(type);
        return new Proxy({}, {
            get(_, name)
            {
                if (name === "replayed")
                    return target;
                if (typeof name === "symbol" || name === "toJSON")
                    return undefined;
                const found = members(type, name);
                if (!found.length)
                    throw new TypeError(`${type} has no member ${name}`);
                return (...values) => {
                    const fitting = found.find(member => {
                        const written = member.arguments.filter(argument => argument.written);
                        return written.length === values.length &&
                            written.every((argument, index) => fits(values[index], argument.type));
                    });
                    if (!fitting)
                        throw new TypeError(`${type}.${name} doesn't take (${values.map(value =>
                            JSON.stringify(told(value))).join(", ")})`);
                    return call(target, fitting, values);
                };
            },
            set(_, name) { throw new TypeError(`${type}.${name} can't be set`); }
        });
    }

    return {getApplication: () => make("Application")};
}
