// The monitor page: follows the rehearsal server and mirrors what it tells into channels and the list of lines.

import { Channel } from "./channel.js";
import { LineList } from "./line_list.js";

const kRetryAfter = 1000; // milliseconds

const choices = new URLSearchParams(location.search);
const lines = new LineList(document.getElementById("lines"));
const channels = new Map();

function setStatus(id, isGood, text) {
    const element = document.getElementById(id);
    element.className = `status ${isGood ? "good" : "bad"}`;
    element.textContent = text;
}

// ---- what the server tells

const handlers = {
    state({ channels: states }) {
        lines.clear();
        for (const channel of channels.values()) {
            channel.remove();
        }
        channels.clear();
        for (const { number, mode, layers } of states) {
            const channel = new Channel(number, mode);
            channels.set(number, channel);
            if (!choices.has("channel") || Number(choices.get("channel")) === number) {
                document.getElementById("channels").append(channel.element);
            }
            channel.setAspect(choices.get("aspect") ?? "16:9");
            for (const layer of layers) {
                channel.showLayer(layer.number, layer);
                channel.layers.get(layer.number).source?.call?.(layer.calls, true);
            }
        }
    },

    layer({ channel, number, layer }) {
        channels.get(channel).showLayer(number, layer);
    },

    mode({ channel, mode }) {
        channels.get(channel).setMode(mode);
    },

    calls({ id, calls, settle }) {
        templatesOnAir().find(({ template }) => template.id === id)?.template.call(calls, settle);
    },

    lines({ lines: added }) {
        for (const line of added) {
            lines.add(line);
        }
    },

    console({ clients, address, lastLeft }) {
        if (clients > 1) {
            setStatus("console", true, `${clients} consoles connected`);
        } else if (clients === 1) {
            setStatus("console", true, "Console connected");
        } else {
            setStatus("console", false, lastLeft ? `Console disconnected at ${lastLeft}` : `No console yet: connect it to ${address}`);
        }
    },
};

function templatesOnAir() {
    return [...channels.values()].flatMap((channel) =>
        channel.templates().map((entry) => ({ channel: channel.number, ...entry })));
}

function follow() {
    const socket = new WebSocket(`ws://${location.host}/state`);
    socket.addEventListener("open", () => setStatus("server", true, "Following the rehearsal server"));
    socket.addEventListener("message", ({ data }) => {
        for (const event of JSON.parse(data).events) {
            handlers[event.event](event);
        }
    });
    socket.addEventListener("close", () => {
        setStatus("server", false, "The rehearsal server does not answer; the picture stands still");
        setTimeout(follow, kRetryAfter);
    });
}

// ---- what templates tell: only their faults, and only those on air are heard

window.addEventListener("message", ({ data, source }) => {
    const entry = templatesOnAir().find(({ template }) => template.element.contentWindow === source);
    if (entry && data?.kind === "fault") {
        const time = new Date().toTimeString().slice(0, 8);
        const where = `${entry.channel}-${entry.layer} ${entry.template.name}`;
        lines.add({ time, kind: "fault", client: "", text: `${where}: ${data.text}` });
    }
});

// ---- the choices at the top stay in the address, so that they survive a reload

function choose(name, value) {
    choices.set(name, value);
    history.replaceState(null, "", `?${choices}`);
    applyChoices();
}

function applyChoices() {
    document.body.dataset.behind = choices.get("behind") ?? "hall";
    document.body.toggleAttribute("data-safe", choices.get("safe") === "1");
    document.body.toggleAttribute("data-alone", choices.has("channel"));
    document.body.dataset.aspect = choices.get("aspect") ?? "16:9";
    for (const channel of channels.values()) {
        channel.setAspect(document.body.dataset.aspect);
    }
}

for (const name of ["aspect", "behind"]) {
    const select = document.getElementById(name);
    select.value = choices.get(name) ?? select.value;
    select.addEventListener("change", () => choose(name, select.value));
}
const safe = document.getElementById("safe");
safe.checked = choices.get("safe") === "1";
safe.addEventListener("change", () => choose("safe", safe.checked ? "1" : "0"));

applyChoices();
follow();
