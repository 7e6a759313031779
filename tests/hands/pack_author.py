#!/usr/bin/env python3
"""Works as a pack author does: makes a pack with `zelvor new`, runs and watches its cards, and writes them in Neovim, set up
as editors/README.md says, whose own client speaks with `zelvor language-server`.

    pack_author.py ZELVOR EDITORS_FOLDER [TEST...]
"""

import json
import os
import re
import shutil
import signal
import subprocess
import sys
import tempfile
import time
import unittest

ZELVOR, EDITORS = (os.path.abspath(name) for name in sys.argv[1:3])
PATIENCE = 30  # seconds


def zelvor(*arguments):
    return subprocess.run([ZELVOR, *arguments], capture_output=True, text=True, timeout=PATIENCE, check=False)


class Pack(unittest.TestCase):
    """A pack made for each test."""

    def setUp(self):
        self.folder = tempfile.mkdtemp()
        self.addCleanup(shutil.rmtree, self.folder)
        made = zelvor("new", "--app-folder", self.folder, "CUP")
        self.assertEqual((made.returncode, made.stdout), (0, "MODULES/QRD_CUP\n"), made.stderr)

    def path(self, name):
        return os.path.join(self.folder, "MODULES", "QRD_CUP", name)

    def write(self, name, text, encoding="utf-8"):
        with open(self.path(name), "w", encoding=encoding) as file:
            file.write(text)


class Terminal(Pack):
    def test_a_new_pack_runs_and_has_no_faults(self):
        before = sorted(os.listdir(self.path("")))
        check = zelvor("check", "--app-folder", self.folder)
        self.assertEqual((check.returncode, check.stdout), (0, "0 errors, 0 warnings\n"))
        for start, title in ((["--start"], "Home"), ([], "")):
            run = zelvor("run", "--app-folder", self.folder, *start, "hello.csp")
            self.assertEqual(run.returncode, 0, run.stderr)
            self.assertRegex(run.stdout, r'main > CG 1-20 ADD .*\\"TITLE.*value=\\"%s\\"' % title)
        self.assertEqual(zelvor("new", "--app-folder", self.folder, "CUP").returncode, 2)
        self.assertEqual(zelvor("new", "--app-folder", self.folder, "A/B").returncode, 2)
        zelvor("new", "--app-folder", self.folder, "OTHER")
        with open(os.path.join(self.folder, "MODULES", "PACKS.TXT"), encoding="utf-8") as packs:
            self.assertEqual([line.split(";")[0] for line in packs], ["CUP", "OTHER"])
        self.assertEqual(sorted(os.listdir(self.path(""))), before)
        # A list of packs that cannot be read: nothing is made.
        os.rename(os.path.join(self.folder, "MODULES", "PACKS.TXT"), os.path.join(self.folder, "PACKS.TXT"))
        os.mkdir(os.path.join(self.folder, "MODULES", "PACKS.TXT"))
        self.assertEqual(zelvor("new", "--app-folder", self.folder, "HALF").returncode, 1)
        self.assertEqual(sorted(os.listdir(os.path.join(self.folder, "MODULES"))), ["PACKS.TXT", "QRD_CUP", "QRD_OTHER"])

    def test_a_watched_card_runs_again(self):
        self.write("watched.csp", "INCLUDE~part.inc\nCSPSEND~{@N}\n")
        self.write("part.inc", "SETVAR~@N;1\n")
        watch = subprocess.Popen(
            [ZELVOR, "run", "--app-folder", self.folder, "--watch", "watched.csp"], stdout=subprocess.PIPE, text=True
        )
        self.addCleanup(watch.stdout.close)
        self.addCleanup(watch.kill)

        def on_air():
            return next(line for line in watch.stdout if line.startswith("main > "))

        self.assertEqual(on_air(), "main > 1\n")
        self.write("part.inc", "SETVAR~@N;22\n")
        self.assertEqual(on_air(), "main > 22\n")
        os.remove(self.path("watched.csp"))  # as editors do that put a new file in the old one's place
        time.sleep(0.1)
        self.write("watched.csp", "CSPSEND~again\n")
        self.assertEqual(on_air(), "main > again\n")
        watch.send_signal(signal.SIGINT)
        self.assertNotEqual(watch.wait(PATIENCE), None)


# What the tests do in the editor. Lines and columns (bytes) count from 1.
EDITOR = """
local patience = 30000
local pack = vim.env.PACK

function edit(name, lines)
  vim.cmd("edit! " .. pack .. "/" .. name)
  vim.api.nvim_buf_set_lines(0, 0, -1, false, lines)
  assert(vim.wait(patience, function() return next(vim.lsp.buf_get_clients()) ~= nil end), "no server")
end

function ask(method, line, column)
  vim.fn.cursor(line, column)
  local params = vim.lsp.util.make_position_params()
  local answers = assert(vim.lsp.buf_request_sync(0, "textDocument/" .. method, params, patience))
  return select(2, next(answers)).result
end

-- Waits until there are findings, or none.
function findings(some)
  vim.wait(patience, function() return (#vim.diagnostic.get(0) > 0) == some end)
  return vim.tbl_map(function(found) return { found.lnum, found.severity, found.message } end, vim.diagnostic.get(0))
end

-- The colours of the first and the last character of a piece of a line.
function colours(line, piece)
  local from = vim.fn.stridx(vim.fn.getline(line), piece) + 1
  local function at(column) return vim.fn.synIDattr(vim.fn.synID(line, column, 1), "name") end
  return at(from) .. " " .. at(from + #piece - 1)
end
"""


class Neovim(Pack):
    def lua(self, code):
        """Runs that in an editor of its own; gives what it returns."""
        home = tempfile.mkdtemp()
        self.addCleanup(shutil.rmtree, home)
        shutil.copytree(os.path.join(EDITORS, "vim"), os.path.join(home, "nvim"))
        with open(os.path.join(EDITORS, "README.md"), encoding="utf-8") as page:
            start_up = re.search(r"For Neovim.*?\n\n(.*?)\n\n", page.read(), re.S).group(1)
        result = os.path.join(home, "result")
        work = f"{EDITOR}\nlocal function work()\n{code}\nend\n"
        work += f"vim.fn.writefile({{vim.json.encode({{pcall(work)}})}}, '{result}')"
        for name, text in (("nvim/init.lua", start_up), ("work.lua", work)):
            with open(os.path.join(home, name), "w", encoding="utf-8") as file:
                file.write(text)
        environment = {f"XDG_{kind}_HOME": home for kind in ("CONFIG", "DATA", "STATE", "CACHE")}
        environment["PATH"] = os.path.dirname(ZELVOR) + os.pathsep + os.environ["PATH"]
        command = ["nvim", "--headless", "-n", "-c", f"luafile {home}/work.lua", "-c", "qall!"]
        subprocess.run(command, env={**os.environ, **environment, "PACK": self.path("")}, timeout=120, check=True)
        with open(result, encoding="utf-8") as file:
            done, found = json.load(file)
        self.assertTrue(done, found)
        return found

    def test_shows_findings_and_colours(self):
        found = self.lua(
            """edit("hello.csp", { '  ifl~{{@I}|0};=;1~"sdata~N;on"~"ENDCARD"', "# SDATA~x", "SDAAT~Ω;{@X}" })
               local shown = {}
               for _, place in ipairs { { 1, "ifl" }, { 1, "{{@I}|0}" }, { 1, "~" }, { 1, "sdata" }, { 1, "on" },
                                        { 1, "ENDCARD" }, { 2, "SDATA~x" }, { 3, "SDAAT" } } do
                 table.insert(shown, colours(unpack(place)))
               end
               local before = findings(true)
               vim.api.nvim_buf_set_lines(0, 0, -1, false, { "SETVAR~@X;1" })
               return { vim.bo.filetype, shown, before, #findings(false) }"""
        )
        names = ["Command", "Placeholder", "Separator", "Command", "", "Command", "Comment", ""]
        expected = [f"zelvor{name} zelvor{name}" if name else " " for name in names]
        self.assertEqual(found[:2], ["zelvor", expected])
        self.assertIn([2, 1, "unknown command SDAAT; did you mean SDATA?"], found[2])
        self.assertEqual(found[3], 0)

    def test_completes_explains_finds_and_renames(self):
        self.write("greek.csp", "SDATA~Άλφα;{@TEAM}\n", "cp1253")
        self.write("other.csp", "EVAL~TEAM;1\n")
        page, labels, place, line = self.lua(
            """edit("new.csp", { "query+~ where", "SDATA~😀Ω;{@TEAM}", "SHOW2LABEL~x" })
               local page = ask("hover", 1, 3).contents.value
               local labels = vim.tbl_map(function(item) return item.label end, ask("completion", 3, 12))
               local place = ask("definition", 2, 17)[1].uri
               vim.fn.cursor(2, 17)
               vim.lsp.buf.rename("SIDE")
               vim.wait(patience, function() return vim.fn.getline(2):find("SIDE") end)
               vim.cmd("wall")
               return { page, labels, place, vim.fn.getline(2) }"""
        )
        for piece in ("QUERY+~text", "Adds to the text of the query", "EXECSQL"):
            self.assertIn(piece, page)
        self.assertIn("lblTime", labels)
        self.assertNotIn("txtS5A", labels)
        self.assertEqual(place, "file://" + self.path("other.csp"))
        self.assertEqual(line, "SDATA~😀Ω;{@SIDE}")
        for name, text in (("greek.csp", "SDATA~Άλφα;{@SIDE}\n"), ("other.csp", "EVAL~SIDE;1\n")):
            with open(self.path(name), "rb") as file:
                self.assertEqual(file.read().decode("cp1253" if name == "greek.csp" else "utf-8"), text)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1] + sys.argv[3:])
