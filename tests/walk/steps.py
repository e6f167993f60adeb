"""What users do from sample files to numbers, in the steps that walks have in common."""

from driver import Text, name_of, run, walked


def numbers(printed):
    """The values that a run without windows prints."""
    return [line.split(" = ")[1] for line in printed.splitlines() if " = " in line]


def new_set_up(program, command, inputs, outputs):
    program.click("push button", "New set-up")
    dialog = program.wait("dialog", "New set-up")
    program.click("text", "Program", under=dialog)
    program.type(command)
    for name in inputs:
        program.click("push button", "Select input files…", under=dialog)
        program.choose_file("Select input files", name)
    for name in outputs:
        program.click("push button", "Select output files…", under=dialog)
        program.choose_file("Select output files", name)
    program.picture(f"walk-{walked()}-new")
    program.click("push button", "Create", under=dialog)
    program.wait_gone("dialog", "New set-up")


def show_input(program, file):
    program.click("page tab", file)
    return Text(program, "Text of the input template")


def make_entry(program, text, before, number):
    """Makes an entry of a number by the button on it."""
    program.move(text.point(before, number))
    program.click("push button", under=text.node)
    program.until(f"a tag in place of {number}", lambda: before + "<entry>" in text.content())


def rename_entry(program, text, name, new_name):
    """By the menu of the tag."""
    program.move(text.point(f"<entry>{name}", "</entry>"))
    program.click("push button", under=text.node)
    program.click_popup(0, 4)  # Rename, Remove, Replace, Delete
    program.type(new_name)
    program.press("Return")
    program.until("the tag renamed", lambda: f"<entry>{new_name}</entry>" in text.content())
    program.wait("table cell", new_name, under=program.wait("tree", "Entries"))


def make_value(program, before, number, name=None):
    """Has a number of the sample that is shown read, by a double click on it, and calls it something."""
    text = Text(program, "Sample of the output file")
    program.click_at(text.point(before, number), times=2)
    program.wait("table cell", f"{float(number):.6g}", under=program.wait("table", "Values found in the sample"))
    if name:
        program.type(name)
        program.press("Return")


def set_entry(program, name, value):
    """In the list of entries beside the template."""
    tree = program.wait("tree", "Entries")
    program.click("table cell", name, under=tree)
    cells = program.all("table cell", under=tree)
    names = [name_of(cell) for cell in cells]
    place = cells[names.index(name) + 1]
    program.click_at(program.middle_of(place), times=2)
    program.press("ctrl+a")
    program.type(value)
    program.press("Return")


def results_after_run(program, computation):
    """Clicks on the button that runs, and returns the numbers that the window then shows."""
    program.click("push button", f"Run {computation}")
    program.wait("label", f"{computation}: finished")
    program.click("push button", "Show the results of this run")
    tree = program.wait("tree", "Results")
    cells = [name_of(cell) for cell in program.all("table cell", under=tree)]
    columns = len(program.all("table column header", under=tree))
    return cells[1::columns]


def save(program, name):
    program.click("push button", "Save")
    dialog = program.wait("dialog")
    program.type(name)
    program.click("push button", "Save", under=dialog)
    program.wait("frame", f"{name} — merix")


def run_saved(project, *options, folder):
    """The numbers of a run of the project without windows."""
    return numbers(run("run", project, *options, folder=folder))
