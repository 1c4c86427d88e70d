"""What the checks of the house share: files, C++ without comments, findings and how they are printed."""
import re
import sys
from dataclasses import dataclass
from pathlib import Path

PRODUCT = ("src", "host", "apps", "designer")
BESIDE = ("tests", "benchmarks", "docs/examples")
CPP = (".h", ".cpp")


@dataclass(frozen=True, order=True)
class Finding:
    path: str
    line: int
    what: str
    better: str
    fails: bool = True

    def __str__(self):
        kind = "" if self.fails else "warning: "
        return f"{self.path}:{self.line}: {kind}{self.what} -- {self.better}"


def files(root, tops, suffixes=CPP):
    """Files below the folders `tops` of `root`, as (path relative to root with slashes, text)."""
    for top in tops:
        for path in sorted((root / top).rglob("*")):
            if path.suffix in suffixes and path.is_file():
                yield path.relative_to(root).as_posix(), path.read_text(encoding="utf-8")


_TOKENS = re.compile(
    r'//[^\n]*|/\*.*?\*/|(?P<raw>R"(?P<d>[^(\s]*)\(.*?\)(?P=d)")'
    r"|(?P<str>\"(?:\\.|[^\"\\\n])*\")|(?P<chr>(?<![0-9a-fA-F])'(?:\\.|[^'\\\n])+')", re.S)


def _blank(text):
    return re.sub(r"[^\n]", " ", text)


def without_comments(text, keep_strings=True):
    """The same text, line by line, with comments (and strings' contents) replaced by blanks."""
    def replaced(m):
        token = m.group(0)
        if token.startswith("/"):
            return _blank(token)
        return token if keep_strings else token[0] + _blank(token[1:-1]) + token[-1]
    return _TOKENS.sub(replaced, text)


def code_only(text):
    return without_comments(text, keep_strings=False)


def includes(text):
    """(line number, name, whether in quotes) of every #include."""
    for number, line in enumerate(without_comments(text).splitlines(), 1):
        m = re.match(r'\s*#\s*include\s*(["<])([^">]+)[">]', line)
        if m:
            yield number, m.group(2), m.group(1) == '"'


def string_literals(text):
    return {m.group(0)[1:-1] for m in _TOKENS.finditer(text) if m.group("str")}


def line_of(text, position):
    return text.count("\n", 0, position) + 1


def main(check):
    """Runs `check(root)` on the project, or on the folder given; ends with 1 when something fails."""
    root = Path(sys.argv[1]) if len(sys.argv) > 1 else Path(__file__).resolve().parent.parent
    found = sorted(set(check(root)))
    for finding in found:
        print(finding)
    failures = sum(f.fails for f in found)
    print(f"{failures} findings, {len(found) - failures} warnings")
    sys.exit(1 if failures else 0)
