#!/usr/bin/env python3
"""Proves that a models list can be read: models_check.py FILE

The file holds "<mfg>", then name and id of each maker, "<end mfg>", then name, maker's id, type's id and price of each
model, one value a line. Ends with 1 and a line for each fault."""
import re
import sys

TYPES = range(1, 8)
LONGEST_NAME = 50


def faults_of(data):
    """All faults of a models list, as plain sentences; empty when it is sound."""
    try:
        text = data.decode("utf-8")
    except UnicodeDecodeError as error:
        return [f"not UTF-8: {error}"]
    if not text.endswith("\r\n"):
        return ["the last line does not end with CR LF"]
    if re.search(r"(?<!\r)\n|\r(?!\n)", text):
        return ["a line does not end with CR LF"]
    lines = text.split("\r\n")[:-1]
    if lines[0] != "<mfg>" or lines.count("<end mfg>") != 1:
        return ['the makers do not stand between one "<mfg>" and one "<end mfg>"']
    end = lines.index("<end mfg>")
    makers, models = lines[1:end], lines[end + 1:]
    if len(makers) % 2 or len(models) % 4:
        return ["a record is cut short: makers take two lines, models four"]

    faults = []
    ids, maker_names = set(), set()
    for at in range(0, len(makers), 2):
        name, number = makers[at:at + 2]
        where = f"line {at + 2}, {name}"
        faults += name_faults(where, name, maker_names, name.strip().lower())
        if not number.isascii() or not number.isdigit() or int(number) < 1 or int(number) in ids:
            faults.append(f"{where}: {number!r} is no id of its own")
        else:
            ids.add(int(number))

    names = set()
    for at in range(0, len(models), 4):
        name, maker, kind, price = models[at:at + 4]
        where = f"line {end + at + 2}, {name}"
        faults += name_faults(where, name, names, (kind, name.strip().lower()))
        if not (maker == "0" or maker.isdigit() and int(maker) in ids):
            faults.append(f"{where}: there is no maker {maker!r}")
        if not kind.isdigit() or int(kind) not in TYPES:
            faults.append(f"{where}: there is no type {kind!r}")
        if price != "0":
            faults.append(f"{where}: the price is {price!r}, not 0")
    return faults


def name_faults(where, name, seen, key):
    """Faults of one name; notes it as seen."""
    faults = []
    if not name.strip() or name != name.strip():
        faults.append(f"{where}: the name is blank or has blanks around it")
    if len(name) > LONGEST_NAME:
        faults.append(f"{where}: the name has {len(name)} characters, {LONGEST_NAME} is the most")
    if key in seen:
        faults.append(f"{where}: the name stands there twice")
    seen.add(key)
    return faults


if __name__ == "__main__":
    with open(sys.argv[1], "rb") as file:
        found = faults_of(file.read())
    for fault in found:
        print(fault)
    print(f"{sys.argv[1]}: {len(found)} faults")
    sys.exit(1 if found else 0)
