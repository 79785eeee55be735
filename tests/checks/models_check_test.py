#!/usr/bin/env python3
"""Each fault that models_check.py is there for must be found in a list that has just that fault."""
import sys

from models_check import faults_of

GOOD = "<mfg>\nMaker A\n1\nMaker B\n2\n<end mfg>\nModel\n1\n1\n0\nModel\n2\n3\n0\nOther\n0\n1\n0\n"
BAD = {
    "no makers": GOOD.replace("<mfg>\n", "", 1),
    "no end of the makers": GOOD.replace("<end mfg>\n", ""),
    "short maker": GOOD.replace("Maker B\n2\n", "Maker B\n"),
    "short model": GOOD.replace("Other\n0\n1\n0\n", "Other\n0\n1\n"),
    "same maker twice": GOOD.replace("Maker B", "MAKER a"),
    "same id twice": GOOD.replace("Maker B\n2", "Maker B\n1"),
    "id is no number": GOOD.replace("Maker B\n2", "Maker B\nx"),
    "same model twice in a type": GOOD.replace("Other", "mODEL"),
    "blank around a name": GOOD.replace("Other", "Other "),
    "empty name": GOOD.replace("Other", ""),
    "long name": GOOD.replace("Other", "O" * 51),
    "unknown maker": GOOD.replace("Other\n0", "Other\n3"),
    "unknown type": GOOD.replace("Other\n0\n1", "Other\n0\n8"),
    "price": GOOD.replace("Other\n0\n1\n0", "Other\n0\n1\n5"),
}

missed = ["a sound list is refused"] if faults_of(GOOD.replace("\n", "\r\n").encode()) else []
missed += [name for name, text in BAD.items() if not faults_of(text.replace("\n", "\r\n").encode())]
missed += ["line ends"] if not faults_of(GOOD.encode()) else []
missed += ["one bare line end"] if not faults_of(GOOD.replace("\n", "\r\n").replace("\r", "", 1).encode()) else []
missed += ["not UTF-8"] if not faults_of(GOOD.replace("\n", "\r\n").encode().replace(b"Other", b"Oth\xe9r")) else []
for name in missed:
    print(f"not found: {name}")
sys.exit(1 if missed else 0)
