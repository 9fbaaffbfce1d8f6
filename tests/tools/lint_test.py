#!/usr/bin/env python3
"""Shows that each rule of tools/lint catches an offender, and lets pass what is allowed."""

import importlib.machinery
import importlib.util
import sys
import tempfile
import unittest
from pathlib import Path

sys.dont_write_bytecode = True
SCRIPT = Path(__file__).resolve().parents[2] / "tools" / "lint"
loader = importlib.machinery.SourceFileLoader("lint", str(SCRIPT))
lint = importlib.util.module_from_spec(importlib.util.spec_from_loader("lint", loader))
loader.exec_module(lint)


def floors_page(floors):
    """The page that shows the floors, as far as the lint reads it."""
    rows = "".join(f"| {', '.join(f'`{folder}`' for folder in floor)} | what they hold |\n" for floor in floors)
    return f"# Architecture\n\n## Floors\n\n| Folder | Holds |\n|---|---|\n{rows}\n## Tests\n\n| `other` | table |\n"


FLOORS_OF_THE_LINT = [tuple(folder or "src" for folder in floor) for floor in reversed(lint.FLOORS)]


SAMPLE_PAGE = "# Sample\n\n## Floors\n\n| Folder | Holds |\n|---|---|\n" + "".join(
    f"| `{folder or 'sample'}/` | what it holds |\n" for folder in lint.SAMPLE_FLOORS)


class LintTest(unittest.TestCase):
    def offences(self, files):
        """What the lint says of a tree of these files; the page of the floors is right unless it is one of them."""
        files = {lint.FLOORS_PAGE: floors_page(FLOORS_OF_THE_LINT), lint.SAMPLE_FLOORS_PAGE: SAMPLE_PAGE} | files
        with tempfile.TemporaryDirectory() as root:
            for name, text in files.items():
                path = Path(root, name)
                path.parent.mkdir(parents=True, exist_ok=True)
                path.write_text(text, encoding="utf-8")
            return lint.Lint(root).run()

    def assert_caught(self, name, text, message):
        offences = self.offences({name: text})
        self.assertTrue(any(o.startswith(name + ":") and message in o for o in offences), offences)

    def assert_clean(self, files):
        self.assertEqual(self.offences(files), [])

    def test_the_foundations_include_no_higher_folder(self):
        self.assert_caught("src/platform/files/a.cpp", '#include "ui/form.h"\n', "platform/files may not include ui")
        self.assert_caught("src/platform/paths/a.cpp", '#include "rtf/a.h"\n', "platform/paths may not include rtf")
        self.assert_caught("src/rtf/a.cpp", '#include "ui/look/look.h"\n', "rtf may not include ui/look")
        self.assert_caught("src/av/a.cpp", '#include "ui/forms/form.h"\n', "av may not include ui/forms")
        self.assert_caught("src/runtime/a.cpp", '#include "platform/files/files.h"\n', "runtime may not include platform/files")
        self.assert_caught("src/av/a.cpp", "#include <QWidget>\n", "av may not include <QWidget>")

    def test_the_floors_hold_for_sub_folders(self):
        self.assert_caught("src/platform/paths/a.cpp", '#include "platform/system/process.h"\n',
                           "platform/paths may not include platform/system")
        self.assert_caught("src/ui/forms/a.cpp", '#include "ui/controls/image.h"\n', "ui/forms may not include ui/controls")
        self.assert_caught("src/ui/forms/a.cpp", '#include "ui/application.h"\n', "ui/forms may not include ui")

    def test_folders_of_one_floor_do_not_know_each_other(self):
        self.assert_caught("src/media/a.cpp", '#include "printing/booklet.h"\n', "media may not include printing")

    def test_ui_includes_no_subsystem(self):
        self.assert_caught("src/ui/forms/a.cpp", '\n#include "windows/main_window.h"\n', "ui/forms may not include windows")

    def test_the_reader_of_rich_text_has_one_door(self):
        self.assert_caught("src/documents/a.cpp", '#include "rtf/model/style.h"\n',
                           "from outside rtf only rtf/rtf_reader.h is included")
        self.assert_clean({"src/documents/a.cpp": '#include "rtf/rtf_reader.h"\n',
                           "src/rtf/write/a.cpp": '#include "rtf/model/style.h"\n'})

    def test_a_subsystem_includes_none_above_it(self):
        self.assert_caught("src/windows/a.cpp", '#include "program/program_state.h"\n', "windows may not include program")
        self.assert_caught("src/browser/a.cpp", '#include "slides/slide_steps.h"\n', "browser may not include slides")
        self.assert_caught("src/slides/a.cpp", '#include "hard_drive/copy_file.h"\n', "slides may not include hard_drive")
        self.assert_caught("src/start/a.cpp", '#include "bind_handlers.h"\n#include "version.h"\n#include "slides/b.h"\n',
                           "start may not include slides")

    def test_the_message_names_the_line(self):
        offences = self.offences({"src/ui/forms/a.cpp": '\n\n#include "windows/main_window.h"\n'})
        self.assertEqual(offences, ["src/ui/forms/a.cpp:3: ui/forms may not include windows"])

    def test_includes_that_go_down_are_allowed(self):
        self.assert_clean({
            "src/ui/forms/a.cpp": '#include "runtime/text.h"\n#include "rtf/rtf_reader.h"\n#include "ui/look/look.h"\n',
            "src/slides/b.cpp": '#include "windows/main_window.h"\n#include "ui/forms/form.h"\n#include "slides/c.h"\n',
            "src/main.cpp": '#include "windows/main_window.h"\n#include "bind_handlers.h"\n#include "version.h"\n'})

    def test_the_screen_saver_stands_on_the_lower_floors_alone(self):
        self.assert_clean({"src/saver/a.cpp": '#include "platform/files/files.h"\n#include "saver/b.h"\n'
                                              '#include "ui/pictures/picture.h"\n',
                           "src/saver_main.cpp": '#include "saver/b.h"\n'})
        self.assert_caught("src/saver/a.cpp", '#include "windows/main_window.h"\n', "saver may not include windows")
        self.assert_caught("src/windows/a.cpp", '#include "saver/b.h"\n', "windows may not include saver")
        self.assert_caught("src/ui/forms/a.cpp", '#include "saver/b.h"\n', "ui/forms may not include saver")
        self.assert_caught("src/saver/a.cpp", "#include <QLabel>\n", "only ui includes")

    def test_an_unknown_folder_is_caught(self):
        self.assert_caught("src/cellar/a.cpp", "\n", "the folder cellar has no floor")
        self.assert_caught("src/ui/attic/a.cpp", "\n", "the folder ui/attic has no floor")
        self.assert_caught("src/platform/b.cpp", "\n", "the folder platform has no floor")

    def test_a_ring_of_files_is_caught(self):
        for folder, prefix in (("src/media", "media/"), ("sample/car", "sample/car/"), ("sample/car", "")):
            with self.subTest(folder=folder, prefix=prefix):
                offences = self.offences({
                    f"{folder}/a.h": f'#pragma once\n#include "{prefix}b.h"\n',
                    f"{folder}/b.h": f'#pragma once\n#include "{prefix}c.h"\n',
                    f"{folder}/c.h": f'#pragma once\n\n#include "{prefix}a.h"\n'})
                self.assertEqual(offences, [f"{folder}/c.h:3: closes a ring of files: {folder}/a.h -> {folder}/b.h -> "
                                            f"{folder}/c.h -> {folder}/a.h"])

    def test_a_ring_of_folders_is_caught_though_no_file_includes_itself(self):
        offences = self.offences({
            "sample/car/a.h": '#pragma once\n#include "sample/render/b.h"\n',
            "sample/render/b.h": "#pragma once\n",
            "sample/render/c.cpp": '#include "../titles/d.h"\n',
            "sample/titles/d.h": "#pragma once\n",
            "sample/titles/e.cpp": '#include "sample/titles/d.h"\n#include "sample/car/a.h"\n'})
        self.assertEqual(offences, ["sample/car/a.h:2: sample/car may not include sample/render",
                                    "sample/titles/e.cpp:2: closes a ring of folders: sample/car -> sample/render -> "
                                    "sample/titles -> sample/car"])

    def test_a_folder_and_its_own_sub_folder_can_make_a_ring(self):
        self.assert_ring_of_folders("sample", "sample/car", {
            "sample/a.h": "#pragma once\n", "sample/main.cpp": '#include "sample/car/b.h"\n',
            "sample/car/b.h": "#pragma once\n", "sample/car/b.cpp": '#include "../a.h"\n'})

    def test_a_ring_of_folders_in_src_is_told_besides_its_floors(self):
        self.assert_ring_of_folders("src/documents", "src/slides", {
            "src/documents/a.h": "#pragma once\n", "src/slides/b.h": "#pragma once\n",
            "src/documents/a.cpp": '#include "documents/a.h"\n#include "slides/b.h"\n',
            "src/slides/b.cpp": '#include "slides/b.h"\n#include "documents/a.h"\n'})

    def assert_ring_of_folders(self, one, other, files):
        message = f"closes a ring of folders: {one} -> {other} -> {one}"
        offences = self.offences(files)
        self.assertEqual(sum(message in offence for offence in offences), 1, offences)

    def test_folders_that_share_a_lower_one_make_no_ring(self):
        self.assert_clean({
            "sample/geometry/a.h": "#pragma once\n",
            "sample/car/b.h": '#pragma once\n#include "sample/geometry/a.h"\n',
            "sample/render/c.cpp": '#include "sample/geometry/a.h"\n#include "sample/car/b.h"\n#include "sample/car/none.h"\n'})

    def test_sources_of_one_folder_that_use_each_other_through_headers_make_no_ring(self):
        self.assert_clean({
            "src/slides/a.h": "#pragma once\n", "src/slides/b.h": "#pragma once\n",
            "src/slides/a.cpp": '#include "slides/a.h"\n#include "slides/b.h"\n',
            "src/slides/b.cpp": '#include "slides/b.h"\n#include "slides/a.h"\n'})

    def test_a_page_of_floors_that_differs_is_caught_at_its_first_wrong_row(self):
        first = 7  # of the rows of floors_page
        moved = list(FLOORS_OF_THE_LINT)
        moved[2], moved[3] = moved[3], moved[2]
        self.assertEqual(self.offences({lint.FLOORS_PAGE: floors_page(moved)}),
                         [f"{lint.FLOORS_PAGE}:{first + 2}: shows {', '.join(moved[2])} where tools/lint has "
                          f"{', '.join(moved[3])}"])
        self.assertEqual(self.offences({lint.FLOORS_PAGE: floors_page(FLOORS_OF_THE_LINT[:-1])}),
                         [f"{lint.FLOORS_PAGE}:{first + len(FLOORS_OF_THE_LINT) - 2}: shows no floor where tools/lint has "
                          f"{', '.join(FLOORS_OF_THE_LINT[-1])}"])
        self.assert_caught(lint.FLOORS_PAGE, floors_page([*FLOORS_OF_THE_LINT, ("cellar",)]),
                           "shows cellar where tools/lint has no floor")

    def test_the_folders_of_the_sample_disc_have_floors_and_a_page_of_their_own(self):
        right = {"sample/main.cpp": '#include "sample/artwork/a.h"\n',
                 "sample/artwork/a.h": '#pragma once\n#include "sample/car/a.h"\n', "sample/car/a.h": "#pragma once\n"}
        self.assert_clean(right)
        for name, included, message in (
                ("sample/car/b.cpp", "sample/artwork/a.h", "sample/car may not include sample/artwork"),
                ("sample/car/b.cpp", "sample/disc_maker.h", "sample/car may not include sample/"),
                ("sample/car/b.cpp", "sample/attic/a.h", "sample/car may not include sample/attic"),
                ("sample/attic/b.cpp", "sample/car/a.h", "the folder sample/attic has no floor")):
            self.assert_caught(name, f'#include "{included}"\n', message)
        self.assertEqual(self.offences(right | {lint.SAMPLE_FLOORS_PAGE: SAMPLE_PAGE.replace("`car/`", "`cart/`")}),
                         [f"{lint.SAMPLE_FLOORS_PAGE}:10: shows cart where tools/lint has car"])

    def test_a_page_without_a_table_of_floors_is_caught(self):
        self.assert_caught(lint.FLOORS_PAGE, "# Architecture\n", "shows no floor where")
        with tempfile.TemporaryDirectory() as root:
            self.assertEqual(lint.Lint(root).run(), [f"{lint.FLOORS_PAGE}:1: is not there; it shows the floors"])

    def test_only_ui_includes_widgets_multimedia_and_print_support(self):
        for header in ("QWidget", "QMediaPlayer", "QPrinter", "QVideoWidget", "QtWidgets/QLabel"):
            self.assert_caught("src/browser/a.cpp", f"#include <{header}>\n", "only ui includes")
            self.assert_clean({"src/ui/forms/a.cpp": f"#include <{header}>\n"})

    def test_only_search_includes_the_database(self):
        self.assert_caught("src/documents/a.cpp", "#include <QSqlQuery>\n", "only search includes <QSqlQuery> of QtSql")
        self.assert_caught("src/ui/a.cpp", "#include <QtSql/QSqlDatabase>\n", "only search includes")
        self.assert_clean({"src/search/a.cpp": "#include <QSqlQuery>\n"})

    def test_core_and_gui_are_allowed_to_subsystems(self):
        self.assert_clean({"src/browser/a.cpp": "#include <QString>\n#include <QImage>\n#include <vector>\n"})

    def test_platform_includes_core_alone(self):
        self.assert_caught("src/platform/files/a.cpp", "#include <QImage>\n", "platform may not include <QImage>")
        self.assert_caught("src/platform/files/a.cpp", "#include <QtGui/QImage>\n", "platform may not include")
        self.assert_clean({"src/platform/files/a.cpp": "#include <QFile>\n#include <QString>\n"})

    def test_rtf_includes_core_and_gui_alone(self):
        self.assert_caught("src/rtf/a.cpp", "#include <QLabel>\n", "rtf may not include <QLabel>")
        self.assert_clean({"src/rtf/a.cpp": "#include <QTextDocument>\n#include <QString>\n"})

    def test_only_platform_uses_the_machine(self):
        for line in ("QFile file;", "QDir().mkpath(x);", "QSettings s;", "QProcess p;", "QTemporaryDir d;",
                     "std::ifstream in(x);", "auto* f = fopen(x, y);", "int d = ::open(x, 0);", "stat(x, &s);",
                     "return std::getenv(x);", "qgetenv(x);", "if (opendir(x)) {}", "QStandardPaths::x();",
                     "std::filesystem::exists(x);", "qEnvironmentVariableIsSet(x);", "QStorageInfo i;"):
            with self.subTest(line):
                self.assert_caught("src/browser/a.cpp", line + "\n", "only platform uses")
                self.assert_clean({"src/platform/files/a.cpp": line + "\n"})

    def test_headers_of_the_machine_belong_to_platform(self):
        for header in ("filesystem", "fstream", "unistd.h", "QFile", "QtCore/QSettings", "cups/cups.h"):
            self.assert_caught("src/ui/forms/a.cpp", f"#include <{header}>\n", "only platform includes")

    def test_conversion_of_code_pages_belongs_to_one_folder(self):
        for folder in ("ui", "platform/files", "rtf/read"):
            self.assert_caught(f"src/{folder}/a.cpp", "#include <iconv.h>\n", "only rtf/charset includes")
        self.assert_clean({"src/rtf/charset/a.cpp": "#include <iconv.h>\n"})

    def test_names_that_only_look_like_the_machine_are_allowed(self):
        self.assert_clean({"src/ui/forms/a.cpp": "panel.open(x);\npanel->open(x);\n// QFile here\nauto t = \"fopen(\";\n"
                                           "bool open(Mode mode);\nQFileDialogish d;\nDialog::open(x);\nreopen(x);\n"
                                           "/* QDir\n QFile */\n"})

    def test_a_number_with_apostrophes_hides_nothing(self):
        self.assert_caught("src/ui/forms/a.cpp", "int n = 1'000'000; QFile f; int m = 2'000;\n", "only platform uses QFile")

    def test_tests_may_use_the_machine(self):
        self.assert_clean({"tests/ui/a_test.cpp": "#include <QFile>\n#include <QWidget>\nQFile f;\n"})

    def test_a_source_file_is_not_included(self):
        self.assert_caught("tests/ui/a_test.cpp", '#include "ui/form.cpp"\n', "includes the source file")

    def test_a_header_needs_pragma_once(self):
        self.assert_caught("src/ui/forms/a.h", "#ifndef A\n#endif\n", "without #pragma once")

    def test_tabs_and_trailing_blanks(self):
        self.assert_caught("src/ui/forms/a.cpp", "\tint a;\n", "has a tab")
        self.assert_caught("src/ui/forms/a.cpp", "int a; \n", "has trailing blanks")
        self.assert_caught("docs/a.md", "word \n", "has trailing blanks")

    def test_file_names_are_snake_case(self):
        for name in ("src/ui/forms/Form.cpp", "src/ui/forms/my-form.cpp", "src/ui/forms/a__b.h"):
            self.assert_caught(name, "#pragma once\n", "snake_case")

    def test_a_long_file_is_caught_in_src_alone(self):
        self.assert_clean({"src/ui/forms/a.cpp": "\n" * 400, "tests/ui/a_test.cpp": "\n" * 500})
        self.assert_caught("src/ui/forms/a.cpp", "\n" * 401, "has 401 lines")

    def test_bytes_that_are_no_text(self):
        with tempfile.TemporaryDirectory() as root:
            Path(root, "src/ui/forms").mkdir(parents=True)
            Path(root, "src/ui/forms/a.cpp").write_bytes(b"\xff\n")
            self.assertIn("src/ui/forms/a.cpp:1: is no UTF-8 text", lint.Lint(root).run())


if __name__ == "__main__":
    unittest.main()
