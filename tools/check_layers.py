#!/usr/bin/env python3
"""The include graph: every room includes only rooms below it, hosts only what is installed."""
import fnmatch
import re
from pathlib import PurePosixPath

import house

# Room -> the rooms it may include beside itself. The longest folder that fits names a file's room.
CORE = ("src/facade/contract", "src/facade/services", "src/rules")
BELOW = {
    "src/facade/contract": (),
    "src/facade/services": ("src/facade/contract",),
    "src/rules": CORE[:2],
    "src/kit": ("src/facade/services",),
    "src/facade/contract_tests": ("src/facade/contract",),
    "src/fonts": (*CORE, "src/kit"),
    "src/grids": (*CORE, "src/kit", "src/fonts"),
    "src/controls": (*CORE, "src/kit", "src/fonts"),
    "src/dialogs": (*CORE, "src/kit", "src/fonts", "src/grids", "src/controls"),
    "src/facade": (*CORE, "src/kit", "src/fonts", "src/grids", "src/controls", "src/dialogs"),
    "host/document": (),
    "host/fonts": ("host/document",),
    "host/import": ("host/document", "host/fonts"),
    "host/sample": ("host/document", "host/fonts", "host/import"),
    "host/window": ("host/document", "host/fonts", "host/import", "host/sample"),
    "apps": ("host/document", "host/fonts", "host/import", "host/sample", "host/window"),
    "designer": (*CORE, "src/kit", "src/controls"),
    "docs/examples": (),
}
# What the widgets of the kit may see of the rooms beside: drawings and the state of a view as data, no record.
ALSO = {"src/kit": ("src/facade/contract/DrawingObjects.h", "src/rules/GridState.h", "src/rules/ListViewColumns.h")}
OUTSIDE = ("host", "apps", "docs/examples")     # they use what any user of the library would
GPL_ROOMS = ("host/import", "host/fonts")
GPL_NAMES = re.compile(r"^(dxflib/|dl_\w+\.h$|hersheyfont)")
WIDGETS = re.compile(
    r"^(Qt(Gui|Widgets|PrintSupport|Sql)(/|$)|Q(Gui)?Application$|Q(Dialog|MainWindow|Painter|Pixmap|Image|Icon|Color|Font"
    r"|Pen|Brush|Picture|Action|Menu|Polygon|Transform|Layout|Frame|Label|Style|Palette|Printer|Screen|Cursor|Clipboard)"
    r"|Q\w*(Widget|View|Button|Box|Edit|Event|Delegate)s?$)")
CORE_EVENTS = {"QEvent", "QChildEvent", "QTimerEvent", "QDynamicPropertyChangeEvent"}


def room_of(path):
    fitting = [r for r in BELOW if path.startswith(r + "/")]
    return max(fitting, key=len, default=None)


def resolved(root, name):
    """Path of a project header, looked for where the compiler does; None = not the project's."""
    for base in ("src", "host", "apps", "designer", "docs/examples", "tests", "benchmarks"):
        if (root / base / name).is_file():
            return f"{base}/{name}"
    return None


def is_public(root, path):
    listing = root / "cmake/public_headers.txt"
    rows = listing.read_text(encoding="utf-8").splitlines() if listing.is_file() else []
    patterns = [r.split("#")[0].strip() for r in rows]
    inside = path.removeprefix("src/")
    return any(p and fnmatch.fnmatch(inside, p) and inside.count("/") == p.count("/") for p in patterns)


def upward(root, path, target):
    """Why `path` must not include `target`, with the better way; None = it may."""
    room, other = room_of(path), room_of(target)
    if other is None:
        return f"includes {target} of no known room", "give the folder a row in tools/check_layers.py"
    outside = any(path.startswith(o + "/") for o in OUTSIDE)
    if outside and target.startswith("src/"):
        return None if is_public(root, target) else (
            f"includes {target}, which is not installed",
            "use the public headers, or list this one in cmake/public_headers.txt")
    allowed = other == room or other in BELOW[room] or target in ALSO.get(room, ())
    return None if allowed else (
        f"{room} includes {target}", f"{other} is not below {room}: cut the way by an interface in src/facade/contract")


def check_file(root, path, text):
    room = room_of(path)
    for line, name, quoted in house.includes(text):
        if GPL_NAMES.match(name) and room not in GPL_ROOMS:
            yield line, f"includes <{name}>, which is under the GPL", "only host/import and host/fonts may link it"
        if room in CORE and WIDGETS.match(name) and name not in CORE_EVENTS:
            yield line, f"{room} includes <{name}>", "this room is Qt Core only: hand out data and draw it in src/kit"
        if not quoted:
            continue
        target = resolved(root, name)
        if target:
            reason = upward(root, path, target)
            if reason:
                yield line, *reason
        elif not name.endswith(".moc") and not re.match(r"(ui_|moc_)", name):
            yield line, f'cannot find "{name}"', 'write includes relative to src/ or host/, e.g. "facade/contract/Records.h"'


def closure_of_public(root):
    """A public header that includes one of the project's that is not installed breaks every user."""
    for path, text in house.files(root, ("src",), (".h",)):
        if not is_public(root, path):
            continue
        for line, name, _ in house.includes(text):
            target = resolved(root, name)
            if target and not is_public(root, target):
                yield house.Finding(path, line, f"installed header includes {target}, which is not installed",
                                    "declare the class forward, or list the header in cmake/public_headers.txt")


def dialogs_in_circles(root):
    """Sub-rooms of dialogs/ may use each other, but not in both directions."""
    seen = {}
    for path, text in house.files(root, ("src/dialogs",)):
        own = PurePosixPath(path).parts[2]
        for line, name, _ in house.includes(text):
            parts = PurePosixPath(name).parts
            if parts[0] == "dialogs" and len(parts) > 2 and parts[1] != own:
                seen.setdefault((own, parts[1]), (path, line))
    for (a, b), (path, line) in seen.items():
        if (b, a) in seen:
            yield house.Finding(path, line, f"dialogs/{a} and dialogs/{b} include each other",
                                "let one of them see an interface of src/facade/contract only")


def check(root):
    for path, text in house.files(root, ("src", "host", "apps", "designer", "docs/examples")):
        if room_of(path) is None:
            yield house.Finding(path, 1, "lies in no known room", "give the folder a row in tools/check_layers.py")
            continue
        for line, what, better in check_file(root, path, text):
            yield house.Finding(path, line, what, better)
    for path in (*root.glob("src/**/CMakeLists.txt"), *root.glob("apps/CMakeLists.txt")):
        for number, row in enumerate(path.read_text(encoding="utf-8").splitlines(), 1):
            if re.search(r"dxflib|hersheyfont", row):
                yield house.Finding(path.relative_to(root).as_posix(), number, "links a library under the GPL",
                                    "only host/import and host/fonts may")
    yield from closure_of_public(root)
    yield from dialogs_in_circles(root)


if __name__ == "__main__":
    house.main(check)
