// One layer of a channel: what it shows, and how the mixer shows it.

export class Layer {
    constructor(number) {
        this.number = number;
        this.element = document.createElement("div");
        this.element.className = "layer";
        this.element.style.zIndex = number;
        this.source = null;
    }

    // state: what the server tells of the layer. Builds a new picture only when the source is another one.
    show(state, framesPerSecond) {
        this.state = state;
        if (state.source?.id !== this.source?.id) {
            this.retire();
            this.source = state.source ? makeSource(state.source) : null;
            if (this.source) {
                this.element.append(this.source.element);
            }
        }
        const { opacity, fill: [x, y, width, height], frames } = state.mixer;
        const style = this.element.style;
        style.transition = frames > 0 ? `all ${frames / framesPerSecond}s linear` : "none";
        style.opacity = opacity;
        style.transform = `translate(${x * 100}%, ${y * 100}%) scale(${width}, ${height})`;
    }

    // Takes what is shown off the picture.
    retire() {
        this.source?.retire();
        this.source = null;
    }

    remove() {
        this.retire();
        this.element.remove();
    }

    get description() {
        const { source, background, paused, mixer } = this.state;
        const words = [source?.name ?? "empty"];
        if (background) words.push(`next: ${background.name}`);
        if (paused) words.push("paused");
        if (mixer.opacity !== 1) words.push(`opacity ${mixer.opacity}`);
        if (mixer.volume !== 1) words.push(`volume ${mixer.volume}`);
        if (mixer.keyer) words.push("key of the layer above");
        return `${this.number}  ${words.join(" · ")}`;
    }
}

function makeSource(source) {
    switch (source.kind) {
        case "template": return new Template(source);
        case "picture": return new Picture(source);
        default: return new Colour(source);
    }
}

class Source {
    constructor({ id, name }, tag) {
        this.id = id;
        this.name = name;
        this.element = document.createElement(tag);
    }

    retire() {
        this.element.remove();
    }
}

class Colour extends Source {
    constructor(source) {
        super(source, "div");
        this.element.style.background = source.colour;
    }
}

class Picture extends Source {
    constructor(source) {
        super(source, "img");
        this.url = source.url;
        this.element.alt = "";
        this.element.src = source.url;
    }
}

// A template in a frame of its own origin: it can neither read nor change this page, and its calls reach it as messages
// that only the shim inside takes. Calls wait until its page has loaded.
export class Template extends Source {
    constructor(source) {
        super(source, "iframe");
        this.waiting = [];
        this.loaded = false;
        this.element.setAttribute("sandbox", "allow-scripts");
        this.element.setAttribute("allow", "autoplay");
        this.element.title = source.name;
        this.element.addEventListener("load", () => this.flush(), { once: true });
        this.element.src = source.url;
    }

    // calls: [{ function, argument }]. With settle, the animations they start are over at once.
    call(calls, settle = false) {
        // A server makes each call a task of its own.
        this.waiting.push(...(settle ? [{ calls, settle }] : calls.map((call) => ({ calls: [call], settle }))));
        if (this.loaded) {
            this.flush();
        }
    }

    flush() {
        this.loaded = true;
        for (const message of this.waiting.splice(0)) {
            this.element.contentWindow?.postMessage(message, "*");
        }
    }
}
