# SPDX-FileCopyrightText: 2026 the tarnwidgets developers
# SPDX-License-Identifier: MIT

"""Reads the Markdown pages of the manual and the public headers, for the scripts that check and convert them."""

import pathlib
import re
from typing import NamedTuple

TOP = pathlib.Path(__file__).resolve().parent.parent


class Fence(NamedTuple):
    """A piece of code in a page or in a header's comment; line is that of its first line of code."""

    path: pathlib.Path
    line: int
    language: str
    note: str  # what the comment right before it says: "example: ..."
    text: str


def lines(path):
    """Each line with its kind: comment, heading, fence, code or text."""
    in_comment = in_code = False
    for line in path.read_text(encoding="utf-8").splitlines():
        if in_code:
            in_code = not line.startswith("```")
            yield line, "code" if in_code else "fence"
        elif in_comment or line.startswith("<!--"):
            in_comment = "-->" not in line
            yield line, "comment"
        elif line.startswith("```"):
            in_code = True
            yield line, "fence"
        elif re.match(r"#{1,6} ", line):
            yield line, "heading"
        else:
            yield line, "text"


def heading(line):
    """Level and title of a heading."""
    marks, title = line.split(" ", 1)
    return len(marks), title.strip()


def anchor(title):
    """What readers of Markdown call a heading in links."""
    return re.sub(r"[^\w\- ]", "", title.lower()).replace(" ", "-")


def anchors(path):
    return {anchor(heading(line)[1]) for line, kind in lines(path) if kind == "heading"}


def page_fences(path):
    """The pieces of code of a page."""
    note, language, first, code = "", None, 0, []
    for number, (line, kind) in enumerate(lines(path), start=1):
        if kind == "comment":
            match = re.fullmatch(r"<!-- (example: .*) -->", line)
            note = match.group(1) if match else note
        elif kind == "code":
            code.append(line)
        elif kind == "fence" and language is None:
            language, first, code = line[3:].strip(), number + 1, []
        elif kind == "fence":
            yield Fence(path, first, language, note, "\n".join(code))
            note, language = "", None
        elif line.strip():
            note = ""


def header_fences(path):
    """The pieces between \\code and \\endcode in a header's comments."""
    language, first, code, note = None, 0, [], ""
    for number, line in enumerate(path.read_text(encoding="utf-8").splitlines(), start=1):
        text = re.sub(r"^\s*\* ?", "", line)
        match = re.fullmatch(r"<!-- (example: .*) -->", text.strip())
        if match:
            note = match.group(1)
        elif text.startswith("\\code"):
            language, first, code = "cpp", number + 1, []
        elif text.startswith("\\endcode"):
            yield Fence(path, first, language, note, "\n".join(code))
            language, note = None, ""
        elif language is not None:
            code.append(text)


def library_headers(library="tarnwidgets"):
    """The headers that applications see, those that only some builds install included."""
    return [path for path in sorted((TOP / library).glob("*.h"))
            if not path.stem.endswith("_p") and re.search(r"^class TARN\w+_EXPORT", path.read_text("utf-8"), re.M)]


def public_classes():
    """Each exported class with its full name."""
    classes = {}
    for path in library_headers():
        text = path.read_text(encoding="utf-8")
        match = re.search(r"^namespace ([\w:]+) \{", text, re.MULTILINE)
        for name in re.findall(r"^class TARNWIDGETS_EXPORT (\w+)", text, re.MULTILINE):
            classes[name] = f"{match.group(1)}::{name}" if match else name
    return classes


def pages():
    """The pages for users: the README, the manual, the themes'."""
    return [TOP / "README.md", *sorted((TOP / "docs").glob("*.md")), TOP / "themes/README.md"]
