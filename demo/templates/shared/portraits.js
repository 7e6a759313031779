// Photos of players. Elements with data-photo="FIELD" show the picture that the field names, a file beside the templates
// such as "photos/18.png"; for a field that names none they show the team's crest, which reads as "no photo yet": on it
// the shirt number that the field holds or, with data-beside where that number stands beside it, the team's initials.

"use strict";

const kCrest = document.createElement("template"); // read once, before the graphic is wanted
kCrest.innerHTML = `<svg viewBox="-24 -19 128 128"><path fill="var(--side)" d="M4 6Q40-4 76 6V46Q74 74 40 88Q6 74 4 46Z"/>
    <path fill="#fffe" d="M10 26H70V58H10Z"/>
    <path fill="none" stroke="#0e1a2f55" stroke-width="1.6" d="M18 66Q40 58 62 66M40 4V24M40 60V84"/>
    <text x="40" y="52" lengthAdjust="spacingAndGlyphs"></text></svg>`;

function crest(letters) {
    const svg = kCrest.content.firstElementChild.cloneNode(true);
    const text = svg.lastElementChild;
    text.textContent = letters;
    if (letters.length > 2) {
        text.setAttribute("textLength", 52);
    }
    return svg;
}

function initials(team) {
    return team.split(/[\s-]+/).map((word) => word.slice(0, 1)).join("").slice(0, 3).toUpperCase();
}

function setPhoto(element, name) {
    element.toggleAttribute("data-empty", name === "");
    const isFile = /\.\w+$/.test(name);
    const text = "beside" in element.dataset || !/^\d+$/.test(name) ? initials(fields.TEAM ?? "") : name;
    const shown = `${name}/${text}`;
    if (element.dataset.shown === shown) {
        return;
    }
    element.dataset.shown = shown;
    if (!isFile) {
        element.replaceChildren(crest(text));
        return;
    }
    const picture = document.createElement("img");
    picture.alt = "";
    picture.onerror = () => picture.replaceWith(crest(initials(fields.TEAM ?? "")));
    picture.src = name;
    element.replaceChildren(picture);
}

function setPhotos() {
    for (const element of document.querySelectorAll("[data-photo]")) {
        setPhoto(element, fields[element.dataset.photo] ?? "");
    }
}
