"""What comes out of a diagram and of a sheet, by keyboard on the built program: a PDF through the print dialog,
text and worksheet; each is compared with what dorvan-cli writes. Usage: results.py PROGRAM CLI SAMPLES"""

import pathlib
import shutil
import subprocess
import sys
import tempfile
import time

from screen import Failed, Program, keys, screenshot, wait_for

program_path, cli_path, samples = sys.argv[1], sys.argv[2], pathlib.Path(sys.argv[3])
folder = pathlib.Path(tempfile.mkdtemp())


def cli(*arguments):
    subprocess.run([cli_path, *map(str, arguments)], check=True)


def written(path):
    wait_for(f"file {path}", path.exists)
    time.sleep(0.2)
    return path.read_bytes()


def expect_same(path, other):
    if written(path) != other.read_bytes():
        raise Failed(f"{path.name} is not what dorvan-cli writes")


def pages(pdf):
    """Each page as a picture and as its texts."""
    prefix = folder / (pdf.stem + "-page")
    subprocess.run(["pdftoppm", "-r", "72", pdf, prefix], check=True)
    texts = subprocess.run(["pdftotext", "-layout", pdf, "-"], check=True, capture_output=True).stdout
    return [page.read_bytes() for page in sorted(folder.glob(prefix.name + "*"))], texts


def prints_the_diagram(dorvan):
    keys("ctrl+p")
    dorvan.wait_for_window("Print setup")
    fonts = wait_for("list of fonts", lambda: dorvan.find("combo box"))
    wait_for("a chosen font", lambda: fonts.name)
    font = fonts.name
    screenshot("print_setup.png")
    keys("Return")
    dorvan.choose_file("Dorvan - Print to File", str(folder / "printed.pdf"))
    written(folder / "printed.pdf")
    cli("print", folder / "towns.dgr", folder / "expected.pdf", "--font", font)
    if pages(folder / "printed.pdf") != pages(folder / "expected.pdf"):
        raise Failed("the printed pages are not those of dorvan-cli")


def prints_it_small_and_upright_by_the_printers_dialog(dorvan):
    keys("ctrl+p")
    dorvan.wait_for_window("Print setup")
    keys("alt+p")
    dorvan.wait_for_window("Printer options")
    screenshot("printer_options.png")
    keys("Escape")
    dorvan.wait_for_no_window("Printer options")
    keys("Escape")
    dorvan.wait_for_no_window("Print setup")


def in_the_export_menu(*further):
    keys("alt+f", "i", "Left", "Down", "Right", *further)


def exports_the_diagram(dorvan):
    in_the_export_menu("Return")
    dorvan.choose_file("Dorvan - Export to Excel", str(folder / "diagram.xls"))
    cli("export", "excel", folder / "towns.dgr", folder / "expected_diagram.xls")
    expect_same(folder / "diagram.xls", folder / "expected_diagram.xls")


def exports_the_sheet(dorvan):
    in_the_export_menu("Return")
    dorvan.wait_for_window("Export to text file options")
    keys("alt+c", "alt+k")
    dorvan.choose_file("Dorvan - Export", str(folder / "sheet.txt"))
    cli("export", "text", samples / "iris.mdt", folder / "expected.txt", "--separator", "comma")
    expect_same(folder / "sheet.txt", folder / "expected.txt")
    in_the_export_menu("Down", "Return")
    dorvan.choose_file("Dorvan - Export to Excel", str(folder / "sheet.xls"))
    cli("export", "excel", samples / "iris.mdt", folder / "expected_sheet.xls")
    expect_same(folder / "sheet.xls", folder / "expected_sheet.xls")


def run(document, *steps):
    dorvan = Program(program_path, str(document))
    try:
        for step in steps:
            step(dorvan)
    finally:
        dorvan.kill()


try:
    cli("diagram", samples / "Townships.mdt", folder / "towns.dgr")
    run(folder / "towns.dgr", prints_the_diagram, prints_it_small_and_upright_by_the_printers_dialog,
        exports_the_diagram)
    run(samples / "iris.mdt", exports_the_sheet)
except Failed as failure:
    sys.exit(f"results: {failure}")
finally:
    shutil.rmtree(folder)
print("results: out")
