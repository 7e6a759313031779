#!/usr/bin/env python3
"""Runs every command of the manual, in the order of its pages, in a folder that looks like a checkout with programs in it,
and follows its links.

    commands.py CHECKOUT PROGRAMS_FOLDER

A command is a line of an indented block that begins with a program, or one between backticks. What NOT_RUN names is not
run; a name of a mere option is looked up in the program's --help.
"""

import os
import re
import shutil
import socket
import subprocess
import sys
import tempfile
import time

CHECKOUT, PROGRAMS = (os.path.abspath(name) for name in sys.argv[1:3])
PAGES = ["README.md", "docs/pack-authors-guide.md", "docs/*.md", "CONTRIBUTING.md", "editors/README.md"]
PATIENCE = 60  # seconds

SETS_UP = "sets up and builds the machine that this test runs on"
HARDWARE = "speaks to a machine of the production"
INSTALLS = "needs an installed package; packaging/test tries it"
CONSOLE = "needs a console; tests/remote starts one"
NOT_RUN = {
    "zelvor-cards --control 127.0.0.1:7700 --osc 127.0.0.1:7701": CONSOLE,
    "zelvor-cards --control 10.0.0.7:7700 --control-token token": CONSOLE,
    "zelvor as-run": CONSOLE,
    "zelvor as-run 2026-11-21 --csv": CONSOLE,
    "zelvor as-run --card strap --lines": CONSOLE,
    "zelvor as-run --from remote": CONSOLE,
    "zelvor as-run --refused": CONSOLE,
    "zelvor as-run --into 1": CONSOLE,
    "./run": SETS_UP,
    "./run --game": SETS_UP,
    "./run --no-display": SETS_UP,
    "./test": SETS_UP,
    "./test --sanitize": SETS_UP,
    "./test --package": SETS_UP,
    "./test --long": SETS_UP,
    "cmake --preset sanitize -DZELVOR_FUZZ_SECONDS=600 && cmake --build --preset sanitize --target card_table_fuzz": SETS_UP,
    "ctest --preset sanitize -R card_table_fuzz": SETS_UP,
    "./test && ./test --sanitize && ./test --package": SETS_UP,
    "cmake --preset dev && cmake --build --preset dev --target cards_test && build/dev/bin/cards_test": SETS_UP,
    "build/dev/bin/command_reference docs/commands.md tests/cards": "a test of its own, with --check",
    "build/dev/bin/formula_reference docs": "a test of its own, with --check",
    "build/dev/bin/editor_syntax editors": "a test of its own, with --check",
    "cd vscode && npm install": "needs Node and its registry",
    "zelvor feed --source livestats:10.0.0.5:7677 --into 1 --app-folder demo --make-tables": HARDWARE,
    "zelvor feed --source daktronics:/dev/ttyUSB0 --into 1 --app-folder demo": HARDWARE,
    'isql -v -k "Driver={MariaDB Unicode};Server=10.0.0.5;Database=league;User=cards;Password=secret"': HARDWARE,
    "isql -v -k 'Driver=FreeTDS;Server=HOST;Port=1433;Database=NAME;UID=USER;PWD=WORD;ClientCharset=UTF-8'": HARDWARE,
    "apt install ./zelvor-cards_*.deb": INSTALLS,
    "apt install ./zelvor-cards_VERSION_amd64.deb": INSTALLS,
    "apt install odbc-mariadb unixodbc": INSTALLS,
    "cp /usr/share/zelvor-cards/demo/demo.db ~/.local/share/zelvor-cards/": INSTALLS,
    "man zelvor": INSTALLS,
    "odbcinst -q -d": "lists what the machine has",
    "zelvor new XX": "makes the pack beside the program; tests/hands/pack_author.py makes one elsewhere",
}

OURS = r"\./(run|test)\b|build/\S+/bin/|tools/[\w-]+$|zelvor(-cards|-rehearsal)? |zelvor-rehearsal$"
OTHERS = r"(apt|cd|cmake|cp|ctest|export|git|iconv|isql|man|mariadb|npm|odbcinst|psql|sqlite3|sudo)\s"
COMMAND = re.compile(f"{OURS}|{OTHERS}")


class Faults(list):
    def add(self, page, command, what):
        self.append(f"{page}: {command}\n    {what}")


def options_known(command):
    """Whether "zelvor SUBCOMMAND --option..." names options that the help lists."""
    words = re.findall(r"[\w-]+", command)
    names = words[:2]
    told = subprocess.run([*names, "--help"], capture_output=True, text=True, timeout=PATIENCE, check=False).stdout
    return all(re.search(rf"(?m)^  +.*{word}\b", told) for word in words if word.startswith("--"))


class Manual:
    def __init__(self):
        self.used = set()
        self.ran = 0
        self.faults = Faults()
        with open(os.path.join(CHECKOUT, "packaging/CMakeLists.txt"), encoding="utf-8") as file:
            self.packaged = file.read()
        self.server = None  # a rehearsal server, and its address
        self.address = ""
        self.feed = socket.socket(socket.AF_INET, socket.SOCK_DGRAM)
        self.feed.bind(("127.0.0.1", 0))
        self.feed.settimeout(PATIENCE)

    # What the reader is told to do in an editor before he goes on.
    def edit(self, paragraph, block):
        pack = "demo/MODULES/QRD_EN/"
        text = "\n".join(block) + "\n"
        if paragraph.startswith(("**1. Write the script**", "A card, `hello.csp`")):
            change(pack + "hello.csp", lambda _: text)
        elif paragraph.startswith("**4. Give it a button.**"):
            before = "All cards off,alloff.csp\n"
            change(pack + "CARDS.TXT", lambda old: old.replace(before + ",\n", before + text))
        elif paragraph.startswith("**5. Ask and look up.**"):
            change(pack + "hello.csp", lambda old: re.sub("(SDATA~.*\n)+", lambda _: text, old))
        else:
            return
        self.used.add(paragraph[:12])

    def read(self, page):
        with open(os.path.join(CHECKOUT, page), encoding="utf-8") as file:
            text = file.read()
        printed = ""
        paragraph = ""
        for piece in re.split(r"\n\n+", text.rstrip()):
            lines = piece.split("\n")
            block = [line.strip() for line in lines if re.match(r" {4}", line)]
            if len(block) == len(lines):
                self.edit(paragraph, block)
                commands = [re.split(r"\s{2,}", line)[0] for line in block if COMMAND.match(line)]
                if not commands and paragraph.startswith("It prints"):
                    self.compare(page, block, printed)
                printed = "".join(self.run(page, command) for command in commands) or printed
                continue
            paragraph = piece
            for target in re.findall(r"\]\(([^)#:]+)[^):]*\)", piece):
                path = os.path.normpath(os.path.join(os.path.dirname(page), target))
                if not os.path.exists(os.path.join(CHECKOUT, path)):
                    self.faults.add(page, target, "a link that leads nowhere")
                elif not re.search(rf"SOURCE_DIR}}/{path.split('/')[0]}[\s)]", self.packaged):
                    self.faults.add(page, target, "a link that leads nowhere in the package")
            for command in re.findall(r"`([^`\n]+)`", piece):
                if COMMAND.match(command):
                    self.run(page, command)

    def compare(self, page, block, printed):
        for line in block:
            pattern = re.escape(line).replace(r"\.\.\.", ".*")
            pattern = re.sub(r":\d+", r":\\d+", pattern)
            if not re.search(f"(?m)^{pattern}$", printed):
                self.faults.add(page, line, "is not among what was printed:\n" + printed)

    def run(self, page, command):
        """Gives what it printed."""
        if command in NOT_RUN:
            self.used.add(command)
            return ""
        if re.fullmatch(r"zelvor [a-z-]+( --[a-z-]+)*|zelvor .*\[.*", command):
            if not options_known(command):
                self.faults.add(page, command, "an option that --help does not know")
            return ""
        if command.startswith("tools/"):
            if not os.access(os.path.join(CHECKOUT, command), os.X_OK):
                self.faults.add(page, command, "is not there")
            return ""
        self.ran += 1
        line = command.replace("FOLDER", "demo").replace("10.0.0.7:5250", "127.0.0.1:5250")
        program = os.path.basename(line.split()[0])
        if program == "zelvor-rehearsal":
            return self.start_server(page, line)
        if "127.0.0.1:5250" in line:
            if self.server is None:
                self.start_server(page, "zelvor-rehearsal --templates demo/templates")
            line = line.replace("127.0.0.1:5250", self.address)
        if re.match(r"\S*zelvor feed ", line):
            return self.try_feed(page, command, line)
        if program == "zelvor-cards" and "--help" not in line:
            return self.try_console(page, command, line)
        done = subprocess.run(["bash", "-c", line], capture_output=True, text=True, timeout=PATIENCE, check=False)
        if done.returncode != 0:
            self.faults.add(page, command, f"ended with {done.returncode}: {done.stdout}{done.stderr}")
        return done.stdout

    def start_server(self, page, line):
        self.stop_server()
        self.server = start(line + " --amcp 0 --http 0")
        said = ""
        while "Page" not in said:
            more = self.server.stdout.readline()
            if not more:
                self.faults.add(page, line, "it ended: " + said)
                return ""
            said += more
        self.address = re.search("AMCP (.*)", said).group(1)
        return said

    def stop_server(self):
        if self.server is not None:
            stop(self.server)

    def try_feed(self, page, command, line):
        feed = start(f"{line} --to 127.0.0.1:{self.feed.getsockname()[1]}")
        try:
            if not re.match(rb"t\d+:\d\d|t", self.feed.recv(100)):
                self.faults.add(page, command, "sends no clock")
        except TimeoutError:
            self.faults.add(page, command, "sends nothing")
        if stop(feed) != 0:
            self.faults.add(page, command, f"was ended in order, but left with {feed.returncode}")
        return ""

    def try_console(self, page, command, line):
        console = start(line + " --feed-port 0")
        time.sleep(2)
        if console.poll() is not None:
            self.faults.add(page, command, f"ended with {console.returncode}")
        stop(console)
        return ""


def change(path, edit):
    old = ""
    if os.path.exists(path):
        with open(path, encoding="utf-8", newline="") as file:
            old = file.read().replace("\r\n", "\n")
    new = edit(old)
    assert new != old or path.endswith("hello.csp"), path
    with open(path, "w", encoding="utf-8") as file:
        file.write(new)


def start(line):
    quiet = {"stdin": subprocess.DEVNULL, "stderr": subprocess.DEVNULL}
    return subprocess.Popen(["bash", "-c", "exec " + line], stdout=subprocess.PIPE, text=True, **quiet)


def stop(process):
    process.terminate()
    process.wait(PATIENCE)
    process.stdout.close()
    return process.returncode


def pages():
    found = []
    for name in PAGES:
        if "*" not in name:
            found.append(name)
            continue
        folder = os.path.dirname(name)
        found += sorted(f"{folder}/{file}" for file in os.listdir(f"{CHECKOUT}/{folder}") if file.endswith(".md"))
    return list(dict.fromkeys(found))


def main():
    folder = tempfile.mkdtemp()
    manual = Manual()
    try:
        shutil.copytree(f"{CHECKOUT}/demo", f"{folder}/demo", ignore=shutil.ignore_patterns("*.db", "SELECTIONS.TXT"))
        subprocess.run([f"{CHECKOUT}/tools/make-demo-database", f"{folder}/demo"], check=True)
        for preset in ("dev", "run"):
            os.makedirs(f"{folder}/build/{preset}")
            os.symlink(PROGRAMS, f"{folder}/build/{preset}/bin")
        os.chdir(folder)
        with open("old.csp", "wb") as file:
            file.write("SDATA~NAME;Άλφα\n".encode("cp1253"))
        os.environ.update(PATH=f"{PROGRAMS}:{os.environ['PATH']}", HOME=folder, QT_QPA_PLATFORM="offscreen")
        for page in pages():
            manual.read(page)
        steps = {"**1. Write t", "A card, `hel", "**4. Give it", "**5. Ask and"}
        for name in (set(NOT_RUN) | steps) - manual.used:
            manual.faults.add("the manual", name, "is not in it any more")
    finally:
        manual.stop_server()
        os.chdir("/")
        shutil.rmtree(folder, ignore_errors=True)
    print("\n".join(manual.faults) or f"{manual.ran} commands run")
    return 1 if manual.faults else 0


if __name__ == "__main__":
    sys.exit(main())
