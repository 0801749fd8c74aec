#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The Quillmark authors
# SPDX-License-Identifier: GPL-3.0-or-later

"""What the documents say of the project is looked up in it."""

import importlib.machinery
import importlib.util
import json
import pathlib
import re
import unittest

ROOT = pathlib.Path(__file__).resolve().parents[2]
DOCUMENTS = sorted([*ROOT.glob("*.md"), *(ROOT / "docs").glob("*.md")])
CODE_FOLDERS = ("src", "tests", "tools", "assets", "benchmarks")
CODE_ENDINGS = {".h", ".cpp", ".ui", ".py", ".cmake", ".txt", ".sql", ".qss", ".sh", ""}
# Files and folders that come to be where the program is built or lives, and those of its surroundings.
LAID = {"quillmark", "quillmark2002.mdb", "quillmark2002.mdb-journal", "Quillmark1.mdb", "Help.hlp", "animp.ico",
        "hand.cur", "months.txt", "reminders.txt", "themes", "notices", "famous", "PeoplePics", "AnnPics", "build"}
TRACKER_WORDS = re.compile(r"\b(issues?|tickets?|milestones?|backlog|todo|fixme)\b|(?<!\w)#\d+", re.IGNORECASE)


def tool(name):
    """A script of tools/ as a module."""
    loader = importlib.machinery.SourceFileLoader(name.replace("-", "_"), str(ROOT / "tools" / name))
    module = importlib.util.module_from_spec(importlib.util.spec_from_loader(loader.name, loader))
    loader.exec_module(module)
    return module


def text_of(document):
    return document.read_text(encoding="utf-8")


def prose_of(document):
    """The document without its blocks of commands."""
    return re.sub(r"^(?: {4}.*|```(?:.|\n)*?```)$", "", text_of(document), flags=re.MULTILINE)


def headings_of(document):
    """The anchors of a document's headings."""
    headings = re.findall(r"^#+ (.*)$", text_of(document), re.MULTILINE)
    return {re.sub(r"[^\w -]", "", heading).strip().lower().replace(" ", "-") for heading in headings}


def folders_in(name):
    return sorted(f"{name}/{each.name}" for each in (ROOT / name).iterdir()
                  if each.is_dir() and each.name != "__pycache__")


def source_texts():
    """All that the project's own files say, in one text."""
    files = [each for folder in CODE_FOLDERS for each in (ROOT / folder).rglob("*") if each.suffix in CODE_ENDINGS]
    files += [ROOT / name for name in ("CMakeLists.txt", "CMakePresets.json", "packages.txt", "run", "check")]
    own = [each for each in files if each.is_file() and each != pathlib.Path(__file__).resolve()]
    return "\n".join(each.read_text(encoding="utf-8", errors="replace") for each in own)


class Folders(unittest.TestCase):
    def setUp(self):
        self.draw = tool("draw-folders")

    def test_the_table_says_what_includes_what(self):
        table = {name: below for name, (below, _) in self.draw.folder_table().items()}
        self.assertEqual(table, self.draw.includes())

    def test_the_drawing_is_the_one_that_would_be_drawn_now(self):
        drawn = text_of(ROOT / "docs/pictures/folders.svg")
        self.assertEqual(drawn, self.draw.drawing(), "tools/draw-folders draws it anew")

    def test_every_folder_is_named(self):
        architecture = text_of(ROOT / "docs/ARCHITECTURE.md")
        for folder in folders_in("src") + folders_in("tests") + folders_in("tools") + ["assets", "benchmarks", "docs"]:
            with self.subTest(folder):
                self.assertIn(f"`{folder}`", architecture)

    def test_an_arrow_goes_down_for_every_include(self):
        graph = self.draw.includes()
        drawn = self.draw.arrows(graph)
        rows = self.draw.rows_of(graph, drawn)
        row = {node: number for number, nodes in enumerate(rows) for node in nodes if isinstance(node, str)}

        def reached(folder):
            return {end for start, lower in drawn if start == folder for end in {lower} | reached(lower)}

        for folder, lower in ((folder, lower) for folder in graph for lower in graph[folder]):
            with self.subTest(f"{folder} includes {lower}"):
                self.assertIn(lower, reached(folder))
                self.assertLess(row[folder], row[lower])


class References(unittest.TestCase):
    def test_every_link_and_picture_leads_somewhere(self):
        for document in DOCUMENTS:
            found = re.findall(r"\]\(([^)\s]+)\)", text_of(document))
            for link in (each for each in found if not re.match(r"\w+:", each)):
                with self.subTest(f"{document.name}: {link}"):
                    path, _, anchor = link.partition("#")
                    target = (document.parent / path).resolve() if path else document
                    self.assertTrue(target.exists())
                    if anchor:
                        self.assertIn(anchor, headings_of(target))

    def test_every_picture_says_what_it_shows(self):
        for document in DOCUMENTS:
            self.assertNotIn("![](", text_of(document), document.name)

    def test_every_document_is_reached_from_the_readme(self):
        readme = text_of(ROOT / "README.md")
        for document in DOCUMENTS:
            path = str(document.relative_to(ROOT))
            if path != "README.md":
                with self.subTest(path):
                    self.assertIn(f"({path})", readme)


class Names(unittest.TestCase):
    """A name set in code style is one of the project's files, or stands in them."""

    @classmethod
    def setUpClass(cls):
        cls.words = set(re.findall(r"[\w-]+", source_texts()))

    def stands(self, name, document):
        if "/" in name:
            first = name.rstrip("/").split("/")[0]
            return first in LAID or any((each / name).exists() for each in (ROOT, ROOT / "src", document.parent))
        return (name.rstrip("/") in LAID or name in self.words or name.split(".")[0] in self.words
                or any((each / name).exists() for each in (ROOT, document.parent)))

    def test_every_name_is_found(self):
        for document in DOCUMENTS:
            for name in re.findall(r"(?<!`)`([\w./-]+)`(?!`)", prose_of(document)):
                plain = name.removeprefix("./")
                if re.match(r"[\w.][\w./-]*\w/?$", plain):
                    with self.subTest(f"{document.name}: {name}"):
                        self.assertTrue(self.stands(plain, document))


class Presets(unittest.TestCase):
    def test_every_preset_has_its_row_and_every_row_its_preset(self):
        presets = json.loads(text_of(ROOT / "CMakePresets.json"))["configurePresets"]
        names = {each["name"] for each in presets if not each.get("hidden")}
        section = text_of(ROOT / "CONTRIBUTING.md").split("| Preset |")[1].split("\n\n")[0]
        self.assertEqual(set(re.findall(r"^\| `(\w+)` \|", section, re.MULTILINE)), names)


class Wording(unittest.TestCase):
    def test_no_word_comes_from_where_work_is_planned(self):
        for document in DOCUMENTS:
            for line in text_of(document).splitlines():
                self.assertIsNone(TRACKER_WORDS.search(line), f"{document.name}: {line}")

    def test_lines_are_of_a_width(self):
        for document in DOCUMENTS:
            for line in text_of(document).splitlines():
                if not line.startswith("|"):
                    self.assertLessEqual(len(line), 120, f"{document.name}: {line}")


if __name__ == "__main__":
    unittest.main()
