"""How long a program takes to its first window of a name, and what memory it holds then, on an X server of its own."""

import os
import re
import subprocess
import time


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
        """Microseconds until the window of that name appears, and the KiB in memory a second later."""
        watch = subprocess.Popen(["xev", "-root", "-event", "substructure"], env=self.environment,
                                 stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True)
        time.sleep(0.3)  # until it watches
        begin = time.perf_counter()
        program = subprocess.Popen(command, env=self.environment, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        try:
            event = ""
            for line in watch.stdout:
                event = line if not line.startswith(" ") else event
                shown = re.search(r"window (0x[0-9a-f]+)", line)
                if event.startswith("MapNotify") and line.startswith(" ") and shown:
                    seconds = time.perf_counter() - begin
                    if self.name_of(shown.group(1)) == name:
                        break
            time.sleep(1)
            with open(f"/proc/{program.pid}/status", encoding="ascii") as status:
                resident = int(re.search(r"VmRSS:\s+(\d+)", status.read()).group(1))
            return seconds * 1e6, resident
        finally:
            for process in (program, watch):
                process.kill()
                process.wait()
