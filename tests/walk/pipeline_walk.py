#!/usr/bin/env python3
"""The heated plate of docs/coupling-a-program.md, from its script, its input and one run by hand, with the mouse.

Its program is awk, so that every machine has it. The numbers are compared with those of the run by hand, and then,
with another area, with the formula.
"""

import re
import subprocess

from driver import PROJECT, Program, fresh_folder, walk
from steps import make_entry, make_value, new_set_up, results_after_run, run_saved, save, set_entry, show_input

PAGE = PROJECT / "docs" / "coupling-a-program.md"


def make_samples(folder):
    """The files of the page, and what awk makes of them."""
    source, tagged = re.findall(r"```(?:awk)?\n(\$1.*?|power.*?)```", PAGE.read_text(), re.DOTALL)
    (folder / "heater.awk").write_text(source)
    plain = tagged.replace("<entry>heater|power</entry>", "40").replace("<entry>area</entry>", "0.04")
    (folder / "heater.in").write_text(plain)
    command = ["awk", "-f", "heater.awk", "heater.in"]
    printed = subprocess.run(command, cwd=folder, check=True, capture_output=True, text=True).stdout
    (folder / "stdout.txt").write_text(printed)
    return printed


def formula(area):
    """The temperature in the end: 40 W leave the plate with 10 W/K for each square metre."""
    return 20 + 40 / (10 * area)


@walk
def pipeline():
    folder = fresh_folder("pipeline")
    printed = make_samples(folder)
    losses = re.search(r"([\d.]+)\n-- losses", printed)[1]
    final = re.search(r"final temperature = ([\d.]+)", printed)[1]
    hot = re.search(r"70 C reached after (\d+)", printed)[1]
    row = (folder / "history.log").read_text().splitlines()[-10]

    program = Program(folder=folder)
    new_set_up(program, "awk -f heater.awk heater.in", ["heater.awk", "heater.in"], ["stdout.txt", "history.log"])
    text = show_input(program, "heater.in")
    make_entry(program, text, "power   = ", "40")
    make_entry(program, text, "area    = ", "0.04")
    program.picture("walk-pipeline-inputs")
    program.click("page tab", "stdout.txt")
    make_value(program, "Heated plate\n     ", losses, "losses")
    make_value(program, "final temperature = ", final, "final")
    make_value(program, "70 C reached after ", hot, "hot after")
    program.picture("walk-pipeline-values")
    program.click("page tab", "history.log")
    before, _, number = row.rpartition(" ")
    make_value(program, before + " ", number, "mean")
    program.click("check box", "Average")
    program.click("text", "change average rows")
    program.press("ctrl+a")
    program.type("20\n")
    program.wait("push button", "No problems")
    program.picture("walk-pipeline-mean")
    assert results_after_run(program, "awk") == [f"{float(value):.7g}" for value in (losses, final, hot)]
    print(f"pipeline: its numbers after {program.clicks} clicks")
    program.picture("walk-pipeline-results")

    program.click("page tab", "awk_connector")
    program.click("page tab", "Overview")
    program.picture("walk-pipeline-overview")
    show_input(program, "heater.in")
    set_entry(program, "area", "0.0625")
    changed = results_after_run(program, "awk")
    assert abs(float(changed[1]) - formula(0.0625)) < 0.01, changed
    save(program, "plate.mrx")
    program.close()
    saved = run_saved("plate.mrx", folder=folder)
    assert saved[:3] == changed, f"{saved} instead of {changed}"
    assert abs(float(saved[3]) - formula(0.0625)) < 0.01, "the mean"
    return program
