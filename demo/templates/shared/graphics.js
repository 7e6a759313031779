// What all templates here have in common: they read the fields they are sent, put them where the page names them, and
// come on and go off by one class on the body. Everything that moves is a CSS transition between "off" and "on", so
// that a STOP in the middle of coming on simply turns round.
//
// In the page: data-field="NAME" shows the field NAME, and is marked data-empty while there is nothing to show; with
// the class "fit" the text is made narrower, then smaller, until it fits; with "flash" a change lights up. The field
// SIDE ("away") chooses whose colour --side is. A page may have functions fieldsChanged(fields), cameOn() and next() of
// its own.
//
// The operator's choices come in the field LOOK: screen mode, wipe, fade in, fade out and roll, as "16_9 10 10 10 10".
// With "4_3" the graphic keeps to the middle of the picture, which a 4:3 set shows. Of the effect speeds, 10 is as drawn, 20
// takes twice as long (roll: runs twice as fast), 1 ("Off") cuts and 0 ("Fast") hurries.

"use strict";

const fields = {};

// The calls of the graphics server.

function update(data) {
    Object.assign(fields, readFields(data));
    for (const element of document.querySelectorAll("[data-field]")) {
        setText(element, fields[element.dataset.field] ?? "");
    }
    document.body.classList.toggle("away", fields.SIDE === "away");
    const [screen, wipe, fadeIn, fadeOut] = look();
    document.body.classList.toggle("narrow", screen === "4_3");
    document.body.style.setProperty("--wipe", duration(wipe));
    document.body.style.setProperty("--fade-in", duration(fadeIn));
    document.body.style.setProperty("--fade-out", duration(fadeOut));
    if (typeof fieldsChanged === "function") {
        fieldsChanged(fields);
    }
    if (document.body.classList.contains("on")) {
        fitAll();
    }
}

function play() {
    fitAll(); // here, so that neither call takes a frame's time
    document.getAnimations(); // settles the styles before, or there is nothing to move from; lays nothing out
    document.body.classList.add("on");
    if (typeof cameOn === "function") {
        cameOn();
    }
}

function stop() {
    document.body.classList.remove("on");
}

function next() {
    // Most graphics have one step.
}

function look() {
    return (fields.LOOK ?? "").split(" ");
}

// What an effect speed makes of the durations that are drawn.
function duration(speed) {
    if (speed === "0") {
        return 0.4;
    }
    return speed === "1" ? 0.01 : (Number(speed) || 10) / 10;
}

// Sets the text of an element that the page has made itself.
function setField(element, name) {
    element.dataset.field = name;
    setText(element, fields[name] ?? "");
}

// The fields of template data: XML with one componentData a field, or a JSON object.
function readFields(data) {
    if (data.startsWith("{")) {
        return JSON.parse(data);
    }
    const xml = new DOMParser().parseFromString(data, "text/xml");
    if (xml.querySelector("parsererror")) {
        return readLooseFields(data);
    }
    const found = {};
    for (const component of xml.querySelectorAll("componentData")) {
        found[component.id || component.getAttribute("id")] = component.querySelector("data")?.getAttribute("value") ?? "";
    }
    return found;
}

// Values come as they were typed: "A & B" is no XML, and an apostrophe arrives as a double quote.
function readLooseFields(data) {
    const found = {};
    const component = /<componentData id="([^"]*)">\s*<data [^>]*?value="(.*?)"\s*(?:\/>|><\/data>)\s*<\/componentData>/gs;
    for (const [, id, value] of data.matchAll(component)) {
        found[id] = value.replaceAll('"', "’");
    }
    return found;
}

function setText(element, text) {
    element.toggleAttribute("data-empty", text === "");
    if (element.textContent === text) {
        return;
    }
    const isChange = element.textContent !== "";
    const inner = document.createElement("span");
    inner.textContent = text;
    element.replaceChildren(inner);
    if (isChange && element.classList.contains("flash")) {
        inner.animate([{ color: "#ffd54a", transform: "translateY(18%)" }, { color: "#ffd54a", transform: "none", offset: 0.25 }, {}],
            { duration: 1200, easing: "ease-out" });
    }
}

const kNarrowest = 0.78; // narrower than this, letters look squeezed: from there on they get smaller instead

let widths = new WeakMap(); // of texts as they are drawn

function fittingTexts() {
    return [...document.querySelectorAll(".fit")].map((element) => element.firstElementChild).filter(Boolean);
}

// All are measured before any is changed: the page is laid out once, and a frame is not late.
function fitAll() {
    const texts = fittingTexts();
    const ratios = texts.map((text) => {
        if (!widths.has(text)) {
            widths.set(text, text.offsetWidth);
        }
        const { paddingLeft, paddingRight } = getComputedStyle(text.parentElement);
        const room = text.parentElement.clientWidth - parseFloat(paddingLeft) - parseFloat(paddingRight);
        return room > 0 ? Math.min(1, room / widths.get(text)) : 1;
    });
    ratios.forEach((ratio, i) => {
        texts[i].style.fontSize = ratio < kNarrowest ? `${ratio / kNarrowest}em` : "";
        texts[i].style.verticalAlign = ratio < 1 ? "middle" : "";
        texts[i].style.transform = ratio < 1 ? `scaleX(${Math.max(ratio, kNarrowest)})` : "";
    });
}

function fitAnew() {
    widths = new WeakMap();
    for (const text of fittingTexts()) {
        text.style.fontSize = "";
    }
    fitAll();
}

// Fonts are looked for when a text is first laid out: here, before the graphic is wanted.
function findFonts() {
    const text = document.createElement("span");
    text.innerHTML = "Ag Ωή 0 • <span style='font-weight: 400'>Ag Ωή 0 •</span>";
    text.style.cssText = "position: absolute; visibility: hidden";
    document.body.append(text);
    void text.offsetWidth;
    text.remove();
}

addEventListener("resize", fitAnew);
addEventListener("DOMContentLoaded", findFonts);
document.fonts.ready.then(fitAnew);
