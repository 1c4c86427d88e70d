#!/usr/bin/env python3
"""Sizes that still read well: functions, files and lines. Data tables are excepted by a comment `// table`."""
import re

import house

FUNCTION, SOURCE, HEADER, COLUMNS = 40, 400, 200, 110
TABLE = re.compile(r"//+<?\s*table\b")
TYPE = re.compile(r"\b(namespace|class|struct|union|enum|extern)\b")


def _without_template_head(header):
    """Drops `template <...>`, whose parameters may say `class`."""
    m = re.match(r"\s*template\s*<", header)
    depth, i = 1, m.end() if m else 0
    while m and depth and i < len(header):
        depth += {"<": 1, ">": -1}.get(header[i], 0)
        i += 1
    return _without_template_head(header[i:]) if m else header


def kind_of(header, outer):
    """What a brace opens that stands behind `header` in a scope of kind `outer`."""
    if outer in ("function", "block"):
        return "block"
    header = re.sub(r"\b(Q_[A-Z_]+|QVDC_\w+)\b(\s*\([^()]*\))?", "", header)
    header = _without_template_head(re.sub(r"\b(public|protected|private|signals|(public|private) slots)\s*:(?!:)", "", header))
    if header.rstrip().endswith(("=", "(", ",", "return")):
        return "block"
    before = header.split("(")[0]
    if TYPE.search(before) and (")" not in header or "alignas" in header or "decltype" in header):
        return "type"
    return "function" if "(" in header else "block"


def blocks(text):
    """(kind, first line, last line, header) of every outermost block and every function."""
    code = re.sub(r"(?m)^[ \t]*#(?:[^\n]*\\\n)*[^\n]*", lambda m: re.sub(r"[^\n]", " ", m.group(0)), house.code_only(text))
    stack, start, line = [], 0, 1
    for i, c in enumerate(code):
        if c == "\n":
            line += 1
        elif c == "{":
            outer = stack[-1][0] if stack else "type"
            stack.append((kind_of(code[start:i], outer), line, code[start:i].strip(), outer))
        elif c == "}" and stack:
            kind, first, header, outer = stack.pop()
            if kind == "function" or (kind == "block" and outer == "type"):
                yield kind, first, line, header
        if c in ";{}":
            start = i + 1


def table_lines(text, found):
    """Lines that belong to a block marked `// table`, at its first line or the one before."""
    marked = {n for n, row in enumerate(text.splitlines(), 1) if TABLE.search(row)}
    lines = set()
    for _, first, last, header in found:
        head = range(first - header.count("\n") - 1, first + 1)
        if marked.intersection(head):
            lines.update(range(first, last + 1))
    return lines


def file_findings(path, text):
    fails = path.startswith(tuple(p + "/" for p in house.PRODUCT))
    found = list(blocks(text))
    tables = table_lines(text, found)
    for kind, first, last, header in found:
        length = last - first + 1
        if kind == "function" and length > FUNCTION and first not in tables:
            name = re.search(r"([\w:~]+)\s*\(", header)
            yield house.Finding(path, first, f"{name.group(1) if name else 'a function'} has {length} lines",
                                f"at most {FUNCTION}: name its steps", fails)
    rows = text.splitlines()
    limit = HEADER if path.endswith(".h") else SOURCE
    if len(rows) - len(tables) > limit:
        yield house.Finding(path, limit, f"{len(rows) - len(tables)} lines without tables",
                            f"at most {limit}: a rule, a widget or a second thing is hiding here", fails)
    for number, row in enumerate(rows, 1):
        if len(row) > COLUMNS:
            yield house.Finding(path, number, f"{len(row)} columns", f"at most {COLUMNS}: break the line", fails)


def check(root):
    for path, text in house.files(root, (*house.PRODUCT, *house.BESIDE)):
        yield from file_findings(path, text)


if __name__ == "__main__":
    house.main(check)
