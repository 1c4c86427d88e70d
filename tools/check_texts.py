#!/usr/bin/env python3
"""Checks the string tables against each other and every Text in the code against the Hungarian table.

Run from the project root: python3 tools/check_texts.py
Prints one line per finding, "file:line: what – better way"; exits 1 on any finding.
Library texts are in strings/ (below 30000), those of the reference host in host/strings/ (30000 and above).
"""
import re
import sys
import unicodedata
from collections import Counter, namedtuple
from pathlib import Path

LANGUAGES = ("hu", "ro", "vi", "en")
FIRST_HOST_ID = 30000                           # below: texts of the library
CODE_FOLDERS = ("src", "host", "apps", "designer")
CODE_SUFFIXES = {".h", ".cpp", ".hpp", ".inl"}
ALL = ("ro", "vi", "en")

_QUOTED = "the English text is given without it"
_ORDINAL = "the Hungarian piece begins with the dot of the number before it, the others with a blank"
# (language, id): why the blanks at the ends may differ from the Hungarian text
BLANKS_DIFFER = {
    ("en", 3014): _QUOTED,
    ("en", 3029): _QUOTED,
    ("en", 3208): _QUOTED,
    **{(language, text_id): _ORDINAL for text_id in (3217, 3236, 3273, 20016) for language in ALL},
}
# (language, id): why the runs of dots may differ from the Hungarian text
DOTS_DIFFER = {("en", 3076): _QUOTED}

Entry = namedtuple("Entry", "line text")
ESCAPES = {"n": "\n", "t": "\t", "\\": "\\"}
findings = []


def finding(path, line, what, better):
    findings.append((str(path), line, f"{path}:{line}: {what} – {better}"))


def unescaped(raw):
    """The text of a table line, or None when a backslash is followed by anything but n, t or a backslash."""
    if re.search(r"\\(?![nt\\])", re.sub(r"\\\\", "", raw)):
        return None
    return re.sub(r"\\([nt\\])", lambda m: ESCAPES[m[1]], raw)


def read_table(path, in_range):
    """{id: Entry}; says what is wrong with the file itself."""
    table, last = {}, -1
    try:
        content = path.read_bytes().decode("utf-8")
    except (OSError, UnicodeDecodeError) as error:
        finding(path, 1, f"cannot be read ({error})", "write the table as UTF-8 text")
        return table
    if not content.endswith("\n"):
        finding(path, content.count("\n") + 1, "the last line has no line end",
                "end every line with a line feed")
    for number, line in enumerate(content.removesuffix("\n").split("\n"), 1):
        match = re.fullmatch(r"([1-9]\d*)\t(.*)", line, re.ASCII | re.DOTALL)
        if not match:
            finding(path, number, "not of the form identifier, tab, text",
                    "write id<TAB>text, no blank lines")
            continue
        text_id = int(match[1])
        check_line(path, number, match[2])
        if text_id in table:
            finding(path, number, f"identifier {text_id} is there twice",
                    f"keep one (first in line {table[text_id].line})")
        elif text_id < last:
            finding(path, number, f"identifier {text_id} after {last}", "sort the lines by identifier")
        if not in_range(text_id):
            finding(path, number, f"identifier {text_id} does not belong here",
                    f"below {FIRST_HOST_ID} in strings/, from {FIRST_HOST_ID} on in host/strings/")
        last = max(last, text_id)
        table.setdefault(text_id, Entry(number, unescaped(match[2]) or ""))
    return table


def check_line(path, number, raw):
    if unescaped(raw) is None:
        finding(path, number, "unknown escape", r"only \n, \t and \\ are escapes; write a backslash as \\")
    if not raw.strip():
        finding(path, number, "empty text", "write the text, or take the identifier out of all tables")
    if any(unicodedata.category(c) == "Cc" for c in raw):
        finding(path, number, "control character (tab, carriage return ...) in the text",
                r"write \t or \n, no others")
    if unicodedata.normalize("NFC", raw) != raw:
        finding(path, number, "letters with separate accents", "store the text in normal form C")
    if path.stem == "ro" and re.search("[şţŞŢ]", raw):
        finding(path, number, "s or t with a cedilla",
                "use the Romanian letters with a comma below: ș ț Ș Ț")


def end_blanks(text):
    return len(text) - len(text.lstrip()), len(text) - len(text.rstrip())


def dots(text):
    return Counter(re.findall(r"…|\.{2,}", text))


def placeholders(text):
    return Counter(re.findall(r"%L?\d+|%n|\{\w*\}", text))


RULES = (
    ("blanks at the ends differ from the Hungarian text", "give it the same blanks",
     end_blanks, BLANKS_DIFFER),
    ('"…", "..." or ".." differ from the Hungarian text', "use the same dots", dots, DOTS_DIFFER),
    ("placeholders differ from the Hungarian text", "keep every placeholder", placeholders, {}),
    ("line breaks differ from the Hungarian text", r"keep every \n", lambda t: t.count("\n"), {}),
    ("tabs differ from the Hungarian text", r"keep every \t", lambda t: t.count("\t"), {}),
    ('the number of "|" differs from the Hungarian text', 'keep every "|"',
     lambda t: t.count("|"), {}),
)


def compare_tables(folder, tables):
    hungarian = tables["hu"]
    for language in ALL:
        path, table = folder / f"{language}.tsv", tables[language]
        for text_id in sorted(hungarian.keys() - table.keys()):
            finding(path, 1 + sum(known < text_id for known in table), f"identifier {text_id} is missing",
                    f"translate \"{hungarian[text_id].text}\" and put it here")
        for text_id in sorted(table.keys() - hungarian.keys()):
            finding(path, table[text_id].line, f"identifier {text_id} is not in hu.tsv",
                    "add it there or drop it here")
        for text_id in sorted(table.keys() & hungarian.keys()):
            compare_texts(path, (language, text_id), hungarian[text_id].text, table[text_id])


def compare_texts(path, key, hungarian, other):
    for what, better, measure, exceptions in RULES:
        same = measure(hungarian) == measure(other.text)
        excepted = key in exceptions
        if excepted and same:
            finding(path, other.line, f"{key[1]}: an exception is listed, but not true: {what}",
                    "drop the exception from tools/check_texts.py")
        elif not excepted and not same:
            finding(path, other.line, f"{key[1]}: {what}", better)


TOKEN = re.compile(r"""
      (?P<comment> //(?:\\\n|[^\n])* | /\*.*?\*/ )
    | (?P<string> (?:u8|[uUL])? (?: R"(?P<delim>[^()\\\s"]*)\((?P<raw>.*?)\)(?P=delim)"
                                  | "(?P<plain>(?:\\.|[^"\\\n])*)" ) )
    | (?P<char> (?:u8|[uUL])?'(?:\\.[^'\n]*|[^'\\\n])' )
    | (?P<word> [A-Za-z_]\w* )
    | (?P<number> \d(?:'?[\w.])* )
    | (?P<other> \S )
""", re.VERBOSE | re.DOTALL)
Token = namedtuple("Token", "kind value line")
SIMPLE = {"n": "\n", "t": "\t", "r": "\r", "a": "\a", "b": "\b", "f": "\f", "v": "\v"}
C_ESCAPE = re.compile(r"\\(?:u([\da-fA-F]{4})|U([\da-fA-F]{8})|x([\da-fA-F]+)"
                      r"|([0-7]{1,3})|(\n)|(.))", re.DOTALL)


def c_text(literal):
    def one(m):
        hexadecimal = m[1] or m[2] or m[3]
        if hexadecimal:
            return chr(int(hexadecimal, 16))
        if m[4]:
            return chr(int(m[4], 8))
        return "" if m[5] else SIMPLE.get(m[6], m[6])
    return C_ESCAPE.sub(one, literal)


def tokens(source):
    """The source without comments; a string token's value is its text, its kind says whether it is u"..."."""
    out, line, at = [], 1, 0
    for m in TOKEN.finditer(source):
        line += source.count("\n", at, m.start())
        at = m.start()
        if m["comment"] is not None:
            continue
        if m["string"] is not None:
            text = m["raw"] if m["raw"] is not None else c_text(m["plain"])
            out.append(Token("u" if re.match(r'uR?"', m["string"]) else "plain", text, line))
        else:
            kind = next(k for k in ("char", "word", "number", "other") if m[k] is not None)
            out.append(Token(kind, m[kind], line))
    return out


def texts_of(source):
    """(line, id or name, Hungarian text) of every {id, u"text"}; adjacent literals are one text."""
    all_tokens = tokens(source)
    for i, opening in enumerate(all_tokens[:-4]):
        if opening.value not in ("{", "(") or opening.kind != "other":
            continue
        number, comma = all_tokens[i + 1], all_tokens[i + 2]
        named = any(t[:2] == ("word", "Text") for t in all_tokens[max(0, i - 2):i])
        if not re.fullmatch(r"[\d']+", number.value) and not (named and number.kind == "word"):
            continue
        if (opening.value == "(" and not named) or comma.value != "," or comma.kind != "other":
            continue
        end, pieces = i + 3, []
        while end < len(all_tokens) and all_tokens[end].kind in ("u", "plain"):
            pieces.append(all_tokens[end])
            end += 1
        trailing_comma = end < len(all_tokens) and all_tokens[end][:2] == ("other", ",")
        end += trailing_comma
        closing = ("other", "}" if opening.value == "{" else ")")
        closed = end < len(all_tokens) and all_tokens[end][:2] == closing
        if closed and any(p.kind == "u" for p in pieces):
            yield number.line, number, "".join(p.value for p in pieces)


def check_code(path, tables):
    try:
        source = path.read_text(encoding="utf-8")
    except UnicodeDecodeError as error:
        return finding(path, 1, f"not UTF-8 ({error})", "store the source as UTF-8")
    for line, number, text in texts_of(source):
        if number.kind == "word":
            finding(path, line, f"the identifier of \"{text}\" is the name {number.value}",
                    "write the number, so that the text can be checked")
            continue
        text_id = int(number.value.replace("'", ""))
        folder = "strings" if text_id < FIRST_HOST_ID else "host/strings"
        if path.parts[0] == "src" and text_id >= FIRST_HOST_ID:
            finding(path, line, f"identifier {text_id} of the host in the library",
                    f"take one below {FIRST_HOST_ID}")
        entry = tables.get(folder, {}).get("hu", {}).get(text_id)
        if entry is None:
            finding(path, line, f"identifier {text_id} (\"{text}\") is in no table",
                    f"add it to the tables in {folder}/")
        elif entry.text != text:
            finding(path, line,
                    f"{text_id} is \"{text}\" here, \"{entry.text}\" in {folder}/hu.tsv:{entry.line}",
                    "write the table's text to the letter, or take the right identifier")


def sources():
    for folder in CODE_FOLDERS:
        for path in sorted(Path(folder).rglob("*")):
            if path.suffix in CODE_SUFFIXES and path.is_file() and not path.is_symlink():
                yield path


def main():
    if not Path("strings").is_dir() or not Path("src").is_dir():
        sys.exit("no strings/ and src/ here: run it from the project root")
    tables = {}
    for folder in ("strings", "host/strings"):
        if folder == "strings" or Path(folder).is_dir():
            library = folder == "strings"
            tables[folder] = {language: read_table(Path(folder) / f"{language}.tsv",
                                                   lambda text_id: (text_id < FIRST_HOST_ID) == library)
                              for language in LANGUAGES}
            compare_tables(Path(folder), tables[folder])
    for path in sources():
        check_code(path, tables)
    for *_, message in sorted(set(findings)):
        print(message)
    verdict = f"{len(set(findings))} findings" if findings else "texts: all tables and sources agree"
    print(verdict, file=sys.stderr)
    return 1 if findings else 0


if __name__ == "__main__":
    sys.exit(main())
