"""A table from elsewhere, brought in and shaped without leaving the program, with keyboard and mouse on the
built program. Usage: data_in.py PROGRAM GOLDEN"""

import pathlib
import shutil
import sys
import tempfile

from files import expect_golden
from screen import Failed, Program, keys, screenshot, type_text, wait_for

program_path, golden = sys.argv[1], pathlib.Path(sys.argv[2])
folder = pathlib.Path(tempfile.mkdtemp())

TOWNS = """town;height;people
Łódź;220;672
Kutno;110;43
Żnin;95;14
Gdańsk;5,5;486
Rzeszów;209;197
"""


def imports_a_text_file(dorvan):
    table = folder / "Towns & more.csv"
    table.write_text(TOWNS, encoding="utf-8")
    keys("alt+f", "i", "t")
    dorvan.wait_for_window("Import data from text file")
    dorvan.push("Browse")
    dorvan.choose_file("Dorvan - Select csv/txt file", str(table))
    screenshot("import.png")
    dorvan.push("OK")
    dorvan.wait_for_no_window("Import data from text file")
    dorvan.expect_cell("Data sheet", 0, 2, "height")
    dorvan.expect_cell("Data sheet", 1, 1, "Łódź")
    dorvan.expect_cell("Data sheet", 4, 2, "5.500")


def standardizes(dorvan):
    dorvan.push("Standardization")
    dorvan.wait_for_window("Standardize data")
    dorvan.push("OK")
    dorvan.wait_for_no_window("Standardize data")
    keys("ctrl+Tab", "alt+f", "c")  # the source counts as changed
    wait_for("question", lambda: dorvan.has_label("The data in [[DATA]: Untitled1]"))
    keys("alt+n")
    dorvan.expect_cell("Data sheet", 1, 2, "100.000")
    dorvan.expect_cell("Data sheet", 4, 2, "0.000")


def adds_a_variable(dorvan):
    dorvan.push("Add variable")
    dorvan.wait_for_window("Add variable")
    dorvan.push("OK")
    dorvan.wait_for_no_window("Add variable")
    dorvan.expect_cell("Data sheet", 0, 4, "VAR 3")
    dorvan.click_cell("Data sheet", 1, 4)
    for value in ("1", "2*3", "2,5", "4", "0"):
        type_text(value)
        keys("Return")
    dorvan.expect_cell("Data sheet", 3, 4, "2.500")
    dorvan.push("Edit variable")
    dorvan.wait_for_window("Var Editor")
    keys("End", "Tab", "ctrl+a")
    type_text("river")
    keys("Return")
    screenshot("variables.png")
    dorvan.push("OK")
    dorvan.wait_for_no_window("Var Editor")
    dorvan.expect_cell("Data sheet", 0, 4, "river")


def deletes_a_record(dorvan):
    dorvan.click_cell("Data sheet", 3, 2)
    type_text("77")  # an edit that is open at the question
    dorvan.push("Delete record")
    wait_for("question", lambda: dorvan.has_label("Delete record number  3?"))
    keys("alt+y")
    dorvan.expect_cell("Data sheet", 3, 1, "Gdańsk")
    dorvan.expect_cell("Data sheet", 3, 2, "0.000")
    keys("ctrl+s")
    dorvan.choose_file("Dorvan - Save mdt file", str(folder / "towns_0_100.mdt"))
    expect_golden(folder / "towns_0_100.mdt", golden)


def makes_a_diagram(dorvan):
    keys("ctrl+d")
    dorvan.wait_for_window("Czekanowski")
    keys("alt+k")
    dorvan.wait_for_no_window("Czekanowski")
    dorvan.expect_cell("Diagram", 1, 1, "Łódź")
    keys("ctrl+s")
    dorvan.choose_file("Dorvan - Save diagram As", str(folder / "towns_0_100.dgr"))
    expect_golden(folder / "towns_0_100.dgr", golden)


try:
    dorvan = Program(program_path)
    try:
        imports_a_text_file(dorvan)
        standardizes(dorvan)
        adds_a_variable(dorvan)
        deletes_a_record(dorvan)
        makes_a_diagram(dorvan)
    finally:
        dorvan.kill()
except Failed as failure:
    sys.exit(f"journey: {failure}")
finally:
    shutil.rmtree(folder)
print("journey: arrived")
