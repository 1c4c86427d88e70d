#!/usr/bin/env python3
"""Words that must not stand in the code, each with what to write instead."""
import re

import house

EVERYWHERE = (*house.PRODUCT, *house.BESIDE)
# (pattern, where it is forbidden, where it may stand all the same, the better way). Comments and strings do not count.
WORDS = (
    (r"\bQ(Message|ErrorMessage)Box\b|\bQErrorMessage\b", EVERYWHERE, ("src/kit/ask/", "tests/"), "prompts().tell() or .yesNo()"),
    (r"\bQFileDialog\b", EVERYWHERE, ("src/kit/ask/", "tests/"), "prompts().openFile() or .saveFile()"),
    (r"\bQInputDialog\b", EVERYWHERE, ("src/kit/ask/", "tests/"), "prompts(), or a form of dialogs/values"),
    (r"\bbeep\s*\(", EVERYWHERE, ("src/kit/ask/",), "disable the command, or tell why through prompts()"),
    (r"\bprocessEvents\b", EVERYWHERE, (), "repaint() or update(); a test sends the event"),
    (r"\bqWait(For)?\s*\(|\bQTest::qSleep\b|\bsleep_for\b", EVERYWHERE, (), "send the event, or QTRY_ on a state"),
    (r"(?<!\w)tr\s*\(", EVERYWHERE, (), "txt(Text{id, u\"...\"}) and the string tables"),
    (r"\bfriend\s+(class|struct)\s+(::)?(tst_\w*|\w*Test\w*)", EVERYWHERE, (), "test through the public surface"),
    (r"\b(SIGNAL|SLOT)\s*\(", EVERYWHERE, (), "connect(sender, &Sender::event, ...)"),
    (r"\bQHeaderView::saveState\b|\bheader\(\)\s*->\s*(save|restore)State\b", EVERYWHERE, (), "the layout file of kit/grid"),
    (r"#\s*include\s*<(QtWidgets|QtCore|QtTest|QtGui|bits/stdc\+\+\.h)>", EVERYWHERE, (), "the single headers that are used"),
    (r"\busing\s+namespace\s+std\b", EVERYWHERE, (), "std:: at each name"),
    (r"\b(handle|process|do)[A-Z]\w*\s*\(", house.PRODUCT, (), "a name that says the result or the act"),
    (r"\b(?!Q)\w*(Helper|Utils?)\b", house.PRODUCT, (), "name the thing, or make it a free function where it is used"),
)
# Published names, and those that a base class of a library prescribes.
EXCEPTIONS = re.compile(r"^(doSelect\w*|processCodeValuePair|doItemsLayout)\s*\(")
PATHS = re.compile(r"(?<![\w.~}$*/-])/(?:[w]ork|home|root|tmp)/")
TEXTS = (*house.CPP, ".txt", ".cmake", ".sh", ".md", ".json", ".tsv", ".in")


def code_findings(path, text):
    code = house.code_only(text)
    for pattern, where, except_in, better in WORDS:
        if not path.startswith(tuple(w + "/" for w in where)) or path.startswith(except_in or ("\0",)):
            continue
        for m in re.finditer(pattern, code):
            if not EXCEPTIONS.match(m.group(0)):
                yield house.Finding(path, house.line_of(code, m.start()), f"'{m.group(0).strip()}'", f"write {better}")


def path_findings(path, text):
    for m in PATHS.finditer(text):
        yield house.Finding(path, house.line_of(text, m.start()), f"a path of one machine: {m.group(0)}",
                            "a path relative to the project, a setting, or QTemporaryDir in tests")


def check(root):
    for path, text in house.files(root, EVERYWHERE):
        yield from code_findings(path, text)
    for path, text in house.files(root, (*EVERYWHERE, "cmake", "docs", "strings"), TEXTS):
        yield from path_findings(path, text)
    for name in ("run", "test", "bench", ".ci/run", "CMakeLists.txt", "CMakePresets.json", "README.md", "tools/prepare.sh"):
        if (root / name).is_file():
            yield from path_findings(name, (root / name).read_text(encoding="utf-8"))


if __name__ == "__main__":
    house.main(check)
