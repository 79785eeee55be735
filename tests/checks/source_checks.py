#!/usr/bin/env python3
"""The rules of the source text that no compiler keeps: source_checks.py ROOT CLANG_FORMAT

Prints a line for each fault, with file and line, and ends with 1 if there is one."""
import os
import re
import subprocess
import sys
import xml.etree.ElementTree as ElementTree
from concurrent.futures import ThreadPoolExecutor
from pathlib import Path

STYLE = Path(__file__).resolve().parents[2] / ".clang-format"
FOLDERS = ("src", "tests", "bench", "support", "cmake", "docs", ".ci")
CODE = r"^(src|tests|bench)/.*\.(cpp|h)$"
FORM = r"^src/.*\.ui$"

# The banned words stand here in two pieces, or this file would be its own first fault.
# (files, files let off, what must not stand there, what to do instead)
LINE_RULES = [
    (r"^src/.*\.(cpp|h)$", r"^src/core/widgets/qt_prompts\.", r"\bQ(MessageBox|InputDialog|FileDialog)\b",
     "boxes show through core/prompts.h"),
    (r"^src/.*\.(cpp|h)$", r"/(screens|shell|widgets)/|^src/main\.cpp$",
     r"#\s*include\s*<Q(Widget|Application|Dialog|Table|Tree|Label|LineEdit|Push|Menu|Message)",
     "widgets stand in screens/, shell/ and widgets/ only"),
    (CODE, None, r"\b(SIGNAL|SLOT)\s*\(", "connect with pointers to members"),
    (CODE, None, r"\bQ(SKIP|EXPECT_FAIL)\b", "a test tests, or it goes"),
    (r"", None, r"\b(TO" r"DO|FIX" r"ME|XX" r"X)\b", "finish it"),
    (r"", None, r"\bPart\s\d+\.\d|\bsp" r"ec\.md\b|\b[Ss]peci" r"fication",
     "speak of the system itself"),
]

INPUTS = {"QLineEdit", "QTextEdit", "QPlainTextEdit", "QTextBrowser", "QComboBox", "QFontComboBox", "QSpinBox",
          "QDoubleSpinBox", "QDateEdit", "QTimeEdit", "QDateTimeEdit", "QSlider", "QListWidget", "QListView",
          "QTableWidget", "QTableView", "QTreeWidget", "QTreeView", "QCalendarWidget", "Grid"}
BUTTONS = {"QPushButton", "QToolButton", "QCheckBox", "QRadioButton"}


def texts(root):
    """All text files of the tree: (path relative to the root, content)."""
    paths = [path for path in root.iterdir() if path.is_file()]
    for folder in FOLDERS:
        paths += [path for path in (root / folder).rglob("*") if path.is_file() and "__pycache__" not in path.parts]
    for path in sorted(paths):
        try:
            yield path.relative_to(root).as_posix(), path.read_bytes().decode("utf-8")
        except UnicodeDecodeError:
            pass  # a picture or another binary


def line_faults(path, text):
    for files, let_off, banned, advice in LINE_RULES:
        if re.search(files, path) and not (let_off and re.search(let_off, path)):
            for number, line in enumerate(text.splitlines(), 1):
                if found := re.search(banned, line):
                    yield f"{path}:{number}: {found.group().strip()}: {advice}"


def include_faults(path, text):
    """Only a subsystem's own screens include its screens' headers; the others go through its screens.h. The shell stands
    above them all: only the entry includes it."""
    if not re.search(r"^src/.*\.(cpp|h)$", path):
        return
    for number, line in enumerate(text.splitlines(), 1):
        found = re.match(r'\s*#\s*include\s*"([\w/]*\bscreens/)', line)
        if re.match(r'\s*#\s*include\s*"core/shell/', line) and not re.search(r"^src/(core/shell/|main\.cpp$)", path):
            yield f"{path}:{number}: the shell stands above everything: nothing includes it"
        if found and not path.startswith("src/" + found.group(1)):
            yield f"{path}:{number}: {found.group(1)} is closed here: go through the doors in its screens.h"


def shown_tables(text):
    """The places of the text that say which tables a screen shows."""
    for start in re.finditer(r"\bShowsTables\(\)[^;{]*\{|\.tables = \{", text):
        depth, end = 1, start.end()
        while depth and end < len(text):
            depth += {"{": 1, "}": -1}.get(text[end], 0)
            end += 1
        yield range(start.start(), end)


def store_faults(path, text):
    """Screens ask rules for values: they neither read nor write the store, and name a table only to say what they show."""
    if not re.search(r"^src/.*/(screens|shell)/.*\.(cpp|h)$", path):
        return
    shown = list(shown_tables(text))
    for found in re.finditer(r'#\s*include\s*"core/store/(access|recordset|rows|statement)\.h"|\btbl\w+', text,
                             re.IGNORECASE):
        if not any(found.start() in place for place in shown):
            number = text.count("\n", 0, found.start()) + 1
            yield f"{path}:{number}: {found.group()}: screens leave the tables to the rules"


# Rules include their own subsystem and those below it.
BELOW = {"core": [], "gear": ["core"], "schedule": ["core", "gear"], "dbcare": ["core", "gear"],
         "jobs": ["core", "gear", "schedule"], "history": ["core", "gear", "schedule", "jobs"],
         "reports": ["core", "gear", "schedule", "jobs"]}


def layer_faults(path, text):
    found = re.search(r"^src/(\w+)/\w+\.(cpp|h)$", path)
    subsystem = found.group(1) if found else ""
    if subsystem not in BELOW or path.endswith("/screens.h"):
        return
    for number, line in enumerate(text.splitlines(), 1):
        included = re.match(r'\s*#\s*include\s*"(\w+)/', line)
        if included and included.group(1) not in BELOW[subsystem] + [subsystem]:
            yield f"{path}:{number}: {subsystem} stands below {included.group(1)}"


# Who writes a table. What lets off: the store itself, and the fixed rows that it starts with.
OWNERS = {
    **{table: "gear" for table in ("tblComponents", "tblComponentTypes", "tblManufacturers", "tblModels", "tblPeople",
                                   "tblLocation", "tblRig", "tblRigTypes", "tblRigTypeComponents", "tblPhotos")},
    "tblSchedules": "schedule",
    **{table: "jobs" for table in ("tblJobs", "tblJobComponents", "tblTaskLib", "tblTaskLibComponentTypes",
                                   "tblTaskLibParts", "tblTaskLibRigType", "tblRepackByModel", "tblRepackByType",
                                   "tblMoney")},
    "tblTasks": "jobs|schedule/jobless_task",
    "tblTaskComponents": "jobs|schedule/jobless_task",
}
WRITES = r"\b(?:AddRow|EditRow|DeleteRow|DeleteRows|UpdateRows|UpdateTable|DeleteRecordsFromTable|DeleteAllRecords)\(\s*"


def owner_faults(path, text):
    """A table is written by its owner; who wants it changed asks the owner's rule."""
    if not re.search(r"^src/.*\.(cpp|h)$", path) or re.search(r"^src/core/(store/|default_rows)", path):
        return
    for found in re.finditer(WRITES + r"(?:\w+,\s*\{\{)?(\w+)::", text):
        owner = OWNERS.get(found.group(1))
        if owner and not re.search(rf"^src/({owner})", path):
            number = text.count("\n", 0, found.start()) + 1
            yield f"{path}:{number}: {found.group(1)} is written by {owner.split('|')[0]}"
    if path == "src/gear/person_email.cpp":  # a box shows the very statement
        return
    for found in re.finditer(r"\.(AddNew|Update)\(\)|\b(UpdateTable|DeleteRecordsFromTable)BySQL\(", text):
        number = text.count("\n", 0, found.start()) + 1
        yield f"{path}:{number}: {found.group().strip('.')}: write rows through AddRow, EditRow, UpdateRows, DeleteRows"


# Column names stand in tables.h alone; a statement is made of them.
def statement_faults(path, text):
    if not re.search(r"^src/.*\.(cpp|h)$", path) or path.startswith("src/core/store/"):
        return
    for number, line in enumerate(text.splitlines(), 1):
        if found := re.search(r'"(select \*|select \w+ from|update \w+ set|delete \* from|tbl\w+")|\[u"\w+"\]', line,
                              re.IGNORECASE):
            yield f"{path}:{number}: {found.group()}: make it of core/store/tables.h and statement.h"


def property_of(widget, name):
    value = widget.find(f"property[@name='{name}']")
    return "".join(value.itertext()).strip() if value is not None else ""


def form_faults(path, text):
    """Labels show data as it is, and whoever cannot see the form hears what each control is for."""
    if not re.search(FORM, path):
        return
    form = ElementTree.fromstring(text)
    base = {custom.findtext("class"): custom.findtext("extends") for custom in form.iter("customwidget")}
    widgets = list(form.iter("widget"))
    buddies = {property_of(widget, "buddy") for widget in widgets}
    for widget in widgets:
        kind, name = widget.get("class"), widget.get("name")
        kinds = {kind, base.get(kind)}
        if "QLabel" in kinds and property_of(widget, "textFormat") != "Qt::PlainText":
            yield f"{path}: {name}: a label has the textFormat Qt::PlainText"
        if kinds & INPUTS and name not in buddies and not property_of(widget, "accessibleName"):
            yield f"{path}: {name}: an input has a label that is its buddy, or an accessibleName"
        if kinds & BUTTONS and not property_of(widget, "text") and not property_of(widget, "accessibleName"):
            yield f"{path}: {name}: a button has a text or an accessibleName"


def format_faults(root, paths, clang_format):
    code = [str(root / path) for path in paths if re.search(CODE, path)]
    command = [clang_format, f"--style=file:{STYLE}", "--dry-run", "-Werror"]
    workers = os.cpu_count() or 1
    with ThreadPoolExecutor(workers) as pool:
        shares = [share for share in (code[at::workers] for at in range(workers)) if share]
        for told in pool.map(lambda share: subprocess.run(command + share, capture_output=True, text=True), shares):
            if told.returncode:
                yield "clang-format -i would change:\n" + told.stderr


def faults_of(root, clang_format):
    paths = []
    for path, text in texts(root):
        paths.append(path)
        yield from line_faults(path, text)
        yield from include_faults(path, text)
        yield from store_faults(path, text)
        yield from layer_faults(path, text)
        yield from owner_faults(path, text)
        yield from statement_faults(path, text)
        yield from form_faults(path, text)
    yield from format_faults(root, paths, clang_format)


if __name__ == "__main__":
    found = list(faults_of(Path(sys.argv[1]).resolve(), sys.argv[2]))
    for fault in found:
        print(fault)
    print(f"source checks: {len(found)} faults")
    sys.exit(1 if found else 0)
