"""How long a program takes to its first window of a name, and what memory it holds then, on an X server of its own."""

import os
import queue
import re
import subprocess
import sys
import threading
import time

PATIENCE = 60  # seconds until the window


class Screen:
    """Xvfb without a window manager: windows appear as soon as they are asked for."""

    SIZE = "1280x800"

    def __init__(self):
        read, write = os.pipe()
        self.server = subprocess.Popen(["Xvfb", "-displayfd", str(write), "-noreset", "-screen", "0", f"{self.SIZE}x24"],
                                       pass_fds=[write], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        os.close(write)
        with os.fdopen(read) as said:
            number = said.readline().strip()
        self.environment = dict(os.environ, DISPLAY=f":{number}", QT_QPA_PLATFORM="xcb")

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.server.kill()
        self.server.wait()

    def name_of(self, window):
        return subprocess.run(["xdotool", "getwindowname", window], env=self.environment, capture_output=True,
                              text=True, check=False).stdout.strip()

    def start(self, command, name):
        """Microseconds until the window appears that is or will be of that name, and the KiB in memory a second later.
        Ends this program with a message where none comes, or the other one has ended."""
        watch = subprocess.Popen(["xev", "-root", "-event", "substructure"], env=self.environment,
                                 stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True)
        time.sleep(0.3)  # until it watches
        begin = time.perf_counter()
        program = subprocess.Popen(command, env=self.environment, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        events = queue.SimpleQueue()
        threading.Thread(target=tell_windows, args=(watch.stdout, events), daemon=True).start()
        windows = {}
        try:
            while not (named := [at for window, at in windows.items() if self.name_of(window) == name]):
                if program.poll() is not None:
                    sys.exit(f"{command[0]} ended with status {program.returncode} before its window \"{name}\"")
                if time.perf_counter() - begin > PATIENCE:
                    sys.exit(f"{command[0]} showed no window \"{name}\" within {PATIENCE} seconds")
                try:
                    window, at = events.get(timeout=0.5)  # a title may come after its window
                    windows.setdefault(window, at)
                except queue.Empty:
                    pass
            time.sleep(1)
            if program.poll() is not None:
                sys.exit(f"{command[0]} ended with status {program.returncode} behind its window \"{name}\"")
            with open(f"/proc/{program.pid}/status", encoding="ascii") as status:
                resident = int(re.search(r"VmRSS:\s+(\d+)", status.read()).group(1))
            return (named[0] - begin) * 1e6, resident
        finally:
            for process in (program, watch):
                process.kill()
                process.wait()


def tell_windows(lines, events):
    """Each window that xev says is shown, and when."""
    event = ""
    for line in lines:
        event = line if not line.startswith(" ") else event
        shown = re.search(r"window (0x[0-9a-f]+)", line)
        if event.startswith("MapNotify") and line.startswith(" ") and shown:
            events.put((shown.group(1), time.perf_counter()))
