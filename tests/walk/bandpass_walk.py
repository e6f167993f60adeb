#!/usr/bin/env python3
"""From the untagged circuit of a band-pass filter and one log of ngspice to its four numbers, with the mouse.

Then with another capacitor, for which formulas give the numbers to compare with.
"""

import math
import shutil

from driver import PROJECT, Program, fresh_folder, name_of, run, walk
from steps import (make_entry, make_value, new_set_up, rename_entry, results_after_run, run_saved, save, set_entry,
                   show_input)

EXAMPLE = PROJECT / "examples" / "bandpass"

# What is before a number of the circuit, the number, and what its entry is called.
ENTRIES = [("L1 in a ", "10", "inductance"), ("C1 a  b ", "100", "capacitance"), ("R1 b  0 ", "100", "resistance")]
# What is before a number of the log, the number, and what the value is called.
VALUES = [("f0                  =  ", "5.034658e+03", "centre"), ("f_lo                =   ", "4.29967e+03", "lower edge"),
          ("f_hi                =   ", "5.89122e+03", "upper edge"), ("bw                  =  ", "1.59155e+03", "bandwidth")]


def formulas(inductance, capacitance, resistance):
    """Centre, edges and width of the band, in Hz."""
    resonance = 1 / math.sqrt(inductance * capacitance)
    half = resistance / (2 * inductance)
    edge = math.sqrt(half ** 2 + resonance ** 2)
    return [angular / (2 * math.pi) for angular in (resonance, edge - half, edge + half, 2 * half)]


def check(shown, expected):
    # The centre is one of the swept frequencies, of which there are 1000 per decade.
    for number, formula, tolerance in zip(map(float, shown), expected, (13e-4, 1e-4, 1e-4, 1e-4), strict=True):
        assert abs(number / formula - 1) < tolerance, f"{shown} instead of {expected}"


@walk
def bandpass():
    folder = fresh_folder("bandpass")
    reference = folder / "reference"
    reference.mkdir()
    (reference / "save.merix").write_text(f'include("{EXAMPLE}/setup.merix")\nsaveProject("reference.mrx")\n')
    run("script", "save.merix", folder=reference)
    run("write", "reference.mrx", "--out", reference, folder=reference)
    shutil.copy(reference / "filter.cir", folder)
    shutil.copy(EXAMPLE / "filter.log", folder)

    program = Program(folder=folder)
    new_set_up(program, "ngspice -b filter.cir -o filter.log", ["filter.cir"], ["filter.log"])
    text = show_input(program, "filter.cir")
    for before, number, name in ENTRIES:
        make_entry(program, text, before, number)
        rename_entry(program, text, text.content().split("<entry>")[-1].split("</entry>")[0], name)
    program.until("where the entry is used",
                  lambda: any("Used in" in name_of(label) for label in program.all("label")))
    program.picture("walk-bandpass-inputs")
    program.click("page tab", "filter.log")
    for before, number, name in VALUES:
        make_value(program, before, number, name)
    program.wait("push button", "No problems")
    program.picture("walk-bandpass-values")
    shown = results_after_run(program, "ngspice")
    check(shown, formulas(10e-3, 100e-9, 100))
    print(f"bandpass: four numbers after {program.clicks} clicks")
    program.picture("walk-bandpass-results")

    program.click("page tab", "ngspice_connector")
    program.click("page tab", "Overview")
    program.picture("walk-bandpass-overview")
    show_input(program, "filter.cir")
    set_entry(program, "capacitance", "220")
    changed = results_after_run(program, "ngspice")
    check(changed, formulas(10e-3, 220e-9, 100))
    save(program, "filter.mrx")
    program.close()
    assert run_saved("filter.mrx", folder=folder) == changed
    check(run_saved("filter.mrx", "--set", "capacitance=100", folder=folder), formulas(10e-3, 100e-9, 100))
    return program
