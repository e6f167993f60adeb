#!/usr/bin/env python3
"""From the untagged input of a cantilever and its output to its five numbers, with the mouse.

Only names are typed: those of the program and the project, and at the end that of an entry. The numbers are those that
the example gives without a window.
"""

import shutil

from driver import PROJECT, Program, fresh_folder, run, walk
from steps import (make_entry, make_value, new_set_up, rename_entry, results_after_run, run_saved, save, show_input)

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
    return run_saved("reference.mrx", folder=folder)


@walk
def cantilever():
    folder = fresh_folder("cantilever")
    (folder / "reference").mkdir()
    reference = make_reference(folder / "reference")
    for file in ("cantilever.inp", "cantilever.dat"):
        shutil.copy(folder / "reference" / file, folder)

    program = Program(folder=folder)
    new_set_up(program, "ccx -i cantilever", ["cantilever.inp"], ["cantilever.dat"])
    text = show_input(program, "cantilever.inp")
    for before, number in ENTRIES:
        make_entry(program, text, before, number)
    program.click("page tab", "cantilever.dat")
    for before, number in VALUES:
        make_value(program, before, number)
    program.wait("push button", "No problems")
    shown = results_after_run(program, "ccx")
    assert shown == reference, f"{shown} instead of {reference}"
    print(f"cantilever: five numbers after {program.clicks} clicks")

    # The height gets its name where its tag is.
    program.click("page tab", "ccx_connector")
    rename_entry(program, show_input(program, "cantilever.inp"), "newEntry", "height")
    save(program, "beam.mrx")
    program.close()
    # What was saved writes the input that the set-up began with, and gives the same numbers.
    run("write", "beam.mrx", "--set", "height=40", "--out", folder / "written", folder=folder)
    original = (folder / "reference" / "cantilever.inp").read_bytes()
    assert (folder / "written" / "cantilever.inp").read_bytes() == original
    assert run_saved("beam.mrx", folder=folder) == reference
    return program
