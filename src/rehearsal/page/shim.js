// Stands in front of every template that the rehearsal server serves, inside the template's own frame: takes the calls
// that the monitor page sends, and tells it what goes wrong. On a graphics server the server itself makes these calls.
(() => {
    "use strict";

    const monitor = window.parent;
    if (monitor === window) {
        return;
    }

    let faultsLeft = 20; // a template that fails on every frame shall not flood the page
    const report = (fault) => {
        if (faultsLeft-- > 0) {
            monitor.postMessage({ kind: "fault", text: String(fault).slice(0, 500) }, "*");
        }
    };

    const make = ({ function: name, argument }) => {
        if (name === "invoke") {
            (0, eval)(argument);
            return;
        }
        // By name and not as a property of the window, so that a template may also write "const play = …".
        const target = (0, eval)(`typeof ${name} === "function" ? ${name} : null`);
        if (!target) {
            report(`the template has no ${name}()`);
        } else if (name === "update") {
            target(argument);
        } else {
            target();
        }
    };

    const settle = () => {
        for (const animation of document.getAnimations()) {
            if (animation.effect?.getComputedTiming().endTime < Infinity) {
                animation.finish();
            }
        }
    };

    // A template without a remove() of its own needs none.
    window.remove = () => {};

    window.addEventListener("error", (event) => {
        report(event.message ?? `cannot load ${event.target.src ?? event.target.href}`);
    }, true);
    window.addEventListener("unhandledrejection", (event) => report(event.reason));
    window.addEventListener("message", (event) => {
        if (event.source !== monitor) {
            return;
        }
        for (const call of event.data.calls) {
            try {
                make(call);
            } catch (fault) {
                report(fault);
            }
        }
        if (event.data.settle) {
            settle();
        }
    });
})();
