"""One analysis from the sample to the saved diagram, with keyboard and mouse on the built program; then the
two ends of a run that nobody asked for. Usage: journey.py PROGRAM SAMPLES GOLDEN"""

import pathlib
import shutil
import signal
import subprocess
import sys
import tempfile
import time

from files import expect_bytes, expect_golden
from screen import Failed, Program, keys, screenshot, type_text, wait_for

program_path, samples, golden = sys.argv[1], pathlib.Path(sys.argv[2]), pathlib.Path(sys.argv[3])
folder = pathlib.Path(tempfile.mkdtemp())
documents = pathlib.Path.home() / "Documents" / "Dorvan rescued documents"


def edits_the_sheet(dorvan):
    sheet = folder / "Townships.mdt"
    shutil.copy(samples / "Townships.mdt", sheet)
    original = sheet.read_bytes()
    keys("ctrl+o")
    dorvan.choose_file("Dorvan - Select mdt file", str(sheet))
    dorvan.expect_cell("Data sheet", 0, 1, "Record Name")
    before = dorvan.cell_text("Data sheet", 2, 2)
    keys("Right")
    type_text("2*3+1")
    dorvan.expect_cell("Data sheet", 1, 2, "2*3+1")
    screenshot("editing.png")
    keys("Return")
    dorvan.expect_cell("Data sheet", 1, 2, "7.000")
    type_text("n/a")
    dorvan.expect_cell("Data sheet", 2, 2, "N/A")
    keys("Escape")
    dorvan.expect_cell("Data sheet", 2, 2, before)
    type_text("5")
    keys("Right")  # at the end of the text: on to the next cell
    dorvan.expect_cell("Data sheet", 2, 2, "5.000")
    type_text("8")
    keys("Home", "Left")  # at its start: back
    dorvan.expect_cell("Data sheet", 2, 3, "8.000")
    keys("ctrl+s")
    lines = original.split(b"\r\n")
    data = lines.index(b"[DATA]")
    first, second = lines[data + 1].split(b";"), lines[data + 2].split(b";")
    first[0], second[0], second[1] = b"7.000", b"5.000", b"8.000"
    lines[data + 1], lines[data + 2] = b";".join(first), b";".join(second)
    wait_for("saved sheet", lambda: sheet.read_bytes() != original)
    expect_bytes(sheet, b"\r\n".join(lines))


def makes_a_matrix(dorvan):
    keys("ctrl+m")
    dorvan.wait_for_window("Matrix")
    keys("Return")
    dorvan.wait_for_no_window("Matrix")
    dorvan.expect_cell("Matrix", 1, 2, "0.000")
    screenshot("matrix.png")
    keys("ctrl+s")
    dorvan.choose_file("Dorvan - Save matrix As", str(folder / "towns.mtx"))
    expect_golden(folder / "towns.mtx", golden)
    keys("alt+f", "c")  # a saved matrix asks all the same
    wait_for("question", lambda: dorvan.has_label("The matrix in ["))
    keys("alt+n")
    wait_for("end of the matrix", lambda: dorvan.find("table", "Matrix") is None)


def makes_a_diagram(dorvan):
    names = [dorvan.cell_text("Data sheet", row, 1) for row in range(1, 10)]
    keys("ctrl+d")
    dorvan.wait_for_window("Czekanowski")
    screenshot("options.png")
    keys("alt+k")
    dorvan.wait_for_no_window("Czekanowski")
    dorvan.expect_cell("Diagram", 1, 2, "class 5")
    dorvan.click_cell("Diagram", 2, 1, times=2)
    dorvan.expect_cell("Diagram", 2, 3, "class 5 selected")
    screenshot("selected.png")
    dorvan.push("Up")
    dorvan.expect_cell("Diagram", 1, 1, names[1])
    dorvan.push("Down")
    dorvan.expect_cell("Diagram", 2, 1, names[1])
    dorvan.push("End")
    dorvan.expect_cell("Diagram", 2, 1, names[2])
    dorvan.push("Home")
    dorvan.expect_cell("Diagram", 1, 1, names[1])
    keys("Home", *["Down"] * 3)  # the target of the insertion, by keys
    dorvan.push("Insert")
    for row, name in enumerate([names[0], names[2], names[3], names[1], names[4]], 1):
        dorvan.expect_cell("Diagram", row, 1, name)
    keys("ctrl+s")
    dorvan.choose_file("Dorvan - Save diagram As", str(folder / "towns.dgr"))
    expect_golden(folder / "towns.dgr", golden)


def closes_and_reopens(dorvan):
    keys("alt+f", "c")
    wait_for("question", lambda: dorvan.has_label("The diagram in ["))
    keys("Escape")
    time.sleep(0.3)
    dorvan.expect_cell("Diagram", 0, 1, "Name")  # it stays
    keys("alt+f", "c")
    wait_for("question", lambda: dorvan.has_label("The diagram in ["))
    keys("alt+n")
    wait_for("end of the diagram", lambda: dorvan.find("table", "Diagram") is None)
    keys("alt+f", "o", "i")
    dorvan.choose_file("Dorvan - ", str(folder / "towns.dgr"))
    dorvan.expect_cell("Diagram", 4, 1, dorvan.cell_text("Diagram", 4, 1))
    screenshot("reopened.png")
    keys("alt+F4")
    if dorvan.end() != 0:
        raise Failed(f"the run ended with {dorvan.process.returncode}")


def one_analysis():
    dorvan = Program(program_path)
    try:
        edits_the_sheet(dorvan)
        makes_a_matrix(dorvan)
        makes_a_diagram(dorvan)
        closes_and_reopens(dorvan)
    finally:
        dorvan.kill()


def rescued():
    return sorted(path.name for path in documents.glob("*")) if documents.exists() else []


def a_run_time_failure():
    """Down without a selected row ends the run by design."""
    dorvan = Program(program_path, str(folder / "towns.dgr"))
    try:
        dorvan.expect_cell("Diagram", 0, 1, "Name")
        dorvan.click_cell("Diagram", 2, 1, times=2)
        dorvan.push("Down")
        dorvan.click_cell("Diagram", 3, 1, times=2)  # takes the selection back
        keys("alt+e", "d")
        wait_for("failure box", lambda: dorvan.has_label("Run-time error '9': Subscript out of range"))
        screenshot("failure.png")
        if not dorvan.has_label("The program closes now.\n\nCopies of documents that no file holds:\n"):
            raise Failed("the box does not say where the copies are")
        keys("Return")
        if dorvan.end() == 0:
            raise Failed("the run ended as if all were well")
    finally:
        dorvan.kill()
    if len(rescued()) != 1 or not rescued()[0].startswith("towns 20") or not rescued()[0].endswith(".dgr"):
        raise Failed(f"rescued: {rescued()}")
    again = Program(program_path, str(documents / rescued()[0]))
    try:
        again.expect_cell("Diagram", 0, 1, "Name")
    finally:
        again.kill()
    (documents / rescued()[0]).unlink()


def a_termination():
    for number in (signal.SIGTERM, signal.SIGHUP):
        dorvan = Program(program_path, str(folder / "Townships.mdt"))
        try:
            dorvan.expect_cell("Data sheet", 1, 2, "7.000")
            keys("Right")
            type_text("3")
            keys("Return")
            dorvan.expect_cell("Data sheet", 1, 2, "3.000")
            dorvan.process.send_signal(number)
            if dorvan.end() != 128 + number:
                raise Failed(f"ended with {dorvan.process.returncode}")
        finally:
            dorvan.kill()
        if len(rescued()) != 1 or not rescued()[0].startswith("townships 20"):
            raise Failed(f"rescued: {rescued()}")
        copy = (documents / rescued()[0]).read_bytes()
        original = (folder / "Townships.mdt").read_bytes()
        expect = original.replace(b"[DATA]\r\n7.000;", b"[DATA]\r\n3.000;")
        if copy != expect:
            raise Failed("the rescued copy is not what was on the screen")
        (documents / rescued()[0]).unlink()


def kind_of_image(path):
    return subprocess.run(["identify", "-format", "%m %wx%h %z", str(path)], capture_output=True, text=True).stdout


def pictures_of_a_diagram():
    """Histogram, linear graph and bitmap; what is saved opens in another program."""
    dorvan = Program(program_path, str(folder / "towns.dgr"))
    try:
        dorvan.expect_cell("Diagram", 0, 1, "Name")
        dorvan.push("Histogram")
        dorvan.wait_for_window("Histogram")
        dorvan.push("Check")
        screenshot("histogram.png")
        dorvan.push("OK")
        dorvan.wait_for_no_window("Histogram")
        dorvan.push("Linear")
        dorvan.wait_for_window("Linear graph")
        screenshot("linear.png")
        dorvan.push("OK")
        dorvan.wait_for_no_window("Linear graph")
        dorvan.push("Export bitmap graphic")
        screenshot("bitmap.png")
        for name, kind in (("towns.bmp", "BMP3"), ("towns.tif", "TIFF"), ("towns.png", "PNG")):
            dorvan.push("SaveAs")
            dorvan.choose_file("Dorvan - Save bitmap As", str(folder / name))
            wait_for(f"image {name}", (folder / name).exists)
            time.sleep(0.3)
            if kind_of_image(folder / name) != f"{kind} 527x400 8":
                raise Failed(f"{name} is {kind_of_image(folder / name)!r}")
    finally:
        dorvan.kill()


try:
    one_analysis()
    pictures_of_a_diagram()
    a_run_time_failure()
    a_termination()
except Failed as failure:
    sys.exit(f"journey: {failure}")
finally:
    shutil.rmtree(folder)
print("journey: arrived")
