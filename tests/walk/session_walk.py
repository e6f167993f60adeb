#!/usr/bin/env python3
"""Work with the band-pass filter: open, change an entry, run, read a number and its place, stop a run that takes
too long, and undo everything."""

import shutil

from driver import PROJECT, Program, fresh_folder, run, walk
from steps import results_after_run, set_entry


def select(program, name):
    program.click("table cell", name, under=program.wait("tree", "Objects"))


@walk
def session():
    folder = fresh_folder("session")
    shutil.copytree(PROJECT / "examples" / "bandpass", folder, dirs_exist_ok=True)
    (folder / "save.merix").write_text(
        'include("setup.merix")\n'
        'genericIntegrationDefinition nothing()\n'
        'genericIntegrationConfiguration none() { .setDefinition(nothing) }\n'
        'genericIntegrationComputation slow() {\n'
        '    .setConfiguration(none)\n    .setExecutable("sleep")\n    .setArguments(["600"])\n}\n'
        'saveProject("filter.mrx")\n')
    run("script", "save.merix", folder=folder)
    saved = (folder / "filter.mrx").read_bytes()

    program = Program("filter.mrx", folder=folder)
    select(program, "ngspice")
    before = results_after_run(program, "ngspice")
    set_entry(program, "capacitance", '"220n"')
    program.wait("frame", "filter.mrx* — merix")
    after = results_after_run(program, "ngspice")
    # The frequency falls with the root of the capacitance, 100 nF before.
    ratio = float(after[0]) / float(before[0])
    assert abs(ratio - (100 / 220) ** 0.5) < 0.001, (before, after)

    # A click on a row shows where the number is.
    program.click("table cell", "centre", under=program.wait("tree", "Results"))
    program.wait("page tab", "filter.log")

    select(program, "slow")
    program.click("push button", "Run slow")
    program.wait("label", "slow: running")
    program.click("push button", "Stop")
    program.wait("label", "slow: cancelled")

    program.press("ctrl+z")
    program.wait("frame", "filter.mrx — merix")
    assert (folder / "filter.mrx").read_bytes() == saved
    print(f"session: {before[0]}, then {after[0]}; stopped; undone")
    return program
