"""A user at the screen: keys and mouse through xdotool, reading through the accessibility bus."""

import os
import subprocess
import tempfile
import time

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib  # noqa: E402
import pyatspi  # noqa: E402

# An action that opens a modal dialog is answered only once the dialog has closed.
Atspi.set_timeout(800, 800)

PATIENCE = 15.0  # seconds


class Failed(Exception):
    def __init__(self, message):
        super().__init__(message)
        screenshot("failed.png")


def wait_for(what, look, patience=PATIENCE):
    """The first true value of look()."""
    end = time.time() + patience
    while True:
        try:
            value = look()
        except (GLib.GError, AttributeError, LookupError):
            value = None
        if value:
            return value
        if time.time() > end:
            raise Failed(f"no {what}")
        time.sleep(0.05)


def keys(*names):
    for name in names:
        subprocess.run(["xdotool", "key", "--clearmodifiers", name], check=True)
        time.sleep(0.06)


def type_text(text):
    subprocess.run(["xdotool", "type", "--delay", "15", text], check=True)
    time.sleep(0.1)


def click(place, times=1):
    x, y = place
    subprocess.run(["xdotool", "mousemove", str(x), str(y)], check=True)
    time.sleep(0.05)
    subprocess.run(["xdotool", "click", "--repeat", str(times), "--delay", "40", "1"], check=True)
    time.sleep(0.2)


def walk(accessible):
    yield accessible
    if accessible.getRoleName() == "table":
        return  # its cells are asked for one by one
    for index in range(accessible.childCount):
        child = accessible.getChildAtIndex(index)
        if child is not None:
            yield from walk(child)


class Program:
    """One run of the program, from outside; with the state of another run when a folder of states is given.
    One that asks something as it starts has its question in front of its main window."""

    def __init__(self, path, *arguments, states=None, asks=False):
        environment = {**os.environ, "XDG_STATE_HOME": states or tempfile.mkdtemp()}
        self.process = subprocess.Popen([path, *arguments], stderr=subprocess.PIPE, text=True, env=environment)
        self.root = wait_for("program on the accessibility bus", self._application)
        if not asks:
            wait_for("main window in front", self._bring_to_front)
        time.sleep(0.3)

    def _application(self):
        if self.process.poll() is not None:
            raise Failed(f"the program ended with {self.process.returncode}: {self.process.stderr.read()}")
        for application in pyatspi.Registry.getDesktop(0):
            if application and application.get_process_id() == self.process.pid:
                return application
        return None

    def _bring_to_front(self):
        """Not before the window manager has taken the window over."""
        main = self.window("Dorvan")
        subprocess.run(["xdotool", "windowactivate", str(main)], capture_output=True)
        active = subprocess.run(["xdotool", "getactivewindow"], capture_output=True, text=True).stdout.strip()
        return main and active == main

    def find(self, role, name=None, showing=True):
        for accessible in walk(self.root):
            try:
                if accessible.getRoleName() != role or (name is not None and accessible.name != name):
                    continue
                if not showing or accessible.getState().contains(pyatspi.STATE_SHOWING):
                    return accessible
            except GLib.GError:
                continue
        return None

    def window(self, title_start):
        """A window of the desktop by the start of its title."""
        names = subprocess.run(["xdotool", "search", "--all", "--onlyvisible", "--pid", str(self.process.pid), "--name",
                                "^" + title_start], capture_output=True, text=True).stdout.split()
        return names[0] if names else None

    def wait_for_window(self, title_start):
        return wait_for(f"window {title_start!r}", lambda: self.window(title_start))

    def wait_for_no_window(self, title_start):
        wait_for(f"end of window {title_start!r}", lambda: not self.window(title_start))
        time.sleep(0.15)

    def grid(self, name):
        return wait_for(f"grid {name!r}", lambda: self.find("table", name))

    def cell(self, grid_name, row, column):
        return self.grid(grid_name).queryTable().getAccessibleAt(row, column)

    def cell_text(self, grid_name, row, column):
        return self.cell(grid_name, row, column).name

    def expect_cell(self, grid_name, row, column, text):
        wait_for(f"{text!r} in cell {row},{column} of {grid_name}, which reads "
                 f"{self.cell_text(grid_name, row, column)!r}",
                 lambda: self.cell_text(grid_name, row, column) == text)

    def click_cell(self, grid_name, row, column, times=1):
        extents = self.cell(grid_name, row, column).queryComponent().getExtents(pyatspi.DESKTOP_COORDS)
        click((extents.x + extents.width // 2, extents.y + extents.height // 2), times)

    def push(self, name):
        """A toolbar or dialog button by its name."""
        button = wait_for(f"button {name!r}", lambda: self.find("push button", name))
        if not button.getState().contains(pyatspi.STATE_ENABLED):
            raise Failed(f"the button {name!r} is off")
        extents = button.queryComponent().getExtents(pyatspi.DESKTOP_COORDS)
        click((extents.x + extents.width // 2, extents.y + extents.height // 2))

    def choose_file(self, title, path):
        self.wait_for_window(title)
        time.sleep(0.3)
        type_text(path)
        keys("Return")
        self.wait_for_no_window(title)

    def has_label(self, text_start):
        return any(accessible.getRoleName() == "label" and accessible.name.startswith(text_start)
                   for accessible in walk(self.root))

    def end(self, patience=PATIENCE):
        """Its status once it has ended."""
        try:
            return self.process.wait(patience)
        except subprocess.TimeoutExpired:
            raise Failed("the program does not end")

    def kill(self):
        if self.process.poll() is None:
            self.process.kill()


def screenshot(path):
    if os.environ.get("JOURNEY_PICTURES"):
        subprocess.run(["import", "-window", "root", os.path.join(os.environ["JOURNEY_PICTURES"], path)])
