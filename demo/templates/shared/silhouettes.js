// Stands in for players' photos: drawn heads and shoulders that differ by what they are asked for, always the same for
// the same name or number. Elements with data-photo="FIELD" show the one for the field's text, "coach" in a suit.

"use strict";

const kSkin = ["#a9b7cf", "#8d9dba", "#73849f"];
const kHair = ["#3a4760", "#222d42", "#55637d"];

const kCrop = '<path d="M34 35Q31 14 50 13Q69 14 66 35Q64 25 50 24Q36 25 34 35Z"/>';
const kHairstyles = [
    kCrop,
    '<path d="M33 37Q27 11 50 9Q73 11 67 37L66 33Q65 22 50 22Q35 22 34 33Z"/>',
    "",
    '<path d="M34 34V16Q34 9 50 9Q66 9 66 16V34L64 24H36Z"/>',
    '<circle cx="37" cy="22" r="7"/><circle cx="45" cy="16" r="8"/><circle cx="56" cy="16" r="8"/><circle cx="64" cy="23" r="7"/>',
    `${kCrop}<rect x="33.5" y="24" width="33" height="5" rx="2" fill="var(--side)"/>`,
];
const kBeard = '<path d="M35 40Q36 58 50 60Q64 58 65 40Q62 50 50 50Q38 50 35 40Z"/>';

function silhouette(name) {
    let hash = 7;
    for (const letter of name) {
        hash = (hash * 131 + letter.codePointAt(0) * 37) % 9973;
    }
    const one = (choices, salt) => choices[Math.floor(hash / salt) % choices.length];
    const skin = one(kSkin, 1);
    const clothes = name === "coach"
        ? '<path fill="#16233c" d="M6 100Q8 78 38 68L50 88L62 68Q92 78 94 100Z"/><path fill="#eef2f8" d="M40 67L50 92L60 67Q50 76 40 67Z"/><path fill="var(--side)" d="M48 77h4l2 17-4 6-4-6Z"/>'
        : '<path fill="var(--side)" d="M21 100L25 74L36 68Q50 92 64 68L75 74L79 100Z"/><path fill="none" stroke="#fff" stroke-opacity=".55" stroke-width="1.6" d="M36 68Q50 92 64 68"/>';
    return `<svg viewBox="0 0 100 100" preserveAspectRatio="xMidYMax slice" aria-hidden="true">
        <g fill="${skin}"><path d="M5 100Q8 76 36 69L43 66V52H57V66L64 69Q92 76 95 100Z"/><ellipse cx="50" cy="36" rx="16" ry="20.5"/></g>
        <path fill="#0003" d="M43 55Q50 60 57 55V60Q50 66 43 60Z"/>
        ${clothes}<g fill="${one(kHair, 3)}">${one(kHairstyles, 5)}${one([false, true, false], 11) ? kBeard : ""}</g></svg>`;
}

function setPhoto(element, name) {
    element.toggleAttribute("data-empty", name === "");
    if (element.dataset.shown !== name) {
        element.dataset.shown = name;
        element.innerHTML = name === "" ? "" : silhouette(name);
    }
}

function setPhotos() {
    for (const element of document.querySelectorAll("[data-photo]")) {
        setPhoto(element, fields[element.dataset.photo] ?? "");
    }
}
