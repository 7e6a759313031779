#!/usr/bin/env python3
"""Reads the console's real window as a screen reader does, through AT-SPI: everything has a role and a name, and what
changes is told. The window stands on an X server and a D-Bus session of its own.

    screen_reader.py ZELVOR_CARDS DEMO_FOLDER     ends with 77 where a tool is missing
"""

import os
import shutil
import subprocess
import sys
import tempfile
import time

DEBIAN_PYTHON = "/usr/bin/python3"  # whose modules pyatspi is among
INSIDE = "ZELVOR_SCREEN_READER"

# They group or move others, and have no name in any program.
NAMELESS = {"filler", "scroll bar", "separator", "menu", "scroll pane", "unknown"}


class Reader:
    """The tree of the console, as it was told: nothing is asked again."""

    def __init__(self):
        import pyatspi
        from gi.repository import GLib

        self.pyatspi = pyatspi
        self.context = GLib.MainContext.default()
        pyatspi.Registry.registerEventListener(
            lambda event: None, "object:state-changed", "object:property-change", "object:children-changed",
            "object:text-changed")
        self.desktop = pyatspi.Registry.getDesktop(0)

    def hear(self):
        while self.context.iteration(False):
            pass

    def wait(self, holds, what, seconds=20):
        end = time.monotonic() + seconds
        while not holds():
            if time.monotonic() > end:
                raise AssertionError(f"waited for {what}")
            time.sleep(0.05)
            self.hear()

    def all(self, parent=None):
        for child in parent if parent is not None else self.desktop:
            if child is None:
                continue
            yield child
            yield from self.all(child)

    def find(self, name, role=None):
        """The control whose name begins so."""
        found = [each for each in self.all() if each.name.startswith(name) and role in (None, each.getRoleName())]
        assert found, f"no {role or 'control'} {name}"
        return found[0]

    def has(self, control, state):
        return control.getState().contains(getattr(self.pyatspi, "STATE_" + state))

    def press(self, control):
        control.queryAction().doAction(0)


def everything_has_a_name(reader, desk):
    for window in next(iter(reader.desktop)):
        # What a form's label or cell says may be nothing at the moment; those of the console say what they are for.
        silent = NAMELESS if window.name.startswith("Zelvor Cards") else NAMELESS | {"label", "table cell", "panel"}
        nameless = [f"{each.getRoleName()} in {each.parent.getRoleName()} {each.parent.name!r}"
                    for each in reader.all(window) if not each.name and each.getRoleName() not in silent]
        assert not nameless, (window.name, nameless)
    roles = {"Zelvor Cards": "frame", "Card 1: ": "push button", "Shows this panel: Caspar": "page tab",
             "Lock": "check box", "Period of the game": "combo box", "Port of the main": "text",
             "Proposal 1": "push button", "What is on air": "label", "Home player 1": "push button"}
    for name, role in roles.items():
        reader.find(name, role)


def states_follow(reader, desk):
    card = reader.find("Card 1: ")
    assert not reader.has(card, "CHECKED")
    reader.press(card)
    reader.wait(lambda: reader.has(card, "CHECKED") and ", ON" in card.name, "the card on air")
    reader.wait(lambda: reader.find("What is on air").name.endswith("ON AIR"), "the on-air line")
    assert desk.server.lines, "nothing was sent"
    desk.key("ctrl+shift+Delete")
    reader.wait(lambda: not reader.has(card, "CHECKED"), "the card off air")

    lock = reader.find("Lock")
    for locked in (True, False):
        desk.key("ctrl+shift+o")
        reader.wait(lambda locked=locked: reader.has(lock, "CHECKED") == locked, "the lock's box")
    scores, caspar = (reader.find(f"Shows this panel: {tab}") for tab in ("Scores", "Caspar"))
    assert reader.has(caspar, "SELECTED") and not reader.has(scores, "SELECTED")
    desk.key("alt+1")
    reader.wait(lambda: reader.has(scores, "SELECTED") and not reader.has(caspar, "SELECTED"), "the tab")

    desk.key("ctrl+Up")
    score = reader.find("Manual home score")
    reader.wait(lambda: score.queryText().getText(0, -1) == "1", "the score in its box")
    steps = reader.find("Starts or stops the local clock")
    desk.key("ctrl+shift+k")
    reader.wait(lambda: steps.name.endswith("Stop"), "the clock's button")

    player = reader.find("Home player 1:")
    reader.press(player)
    reader.wait(lambda: player.description == "tagged", "the tagged player")
    proposal = reader.find("Proposal 1:")
    assert proposal.description == "open"
    reader.press(proposal)
    reader.wait(lambda: proposal.description == "used" and not player.description.startswith("tag"), "the proposal")

    link, button = reader.find("Main graphics link"), reader.find("Connects or disconnects the main", "push button")
    assert " connected" in link.name and button.name.endswith("Disconnect"), (link.name, button.name)
    desk.key("ctrl+shift+m")
    reader.wait(lambda: "not connected" in link.name and button.name.endswith(": Connect"), "the link")


def run(program, demo):
    reader = Reader()
    with tempfile.TemporaryDirectory() as folder:
        shutil.copytree(os.path.join(demo, "MODULES"), os.path.join(folder, "MODULES"))
        for script in ("demo.sql", "live.sql"):
            subprocess.run(["sqlite3", "-bail", os.path.join(folder, "demo.db"), f".read {demo}/{script}"], check=True)
        desk = real_window.Desk(program, folder, "--pack", "EN", "--connection", "1", "--connect",
                                "--main", "127.0.0.1:{port}")
        try:
            desk.wait_until_started()
            reader.wait(lambda: len(reader.desktop) == 1, "the console")
            for case in (everything_has_a_name, states_follow):
                print(case.__name__, flush=True)
                case(reader, desk)
        finally:
            desk.stop()


def main():
    tools = ("Xvfb", "openbox", "xdotool", "sqlite3", "dbus-run-session")
    missing = [tool for tool in tools if shutil.which(tool) is None]
    if subprocess.run([DEBIAN_PYTHON, "-c", "import pyatspi"], capture_output=True, check=False).returncode != 0:
        missing.append("pyatspi")
    if missing:
        print(f"skipped: there is no {missing[0]}")
        return 77
    if INSIDE not in os.environ:
        os.environ.update({INSIDE: "1", "QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1"})
        os.execvp("dbus-run-session", ["dbus-run-session", "--", DEBIAN_PYTHON, *sys.argv])
    run(*sys.argv[1:])
    return 0


if __name__ == "__main__":
    import real_window

    sys.exit(main())
