// Runs the script of a page: node run.js API.js stand_ins.js page.html. The recorded calls go to standard output.
"use strict";
const fs = require("fs");
const vm = require("vm");

const [api, standIns, page] = process.argv.slice(2);
const text = fs.readFileSync(page, "utf8");
const script = [...text.matchAll(/<script type="text\/javascript">([^]*?)<\/script>/g)].map(match => match[1]);
const button = /<button [^>]*onclick="([^"]*)"/.exec(text);
if (script.length !== 1 || !button)
    throw new Error("the page hasn't one script and a button");

const lines = [];
const context = vm.createContext({});
for (const file of [api, standIns])
    vm.runInContext(fs.readFileSync(file, "utf8"), context, {filename: file});
const drawing = process.env.KV_DRAWING ? fs.readFileSync(process.env.KV_DRAWING, "utf8") : "";
const library = context.replayLibrary(call => lines.push(JSON.stringify(call)), drawing);
context.kjScriptManager = function () { return library; };
vm.runInContext(script[0], context, {filename: page});
vm.runInContext(button[1], context, {filename: page});
process.stdout.write(lines.map(line => line + "\n").join(""));
