#!/usr/bin/env python3
"""Shows how tools/words_read counts, with stand-ins for the office suite and for our reader."""

import sys
import unittest
from pathlib import Path

sys.dont_write_bytecode = True
sys.path.insert(0, str(Path(__file__).resolve().parent))

from stand_in_suite import StandIns  # noqa: E402

MANY_WORDS = " ".join(f"word{number}" for number in range(97))


class WordsReadTest(unittest.TestCase):
    def setUp(self):
        self.stand_ins = StandIns()
        self.addCleanup(self.stand_ins.remove)

    def first_line(self, said):
        return said.stdout.splitlines()[0]

    def test_all_words_are_enough(self):
        self.stand_ins.write("one.rtf", "A car of 2001")
        self.stand_ins.write("deeper/two.RTF", "Another car")
        said = self.stand_ins.run("words_read")
        self.assertEqual(said.returncode, 0, said.stderr)
        self.assertEqual(self.first_line(said), "100.00% of 6 words; 98% and more of them in 100.0% of 2 documents; "
                                                "0 that the suite does not read or that have no words")

    def test_a_word_counts_as_often_as_it_stands_and_letter_case_does_not(self):
        self.stand_ins.write("one.rtf", "Car CAR xcar xcar xbus wheel, wheel; wheel")
        said = self.stand_ins.run("words_read", "--each")
        self.assertEqual(said.returncode, 1)
        lines = said.stdout.splitlines()
        self.assertEqual(lines[0], f"  62.5%  {self.stand_ins.documents / 'one.rtf'}  xcar xbus")
        self.assertTrue(lines[1].startswith("62.50% of 8 words; 98% and more of them in 0.0% of 1 documents;"), lines)

    def test_one_poor_document_among_many_words_is_too_much(self):
        for number in range(9):
            self.stand_ins.write(f"{number}.rtf", MANY_WORDS)
        self.stand_ins.write("poor.rtf", "xpoor word")
        said = self.stand_ins.run("words_read")
        self.assertEqual(said.returncode, 1)
        self.assertTrue(self.first_line(said).startswith("99.89% of 875 words; 98% and more of them in 90.0% of 10 documents;"),
                        said.stdout)

    def test_a_document_just_below_its_share_is_not_whole(self):
        self.stand_ins.write("short.rtf", MANY_WORDS + " xone xtwo xthree")
        self.stand_ins.write("whole.rtf", MANY_WORDS + " word xlast")
        said = self.stand_ins.run("words_read")
        self.assertIn("98% and more of them in 50.0% of 2 documents", said.stdout)

    def test_what_the_suite_does_not_read_is_not_counted(self):
        self.stand_ins.write("one.rtf", "A car")
        self.stand_ins.write("two.rtf", "unreadable xxx")
        self.stand_ins.write("three.rtf", "...")
        said = self.stand_ins.run("words_read")
        self.assertEqual(said.returncode, 0, said.stderr)
        self.assertEqual(self.first_line(said), "100.00% of 2 words; 98% and more of them in 100.0% of 1 documents; "
                                                "2 that the suite does not read or that have no words")

    def test_a_document_whose_markup_the_suite_shows_is_not_counted(self):
        self.stand_ins.write("one.rtf", "A car")
        self.stand_ins.write("two.rtf", "}{\\rtf1 xxx}")
        said = self.stand_ins.run("words_read")
        self.assertEqual(self.first_line(said), "100.00% of 2 words; 98% and more of them in 100.0% of 1 documents; "
                                                "1 that the suite does not read or that have no words")

    def test_what_is_no_rich_text_at_all_is_not_counted(self):
        self.stand_ins.write("one.rtf", "A car")
        self.stand_ins.write_plain("two.rtf", "bytes xxx")
        said = self.stand_ins.run("words_read")
        self.assertTrue(self.first_line(said).startswith("100.00% of 2 words;"), said.stdout)

    def test_raised_characters_and_pictures_make_no_other_words(self):
        self.stand_ins.write("one.rtf", of_suite="H2O before \u30ab", ours="H\u2082O be\ufffcfore \uff76")
        said = self.stand_ins.run("words_read")
        self.assertTrue(self.first_line(said).startswith("100.00% of 3 words;"), said.stdout)

    def test_a_page_number_is_no_word_because_the_suite_lays_out_no_pages(self):
        self.stand_ins.write("field.rtf", of_suite="Page 0", ours="Page 1 {PAGE}")
        self.stand_ins.write("word.rtf", of_suite="Page 0 of 2", ours="Page 1 of 2 \\chpgn")
        self.stand_ins.write("alone.rtf", of_suite="0", ours="1 \\chpgn")
        said = self.stand_ins.run("words_read")
        self.assertEqual(self.first_line(said), "100.00% of 4 words; 98% and more of them in 100.0% of 2 documents; "
                                                "1 that the suite does not read or that have no words")

    def test_only_so_many_noughts_are_page_numbers_as_the_document_has(self):
        self.stand_ins.write("one.rtf", of_suite="0 0 0 sides", ours="sides \\chpgn")
        self.stand_ins.write("other.rtf", of_suite="0 to 100", ours="to 100 \\page PAGES")
        said = self.stand_ins.run("words_read")
        self.assertTrue(self.first_line(said).startswith("50.00% of 6 words;"), said.stdout)

    def test_a_nought_that_our_reader_has_is_a_word(self):
        self.stand_ins.write("one.rtf", of_suite="0 0 xother", ours="0 0 \\chpgn")
        said = self.stand_ins.run("words_read")
        self.assertTrue(self.first_line(said).startswith("66.67% of 3 words;"), said.stdout)

    def test_entries_of_an_index_are_no_words_of_the_text(self):
        self.stand_ins.write("one.rtf", of_suite='A car XE "cars, old" and XE "wheels"XE "roads" a wheel', ours="A car and a wheel")
        said = self.stand_ins.run("words_read")
        self.assertTrue(self.first_line(said).startswith("100.00% of 5 words;"), said.stdout)

    def test_page_numbers_and_entries_of_an_index_count_when_wanted(self):
        self.stand_ins.write("one.rtf", of_suite='Page 0 XE "cars"', ours="Page 1 \\chpgn")
        said = self.stand_ins.run("words_read", "--everything")
        self.assertTrue(self.first_line(said).startswith("25.00% of 4 words;"), said.stdout)

    def test_documents_of_one_name_in_two_folders_are_two(self):
        self.stand_ins.write("a/one.rtf", "A car")
        self.stand_ins.write("b/one.rtf", "xthis and xthat")
        said = self.stand_ins.run("words_read")
        self.assertTrue(self.first_line(said).startswith("60.00% of 5 words;"), said.stdout)

    def test_a_document_that_brings_the_suite_down_takes_no_other_with_it(self):
        for name, text in (("a", "A car"), ("b", "poison"), ("c", "A wheel"), ("d", "A road")):
            self.stand_ins.write(name + ".rtf", text)
        said = self.stand_ins.run("words_read")
        self.assertTrue(self.first_line(said).startswith("100.00% of 6 words; 98% and more of them in 100.0% of 3 documents; 1 that"),
                        said.stdout)
        self.assertEqual(self.stand_ins.starts_of_suite(), 2)

    def test_one_start_of_the_suite_is_enough_for_many_documents(self):
        for number in range(20):
            self.stand_ins.write(f"{number}.rtf", "A car")
        self.stand_ins.run("words_read")
        self.assertEqual(self.stand_ins.starts_of_suite(), 1)

    def test_a_crash_of_our_reader_is_told_and_an_error(self):
        self.stand_ins.write("one.rtf", "A car")
        self.stand_ins.write("two.rtf", "stumble")
        said = self.stand_ins.run("words_read")
        self.assertEqual(said.returncode, 1)
        self.assertEqual(self.first_line(said), f"Our reader crashed or did not end: {self.stand_ins.documents / 'two.rtf'}")
        self.assertIn("Our reader: 1 crashes and hangs", said.stdout)

    def test_a_document_that_our_reader_does_not_end_is_told_and_the_others_are_read(self):
        self.stand_ins.write("one.rtf", "endless")
        self.stand_ins.write("two.rtf", "A car")
        said = self.stand_ins.run("words_read", "--patience", "2")
        self.assertEqual(said.returncode, 1)
        lines = said.stdout.splitlines()
        self.assertEqual(lines[0], f"Our reader crashed or did not end: {self.stand_ins.documents / 'one.rtf'}")
        self.assertTrue(lines[1].startswith("100.00% of 2 words; 98% and more of them in 100.0% of 1 documents;"), lines)
        self.assertTrue(lines[2].startswith("Our reader: 1 crashes and hangs"), lines)

    def test_without_the_suite_it_tells_what_is_missing(self):
        self.stand_ins.take_away("bin/soffice")
        said = self.stand_ins.run("words_read", path=str(self.stand_ins.folder / "bin"))
        self.assertEqual(said.returncode, 1)
        self.assertEqual(said.stderr, "soffice is not installed, so there is nothing to compare with. "
                                      "LibreOffice: apt-get install libreoffice-writer-nogui\n")

    def test_without_our_reader_it_tells_what_to_build(self):
        self.stand_ins.take_away("bench/article_pages")
        said = self.stand_ins.run("words_read")
        self.assertEqual(said.returncode, 1)
        self.assertEqual(said.stderr, f"{self.stand_ins.folder}/bench/article_pages is missing: configure with -DTORVIK_BENCH=ON "
                                      "and build article_pages\n")

    def test_nothing_that_the_suite_reads_is_an_error(self):
        self.stand_ins.write("one.rtf", "unreadable")
        said = self.stand_ins.run("words_read")
        self.assertEqual(said.returncode, 1)
        self.assertEqual(said.stderr, "The suite read none of these documents\n")


if __name__ == "__main__":
    unittest.main()
