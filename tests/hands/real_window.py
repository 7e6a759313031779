#!/usr/bin/env python3
"""Works the console's real window as an operator's hands do: mouse and keys through an X server of its own (Xvfb, with a
window manager), the lines read at the other end of a TCP connection.

    real_window.py ZELVOR_CARDS     ends with 77 where there is no Xvfb, openbox or xdotool
"""

import os
import shutil
import socket
import subprocess
import sys
import tempfile
import threading
import time

# Where things stand in the window at 1280 x 800.
CARD1, CARD2, SET1, SET2 = (120, 154), (120, 231), (87, 93), (244, 93)
CLEAR, PORT, MANUAL, SCORES_TAB, PERIOD = (1190, 44), (1100, 168), (1000, 308), (846, 92), (1040, 194)

# Holds the console for some seconds without letting it paint.
HOLD = (
    "EVAL~END;Timer+%s\r\nSETVAR~@RECORDCOUNT;100000000\r\nFOREACHREC~I\r\nEVAL~NOW;Timer\r\n"
    'IFL~{@NOW};>;{@END}~"SETVAR~@RECORDCOUNT;0"\r\nROF\r\nCSPSEND~HELD\r\n'
)
CARDS = {
    "hold.csp": HOLD % "1",
    "long.csp": HOLD % "3",
    "quick.csp": "CSPSEND~QUICK\r\n",
    "asks.csp": "BREAK~One?\r\nBREAK~Two?\r\nCSPSEND~ANSWERED\r\n",
    "delay.csp": "CSPSEND~BEFORE\r\nDELAY~1\r\nCSPSEND~AFTER\r\n",
    "play.csp": "CSPSEND~SHOW PLAY\r\n",
    "period.csp": "CSPSEND~PERIOD {@GAMEPERIOD}\r\n",
    "other.csp": "CSPSEND~OTHER\r\n",
    "score.csp": "CSPSEND~SCORE {@GREENSCOREA}\r\n",
    "clear.csp": "FUNCTIONCARD\r\nCSPSEND~CLEAR 1\r\n",
    "GetGame.csp": "FUNCTIONCARD\r\nSQLU~create table if not exists proposedcard (pc_id integer, pc_used text)\r\n"
                   "PROPOSE~1;7|N|other.csp|P:4;Star;N\r\n",
}
KEYS = {1: "hold.csp", 2: "quick.csp", 3: "asks.csp", 4: "delay.csp", 5: "play.csp", 6: "period.csp", 7: "long.csp",
        8: "score.csp"}


def write_pack(folder):
    pack = os.path.join(folder, "MODULES", "QRD_EN")
    os.makedirs(pack)
    empty = [","] * 19
    table = ["FKEYS:" + ",".join(f"{n}|{card[:-4]}|{card}" for n, card in KEYS.items()), "CLEAR:clear.csp"]
    table += ["SETNO:1,Game", "Hold,hold.csp", "Quick,quick.csp", *empty]
    table += ["SETNO:2,Other", "Other,other.csp", ",", *empty]
    files = dict(CARDS)
    files["CARDS.TXT"] = "\r\n".join(table) + "\r\n"
    files["CONNECTIONS.TXT"] = f"1==Test==Driver=SQLite3;Database={folder}/test.db\r\n"
    files["ASKFIELDS.TXT"] = ""
    files["../PACKS.TXT"] = "EN;Basketball\r\n"
    for name, text in files.items():
        with open(os.path.join(pack, name), "w", encoding="utf-8", newline="") as file:
            file.write(text)


class Server:
    """Answers each line and keeps it."""

    def __init__(self):
        self.lines = []
        self.listener = socket.create_server(("127.0.0.1", 0))
        self.port = self.listener.getsockname()[1]
        threading.Thread(target=self.serve, daemon=True).start()

    def serve(self):
        while True:
            peer, _ = self.listener.accept()
            for line in peer.makefile("rb"):
                self.lines.append(line.decode().strip())
                peer.sendall(b"202 OK\r\n")


class Desk:
    def __init__(self, program, folder, *options, screen="1280x800x24"):
        self.server = Server()
        read, write = os.pipe()
        quiet = {"stdout": subprocess.DEVNULL, "stderr": subprocess.DEVNULL}
        self.processes = [
            subprocess.Popen(
                ["Xvfb", "-displayfd", str(write), "-noreset", "-screen", "0", screen], pass_fds=[write], **quiet
            )
        ]
        os.close(write)
        number = b""
        while not number.endswith(b"\n"):
            number += os.read(read, 1)
        self.environment = dict(os.environ, DISPLAY=f":{int(number)}", QT_QPA_PLATFORM="xcb")
        # A window that comes up while it starts is lost.
        ready = os.path.join(folder, f"ready-{self.server.port}")
        self.start(["openbox", "--startup", f"touch {ready}"])
        self.wait(lambda: os.path.exists(ready), "the window manager")
        self.feed = free_port()
        self.console = self.start([program, "--language-ui", "en", "--app-folder", folder, "--feed-port",
                                   str(self.feed)]
                                  + [option.format(port=self.server.port) for option in options])

    def answer_the_start(self):
        for box in ("Project Pack Selection", "Επιλογή σύνδεσης"):
            self.wait_for_window(box)
            self.key("Return")
        self.wait_until_started()

    def wait_until_started(self):
        self.wait_for_window("General Vars")  # opened last, behind the console
        time.sleep(0.5)

    def connect_by_mouse(self):
        self.click(PORT, "--repeat", "2", "--delay", "50")
        self.type(str(self.server.port))
        self.key("Return")
        self.click(MANUAL)
        self.type("READY")
        self.key("Return")
        self.expect(["READY"])

    def start(self, command):
        process = subprocess.Popen(
            command, env=self.environment, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL
        )
        self.processes.append(process)
        return process

    def stop(self):
        for process in reversed(self.processes):
            process.kill()
            process.wait()

    def xdotool(self, *words):
        return subprocess.run(
            ["xdotool", *words], env=self.environment, capture_output=True, text=True, check=False
        ).stdout

    def wait_for_window(self, name):
        self.wait(lambda: self.xdotool("search", "--onlyvisible", "--name", name), name)
        time.sleep(0.3)

    def wait(self, holds, what, seconds=30):
        end = time.monotonic() + seconds
        while not holds():
            if time.monotonic() > end:
                raise AssertionError(f"waited for {what}; lines: {self.server.lines}")
            time.sleep(0.02)

    def click(self, place, *words, button="1"):
        self.xdotool("mousemove", str(place[0]), str(place[1]), "click", *words, button)

    def key(self, name):
        self.xdotool("key", name)

    def type(self, text):
        self.xdotool("type", "--delay", "20", text)

    def hold(self, name, seconds):
        self.xdotool("keydown", name)
        time.sleep(seconds)
        self.xdotool("keyup", name)

    def expect(self, lines, quiet=0.4):
        """These lines, in this order, and none after them for a moment."""
        self.wait(lambda: len(self.server.lines) >= len(lines), lines)
        time.sleep(quiet)
        found, self.server.lines[:] = list(self.server.lines), []
        assert found == lines, f"expected {lines}, found {found}"

    def expect_period(self, period):
        self.key("F6")
        self.expect([f"PERIOD {period}"])


def free_port():
    with socket.socket(socket.AF_INET, socket.SOCK_DGRAM) as probe:
        probe.bind(("127.0.0.1", 0))
        return probe.getsockname()[1]


def order_of_presses(desk):
    desk.xdotool("key", "F1", "key", "F2")
    desk.expect(["HELD", "QUICK"])
    # The card that was seen on the button is fired, whatever the press before it has changed.
    held = ["key", "F1", "sleep", "0.15"]
    desk.xdotool(*held, "mousemove", *map(str, SET2), "click", "1", "mousemove", *map(str, CARD2), "click", "1")
    desk.expect(["HELD", "QUICK"])
    desk.click(CARD1)
    desk.expect(["OTHER"])
    desk.click(SET1)
    # CLEAR is not queued behind another press, and takes along what waits for its turn.
    desk.xdotool(*held, "key", "F2", "mousemove", *map(str, CLEAR), "click", "1")
    desk.expect(["HELD", "CLEAR 1"])


def held_keys_and_double_clicks(desk):
    desk.hold("F2", 1.2)
    desk.expect(["QUICK"])
    desk.click(CARD2, "--repeat", "2", "--delay", "80")
    desk.expect(["QUICK"])
    desk.click(MANUAL)
    desk.key("ctrl+a")
    desk.type("VERSION")
    desk.hold("Return", 1.2)
    desk.expect(["VERSION"])
    desk.key("F3")
    desk.wait_for_window("Break")
    desk.hold("Return", 1.2)  # answers the first question alone
    desk.expect([])
    desk.key("Return")
    desk.expect(["ANSWERED"])


def late_presses(desk):
    desk.xdotool("key", "F7", "sleep", "0.2", "key", "F2")
    desk.expect(["HELD"], quiet=1)


def clear_ends_what_waits(desk):
    desk.key("F3")
    desk.wait_for_window("Break")
    desk.key("ctrl+shift+Delete")
    desk.expect(["CLEAR 1"])
    desk.key("F4")
    desk.expect(["BEFORE"], quiet=0)
    desk.click(CLEAR)
    desk.expect(["CLEAR 1"], quiet=1.5)


def pause_before_play(desk):
    stop = threading.Event()

    def send():
        with socket.socket(socket.AF_INET, socket.SOCK_DGRAM) as feed:
            while not stop.is_set():
                feed.sendto(b"xt9:58t", ("127.0.0.1", desk.feed))
                time.sleep(0.0005)

    sender = threading.Thread(target=send)
    sender.start()
    try:
        desk.key("F5")
        desk.wait(lambda: desk.server.lines, "a line with PLAY behind a busy feed", seconds=5)
    finally:
        stop.set()
        sender.join()
    desk.expect(["SHOW PLAY"])


def lists_give_the_keyboard_back(desk):
    desk.expect_period(1)
    desk.click(SCORES_TAB)
    desk.click(PERIOD)
    time.sleep(0.3)
    desk.xdotool("key", "Down", "key", "Return")
    time.sleep(0.3)
    desk.expect_period(2)
    desk.xdotool("key", "Down", "key", "9")
    desk.click(PERIOD, button="5")
    desk.expect_period(2)


def a_change_of_layout_fires_nothing(desk):
    alt, shift, b = "64", "50", "56"  # codes of keys: their names change with the layout
    desk.start(["setxkbmap", "-layout", "us,gr", "-option", "grp:alt_shift_toggle"]).wait()
    time.sleep(0.3)
    for layout in ("Greek", "English"):
        desk.xdotool("keydown", alt, "keydown", shift, "keyup", shift, "key", b, "keyup", alt)
        desk.xdotool("keydown", alt, "keydown", shift, "key", b, "keyup", shift, "keyup", alt)
        desk.xdotool("keydown", shift, "keydown", alt, "keyup", alt, "key", b, "keyup", shift)
        desk.expect([])
        desk.xdotool("keydown", alt, "key", b, "keyup", alt)
        desk.expect(["QUICK"])
    desk.start(["setxkbmap", "-layout", "us", "-option", ""]).wait()


def evening_by_keyboard(desk):
    """From the start to the end without the mouse."""
    desk.answer_the_start()
    for key in ("alt+5", "Tab", "Tab", "Tab", "ctrl+a"):
        desk.key(key)
    desk.type(str(desk.server.port))
    desk.key("Return")
    time.sleep(0.5)
    desk.key("ctrl+e")
    desk.type("READY")
    desk.key("Return")
    desk.expect(["READY"])
    desk.key("Escape")
    desk.hold("alt+b", 1.2)
    desk.expect(["QUICK"])
    for key in ("ctrl+2", "alt+a", "ctrl+1"):
        desk.key(key)
    desk.expect(["OTHER"])
    for key in ("a", "Return", "space", "F11"):
        desk.key(key)
    desk.key("ctrl+k")
    desk.wait_for_window("Find")
    desk.type("quick")
    desk.hold("Return", 1.2)
    desk.expect(["QUICK"])
    for key in ("ctrl+shift+s", "ctrl+Up", "ctrl+Up", "F8"):
        desk.key(key)
    desk.expect(["SCORE 2"])
    desk.key("ctrl+alt+1")
    desk.expect(["OTHER"])
    desk.key("F12")
    desk.wait_for_window("Keys")
    desk.key("F12")
    desk.key("ctrl+shift+Delete")
    desk.expect(["CLEAR 1"])
    desk.key("alt+F4")
    desk.wait(lambda: desk.console.poll() is not None, "the end")


def main():
    for tool in ("Xvfb", "openbox", "xdotool"):
        if shutil.which(tool) is None:
            print(f"skipped: there is no {tool}")
            return 77
    with tempfile.TemporaryDirectory() as folder:
        write_pack(folder)
        cases = (order_of_presses, held_keys_and_double_clicks, late_presses, clear_ends_what_waits, pause_before_play,
                 lists_give_the_keyboard_back, a_change_of_layout_fires_nothing)
        work(folder, cases, by_mouse=True)
        work(folder, (evening_by_keyboard,), by_mouse=False)
    return 0


def work(folder, cases, by_mouse):
    desk = Desk(sys.argv[1], folder)
    try:
        if by_mouse:
            desk.answer_the_start()
            desk.connect_by_mouse()
        for case in cases:
            print(case.__name__, flush=True)
            case(desk)
        assert desk.console.poll() in (None, 0), "the console has crashed"
    finally:
        desk.stop()


if __name__ == "__main__":
    sys.exit(main())
