"""A piece of work without a mouse on the built program: from the empty workspace to a saved picture.
Usage: keyboard.py PROGRAM SAMPLES"""

import pathlib
import shutil
import sys
import tempfile
import time

from screen import Failed, Program, keys, screenshot, type_text, wait_for

program_path, samples = sys.argv[1], pathlib.Path(sys.argv[2])
folder = pathlib.Path(tempfile.mkdtemp())


def expect_label(dorvan, start):
    wait_for(f"label {start!r}", lambda: dorvan.has_label(start))


def opens_a_file(dorvan):
    wait_for("hint of the empty workspace", lambda: dorvan.find("push button", "Open a sample"))
    screenshot("hint.png")
    keys("ctrl+o")
    dorvan.choose_file("Dorvan - Select mdt file", str(samples / "Townships.mdt"))
    dorvan.expect_cell("Data sheet", 0, 1, "Record Name")
    if dorvan.find("push button", "Open a sample"):
        raise Failed("the hint stays with a window open")


def takes_an_edit_back(dorvan):
    before = dorvan.cell_text("Data sheet", 1, 2)
    keys("Right")
    type_text("7")
    keys("Return")
    dorvan.expect_cell("Data sheet", 1, 2, "7.000")
    keys("ctrl+z")
    dorvan.expect_cell("Data sheet", 1, 2, before)
    expect_label(dorvan, "Undone: Edit ")
    keys("ctrl+shift+z")
    dorvan.expect_cell("Data sheet", 1, 2, "7.000")


def orders_by_hand(dorvan):
    keys("ctrl+d")
    dorvan.wait_for_window("Czekanowski")
    keys("alt+k")
    dorvan.wait_for_no_window("Czekanowski")
    dorvan.expect_cell("Diagram", 1, 2, "class 5")
    names = [dorvan.cell_text("Diagram", row, 1) for row in (1, 2)]
    keys("ctrl+Home", "Down", "alt+e", "s")
    expect_label(dorvan, "Euclidean")
    keys("alt+e", "u")
    dorvan.expect_cell("Diagram", 1, 1, names[1])
    screenshot("moved.png")
    keys("ctrl+z")
    dorvan.expect_cell("Diagram", 1, 1, names[0])
    keys("alt+x", "b")
    expect_label(dorvan, "Best order: ")


def opens_the_menu_of_the_diagram(dorvan):
    keys("Menu")
    time.sleep(0.3)
    screenshot("popup.png")
    keys("h", "h", "Return")  # Home has the letter too
    dorvan.wait_for_window("Histogram")
    keys("Escape")
    dorvan.wait_for_no_window("Histogram")


def goes_from_window_to_window(dorvan):
    keys("ctrl+Tab")
    time.sleep(0.2)
    keys("ctrl+Tab")
    wait_for("diagram in front", lambda: dorvan.find("table", "Diagram"))


def saves_a_picture(dorvan):
    keys("alt+x", "p")
    dorvan.wait_for_window("Picture")
    screenshot("picture.png")
    keys("alt+s")
    type_text("50")
    keys("Return", "Return")  # on to OK, and OK
    dorvan.choose_file("Dorvan - Save picture", str(folder / "towns.svg"))
    picture = folder / "towns.svg"
    wait_for("picture", picture.exists)
    wait_for("whole picture", lambda: picture.read_text().endswith("</svg>\n"))


dorvan = Program(program_path)
try:
    opens_a_file(dorvan)
    takes_an_edit_back(dorvan)
    orders_by_hand(dorvan)
    opens_the_menu_of_the_diagram(dorvan)
    goes_from_window_to_window(dorvan)
    saves_a_picture(dorvan)
except Failed as failure:
    sys.exit(f"keyboard: {failure}")
finally:
    dorvan.kill()
    shutil.rmtree(folder)
print("keyboard: done")
