#!/usr/bin/env python3
"""Every rule of source_checks.py must flag its sample, and nothing may flag the sound ones: ... CLANG_FORMAT"""
import sys
import tempfile
from pathlib import Path

from source_checks import faults_of

UI = '<ui version="4.0"><class>F</class><widget class="QDialog" name="F">%s</widget>%s</ui>'
LABEL = '<widget class="QLabel" name="l"><property name="textFormat"><enum>Qt::PlainText</enum></property>%s</widget>'
BUDDY = '<property name="buddy"><cstring>e</cstring></property>'
CUSTOM = ("<customwidgets><customwidget><class>Big</class><extends>QLineEdit</extends></customwidget>"
          "</customwidgets>")

# (path, content, what the fault says); the words are joined here so that this file is sound itself
BAD = [
    ("src/gear/a.cpp", "QMessageBox box;\n", "core/prompts.h"),
    ("src/gear/screens/a.cpp", "QFileDialog box;\n", "core/prompts.h"),
    ("src/core/qt_prompts.cpp", "QInputDialog box;\n", "core/prompts.h"),
    ("src/gear/a.h", "#include <QTableWidget>\n", "screens/, shell/ and widgets/ only"),
    ("src/gear/screens.h", "#include <QWidget>\n", "screens/, shell/ and widgets/ only"),
    ("src/gear/screens/a.cpp", '#include "jobs/screens/frmJob.h"\n', "doors in its screens.h"),
    ("src/gear/screens/a.cpp", '#include "core/shell/frmMenu.h"\n', "the shell stands above everything"),
    ("src/gear/a.cpp", '#include "gear/screens/frmRig.h"\n', "doors in its screens.h"),
    ("src/gear/screens/a.cpp", '#include "core/store/access.h"\n', "leave the tables to the rules"),
    ("src/core/shell/a.cpp", '#include "core/store/recordset.h"\n', "leave the tables to the rules"),
    ("src/jobs/screens/a.cpp", "int a = Count(tblRig::OwnerID == 1);\n", "leave the tables to the rules"),
    ("src/gear/screens/a.cpp",
     "QStringList A::ShowsTables() const { return {tblRig::kTable}; }\nint b = Count(tblMisc::kTable);\n", ":2: "),
    ("src/gear/a.cpp", '#include "schedule/schedule.h"\n', "gear stands below schedule"),
    ("src/gear/a.cpp", "void A() { DeleteRows(tblSchedules::ID == 1); }\n", "written by schedule"),
    ("src/jobs/a.cpp", "void A() { UpdateTable(tblRig::OwnerID, 0, tblRig::ID, 1); }\n", "written by gear"),
    ("src/schedule/a.cpp", "int A() { return AddRow(tblTasks::kTable, {}); }\n", "written by jobs"),
    ("src/gear/a.cpp", "void A() { row.AddNew(); }\n", "through AddRow"),
    ("src/gear/a.cpp", 'int a = Count(u"select * from tblRig"_s);\n', "core/store/tables.h"),
    ("src/gear/a.cpp", 'int a = row[u"OwnerID"].ToInt();\n', "core/store/tables.h"),
    ("src/gear/a.cpp", "int a = SIG" "NAL(clicked());\n", "pointers to members"),
    ("tests/gear/a.cpp", "int a = SL" "OT(close());\n", "pointers to members"),
    ("tests/gear/tst_a.cpp", "int a = QSK" "IP;\n", "a test tests"),
    ("tests/gear/tst_a.cpp", "int a = QEXPECT" "_FAIL;\n", "a test tests"),
    ("src/gear/a.h", "// TO" "DO more\n", "finish it"),
    ("README.md", "FIX" "ME later\n", "finish it"),
    ("docs/a.md", "XX" "X\n", "finish it"),
    ("src/gear/a.h", "// see Part" " 1.2\n", "the system itself"),
    ("docs/a.md", "as sp" "ec.md has it\n", "the system itself"),
    ("docs/a.md", "the Speci" "fication\n", "the system itself"),
    ("src/gear/a.cpp", "int  a=1;\n", "clang-format"),
    ("bench/a.cpp", "int  a=1;\n", "clang-format"),
    ("src/gear/screens/a.ui", UI % ('<widget class="QLabel" name="l"/>', ""), "textFormat"),
    ("src/gear/screens/a.ui", UI % (LABEL % "" + '<widget class="QLineEdit" name="e"/>', ""), "buddy"),
    ("src/gear/screens/a.ui", UI % ('<widget class="Grid" name="e"/>', ""), "buddy"),
    ("src/gear/screens/a.ui", UI % ('<widget class="Big" name="e"/>', CUSTOM), "buddy"),
    ("src/gear/screens/a.ui", UI % ('<widget class="QToolButton" name="b"/>', ""), "a button has"),
]
GOOD = [
    ("src/gear/screens/a.cpp", 'QStringList A::ShowsTables() const { return B() + QStringList{tblRig::kTable}; }\n'),
    ("src/gear/screens/a.cpp", 'PickerKind Rigs() { return {.tables = {tblRig::kTable}}; }\n'),
    ("src/gear/a.cpp", "int a = Count(tblRig::OwnerID == 1);\n"),
    ("src/schedule/jobless_task.cpp", "int A() { return AddRow(tblTasks::kTable, {}); }\n"),
    ("src/core/default_rows.cpp", "int A() { return AddRow(tblRigTypes::kTable, {}); }\n"),
    ("src/core/store/a.cpp", 'int a = Count(u"select * from tblRig"_s);\n'),
    ("src/core/widgets/qt_prompts.cpp", "QMessageBox box;\n"),
    ("src/main.cpp", "#include <QApplication>\n"),
    ("src/gear/screens/a.cpp", '#include "gear/screens/frmRig.h"\n#include "jobs/screens.h"\n'),
    ("src/reports/a.cpp", "#include <QLineF>\n"),
    ("src/gear/screens/a.ui", UI % (LABEL % BUDDY + '<widget class="QLineEdit" name="e"/>', "")),
    ("README.md", "A part of the loft, 1.2 times. All to do is done.\n"),
    ("support/picture.png", b"\x89PNG\xff"),
]


def told(path, content):
    with tempfile.TemporaryDirectory() as folder:
        file = Path(folder) / path
        file.parent.mkdir(parents=True, exist_ok=True)
        file.write_bytes(content if isinstance(content, bytes) else content.encode())
        return list(faults_of(Path(folder), sys.argv[1]))


wrong = []
for path, content, words in BAD:
    faults = told(path, content)
    if len(faults) != 1 or words not in faults[0] or path not in faults[0]:
        wrong.append(f"{path}, {content!r}: expected one fault ({words}), told {faults}")
for path, content in GOOD:
    if faults := told(path, content):
        wrong.append(f"{path}, {content!r}: expected none, told {faults}")
for line in wrong:
    print(line)
print(f"source checks on {len(BAD) + len(GOOD)} samples: {len(wrong)} wrong")
sys.exit(1 if wrong else 0)
