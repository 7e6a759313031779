// The console on a tablet: shows what the events tell, and asks for deeds. It holds no rules.
"use strict";

// A text with its values in the places of "%1", "%2".
const fill = (text, ...values) => text.replace(/%(\d)/g, (_, place) => values[place - 1]);
const outcomes = { "no data": "{{no data}}", failed: "{{failed}}" };
const sides = { home: "{{Home}}", away: "{{Away}}" };

const at = (id) => document.getElementById(id);
let state = null;
let shownSet = 0; // the set looked at here; 0: the console's own
let place = null; // of a starting five: {side, number}

async function ask(path, body) {
  at("told").textContent = "";
  try {
    const reply = await fetch(path, { method: "POST", body: JSON.stringify(body ?? {}) });
    if (reply.status === 401) location.reload();
    const result = await reply.json();
    if (result.error) at("told").textContent = result.error;
    else if (outcomes[result.outcome]) at("told").textContent = outcomes[result.outcome];
  } catch {
    at("told").textContent = "{{The console does not answer}}";
  }
}

// Brings a box's buttons to what is wanted, kept where they are so that focus and touch stay.
function showButtons(box, wanted) {
  const there = new Map([...box.children].map((button) => [button.dataset.key, button]));
  wanted.forEach((want, number) => {
    let button = there.get(want.key);
    if (!button) {
      button = document.createElement("button");
      button.type = "button";
      button.dataset.key = want.key;
    }
    there.delete(want.key);
    button.onclick = want.press;
    button.className = want.classes ?? "";
    if (want.pressed !== undefined) button.setAttribute("aria-pressed", want.pressed);
    if (want.label) button.setAttribute("aria-label", want.label);
    const text = want.note ? `${want.text}\u0000${want.note}` : want.text;
    if (button.dataset.text !== text) {
      button.dataset.text = text;
      button.textContent = want.text;
      if (want.note) {
        const note = document.createElement("small");
        note.textContent = want.note;
        button.append(note);
      }
    }
    if (box.children[number] !== button) box.insertBefore(button, box.children[number] ?? null);
  });
  for (const button of there.values()) button.remove();
}

function cardNote(card) {
  const notes = [];
  if (card.on) notes.push("ON");
  if (card.last) notes.push("{{fired last}}");
  if (card.trouble) notes.push(card.trouble);
  if (card.fault) notes.push(card.fault);
  return notes.join(", ");
}

function showCards() {
  const set = shownSet || Math.max(state.set, 1);
  showButtons(at("sets"), Object.entries(state.sets).filter(([, each]) => each.title || Object.keys(each.cards).length)
    .map(([number, each]) => ({ key: number, text: each.title || fill("{{Set %1}}", number), pressed: Number(number) === set,
      press: () => { shownSet = Number(number); show(); } })));
  const numbered = Object.entries(state.sets[set]?.cards ?? {}).sort(([a], [b]) => a - b);
  showButtons(at("cards"), numbered.map(([row, card]) => ({ key: `${set}/${row}`, text: card.caption || card.script,
    note: cardNote(card), press: () => ask(`/api/cards/${set}/${row}/fire`),
    classes: `card${card.on ? " on" : ""}${card.last ? " last" : ""}${card.trouble ? " trouble" : ""}` })));
  showButtons(at("keys"), Object.entries(state.keys).sort(([a], [b]) => a - b)
    .map(([number, key]) => ({ key: number, text: `F${number} ${key.title}`, press: () => ask(`/api/keys/${number}`) })));
}

function makeScores() {
  for (const side of ["home", "away"]) {
    const box = document.createElement("div");
    box.className = "score";
    box.innerHTML =
      "<h3></h3><button type=button>−</button><output></output><button type=button>+</button><small></small>";
    box.id = `score-${side}`;
    const [less, more] = box.querySelectorAll("button");
    less.onclick = () => ask(`/api/scores/${side}`, { step: -1 });
    more.onclick = () => ask(`/api/scores/${side}`, { step: 1 });
    at("scores").append(box);
  }
}

function showScores() {
  at("gametime").textContent = state.clocks.game || "--:--";
  at("period").textContent = state.clocks.period ? fill("{{Period %1}}", state.clocks.period) : "";
  at("manual").checked = state.scores.manual;
  for (const side of ["home", "away"]) {
    const box = at(`score-${side}`);
    const name = state.teams[side].name || sides[side];
    const score = state.scores[side];
    box.querySelector("h3").textContent = name;
    const shown = box.querySelector("output");
    shown.setAttribute("aria-label", name);
    if (shown.textContent !== score.inUse) shown.textContent = score.inUse;
    // What the steppers step, where another score is in use.
    box.querySelector("small").textContent = state.scores.manual ? "" : fill("{{manual %1}}", score.manual);
    const [less, more] = box.querySelectorAll("button");
    less.setAttribute("aria-label", fill("{{%1 one less}}", name));
    more.setAttribute("aria-label", fill("{{%1 one more}}", name));
  }
}

function showFives() {
  for (const side of ["home", "away"]) {
    let box = at(`five-${side}`);
    if (!box) {
      box = document.createElement("div");
      box.id = `five-${side}`;
      box.innerHTML = "<h3></h3><div class=five></div><div class=players></div>";
      at("fives").append(box);
    }
    const team = state.teams[side];
    const name = team.name || sides[side];
    box.querySelector("h3").textContent = name;
    showButtons(box.querySelector(".five"), Object.entries(team.five).map(([number, player]) => ({ key: number,
      text: player, label: fill("{{%1, place %2: %3}}", name, number, player),
      pressed: place?.side === side && place.number === number, press: () => { place = { side, number }; show(); } })));
    showButtons(box.querySelector(".players"), Object.entries(team.players).sort(([a], [b]) => a - b)
      .map(([index, player]) => ({ key: index, text: player.text, pressed: player.tagged !== "",
        press: () => choosePlayer(side, index, player) })));
  }
}

// With a place of the five chosen the player goes there; without, he is tagged for the next card.
function choosePlayer(side, index, player) {
  const number = /\d+/.exec(player.text)?.[0];
  if (place?.side === side && number) {
    ask(`/api/players/${side}/five/${place.number}`, { player: number });
    place = null;
    show();
  } else {
    ask(`/api/players/${side}/${index}/tag`);
  }
}

function showQuestion() {
  const question = state.question;
  const dialog = at("question");
  if (!question?.number) {
    dialog.close();
    delete dialog.dataset.number;
    return;
  }
  if (dialog.dataset.number === String(question.number)) return;
  dialog.dataset.number = question.number;
  at("questiontitle").textContent = question.title || "Zelvor Cards";
  at("questiontext").textContent = question.text;
  const answer = (given) => () => ask("/api/question", { answer: given, number: question.number });
  const choices = { message: [["ok", "OK"]], "yes-no": [["yes", "{{Yes}}"], ["no", "{{No}}"]],
    text: [["cancel", "{{Cancel}}"]], list: question.choices.map((each) => [each.key, each.text]).concat([["cancel", "{{Cancel}}"]]) };
  at("answers").replaceChildren();
  showButtons(at("answers"), choices[question.kind].map(([key, text]) => ({ key, text, press: answer(key) })));
  if (question.kind === "text") {
    const field = document.createElement("input");
    field.type = "text";
    field.setAttribute("aria-label", question.title);
    field.onkeydown = (event) => { if (event.key === "Enter") answer(field.value)(); };
    at("answers").prepend(field);
  }
  if (!dialog.open) dialog.showModal();
}

function show() {
  at("onairstate").textContent = state.onAir.state || "{{clear}}";
  at("onaircard").textContent = state.onAir.card;
  at("trouble").textContent = state.onAir.trouble;
  at("status").textContent = [state.links.main.text, state.feed.text, state.database.text].filter(Boolean).join(" · ");
  showCards();
  showScores();
  showButtons(at("proposals"), Object.entries(state.proposals).sort(([a], [b]) => a - b)
    .map(([number, each]) => ({ key: number, text: each.text, note: each.used ? "{{used}}" : "",
      press: () => ask(`/api/proposals/${number}/take`) })));
  showFives();
  showQuestion();
}

function change(path, value) {
  let object = state;
  for (const key of path.slice(0, -1)) object = object[key] ??= {};
  if (value === null) delete object[path.at(-1)];
  else object[path.at(-1)] = value;
}

let drawing = 0;
function look() {
  const socket = new WebSocket(`${location.protocol === "https:" ? "wss" : "ws"}://${location.host}/api/events`);
  socket.onmessage = ({ data }) => {
    const message = JSON.parse(data);
    if (message.event === "state") state = message.state;
    else if (message.event === "changed") change(message.path, message.value);
    else return;
    document.body.classList.remove("lost");
    drawing ||= requestAnimationFrame(() => { drawing = 0; show(); });
  };
  socket.onclose = () => {
    document.body.classList.add("lost");
    at("told").textContent = "{{The connection to the console is lost; trying again}}";
    setTimeout(look, 1000);
  };
  socket.onopen = () => { at("told").textContent = ""; };
}

for (const id of ["clear", "dialogclear"]) at(id).onclick = () => ask("/api/clear");
at("manual").onchange = (event) => ask("/api/scores/mode", { manual: event.target.checked });
at("question").oncancel = (event) => event.preventDefault();
makeScores();
look();
