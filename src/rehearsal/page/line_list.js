// The list of lines, replies and notes at the foot of the page. Everything in it is shown as plain text.

const kMaxLines = 200;

export class LineList {
    constructor(element) {
        this.element = element;
        this.follows = true;
        let last = 0;
        // Only who scrolls up stops it: the list also gets shorter when the channels above it grow.
        element.addEventListener("scroll", () => {
            const isAtEnd = element.scrollTop + element.clientHeight >= element.scrollHeight - 4;
            this.follows = isAtEnd || (this.follows && element.scrollTop >= last);
            last = element.scrollTop;
        });
    }

    clear() {
        this.element.replaceChildren();
    }

    // line: { time, kind, client, text }; kind "received", "sent", "note" or "fault".
    add(line) {
        const item = document.createElement("li");
        item.className = line.kind;
        item.classList.toggle("refused", line.kind === "sent" && /^(RES \S+ )?[45]\d\d /.test(line.text));
        const arrow = { received: "→", sent: "←" }[line.kind] ?? "·";
        item.append(part("time", line.time), ` ${arrow} `, line.text.replace(/\r\n/g, "\n    "), " ", part("client", line.client));
        this.element.append(item);
        while (this.element.childElementCount > kMaxLines) {
            this.element.firstElementChild.remove();
        }
        if (this.follows) {
            this.element.scrollTop = this.element.scrollHeight;
        }
    }
}

function part(className, text) {
    const element = document.createElement("span");
    element.className = className;
    element.textContent = text;
    return element;
}
