"""A user of the program: a mouse, a keyboard (xdotool), and the eyes of a screen reader (AT-SPI).

A walk waits for what it wants to see and never for a time, so that it is as fast as the program is. What it can't find
by role and name can't be used with a screen reader either. Run walks with scripts/walk.
"""

import os
import shutil
import subprocess
import sys
import time
import traceback
from pathlib import Path

import pyatspi
from gi.repository import GLib

PROJECT = Path(__file__).resolve().parents[2]
PATIENCE = 20.0  # seconds until what doesn't appear is missing
MARGIN = 5  # pixels between the frame of a text and its first line
BAR = 20  # pixels that a scroll bar takes at most
SIDE = 50  # pixels that line numbers take at most
LINES_A_TURN = 3  # lines that one turn of the wheel scrolls
WINDOWS = ("frame", "dialog", "application")


class Missing(AssertionError):
    """What a walk waited for didn't come."""


def run(*arguments, folder=None):
    """Runs the program without windows and returns what it prints."""
    done = subprocess.run([os.environ["MERIX"], *map(str, arguments)], cwd=folder, capture_output=True, text=True)
    assert done.returncode == 0, f"merix {arguments}: {done.stdout}{done.stderr}"
    return done.stdout


def fresh_folder(name):
    """An empty folder for a walk."""
    folder = Path(os.environ["MERIX_WALK_FOLDER"]) / name
    shutil.rmtree(folder, ignore_errors=True)
    folder.mkdir(parents=True)
    return folder


def walked():
    """The name of the walk."""
    return Path(sys.argv[0]).name.removesuffix("_walk.py")


def walk(function):
    """Runs a walk as a program: says how it went, and ends with 1 if it failed."""
    name = walked()
    started = time.monotonic()
    try:
        program = function()
        program.close()
        print(f"{name}: {program.clicks} clicks, {program.keys} keys, {time.monotonic() - started:.0f} s")
    except (Exception, SystemExit):
        traceback.print_exc()
        if Program.running and Program.running.process.poll() is None:
            print(Program.running.tree(), file=sys.stderr)
            Program.running.close()
        print(f"{name}: FAILED")
        sys.exit(1)


class Program:
    """The running program with its windows."""

    running = None

    def __init__(self, *arguments, folder):
        self.clicks = 0
        self.keys = 0
        environment = {**os.environ, "HOME": str(folder), "XDG_STATE_HOME": str(folder / "state"),
                       "MERIX_SETTINGS": str(folder / "settings.ini")}
        command = [os.environ["MERIX"], "gui", *map(str, arguments)]
        self.process = subprocess.Popen(command, cwd=folder, env=environment, stderr=subprocess.DEVNULL)
        Program.running = self
        self.root = None
        self.root = self.until("the program on the accessibility bus", self._application)
        self.wait("frame")

    def close(self):
        """Ends the program; nothing happens if it has ended."""
        Program.running = None
        self.process.terminate()
        self.process.wait()

    # ---- eyes ----

    def _application(self):
        desktop = pyatspi.Registry.getDesktop(0)
        desktop.clear_cache()
        return next((one for one in desktop if one and one.get_process_id() == self.process.pid), None)

    def until(self, what, condition):
        """Waits until a condition holds, and returns what it gives."""
        trace(what)
        end = time.monotonic() + PATIENCE
        while time.monotonic() < end:
            refresh(self.root)
            try:
                result = condition()
            except GLib.Error:  # what was looked at has just gone
                result = None
            if result:
                return result
            if self.process.poll() is not None:
                break
            time.sleep(0.02)
        raise Missing(what if self.process.poll() is None else f"the program has ended before: {what}")

    def nodes(self, under=None, depth=0):
        """What can be seen, with its depth. Entries of closed menus are among it."""
        for node in children(under or self.root):
            role = node.getRoleName()
            if node.getState().contains(pyatspi.STATE_SHOWING) or "menu" in role:
                yield depth, node
                yield from self.nodes(node, depth + 1)

    def all(self, role, name=None, under=None):
        return [node for _, node in self.nodes(under)
                if node.getRoleName() == role and (name is None or name_of(node) == name)]

    def wait(self, role, name=None, under=None, enabled=False):
        """Waits for something of a role and a name, and returns it."""
        def find():
            return next((node for node in self.all(role, name, under)
                         if not enabled or node.getState().contains(pyatspi.STATE_SENSITIVE)), None)
        return self.until(f"{role} {name or ''}", find)

    def wait_gone(self, role, name=None):
        self.until(f"no {role} {name or ''}", lambda: not self.all(role, name))

    def picture(self, name):
        """Saves a picture of the screen, once nothing changes there, in the folder PICTURES if that is given."""
        if "PICTURES" not in os.environ:
            return
        seen = [b""]

        def is_still():
            before, seen[0] = seen[0], subprocess.run(["import", "-silent", "-window", "root", "ppm:-"],
                                                      check=True, capture_output=True).stdout
            return seen[0] == before
        self.until("a screen that is still", is_still)
        file = Path(os.environ["PICTURES"]) / f"{name}.png"
        subprocess.run(["convert", "ppm:-", "-strip", "+dither", "-colors", "200", f"png8:{file}"], input=seen[0],
                       check=True)
        print(file.name)

    def tree(self, under=None):
        """All that is there, to read."""
        refresh(self.root)
        return "\n".join(f"{'  ' * depth}{node.getRoleName()} {node.name!r} {box(node)}"
                         for depth, node in self.nodes(under))

    # ---- hands ----

    def move(self, place):
        # By way of a place beside it: the program is to see the mouse move.
        subprocess.run(["xdotool", "mousemove", str(place[0] - 2), str(place[1]),
                        "mousemove", str(place[0]), str(place[1])], check=True)

    def click_at(self, place, times=1, button=1):
        self.clicks += times
        self.move(place)
        subprocess.run(["xdotool", "click", "--repeat", str(times), "--delay", "50", str(button)], check=True)

    def click(self, role, name=None, under=None, times=1):
        """Clicks on something, when it can be used and has come to rest."""
        node = self.wait(role, name, under, enabled=True)
        self.until(f"{name or role} in view", lambda: self._in_view(node))
        self.click_at(self.middle_of(node), times)
        return node

    def _in_view(self, node):
        """Whether the middle of something can be seen. If not, turns the wheel over what hides it."""
        _, y = self.middle_of(node)
        parent = node.parent
        while parent and parent.getRoleName() not in WINDOWS:
            left, top, width, height = box(parent)
            if height > 0 and not top <= y < top + height:
                self.scroll((left + width // 2, top + height // 2), 1 if y >= top + height else -1)
                return False
            parent = parent.parent
        return True

    def click_popup(self, row, rows):
        """Chooses from the context menu that opens, which the accessibility bus doesn't show: one of its equal rows."""
        window = self.until("a menu", self._popup)
        x, y, width, height = window
        self.click_at((x + width // 2, y + height * (2 * row + 1) // (2 * rows)))
        self.until("the end of the menu", lambda: not self._popup())

    def _popup(self):
        """The rectangle of the open menu: the only window of the program that the window manager doesn't frame."""
        found = subprocess.run(["xdotool", "search", "--onlyvisible", "--pid", str(self.process.pid)],
                               capture_output=True, text=True, check=False).stdout.split()
        for window in found:
            described = subprocess.run(["xprop", "-id", window, "_NET_WM_WINDOW_TYPE"],
                                       capture_output=True, text=True, check=False).stdout
            if "POPUP_MENU" in described:
                shape = subprocess.run(["xdotool", "getwindowgeometry", "--shell", window],
                                       capture_output=True, text=True, check=True).stdout
                values = dict(line.split("=") for line in shape.splitlines())
                return tuple(int(values[key]) for key in ("X", "Y", "WIDTH", "HEIGHT"))
        return None

    def at_rest(self, node):
        """Waits until something stays where it is, and returns its rectangle."""
        last = [None]

        def rests():
            before, last[0] = last[0], box(node)
            return before == last[0] and last[0][2] > 0 and last[0][3] > 0
        self.until("an end of its motion", rests)
        return last[0]

    def middle_of(self, node):
        return middle(self.at_rest(node))

    def scroll(self, place, turns, sideways=False):
        """Turns the wheel; a positive number goes down, or to the right."""
        button = (5 if turns > 0 else 4) + (2 if sideways else 0)
        self.move(place)
        subprocess.run(["xdotool", "click", "--repeat", str(abs(turns)), str(button)], check=True)

    def type(self, text):
        self.keys += len(text)
        subprocess.run(["xdotool", "type", "--delay", "5", "--", text], check=True)

    def press(self, *keys):
        self.keys += len(keys)
        subprocess.run(["xdotool", "key", "--clearmodifiers", *keys], check=True)

    def choose_file(self, title, name):
        """Chooses a file in the dialog that is open."""
        dialog = self.wait("dialog", title)
        self.click("table cell", name, under=dialog)
        self.click("push button", "Open", under=dialog)
        self.wait_gone("dialog", title)


class Text:
    """A text on the screen, in which a walk points at characters."""

    def __init__(self, program, name):
        self.program = program
        self.node = program.wait("text", name)
        self._high = 0  # of a line, in pixels

    def content(self):
        refresh(self.node)
        return text_of(self.node)

    def point(self, before, after=""):
        """Scrolls the character between two texts into view, and returns where it is on the screen."""
        content = self.content()
        place = content.find(before + after)
        assert place >= 0, f"no {before + after!r} in the text"
        offset = place + len(before)

        line = content.count("\n", 0, offset)

        def in_view():
            x, y, width, height = box(self.node)
            left, _, wide, high = self._character(offset)
            # Nothing is told of characters out of view. The first one was in view once.
            high = self._high = max(high, self._high, self._character(0)[3])
            if not high:
                return None  # the text isn't laid out yet
            row = line - self._scrolled()
            rows = (height - (BAR if self._bar(sideways=True) else MARGIN)) // high
            column = left + wide // 2
            middle_of_text = (x + width // 2, y + height // 2)
            if not 0 <= row < rows:
                turns = (row - rows // 2) // LINES_A_TURN
                self.program.scroll(middle_of_text, turns or (1 if row > 0 else -1))
            elif column > x + width - BAR:
                self.program.scroll(middle_of_text, 1, sideways=True)
            elif column < x + SIDE and self._scrolled(sideways=True):
                self.program.scroll(middle_of_text, -1, sideways=True)
            else:
                return column, y + MARGIN + row * high + high // 2
            return None
        return self.program.until(f"{before + after!r} in view", in_view)

    def _character(self, offset):
        """Where a character is; the toolkit knows its column and size, but not its row."""
        extents = self.node.queryText().getCharacterExtents(offset, pyatspi.DESKTOP_COORDS)
        return tuple(extents)

    def _scrolled(self, sideways=False):
        """The first line in view, or how far the text is scrolled sideways."""
        bar = self._bar(sideways)
        return int(bar.queryValue().currentValue) if bar else 0

    def _bar(self, sideways):
        for bar in self.program.all("scroll bar", under=self.node):
            _, _, width, height = box(bar)
            if (width > height) == sideways:
                return bar
        return None


def trace(what):
    if os.environ.get("TRACE"):
        print("waits for", what, file=sys.stderr)


def refresh(node):
    """Lets in what the bus has to say. Without that a tree stays as it was when it was first asked for."""
    context = GLib.MainContext.default()
    while context.iteration(False):
        pass
    if node:
        node.clear_cache()


def children(node):
    for i in range(node.childCount):
        child = node.getChildAtIndex(i)
        if child:
            yield child


def name_of(node):
    return (node.name or "").replace("&", "")


def text_of(node):
    return node.queryText().getText(0, -1)


def box(node):
    try:
        extents = node.queryComponent().getExtents(pyatspi.DESKTOP_COORDS)
    except NotImplementedError:
        return 0, 0, 0, 0
    return extents.x, extents.y, extents.width, extents.height


def middle(rectangle):
    x, y, width, height = rectangle
    return x + width // 2, y + height // 2
