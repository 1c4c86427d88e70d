#!/usr/bin/env python3
"""Proves that every check of the house fails where it must and passes where it may."""
import sys
import tempfile
from pathlib import Path

import check_layers
import check_names
import check_sizes
import check_words

LONG = "void longOne()\n{\n" + "    step();\n" * 40 + "}\n"
TABLE = "// table\nconstexpr int kRows[] = {\n" + "    1,\n" * 450 + "};\n"
PUBLIC = "facade/*.h\nfacade/contract/*.h\n"
NAMES = "class\tname\tkind\tstate\n"

# (check, files of a small project, what the only finding says; None = nothing is found)
CASES = (
    (check_layers, {"src/kit/A.cpp": '#include "grids/B.h"\n', "src/grids/B.h": ""}, "src/kit includes src/grids/B.h"),
    (check_layers, {"src/grids/A.cpp": '#include "kit/B.h"\n', "src/kit/B.h": ""}, None),
    (check_layers, {"src/grids/A.cpp": '#include "controls/B.h"\n', "src/controls/B.h": ""}, "src/grids includes"),
    (check_layers, {"src/controls/A.cpp": '#include "grids/B.h"\n', "src/grids/B.h": ""}, "src/controls includes"),
    (check_layers, {"src/kit/A.h": '#include "facade/contract/Records.h"\n', "src/facade/contract/Records.h": ""}, "src/kit includes"),
    (check_layers, {"src/facade/contract_tests/A.h": '#include "facade/services/T.h"\n', "src/facade/services/T.h": ""}, "src/facade/contract_tests"),
    (check_layers, {"src/rules/A.h": "#include <QPainter>\n"}, "<QPainter>"),
    (check_layers, {"src/rules/A.h": "// #include <QPainter>\n#include <QString>\n"}, None),
    (check_layers, {"src/facade/contract/A.h": "#include <QtGui/qcolor.h>\n"}, "<QtGui/qcolor.h>"),
    (check_layers, {"src/grids/A.cpp": '#include "B.h"\n', "src/grids/B.h": ""}, 'cannot find "B.h"'),
    (check_layers, {"src/odd/A.cpp": ""}, "no known room"),
    (check_layers, {"host/document/A.cpp": "#include <dxflib/dl_dxf.h>\n"}, "under the GPL"),
    (check_layers, {"host/import/A.cpp": "#include <dxflib/dl_dxf.h>\n"}, None),
    (check_layers, {"src/CMakeLists.txt": "target_link_libraries(a dxflib)\n"}, "links a library under the GPL"),
    (check_layers, {"host/window/A.cpp": '#include "rules/B.h"\n', "src/rules/B.h": ""}, "which is not installed"),
    (check_layers, {"apps/a.cpp": '#include "facade/B.h"\n', "src/facade/B.h": "", "cmake/public_headers.txt": PUBLIC}, None),
    (check_layers, {"src/facade/A.h": '#include "kit/B.h"\n', "src/kit/B.h": "", "cmake/public_headers.txt": PUBLIC},
     "installed header includes src/kit/B.h"),
    (check_layers, {"host/document/A.cpp": '#include "window/B.h"\n', "host/window/B.h": ""}, "host/document includes"),
    (check_layers, {"src/dialogs/a/A.h": '#include "dialogs/b/B.h"\n', "src/dialogs/b/B.h": ""}, None),
    (check_words, {"src/kit/grid/A.cpp": "QMessageBox::information(w, t, s);\n"}, "QMessageBox"),
    (check_words, {"src/kit/ask/A.cpp": "QMessageBox::information(w, t, s); QFileDialog d; QApplication::beep();\n"}, None),
    (check_words, {"src/grids/A.cpp": "// QMessageBox is forbidden\nconst char *s = \"QInputDialog\";\n"}, None),
    (check_words, {"host/window/A.cpp": "QFileDialog d;\n"}, "QFileDialog"),
    (check_words, {"host/window/A.cpp": "QInputDialog d;\n"}, "QInputDialog"),
    (check_words, {"src/grids/A.cpp": "QApplication::beep();\n"}, "beep("),
    (check_words, {"tests/A.cpp": "QCoreApplication::processEvents();\n"}, "processEvents"),
    (check_words, {"tests/A.cpp": "QTest::qWait(10);\n"}, "qWait("),
    (check_words, {"src/grids/A.cpp": "auto a = tr(\"x\");\n"}, "tr("),
    (check_words, {"src/grids/A.cpp": "auto a = str(1) + ptr(2);\n"}, None),
    (check_words, {"src/grids/A.h": "friend class tst_A;\n"}, "friend class tst_A"),
    (check_words, {"src/grids/A.h": "friend class Neighbour;\n"}, None),
    (check_words, {"src/grids/A.cpp": "connect(a, &A::b, this, SLOT(c()));\n"}, "SLOT("),
    (check_words, {"src/grids/A.cpp": "connect(a, SIGNAL(b()), c);\n"}, "SIGNAL("),
    (check_words, {"src/grids/A.cpp": "layout = header()->saveState();\n"}, "saveState"),
    (check_words, {"tests/A.cpp": "#include <QtTest>\n"}, "<QtTest>"),
    (check_words, {"tests/A.cpp": "#include <QtTest/qtestcase.h>\n"}, None),
    (check_words, {"src/rules/A.cpp": "using namespace std;\n"}, "using namespace std"),
    (check_words, {"src/rules/A.cpp": "void handleClick();\n"}, "handleClick("),
    (check_words, {"src/rules/A.cpp": "void processRows();\n"}, "processRows("),
    (check_words, {"src/rules/A.cpp": "void doIt();\n"}, "doIt("),
    (check_words, {"src/rules/A.cpp": "bool bDoShow(); void doSelect_Lay(); void done();\n"}, None),
    (check_words, {"src/rules/A.h": "class RowHelper {};\n"}, "RowHelper"),
    (check_words, {"docs/a.md": "see /" + "home/me/x\n"}, "a path of one machine"),
    (check_words, {"src/rules/A.cpp": "open(\"/" + "tmp/x\");\n"}, "a path of one machine"),
    (check_words, {"docs/a.md": "see https://example.org/" + "home/x and out/" + "tmp/x\n"}, None),
    (check_sizes, {"src/rules/A.cpp": LONG}, "longOne has 42 lines"),
    (check_sizes, {"src/rules/A.cpp": "namespace n {\n" + LONG.replace("step", "s", 1) + "}\n"}, "longOne has 42 lines"),
    (check_sizes, {"src/rules/A.cpp": LONG.replace("    step();\n", "", 2)}, None),
    (check_sizes, {"src/rules/A.cpp": "class A {\n" + "    int a;\n" * 50 + "};\n"}, None),
    (check_sizes, {"src/rules/A.cpp": "Q_DECLARE_METATYPE(X)\nclass A {\n" + "    int a;\n" * 50 + "};\n"}, None),
    (check_sizes, {"src/rules/A.cpp": "int a;\n" * 401}, "401 lines without tables"),
    (check_sizes, {"src/rules/A.h": "int a;\n" * 201}, "201 lines without tables"),
    (check_sizes, {"src/rules/A.cpp": TABLE, "src/rules/B.h": TABLE}, None),
    (check_sizes, {"src/rules/A.cpp": TABLE.replace("// table", "// rows")}, "lines without tables"),
    (check_sizes, {"src/rules/A.cpp": "// " + "ő" * 107 + "\n"}, None),
    (check_sizes, {"src/rules/A.cpp": "// " + "x" * 108 + "\n"}, "111 columns"),
    (check_names, {"src/grids/A.h": "class A { int f(); };\n", check_names.TABLE: NAMES + "A\tf\tmethod\tnow\n"}, None),
    (check_names, {"src/grids/A.h": "class A { int F(); };\n", check_names.TABLE: NAMES + "A\tf\tmethod\tnow\n"}, "method f"),
    (check_names, {"src/grids/A.h": "class A {};\n", check_names.TABLE: NAMES + "A\tf\tmethod\tlater\n"}, None),
    (check_names, {"src/grids/B.h": "class B {};\n", check_names.TABLE: NAMES + "A\tf\tmethod\tnow\n"}, "class A is gone"),
    (check_names, {"src/grids/A.h": "class A { int P() const; };\n", check_names.TABLE: NAMES + "A\tP\tproperty\tnow\n"}, "property P"),
    (check_names, {"src/grids/A.h": "class B { int P(); void setP(int); };\nclass A : public B {};\n",
                   check_names.TABLE: NAMES + "A\tP\tproperty\tnow\n"}, None),
    (check_names, {"src/grids/A.h": "class A {}; // miFind\n", check_names.TABLE: NAMES + "A\tmiFind\ttool\tnow\n"}, "tool miFind"),
    (check_names, {"src/grids/A.h": "class A {};\n", "src/grids/A.cpp": 'Tool t{"miFind"};\n',
                   check_names.TABLE: NAMES + "A\tmiFind\ttool\tnow\n"}, None),
)
CIRCLE = {"src/dialogs/a/A.h": '#include "dialogs/b/B.h"\n', "src/dialogs/b/B.h": '#include "dialogs/a/A.h"\n'}


def findings(check, files):
    with tempfile.TemporaryDirectory() as folder:
        for path, text in files.items():
            target = Path(folder) / path
            target.parent.mkdir(parents=True, exist_ok=True)
            target.write_text(text, encoding="utf-8")
        return [f for f in check.check(Path(folder)) if f.fails]


def verdict(check, files, wanted):
    found = findings(check, files)
    if wanted is None:
        return not found, found
    return len(found) == 1 and wanted in found[0].what, found


def main():
    failed = 0
    for check, files, wanted in CASES:
        right, found = verdict(check, files, wanted)
        if not right:
            failed += 1
            print(f"FAIL {check.__name__}: {files}\n     wanted: {wanted}\n     found: {[str(f) for f in found]}")
    if len(findings(check_layers, CIRCLE)) != 2:
        failed += 1
        print("FAIL check_layers: two sub-rooms of dialogs that include each other")
    print(f"{len(CASES) + 1} cases, {failed} failed")
    sys.exit(1 if failed else 0)


if __name__ == "__main__":
    main()
