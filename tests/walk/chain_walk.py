#!/usr/bin/env python3
"""The heat exchanger in the window: the chain is run, handed on as one file, imported into an empty project, and run
again, with the same numbers."""

import shutil

from driver import PROJECT, Program, fresh_folder, run, walk
from steps import results_after_run


def run_chain(program):
    """Runs what comes last; the first run also needs the mesh."""
    program.click("table cell", "calculix", under=program.wait("tree", "Objects"))
    found = results_after_run(program, "calculix")
    program.wait("table cell", "gmsh 1", under=program.wait("tree", "Runs"))
    return found


@walk
def chain():
    folder = fresh_folder("chain")
    shutil.copytree(PROJECT / "examples" / "heat-exchanger", folder, dirs_exist_ok=True)
    (folder / "save.merix").write_text('include("setup.merix")\nsaveProject("tube.mrx")\n')
    run("script", "save.merix", folder=folder)

    program = Program("tube.mrx", folder=folder)
    first = run_chain(program)
    assert len(first) == 3, first
    program.close()

    colleague = fresh_folder("colleague")
    part = colleague / "tube.lodm"
    run("export", "tube.mrx", "--computation", "calculix", "--chain", "--out", part, folder=folder)
    program = Program(folder=colleague)
    program.press("ctrl+i")
    program.wait("dialog", "Import set-ups")
    program.type(str(part))
    program.press("Return")
    program.wait_gone("dialog", "Import set-ups")
    again = run_chain(program)
    assert again == first, (again, first)
    print(f"chain: {', '.join(again)} in both projects")
    return program
