#!/usr/bin/env python3
"""Published names stand in the code to the letter. `--mark` turns what is found in the table into `now`."""
import re
import sys
from pathlib import Path

import house

TABLE = "tools/published_names.tsv"
LITERALS = ("tool", "band", "column", "setting", "image", "layout", "style", "drag", "file", "late")
ANYWHERE = ("value", "-")                      # kinds and classes that have no header of their own


def rows_of(root):
    """(line number, class, name, kind, state) of every row."""
    for number, line in enumerate((root / TABLE).read_text(encoding="utf-8").splitlines(), 1):
        if line and not line.startswith("#") and not line.startswith("class\t"):
            yield number, *line.split("\t")


class Sources:
    def __init__(self, root):
        self.texts = dict(house.files(root, ("src",)))
        self.literals = {path: house.string_literals(text) for path, text in self.texts.items()}
        self.code = {path: house.code_only(text) for path, text in self.texts.items()}
        self._types = {}
        for path in sorted(self.code):
            if path.endswith(".h"):
                for m in re.finditer(r"\b(?:class|struct)\s+(?:\w+_EXPORT\s+)?(\w+)(?:\s+final)?\s*[:{]", self.code[path]):
                    self._types.setdefault(m.group(1), path)
                for m in re.finditer(r"\busing\s+(\w+)\s*=", self.code[path]):
                    self._types.setdefault(m.group(1), path)

    def header_of(self, type_name):
        return self._types.get(type_name)

    def with_bases(self, type_name, seen=()):
        """Code of the class and of the project's classes it derives from."""
        path = self.header_of(type_name)
        if path is None or type_name in seen:
            return ""
        code = self.code[path]
        m = re.search(rf"\b(?:class|struct)\s+{type_name}\b[^;{{]*?(:[^{{;]*)?{{", code)
        own = _body(code, m.end()) if m else code
        bases = re.findall(r"\w+", m.group(1) or "") if m else ()
        return own + "".join(self.with_bases(b, (*seen, type_name)) for b in bases)

    def has_literal(self, name, part=False):
        ends = (f"{name}", f":/{name}")
        return any(l in ends or (part and name in l) for all_ in self.literals.values() for l in all_)


def _body(code, start):
    depth = 1
    for i in range(start, len(code)):
        depth += {"{": 1, "}": -1}.get(code[i], 0)
        if depth == 0:
            return code[start:i]
    return code[start:]


def stands(sources, class_name, name, kind):
    """Whether the published name is there, declared as its kind wants it."""
    if kind in LITERALS:
        return sources.has_literal(name, part=kind in ("setting", "file", "drag", "column"))
    if kind in ANYWHERE:
        return any(re.search(rf"\b{name}\b", c) for c in sources.code.values())
    if kind in ("class", "record"):
        return sources.header_of(name) is not None
    code = sources.with_bases(class_name)
    word = rf"(?<!\w){name}"
    if kind in ("method", "event", "read-only"):
        return bool(re.search(rf"{word}\s*\(", code))
    if kind == "write-only":
        return bool(re.search(rf"\bset{name}\s*\(", code))
    if kind == "property":
        return bool(re.search(rf"{word}\s*\(", code) and re.search(rf"\bset{name}\s*\(", code))
    if kind == "bag":
        return bool(re.search(rf"Q_PROPERTY\s*\([^)]*{word}\b", code)) or sources.has_literal(name)
    return bool(re.search(rf"{word}\b", code)) or (kind == "control" and sources.has_literal(name))


def check(root):
    sources = Sources(root)
    skipped, waiting = set(), 0
    for line, class_name, name, kind, state in rows_of(root):
        if class_name not in ANYWHERE and kind not in ANYWHERE and sources.header_of(class_name) is None:
            if state == "now":
                yield house.Finding(TABLE, line, f"class {class_name} is gone", "bring the published class back")
            skipped.add(class_name)
        elif state == "later":
            waiting += 1
        elif not stands(sources, class_name, name, kind):
            yield house.Finding(TABLE, line, f"{class_name}: {kind} {name} is not in src/",
                                "declare it to the letter (property P: P() and setP(); tools and bands as literals)")
    print(f"{len(skipped)} classes not there yet; {waiting} names of existing classes marked `later`")


def mark(root):
    sources = Sources(root)
    path = root / TABLE
    lines = path.read_text(encoding="utf-8").splitlines()
    for number, class_name, name, kind, _ in rows_of(root):
        there = class_name in ANYWHERE or kind in ANYWHERE or sources.header_of(class_name) is not None
        if there and stands(sources, class_name, name, kind):
            lines[number - 1] = f"{class_name}\t{name}\t{kind}\tnow"
    path.write_text("\n".join(lines) + "\n", encoding="utf-8")


if __name__ == "__main__":
    if "--mark" in sys.argv:
        mark(Path(__file__).resolve().parent.parent)
    else:
        house.main(check)
