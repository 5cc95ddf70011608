"""The pictures of the README. Usage: screenshots.py PROGRAM SAMPLES IMAGES (see screenshots.sh)"""

import pathlib
import shutil
import subprocess
import sys
import time

import pyatspi

from screen import Program, click, keys, type_text, wait_for

program_path, samples, images = sys.argv[1], pathlib.Path(sys.argv[2]), pathlib.Path(sys.argv[3])
# The captions show the path: a short one that is nobody's own.
folder = pathlib.Path("/dev/shm/dorvan")
folder.mkdir()


def picture(name):
    time.sleep(0.5)
    path = images / f"{name}.png"
    subprocess.run(["import", "-window", "root", "-strip", str(path)], check=True)
    subprocess.run(["mogrify", "+dither", "-colors", "128", "-define", "png:compression-level=9", str(path)], check=True)


def choose_option(dorvan, name):
    option = wait_for(f"option {name!r}", lambda: dorvan.find("radio button", name))
    extents = option.queryComponent().getExtents(pyatspi.DESKTOP_COORDS)
    click((extents.x + 10, extents.y + extents.height // 2))


def ask_for_a_diagram(dorvan, order):
    keys("ctrl+d")
    dorvan.wait_for_window("Czekanowski")
    choose_option(dorvan, order)


def accept(dorvan, title):
    keys("alt+k")
    dorvan.wait_for_no_window(title)


def sheet_and_diagram():
    path = folder / "USArrests.mdt"
    shutil.copy(samples / path.name, path)
    dorvan = Program(program_path, str(path))
    try:
        dorvan.expect_cell("Data sheet", 0, 1, "Record Name")
        dorvan.click_cell("Data sheet", 3, 3)
        type_text("2*147")
        picture("sheet")
        keys("Escape")
        ask_for_a_diagram(dorvan, "simple auto algorithm")
        picture("options")
        accept(dorvan, "Czekanowski")
        dorvan.expect_cell("Diagram", 0, 1, "Name")
        picture("diagram")
        dorvan.click_cell("Diagram", 8, 1, times=2)
        picture("by-hand")
    finally:
        dorvan.kill()


def search():
    path = folder / "Munsingen.mdt"
    shutil.copy(samples / path.name, path)
    dorvan = Program(program_path, str(path))
    try:
        dorvan.expect_cell("Data sheet", 0, 1, "Record Name")
        ask_for_a_diagram(dorvan, "Ravelin genetic algorithm")
        keys("alt+k")
        dorvan.wait_for_window("Ravelin")
        fields = {accessible.name: accessible for accessible in walk_fields(dorvan)}
        extents = fields["Critical generation number"].queryComponent().getExtents(pyatspi.DESKTOP_COORDS)
        click((extents.x + 20, extents.y + extents.height // 2), times=2)
        type_text("30000")
        keys("alt+k")
        dorvan.wait_for_window("At work")
        time.sleep(4)
        picture("search")
        keys("Escape")
        dorvan.expect_cell("Diagram", 0, 1, "Name")
        picture("searched")
    finally:
        dorvan.kill()


def walk_fields(dorvan):
    from screen import walk
    return [a for a in walk(dorvan.root) if a.getRoleName() == "text"
            and a.getState().contains(pyatspi.STATE_SHOWING)]


try:
    sheet_and_diagram()
    search()
finally:
    shutil.rmtree(folder)
