"""Files that the program has written, compared to the byte."""

import os
import shutil
import time

from screen import Failed, wait_for


def expect_bytes(path, expected):
    wait_for(f"file {path}", path.exists)
    time.sleep(0.2)
    actual = path.read_bytes()
    if actual == expected:
        return
    place = next((i for i, (a, b) in enumerate(zip(actual, expected)) if a != b),
                 min(len(actual), len(expected)))
    raise Failed(f"{path.name} differs at offset {place}: {actual[place:place + 40]!r}, "
                 f"not {expected[place:place + 40]!r}")


def expect_golden(path, golden):
    """The file of that name in the folder `golden`; with JOURNEY_ACCEPT set it is replaced first."""
    wait_for(f"file {path}", path.exists)
    time.sleep(0.2)
    if os.environ.get("JOURNEY_ACCEPT"):
        shutil.copy(path, golden / path.name)
    expect_bytes(path, (golden / path.name).read_bytes())
