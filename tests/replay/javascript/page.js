// Behind the stand-ins on a page in a browser: presses the button once the page is there, tells the server what was
// recorded, and goes to the page that the server names.
(function ()
{
    "use strict";
    const calls = [];
    const errors = [];
    const library = replayLibrary(call => calls.push(call));
    window.kjScriptManager = function () { return library; };
    window.addEventListener("error", event => errors.push(event.message));
    window.addEventListener("load", () => {
        document.querySelector("button").click();
        fetch("/recorded", {method: "POST", body: JSON.stringify({page: location.pathname, errors, calls})})
            .then(answer => answer.text())
            .then(next => { if (next) location = next; });
    });
}());
