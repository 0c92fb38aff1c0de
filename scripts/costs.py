# SPDX-FileCopyrightText: 2026 the tarnwidgets developers
# SPDX-License-Identifier: MIT

"""What scripts/benchmark has counted: the table, its comparison with the kept one, and the manual's page.

Usage: python3 scripts/costs.py table|update FOLDER
       python3 scripts/costs.py check FOLDER [NAME...]
"""

import pathlib
import re
import subprocess
import sys
from typing import NamedTuple, Optional

TOP = pathlib.Path(__file__).resolve().parent.parent
REFERENCE = TOP / "benchmarks/reference.tsv"
PAGE = TOP / "docs/costs.md"
ALLOWED = 1.03  # by how much a ratio may differ from the kept one
PACKAGES = ("libqt5widgets5", "g++", "libc6")  # those whose versions have a say in the ratios
HEAP_GOAL = 1.05  # for a byte of the limit
HEAP_WORK = {
    "heap-dialog": "empty frameless dialog", "heap-message": "message box with a text and OK",
    "heap-message-full": "message box with icon, informative and detailed text", "heap-color": "colour dialog",
    "heap-pages": "tab widget with 5 pages", "heap-address": "IPv4 editor",
    "heap-limited": "limited file dialog on an empty folder"}
PROCESS = ("process", 1.03, "a whole process that shows one message box")


class Row(NamedTuple):
    """What one step takes; the limit is that of our widgets without their logic, where there is one."""

    name: str
    ours: float
    qt: float
    limit: Optional[float]
    goal: float
    work: str

    def ratio(self):
        return self.ours / self.qt

    def limit_ratio(self):
        return f"{self.limit / self.qt:.2f}" if self.limit else ""

    def is_met(self):
        return round(self.ratio(), 3) <= self.goal


class Heap(NamedTuple):
    """What a widget has of the heap while it is open: bytes and blocks of ours, Qt's and the limit."""

    name: str
    ours: int
    qt: int
    limit: Optional[int]
    ours_blocks: int
    qt_blocks: int
    limit_blocks: Optional[int]
    kept: int  # more blocks of ours than of Qt's after some have come and gone

    def is_met(self):
        return not self.limit or round(self.ours / self.limit, 3) <= HEAP_GOAL


class Allocations(NamedTuple):
    ours: float
    qt: float
    may_be_more: bool


def totals(folder):
    """The instructions of each of callgrind's dumps, by scenario and side."""
    counted = {}
    for path in sorted(folder.glob("*.dump*")):
        text = path.read_text("utf-8", "replace")
        label = re.search(r"^desc: Trigger: Client Request: (.*)$", text, re.MULTILINE)
        total = re.search(r"^totals: (\d+)", text, re.MULTILINE)
        if total:
            counted[label.group(1) if label else path.stem] = int(total.group(1))
    return counted


def measured(folder):
    """The rows, and the allocations by their names."""
    counted, rows, allocations = totals(folder), [], {}
    for path in sorted(folder.glob("bench_*.rows")):
        for line in path.read_text("utf-8").splitlines():
            name, steps, goal, may, allocated, allocated_by_qt, work = line.split("\t")
            empty = counted.get(f"{name} empty", 0)
            step = {side: (counted[f"{name} {side}"] - empty) / int(steps)
                    for side in ("ours", "qt", "limit") if f"{name} {side}" in counted}
            rows.append(Row(name, step["ours"], step["qt"], step.get("limit"), float(goal), work))
            allocations[name] = Allocations(float(allocated), float(allocated_by_qt), may == "any")
    if "wholeprocess_frameless" in counted:
        name, goal, work = PROCESS
        rows.append(Row(name, counted["wholeprocess_frameless"], counted["wholeprocess_plain"], None, goal, work))
    if not rows:
        sys.exit("There is no benchmark of that name.")
    return rows, allocations


def measured_heap(folder):
    sides = {}
    path = folder / "heap.rows"
    for line in path.read_text("utf-8").splitlines() if path.exists() else []:
        name, side, blocks, size, left = line.split("\t")
        sides.setdefault(name, {})[side] = int(size), int(blocks), int(left)
    return [Heap(name, *(side.get(which, (None,) * 3)[i] for i in (0, 1) for which in ("ours", "qt", "limit")),
                 side["ours"][2] - side["qt"][2]) for name, side in sides.items()]


def versions():
    """Package and version of each of those that have a say."""
    output = subprocess.run(["dpkg-query", "-W", "-f", "${Package} ${Version} ${Architecture}\n", *PACKAGES],
                            stdout=subprocess.PIPE, text=True, check=False).stdout
    return sorted(set(output.splitlines()))


def kept():
    """The kept rows, those of the heap, and what they were measured with."""
    lines = REFERENCE.read_text("utf-8").splitlines()
    rows, heaps = [], []
    for line in lines:
        if line.startswith("heap-"):
            name, *numbers = line.split("\t")
            heaps.append(Heap(name, *(int(number) if number else None for number in numbers)))
        elif line and not line.startswith("#"):
            name, ours, qt, limit, goal, work = line.split("\t")
            rows.append(Row(name, float(ours), float(qt), float(limit) if limit else None, float(goal), work))
    return rows, heaps, [line[len("# with "):] for line in lines if line.startswith("# with ")]


def keep(rows, heaps):
    head = ["# SPDX-FileCopyrightText: 2026 the tarnwidgets developers", "# SPDX-License-Identifier: MIT",
            "# Written by scripts/benchmark --update: name, instructions of ours, Qt's and the limit, goal, work;",
            "# of the heap: name, bytes of ours, Qt's and the limit, blocks of these, blocks that only ours keeps."]
    head += [f"# with {version}" for version in versions()]
    lines = ["\t".join([row.name, f"{row.ours:.0f}", f"{row.qt:.0f}", f"{row.limit:.0f}" if row.limit else "",
                        f"{row.goal:g}", row.work]) for row in rows]
    lines += ["\t".join("" if value is None else str(value) for value in heap) for heap in heaps]
    REFERENCE.write_text("\n".join(head + lines) + "\n", "utf-8")


def print_table(rows, allocations):
    print(f"{'':20} {'ours':>10} {'Qt':>10} {'ratio':>6} {'limit':>6} {'goal':>6}  {'':7} allocations, ours and Qt")
    missed = 0
    for row in rows:
        ours, qt, may_be_more = allocations.get(row.name, Allocations(0, 0, True))
        is_met = row.is_met() and (may_be_more or ours <= qt)
        missed += not is_met
        print(f"{row.name:20} {row.ours:10.0f} {row.qt:10.0f} {row.ratio():6.3f} {row.limit_ratio():>6} "
              f"{row.goal:6.2f}  {'met' if is_met else 'MISSED':7} {ours:6.2f} {qt:6.2f}  {row.work}")
    return missed > 0


def is_large(name):
    """Left out of the check, as benchmark.h tells."""
    return name.endswith(("-1000", "-large"))


def check(rows, names):
    """Whether a ratio of those named is worse than the kept one, or the tables do not have the same rows."""
    reference, _, made_with = kept()
    if versions() != made_with:
        print("benchmarks/reference.tsv was made with other packages. Another Qt or compiler gives other ratios:\n"
              "where a row differs, run --update on an unchanged tree first. Kept, then here:",
              *made_with, "and", *versions(), sep="\n    ")
    before = {row.name: row for row in reference if not is_large(row.name) and (not names or row.name in names)}
    now = {row.name: row for row in rows}
    failed = False
    for name in sorted({*before, *now, *names}):
        if name not in before or name not in now:
            print(f"{name}: {'not in the reference' if name in now else 'no such benchmark any more'}")
            failed = True
            continue
        change = now[name].ratio() / before[name].ratio()
        verdict = "WORSE" if change > ALLOWED else "better" if change < 1 / ALLOWED else ""
        failed |= change > ALLOWED
        print(f"{name:20} {before[name].ratio():6.3f} {now[name].ratio():6.3f} {100 * (change - 1):+6.2f} %  {verdict}")
        if verdict == "better":
            print(f"{'':20} scripts/benchmark --update keeps it so")
    print("FAILED: dearer than benchmarks/reference.tsv says" if failed else "None is dearer by more than 3 %.")
    return failed


def cost_table():
    rows, _, _ = kept()
    lines = ["| Row | A step is | Ours | Qt's | Ratio | Limit | Goal | |", "|---|---|---|---|---|---|---|---|"]
    lines += [f"| `{row.name}` | {row.work} | {row.ours:.0f} | {row.qt:.0f} | {row.ratio():.3f} | "
              f"{row.limit_ratio()} | {row.goal:.2f} | {'met' if row.is_met() else 'missed'} |" for row in rows]
    return lines


def heap_table():
    _, heaps, _ = kept()
    lines = ["| Row | Open is | Ours | Qt's | Limit | Ours to limit | Goal | |", "|---|---|---|---|---|---|---|---|"]
    for heap in heaps:
        limit = f"{heap.limit} in {heap.limit_blocks}" if heap.limit else ""
        ratio = f"{heap.ours / heap.limit:.3f}" if heap.limit else ""
        lines.append(f"| `{heap.name}` | {HEAP_WORK[heap.name]} | {heap.ours} in {heap.ours_blocks} | "
                     f"{heap.qt} in {heap.qt_blocks} | {limit} | {ratio} | {HEAP_GOAL if heap.limit else ''} | "
                     f"{('met' if heap.is_met() else 'missed') if heap.limit else ''} |")
    return lines


def page():
    """The page with its tables as they are kept."""
    text = PAGE.read_text("utf-8")
    for name, table in (("costs", cost_table()), ("heap", heap_table())):
        mark = f"<!-- table: {name} -->\n"
        begin = text.index(mark) + len(mark)
        end = text.index("<!-- end of table -->", begin)
        text = text[:begin] + "\n" + "\n".join(table) + "\n\n" + text[end:]
    return text


def findings():
    """What the page lacks, or has too much."""
    rows, heaps, _ = kept()
    text = PAGE.read_text("utf-8")
    missed = {row.name for row in [*rows, *heaps] if not row.is_met()}
    explained = set(re.findall(r"`([\w-]+)`", "".join(re.findall(r"^- (`[^:]*):", text, re.MULTILINE))))
    return ([f"misses its goal without an explanation: {name}" for name in sorted(missed - explained)]
            + [f"explained, but meets its goal: {name}" for name in sorted(explained - missed)]
            + ([] if text == page() else ["the tables are not those of benchmarks/reference.tsv"]))


BAR_HEIGHT, LEFT, UNIT, RIGHT = 18, 170, 230, 3.2


def bar(index, row):
    """A bar as long as the ratio, and a mark at the goal."""
    top = 40 + index * BAR_HEIGHT
    middle, end = top + BAR_HEIGHT / 2 + 3, LEFT + UNIT * row.ratio()
    color = "#3b7dd8" if row.is_met() else "#d8763b"
    goal = LEFT + UNIT * row.goal
    return (f'<text x="{LEFT - 8}" y="{middle}" text-anchor="end">{row.name}</text>'
            f'<rect x="{LEFT}" y="{top + 2}" width="{end - LEFT:.1f}" height="{BAR_HEIGHT - 5}" fill="{color}"/>'
            f'<rect x="{goal - 1:.1f}" y="{top}" width="2" height="{BAR_HEIGHT - 1}" fill="#222"/>'
            f'<text x="{max(end, goal) + 6:.1f}" y="{middle}">{row.ratio():.2f}</text>')


def picture():
    rows, _, _ = kept()
    width, height = LEFT + UNIT * RIGHT, 50 + BAR_HEIGHT * len(rows)
    scale = "".join(f'<line x1="{LEFT + UNIT * i}" y1="36" x2="{LEFT + UNIT * i}" y2="{height - 8}" stroke="#bbb"/>'
                    f'<text x="{LEFT + UNIT * i}" y="30" text-anchor="middle">{i}{" (Qt)" if i == 1 else ""}</text>'
                    for i in range(4) if i < RIGHT)
    return (f'<svg xmlns="http://www.w3.org/2000/svg" width="{width}" height="{height}" font-family="DejaVu Sans" '
            f'font-size="11"><rect width="100%" height="100%" fill="white"/>'
            f'<text x="{LEFT}" y="14">Instructions of ours for one of Qt&#8217;s; the mark is the goal, '
            f'orange has missed it</text>'
            f'{scale}{"".join(bar(i, row) for i, row in enumerate(rows))}</svg>\n')


def main():
    mode, folder = sys.argv[1], pathlib.Path(sys.argv[2])
    rows, allocations = measured(folder)
    if mode == "table":
        sys.exit(print_table(rows, allocations))
    if mode == "check":
        sys.exit(check(rows, sys.argv[3:]))
    print_table(rows, allocations)
    keep(rows, measured_heap(folder))
    PAGE.write_text(page(), "utf-8")
    (folder / "costs.svg").write_text(picture(), "utf-8")
    print(*(f"docs/costs.md: {finding}" for finding in findings()), sep="\n")


if __name__ == "__main__":
    main()
