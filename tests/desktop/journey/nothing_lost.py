"""What is not saved comes back after a kill and after a window that closed without a question, on the built
program. Usage: nothing_lost.py PROGRAM SAMPLES"""

import pathlib
import shutil
import signal
import sys
import tempfile
import time

from files import expect_bytes
from screen import Failed, Program, keys, screenshot, type_text, wait_for

program_path, samples = sys.argv[1], pathlib.Path(sys.argv[2])
folder = pathlib.Path(tempfile.mkdtemp())
states = folder / "states"
sheet = folder / "Townships.mdt"
QUESTION = "Dorvan ended before these documents were saved:"


def start(*arguments, asks=False):
    return Program(program_path, *map(str, arguments), states=str(states), asks=asks)


def left(kind):
    return sorted(path.name for path in (states / "dorvan" / kind).rglob("*.mdt"))


def type_into_first_cell(dorvan, text, shown):
    dorvan.click_cell("Data sheet", 1, 2)
    type_text(text)
    keys("Return")
    dorvan.expect_cell("Data sheet", 1, 2, shown)


def is_killed():
    dorvan = start(sheet)
    try:
        dorvan.expect_cell("Data sheet", 0, 1, "Record Name")
        type_into_first_cell(dorvan, "3", "3.000")
        time.sleep(2)  # the journal is no further behind
    finally:
        dorvan.process.send_signal(signal.SIGKILL)
    dorvan.end()
    if len(left("journal")) != 1:
        raise Failed(f"journal: {left('journal')}")


def comes_back_and_is_saved():
    original = sheet.read_bytes()
    dorvan = start(asks=True)
    try:
        wait_for("question", lambda: dorvan.has_label(f"{QUESTION}\n  {sheet}"))
        screenshot("left_documents.png")
        keys("alt+y")
        dorvan.expect_cell("Data sheet", 1, 2, "3.000")
        keys("ctrl+s")
        wait_for("saved sheet", lambda: sheet.read_bytes() != original)
        lines = original.split(b"\r\n")
        first = lines.index(b"[DATA]") + 1
        lines[first] = b";".join([b"3.000"] + lines[first].split(b";")[1:])
        expect_bytes(sheet, b"\r\n".join(lines))
        wait_for("end of the journal's copy", lambda: not left("journal"))
        # Keys alone: the window closes without a question.
        type_into_first_cell(dorvan, "44", "44.000")
        keys("alt+f", "c")
        wait_for("end of the sheet", lambda: dorvan.find("table", "Data sheet") is None)
        keys("ctrl+shift+t")
        dorvan.expect_cell("Data sheet", 1, 2, "44.000")
        keys("alt+F4")
        wait_for("question", lambda: dorvan.has_label("The data in [[DATA]: "))
        keys("alt+n")
        if dorvan.end() != 0:
            raise Failed(f"the run ended with {dorvan.process.returncode}")
    finally:
        dorvan.kill()
    if left("journal") or len(left("closed")) != 1:
        raise Failed(f"left: {left('journal')}, {left('closed')}")


def is_among_the_closed_ones_of_the_next_run():
    dorvan = start()
    try:
        if dorvan.has_label(QUESTION):
            raise Failed("a question after a clean end")
        keys("ctrl+shift+t")
        dorvan.expect_cell("Data sheet", 1, 2, "44.000")
    finally:
        dorvan.kill()


try:
    shutil.copy(samples / "Townships.mdt", sheet)
    is_killed()
    comes_back_and_is_saved()
    is_among_the_closed_ones_of_the_next_run()
except Failed as failure:
    sys.exit(f"journey: {failure}")
finally:
    shutil.rmtree(folder)
print("journey: arrived")
