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


class LintTest(unittest.TestCase):
    def offences(self, files):
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

    def test_the_lowest_rooms_include_no_other_room(self):
        self.assert_caught("src/platform/a.cpp", '#include "ui/form.h"\n', "platform may not include ui")
        self.assert_caught("src/platform/a.cpp", '#include "rtf/a.h"\n', "platform may not include rtf")
        self.assert_caught("src/rtf/a.cpp", '#include "platform/text.h"\n', "rtf may not include platform")
        self.assert_caught("src/av/a.cpp", '#include "ui/form.h"\n', "av may not include ui")
        self.assert_caught("src/av/a.cpp", "#include <QWidget>\n", "av may not include <QWidget>")

    def test_ui_includes_no_subsystem(self):
        self.assert_caught("src/ui/a.cpp", '\n#include "shell/form1.h"\n', "ui may not include shell")

    def test_the_message_names_the_line(self):
        offences = self.offences({"src/ui/a.cpp": '\n\n#include "shell/form1.h"\n'})
        self.assertEqual(offences, ["src/ui/a.cpp:3: ui may not include shell"])

    def test_includes_that_go_down_are_allowed(self):
        self.assert_clean({
            "src/ui/a.cpp": '#include "platform/text.h"\n#include "rtf/rtf_reader.h"\n#include "ui/form.h"\n',
            "src/slides/b.cpp": '#include "shell/form1.h"\n#include "ui/form.h"\n#include "platform/text.h"\n',
            "src/main.cpp": '#include "shell/form1.h"\n#include "version.h"\n'})

    def test_the_screen_saver_stands_on_the_lower_floors_alone(self):
        self.assert_clean({"src/saver/a.cpp": '#include "platform/text.h"\n#include "saver/b.h"\n#include "ui/form.h"\n',
                           "src/saver_main.cpp": '#include "saver/b.h"\n'})
        self.assert_caught("src/saver/a.cpp", '#include "shell/form1.h"\n', "saver may not include shell")
        self.assert_caught("src/local/a.cpp", '#include "saver/b.h"\n', "local may not include saver")
        self.assert_caught("src/ui/a.cpp", '#include "saver/b.h"\n', "ui may not include saver")
        self.assert_caught("src/saver/a.cpp", "#include <QLabel>\n", "only ui includes")

    def test_a_cycle_of_files_is_caught(self):
        offences = self.offences({
            "src/shell/a.h": '#pragma once\n#include "slides/b.h"\n',
            "src/slides/b.h": '#pragma once\n#include "media/c.h"\n',
            "src/media/c.h": '#pragma once\n#include "shell/a.h"\n'})
        self.assertEqual(len(offences), 1, offences)
        self.assertIn("closes a cycle", offences[0])

    def test_sources_that_use_each_other_through_headers_are_no_cycle(self):
        self.assert_clean({
            "src/shell/a.h": "#pragma once\n", "src/slides/b.h": "#pragma once\n",
            "src/shell/a.cpp": '#include "shell/a.h"\n#include "slides/b.h"\n',
            "src/slides/b.cpp": '#include "slides/b.h"\n#include "shell/a.h"\n'})

    def test_an_unknown_room_is_caught(self):
        self.assert_caught("src/cellar/a.cpp", "\n", "no room cellar")

    def test_only_ui_includes_widgets_multimedia_and_print_support(self):
        for header in ("QWidget", "QMediaPlayer", "QPrinter", "QVideoWidget", "QtWidgets/QLabel"):
            self.assert_caught("src/shell/a.cpp", f"#include <{header}>\n", "only ui includes")
            self.assert_clean({"src/ui/a.cpp": f"#include <{header}>\n"})

    def test_core_and_gui_are_allowed_to_subsystems(self):
        self.assert_clean({"src/shell/a.cpp": "#include <QString>\n#include <QImage>\n#include <vector>\n"})

    def test_platform_includes_core_alone(self):
        self.assert_caught("src/platform/a.cpp", "#include <QImage>\n", "platform may not include <QImage>")
        self.assert_caught("src/platform/a.cpp", "#include <QtGui/QImage>\n", "platform may not include")
        self.assert_clean({"src/platform/a.cpp": "#include <QFile>\n#include <QString>\n"})

    def test_rtf_includes_core_and_gui_alone(self):
        self.assert_caught("src/rtf/a.cpp", "#include <QLabel>\n", "rtf may not include <QLabel>")
        self.assert_clean({"src/rtf/a.cpp": "#include <QTextDocument>\n#include <QString>\n"})

    def test_only_platform_uses_the_machine(self):
        for line in ("QFile file;", "QDir().mkpath(x);", "QSettings s;", "QProcess p;", "QTemporaryDir d;",
                     "std::ifstream in(x);", "auto* f = fopen(x, y);", "int d = ::open(x, 0);", "stat(x, &s);",
                     "return std::getenv(x);", "qgetenv(x);", "if (opendir(x)) {}", "QStandardPaths::x();",
                     "std::filesystem::exists(x);", "qEnvironmentVariableIsSet(x);", "QStorageInfo i;"):
            with self.subTest(line):
                self.assert_caught("src/shell/a.cpp", line + "\n", "only platform uses")
                self.assert_clean({"src/platform/a.cpp": line + "\n"})

    def test_headers_of_the_machine_belong_to_platform(self):
        for header in ("filesystem", "fstream", "unistd.h", "QFile", "QtCore/QSettings"):
            self.assert_caught("src/ui/a.cpp", f"#include <{header}>\n", "only platform includes")

    def test_conversion_of_code_pages_belongs_to_one_folder(self):
        for folder in ("ui", "platform/files", "rtf/read"):
            self.assert_caught(f"src/{folder}/a.cpp", "#include <iconv.h>\n", "only rtf/charset includes")
        self.assert_clean({"src/rtf/charset/a.cpp": "#include <iconv.h>\n"})

    def test_names_that_only_look_like_the_machine_are_allowed(self):
        self.assert_clean({"src/ui/a.cpp": "panel.open(x);\npanel->open(x);\n// QFile here\nauto t = \"fopen(\";\n"
                                           "bool open(Mode mode);\nQFileDialogish d;\nDialog::open(x);\nreopen(x);\n"
                                           "/* QDir\n QFile */\n"})

    def test_a_number_with_apostrophes_hides_nothing(self):
        self.assert_caught("src/ui/a.cpp", "int n = 1'000'000; QFile f; int m = 2'000;\n", "only platform uses QFile")

    def test_tests_may_use_the_machine(self):
        self.assert_clean({"tests/ui/a_test.cpp": "#include <QFile>\n#include <QWidget>\nQFile f;\n"})

    def test_a_source_file_is_not_included(self):
        self.assert_caught("tests/ui/a_test.cpp", '#include "ui/form.cpp"\n', "includes the source file")

    def test_a_header_needs_pragma_once(self):
        self.assert_caught("src/ui/a.h", "#ifndef A\n#endif\n", "without #pragma once")

    def test_tabs_and_trailing_blanks(self):
        self.assert_caught("src/ui/a.cpp", "\tint a;\n", "has a tab")
        self.assert_caught("src/ui/a.cpp", "int a; \n", "has trailing blanks")
        self.assert_caught("docs/a.md", "word \n", "has trailing blanks")

    def test_file_names_are_snake_case(self):
        for name in ("src/ui/Form.cpp", "src/ui/my-form.cpp", "src/ui/a__b.h"):
            self.assert_caught(name, "#pragma once\n", "snake_case")

    def test_a_long_file_is_caught_in_src_alone(self):
        self.assert_clean({"src/ui/a.cpp": "\n" * 400, "tests/ui/a_test.cpp": "\n" * 500})
        self.assert_caught("src/ui/a.cpp", "\n" * 401, "has 401 lines")

    def test_bytes_that_are_no_text(self):
        with tempfile.TemporaryDirectory() as root:
            Path(root, "src/ui").mkdir(parents=True)
            Path(root, "src/ui/a.cpp").write_bytes(b"\xff\n")
            self.assertEqual(lint.Lint(root).run(), ["src/ui/a.cpp:1: is no UTF-8 text"])


if __name__ == "__main__":
    unittest.main()
