"""Tests of check_links.py: what it takes for a link, for an anchor, and for broken."""
import pathlib
import tempfile
import unittest

import check_links


class LinkTest(unittest.TestCase):
    def reasons(self, text, **others):
        with tempfile.TemporaryDirectory() as name:
            folder = pathlib.Path(name)
            for other, content in others.items():
                (folder / f"{other}.md").write_text(content, encoding="utf-8")
            page = folder / "page.md"
            page.write_text(text, encoding="utf-8")
            return list(check_links.broken(page, text))

    def test_a_file_that_is_not_there_is_reported(self):
        self.assertEqual(self.reasons("[a](b.md)"), ["b.md: there is no such file"])

    def test_a_file_that_is_there_is_fine(self):
        self.assertEqual(self.reasons("[a](b.md) and ![c](\nb.md)", b="# B"), [])

    def test_an_anchor_must_be_a_heading_of_the_other_page(self):
        self.assertEqual(self.reasons("[a](b.md#a-b) [a](b.md#c)", b="## A `B`"), ["b.md#c: there is no such heading"])

    def test_an_anchor_of_the_page_itself(self):
        self.assertEqual(self.reasons("# 0: parsed\n[a](#0-parsed) [b](#none)"), ["#none: there is no such heading"])

    def test_a_second_heading_of_one_name_has_a_number(self):
        self.assertEqual(self.reasons("# A\n# A\n[a](#a-1)"), [])

    def test_code_and_the_web_are_left_alone(self):
        self.assertEqual(self.reasons("`[a](b.md)` [w](https://example.com)\n```\n[a](b.md)\n# C\n```\n"), [])

    def test_a_heading_inside_code_is_none(self):
        self.assertEqual(self.reasons("```\n# C\n```\n[c](#c)"), ["#c: there is no such heading"])


if __name__ == "__main__":
    unittest.main()
