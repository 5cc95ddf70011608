"""What a screen reader meets on the built program: names, roles, states and the texts of cells.
Usage: bus.py PROGRAM SAMPLES"""

import pathlib
import sys

import pyatspi

from screen import Failed, Program, keys, wait_for, walk

program_path, samples = sys.argv[1], pathlib.Path(sys.argv[2])


def expect(what, holds):
    if not holds:
        raise Failed(what)


def state(accessible, wanted):
    return accessible.getState().contains(wanted)


def main_window(dorvan):
    bars = [one for one in walk(dorvan.root) if one.getRoleName() == "tool bar"]
    expect("toolbars have names", bars and all(bar.name for bar in bars))
    buttons = [one for one in walk(dorvan.root) if one.getRoleName() == "push button" and state(one, pyatspi.STATE_SHOWING)]
    expect("buttons have names", len(buttons) > 10 and all(button.name for button in buttons))
    menus = [one.name for one in walk(dorvan.root) if one.getRoleName() == "menu item"]
    for name in ("File", "Edit", "Analysis", "Options", "Window", "Extras", "Help"):
        expect(f"menu {name} among {menus}", name in menus)


def sheet(dorvan):
    grid = dorvan.grid("Data sheet")
    table = grid.queryTable()
    expect("a sheet of its size", table.nRows > 10 and table.nColumns > 2)
    header, name, cell = (table.getAccessibleAt(*place) for place in ((0, 2), (1, 0), (1, 2)))
    expect("roles of cells", (header.getRoleName(), name.getRoleName(), cell.getRoleName())
           == ("table column header", "table row header", "table cell"))
    expect("the description names record and variable",
           cell.description == f"{dorvan.cell_text('Data sheet', 1, 1)}, {header.name}: {cell.name}")
    expect("the grid has the focus", state(grid, pyatspi.STATE_FOCUSED) or
           any(state(table.getAccessibleAt(1, column), pyatspi.STATE_FOCUSED) for column in (1, 2)))
    keys("Right")
    wait_for("the current cell is the selected one", lambda: state(dorvan.cell("Data sheet", 1, 2), pyatspi.STATE_SELECTED))
    expect("another one is not", not state(dorvan.cell("Data sheet", 2, 2), pyatspi.STATE_SELECTED))


def diagram(dorvan):
    keys("ctrl+d")
    dorvan.wait_for_window("Czekanowski")
    keys("alt+k")
    dorvan.wait_for_no_window("Czekanowski")
    dorvan.expect_cell("Diagram", 1, 2, "class 5")
    cell = dorvan.cell("Diagram", 1, 3)
    names = [dorvan.cell_text("Diagram", row, 1) for row in (1, 2)]
    expect(f"both names in {cell.description!r}", cell.description.startswith(f"{names[0]} – {names[1]}: "))
    expect("its class and limits", ", class " in cell.description and cell.description.endswith(")"))
    legend = wait_for("legend", lambda: next((one for one in walk(dorvan.root) if one.name == "Legend"), None))
    expect("the legend reads its classes", legend.description.startswith("class 5: 0 - "))
    description = wait_for("field of the description", lambda: dorvan.find("text", "Description"))
    expect("which can be typed in", state(description, pyatspi.STATE_EDITABLE))
    up = wait_for("button Up", lambda: dorvan.find("push button", "Up"))
    expect("which is off without a selection", not state(up, pyatspi.STATE_ENABLED))
    dorvan.click_cell("Diagram", 2, 1, times=2)
    wait_for("and on with one", lambda: state(dorvan.find("push button", "Up"), pyatspi.STATE_ENABLED))
    wait_for("selection in the status bar", lambda: any(
        one.getRoleName() == "label" and f"selected: {names[1]}" in one.name for one in walk(dorvan.root)))


dorvan = Program(program_path, str(samples / "Townships.mdt"))
try:
    main_window(dorvan)
    sheet(dorvan)
    diagram(dorvan)
except Failed as failure:
    sys.exit(f"bus: {failure}")
finally:
    dorvan.kill()
print("bus: heard")
