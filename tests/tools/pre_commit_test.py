#!/usr/bin/env python3
"""Shows what the hook of tools/hooks does to a commit, in a repository of its own."""

import os
import shutil
import subprocess
import tempfile
import unittest
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
UGLY = "int  Sum( int a,int b ){return a+b;}\n"
NICE = "int Sum(int a, int b)\n{\n    return a + b;\n}\n"


class PreCommitTest(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.root = Path(folder.name)
        shutil.copytree(ROOT / "tools", self.root / "tools", ignore=shutil.ignore_patterns("__pycache__"))
        (self.root / "docs").mkdir()
        for name in (".clang-format", "docs/architecture.md"):
            shutil.copy(ROOT / name, self.root / name)
        self.surroundings = {**os.environ, "GIT_CONFIG_GLOBAL": os.devnull, "GIT_CONFIG_SYSTEM": os.devnull}
        for name in [name for name in self.surroundings if name.startswith(("GIT_DIR", "GIT_INDEX", "GIT_WORK"))]:
            del self.surroundings[name]
        self.git("init", "-q")
        self.git("config", "user.name", "Test")
        self.git("config", "user.email", "test@quillon.example")
        self.git("config", "core.hooksPath", "tools/hooks")
        self.git("add", "-A")
        self.commit()

    def run_git(self, *arguments):
        return subprocess.run(["git", *arguments], cwd=self.root, env=self.surroundings, capture_output=True, text=True)

    def git(self, *arguments):
        done = self.run_git(*arguments)
        self.assertEqual(done.returncode, 0, done.stderr + done.stdout)
        return done.stdout

    def commit(self, *arguments):
        return self.git("commit", "-q", "-m", "A change", *arguments)

    def write(self, name, text):
        (self.root / name).parent.mkdir(parents=True, exist_ok=True)
        (self.root / name).write_text(text, encoding="utf-8")

    def test_what_is_staged_is_formatted_in_the_commit_and_in_the_folder(self):
        self.write("src/media/sum.cpp", UGLY)
        self.git("add", "-A")
        self.commit()
        self.assertEqual(self.git("show", "HEAD:src/media/sum.cpp"), NICE)
        self.assertEqual((self.root / "src/media/sum.cpp").read_text(), NICE)
        self.assertEqual(self.git("status", "--porcelain"), "")

    def test_what_is_not_staged_is_left_alone(self):
        self.write("src/media/sum.cpp", NICE)
        self.write("src/media/other.cpp", NICE)
        self.git("add", "-A")
        self.commit()
        self.write("src/media/other.cpp", UGLY)
        self.write("src/media/sum.cpp", NICE + "\n" + NICE.replace("Sum", "Add"))
        self.git("add", "src/media/sum.cpp")
        self.commit()
        self.assertEqual((self.root / "src/media/other.cpp").read_text(), UGLY)
        self.assertEqual(self.git("show", "HEAD:src/media/other.cpp"), NICE)

    def test_an_ugly_file_with_changes_that_are_not_staged_stops_the_commit(self):
        self.write("src/media/sum.cpp", UGLY)
        self.git("add", "-A")
        self.write("src/media/sum.cpp", UGLY + "// later\n")
        done = self.run_git("commit", "-q", "-m", "A change")
        self.assertNotEqual(done.returncode, 0)
        self.assertIn("src/media/sum.cpp is not formatted", done.stderr)
        self.assertEqual((self.root / "src/media/sum.cpp").read_text(), UGLY + "// later\n")

    def test_a_commit_of_named_files_takes_them_formatted_at_the_second_try(self):
        self.write("src/media/sum.cpp", NICE)
        self.git("add", "-A")
        self.commit()
        self.write("src/media/sum.cpp", UGLY)
        self.assertNotEqual(self.run_git("commit", "-q", "-m", "A change", "src/media/sum.cpp").returncode, 0)
        self.assertEqual((self.root / "src/media/sum.cpp").read_text(), NICE)
        self.write("src/media/sum.cpp", UGLY.replace("Sum", "Add"))
        self.assertNotEqual(self.run_git("commit", "-q", "-m", "A change", "src/media/sum.cpp").returncode, 0)
        self.commit("src/media/sum.cpp")
        self.assertEqual(self.git("show", "HEAD:src/media/sum.cpp"), NICE.replace("Sum", "Add"))
        self.assertEqual(self.git("status", "--porcelain"), "")

    def test_an_offence_against_the_house_stops_the_commit(self):
        self.write("src/media/sum.cpp", '#include "slides/slide_steps.h"\n\n' + NICE)
        self.git("add", "-A")
        done = self.run_git("commit", "-q", "-m", "A change")
        self.assertNotEqual(done.returncode, 0)
        self.assertIn("src/media/sum.cpp:1: media may not include slides", done.stdout + done.stderr)

    def test_an_offence_that_is_not_staged_stops_nothing(self):
        self.write("src/media/sum.cpp", NICE)
        self.git("add", "-A")
        self.write("src/media/Sum.cpp", NICE)
        self.commit()
        self.assertEqual(self.git("show", "HEAD:src/media/sum.cpp"), NICE)

    def test_a_file_that_is_removed_needs_no_format(self):
        self.write("src/media/sum.cpp", NICE)
        self.git("add", "-A")
        self.commit()
        self.git("rm", "-q", "src/media/sum.cpp")
        self.commit()
        self.assertEqual(self.git("ls-files", "src"), "")


if __name__ == "__main__":
    unittest.main()
