#!/usr/bin/env python3
"""From the untagged input of a cantilever and its output to its five numbers, with the mouse.

Only names are typed: those of the program and the project, and at the end that of an entry. The numbers are those that
the example gives without a window.
"""

import shutil

from driver import PROJECT, Program, Text, fresh_folder, name_of, run, walk

EXAMPLE = PROJECT / "examples" / "cantilever"

# What is before a number in its file, and the number itself.
ENTRIES = [("SECTION=RECT\n ", "40"), ("SECTION=RECT\n <entry>newEntry</entry>, ", "20"), (" TIP, 3, ", "-100"),
           ("*ELASTIC\n ", "210000")]
VALUES = [("3.720233E-10 ", "-1.489290E+00"), ("-5.797399E-09  ", "1.000000E+02"),
          ("set BEAM and time  0.1000000E+01\n\n        ", "8.000000E+05"),
          ("0.1049701E+03   ", "0.1670651E+02"), ("0.2097941E+03   ", "0.3338977E+02")]


def make_reference(folder):
    """Runs the example, and leaves its input without tags, and its output. Returns its numbers."""
    (folder / "save.merix").write_text(f'include("{EXAMPLE}/setup.merix")\nsaveProject("reference.mrx")\n')
    run("script", "save.merix", folder=folder)
    run("write", "reference.mrx", "--out", folder, folder=folder)
    shutil.copy(EXAMPLE / "cantilever.dat", folder)
    return numbers(run("run", "reference.mrx", folder=folder))


def numbers(printed):
    return [line.split(" = ")[1] for line in printed.splitlines() if " = " in line]


def new_set_up(program):
    program.click("push button", "New set-up")
    dialog = program.wait("dialog", "New set-up")
    program.click("text", "Program", under=dialog)
    program.type("ccx -i cantilever")
    program.click("push button", "Select input files…", under=dialog)
    program.choose_file("Select input files", "cantilever.inp")
    program.click("push button", "Select output files…", under=dialog)
    program.choose_file("Select output files", "cantilever.dat")
    program.click("push button", "Create", under=dialog)
    program.wait_gone("dialog", "New set-up")


def make_entries(program):
    program.click("page tab", "cantilever.inp")
    text = Text(program, "Text of the input template")
    for before, number in ENTRIES:
        program.move(text.point(before, number))
        program.click("push button", under=text.node)
        program.until(f"a tag in place of {number}", lambda: before + "<entry>newEntry" in text.content())


def make_values(program):
    program.click("page tab", "cantilever.dat")
    text = Text(program, "Sample of the output file")
    for before, number in VALUES:
        program.click_at(text.point(before, number), times=2)
        program.wait("table cell", f"{float(number):.6g}", under=preview(program))


def preview(program):
    return program.wait("table", "Values found in the sample")


def run_and_read(program):
    """Clicks on the button that runs, and returns the numbers that the window then shows."""
    program.click("push button", "Run ccx")
    program.wait("label", "ccx: finished")
    program.click("push button", "Show the results of this run")
    cells = [name_of(cell) for cell in program.all("table cell", under=program.wait("tree", "Results"))]
    columns = len(program.all("table column header", under=program.wait("tree", "Results")))
    return cells[1::columns]


def save(program, name):
    program.click("push button", "Save")
    dialog = program.wait("dialog")
    program.type(name)
    program.click("push button", "Save", under=dialog)
    program.wait("frame", f"{name} — merix")


def rename(program):
    """Names the entry of the height where its tag is."""
    program.click("page tab", "ccx_connector")
    program.click("page tab", "cantilever.inp")
    text = Text(program, "Text of the input template")
    program.move(text.point("<entry>newEntry", "</entry>"))
    program.click("push button", under=text.node)
    program.click_popup(0, 4)  # Rename, Remove, Replace, Delete
    program.type("height")
    program.press("Return")
    program.until("the tag renamed", lambda: "<entry>height</entry>" in text.content())
    program.wait("table cell", "height", under=program.wait("tree", "Entries"))


@walk
def cantilever():
    folder = fresh_folder("cantilever")
    (folder / "reference").mkdir()
    reference = make_reference(folder / "reference")
    for file in ("cantilever.inp", "cantilever.dat"):
        shutil.copy(folder / "reference" / file, folder)

    program = Program(folder=folder)
    new_set_up(program)
    make_entries(program)
    make_values(program)
    program.wait("push button", "No problems")
    shown = run_and_read(program)
    assert shown == reference, f"{shown} instead of {reference}"
    print(f"cantilever: five numbers after {program.clicks} clicks")

    rename(program)
    save(program, "beam.mrx")
    program.close()
    # What was saved writes the input that the set-up began with, and gives the same numbers.
    run("write", "beam.mrx", "--set", "height=40", "--out", folder / "written", folder=folder)
    original = (folder / "reference" / "cantilever.inp").read_bytes()
    assert (folder / "written" / "cantilever.inp").read_bytes() == original
    assert numbers(run("run", "beam.mrx", folder=folder)) == reference
    return program
