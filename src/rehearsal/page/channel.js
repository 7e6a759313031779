// One channel: its picture, made of layers from the back to the front, and the list of what they hold.

import { Layer, Template } from "./layer.js";

const kShapes = { "16:9": 16 / 9, "4:3": 4 / 3 };

export class Channel {
    // mode: { name, height, framesPerSecond }
    constructor(number, mode) {
        this.number = number;
        this.mode = mode;
        this.layers = new Map();
        this.element = document.createElement("section");
        this.element.className = "channel";
        this.element.id = `channel-${number}`;
        this.element.innerHTML = `
            <header><h2></h2><a>alone</a></header>
            <div class="picture"><div class="programme"></div></div>
            <ul class="layers"></ul>`;
        this.element.querySelector("a").href = `?channel=${number}`;
        this.picture = this.element.querySelector(".picture");
        this.programme = this.element.querySelector(".programme");
        this.list = this.element.querySelector(".layers");
        this.resized = new ResizeObserver(() => this.scale());
        this.resized.observe(this.element);
    }

    remove() {
        this.resized.disconnect();
        this.element.remove();
    }

    setMode(mode) {
        this.mode = mode;
        this.setAspect(this.aspect);
    }

    setAspect(aspect) {
        this.aspect = aspect;
        this.element.querySelector("h2").textContent = `Channel ${this.number}  ${this.mode.name}`;
        const height = this.mode.height;
        const width = Math.round(height * kShapes[aspect]);
        this.width = width;
        this.programme.style.width = `${width}px`;
        this.programme.style.height = `${height}px`;
        this.picture.style.aspectRatio = `${width} / ${height}`;
        this.picture.style.setProperty("--shape", width / height);
        this.scale();
    }

    scale() {
        this.programme.style.transform = `scale(${this.picture.clientWidth / this.width})`;
    }

    // state: what the server tells of the layer, null when it holds nothing any more.
    showLayer(number, state) {
        let layer = this.layers.get(number);
        if (state && !layer) {
            layer = new Layer(number);
            this.layers.set(number, layer);
            this.programme.append(layer.element);
        }
        if (state) {
            layer.show(state, this.mode.framesPerSecond);
        } else if (layer) {
            layer.remove();
            this.layers.delete(number);
        }
        this.key();
        this.describe();
    }

    // A layer that is a key is not seen; if it is a picture, the layer above is seen where that is opaque.
    key() {
        let mask = "none";
        for (const layer of this.sorted()) {
            const isKey = layer.state.mixer.keyer;
            layer.element.style.visibility = isKey ? "hidden" : "";
            layer.element.style.maskImage = mask;
            layer.element.style.maskSize = "100% 100%";
            mask = isKey && layer.source?.url ? `url("${layer.source.url}")` : "none";
        }
    }

    describe() {
        this.list.replaceChildren(...this.sorted().map((layer) => {
            const item = document.createElement("li");
            item.textContent = layer.description;
            return item;
        }));
    }

    sorted() {
        return [...this.layers.values()].sort((a, b) => a.number - b.number);
    }

    // The templates on air, each with the number of its layer.
    templates() {
        return this.sorted().filter((layer) => layer.source instanceof Template)
            .map((layer) => ({ layer: layer.number, template: layer.source }));
    }
}
