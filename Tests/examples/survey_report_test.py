#!/usr/bin/env python3
"""survey_report_test.py SURVEY MAKE_REPORT PENGUINS: the report that the survey leaves, as a reader gets it."""

import base64
import re
import subprocess
import sys
import tempfile
import time
import unittest
import xml.etree.ElementTree as xml
from html.parser import HTMLParser
from pathlib import Path

RELATIONS = ["biplot.svg", "correlation_map.svg", "residual_quantiles.svg", "residuals.svg", "scree.svg"]


def all_pictures(columns):
    """The names of all pictures of a table with so many numeric columns."""
    return sorted(RELATIONS + [f"distribution_{k}.svg" for k in range(1, columns + 1)])


VOID = {"area", "base", "br", "col", "embed", "hr", "img", "input", "link", "meta", "source", "track", "wbr"}


class Page(HTMLParser):
    """A page as a tree; an AssertionError where an element isn't closed in its turn."""

    def __init__(self, text):
        super().__init__(convert_charrefs=True)
        self.root = xml.Element("root")
        self.open = [self.root]
        self.declarations = []
        self.feed(text)
        self.close()
        assert len(self.open) == 1, f"not closed: {self.open[-1].tag}"

    def handle_decl(self, declaration):
        self.declarations.append(declaration)

    def handle_starttag(self, tag, attributes):
        assert len({name for name, _ in attributes}) == len(attributes), f"an attribute twice: {tag}"
        child = xml.SubElement(self.open[-1], tag, {name: value or "" for name, value in attributes})
        if tag not in VOID:
            self.open.append(child)

    def handle_endtag(self, tag):
        assert self.open[-1].tag == tag, f"{self.open[-1].tag} closed by {tag}"
        self.open.pop()

    def handle_data(self, data):
        place = self.open[-1]
        if len(place):
            place[-1].tail = (place[-1].tail or "") + data
        else:
            place.text = (place.text or "") + data

    def all(self, tag, **attributes):
        return [e for e in self.root.iter(tag) if all(e.get(name) == value for name, value in attributes.items())]


def text_of(element):
    return "".join(element.itertext())


def of_class(elements, name):
    return [element for element in elements if name in element.get("class", "").split()]


def new_directory(add_cleanup):
    """A directory to run programs in, and one in it for a report."""
    directory = tempfile.TemporaryDirectory()
    add_cleanup(directory.cleanup)
    return Path(directory.name), Path(directory.name) / "a report"


class Report(unittest.TestCase):
    def setUp(self):
        self.directory, self.report = new_directory(self.addCleanup)

    def run_program(self, *command):
        return subprocess.run(command, cwd=self.directory, capture_output=True, encoding="utf-8", errors="replace")

    def page(self, *arguments):
        """The page of a survey, whose terminal output is left in `self.terminal`."""
        survey = self.run_program(SURVEY, "--report", self.report, *arguments)
        self.assertEqual((survey.returncode, survey.stderr), (0, ""))
        self.terminal = survey.stdout
        made = self.run_program(MAKE_REPORT, self.report)
        self.assertEqual((made.returncode, made.stderr), (0, ""))
        self.assertEqual(made.stdout, f"{self.report / 'index.html'}\n")
        return Page((self.report / "index.html").read_bytes().decode("utf-8"))

    def page_of(self, csv, *arguments):
        (self.directory / "a.csv").write_bytes(csv if isinstance(csv, bytes) else csv.encode())
        return self.page("a.csv", *arguments)

    def in_section(self, html, name, tag):
        """The elements of a section."""
        return [element for section in html.all("section", id=name) for element in section.iter(tag)]

    def pictures(self):
        return sorted(path.name for path in (self.report / "pictures").glob("*"))

    def titles_on_terminal(self):
        return re.findall(r"^(.+)\n=+\n\n", self.terminal, re.MULTILINE)


class OfThePenguins(Report):
    @classmethod
    def setUpClass(cls):  # one report for all tests
        cls.directory, cls.report = new_directory(cls.addClassCleanup)
        cls.html = cls.page(cls(), PENGUINS, "species")
        cls.terminal = (cls.report / "survey.txt").read_text()

    def setUp(self):
        pass

    def picture(self, name):
        return next(svg for svg in self.html.all("svg") if self.section_around(svg) == name)

    def section_around(self, element):
        return next(section.get("id") for section in self.html.all("section") if element in section.iter())

    def test_text_is_that_of_the_terminal(self):
        survey = self.run_program(SURVEY, PENGUINS, "species")
        self.assertEqual(survey.stdout, self.terminal)

    def test_has_every_section_with_its_lead_and_a_link(self):
        titles = self.titles_on_terminal()
        self.assertEqual(len(titles), 15)
        self.assertEqual([text_of(title) for title in self.html.all("h2")], titles)
        self.assertEqual([text_of(link) for nav in self.html.all("nav") for link in nav.iter("a")], titles)
        for section in self.html.all("section"):
            lead = section.find("p[@class='lead']").text
            self.assertIn(" ".join(lead.split()), " ".join(self.terminal.split()))

    def test_says_word_for_word_what_the_terminal_does(self):
        sections = self.terminal[self.terminal.index("\nMissing cells\n") :]
        on_terminal = [word for word in sections.split() if not re.fullmatch("-{3,}|={3,}", word)]
        on_page = []
        for section in self.html.all("section"):
            for part in section.iter():
                if part.tag in ("h2", "p", "th", "td"):
                    on_page += text_of(part).split()
        self.assertGreater(len(on_page), 1500)
        self.assertEqual(on_page, on_terminal)

    def test_pictures_are_on_the_page_and_in_files(self):
        self.assertEqual(self.pictures(), all_pictures(4))
        for name in self.pictures():
            xml.parse(self.report / "pictures" / name)
        self.assertEqual([self.section_around(svg) for svg in self.html.all("svg")],
                         ["quartiles"] * 4 + ["correlations", "components", "biplot", "regression", "regression"])
        for figure in self.html.all("figure"):
            self.assertEqual(figure.find("svg").get("aria-label"), text_of(figure.find("figcaption")))

    def test_pictures_have_paper_and_a_title_of_their_own(self):
        for name in self.pictures():
            svg = xml.parse(self.report / "pictures" / name).getroot()
            space = "{http://www.w3.org/2000/svg}"
            self.assertGreater(len(svg.find(f"{space}title").text), 20, name)
            paper = svg.find(f"{space}rect")
            self.assertEqual((paper.get("class"), paper.get("width")), ("fill-paper", "100%"), name)
            self.assertIn("prefers-color-scheme: dark", svg.find(f"{space}style").text)

    def test_distributions_have_bars_and_a_box_for_each_species(self):
        svg = xml.parse(self.report / "pictures" / "distribution_4.svg").getroot()
        self.assertIn("Medians: Adelie 3700, Chinstrap 3700, Gentoo 5000.", svg[1].text + svg[0].text)
        texts = ["".join(text.itertext()).strip() for text in svg.iter("{http://www.w3.org/2000/svg}text")]
        for name in ("Adelie", "Chinstrap", "Gentoo", "body_mass_g"):
            self.assertEqual(texts.count(name), 1, name)
        bars = (self.report / "data" / "distribution_4_bars.tsv").read_text().splitlines()[1:]
        shares = [line.split("\t") for line in bars]
        for group in "123":
            self.assertAlmostEqual(sum(float(share) for k, _, _, share in shares if k == group), 1.0)
        boxes = (self.report / "data" / "distribution_4_boxes.tsv").read_text().splitlines()
        self.assertEqual(boxes[2], "Chinstrap\t2900\t3487.5\t3700\t3950\t4550")  # by R's boxplot.stats and quantile

    def test_functions_named_have_the_contracts_named(self):
        rows = (self.report / "data" / "provenance.tsv").read_text().splitlines()[1:]
        self.assertGreater(len(rows), 20)
        contracts = {}
        for page in (Path(__file__).resolve().parents[2] / "Docs" / "contracts").glob("*.md"):
            for part in page.read_text().split("\n## ")[1:]:
                contracts[part.split("\n")[0]] = part
        for _, function, contract in (row.split("\t") for row in rows):
            self.assertIn(f"`{function}`", contracts.get(contract, "no such contract"), contract)

    def test_biplot_has_a_point_for_each_row_in_the_colour_of_its_species(self):
        svg = self.picture("biplot")
        points = [use for use in svg.iter("use") if use.get("transform", "").startswith("translate")]
        for name, count in (("color-group1", 152), ("color-group2", 68), ("color-group3", 124)):
            self.assertEqual(len(of_class(points, name)), count + 2, name)  # the mean and the legend
        texts = [text_of(text).strip() for text in svg.iter("text")]
        for text in ("Adelie", "Chinstrap", "Gentoo", "bill_length_mm", "bill_depth_mm", "flipper_length_mm",
                     "body_mass_g", "component 1 (68.8 %)", "component 2 (19.4 %)"):
            self.assertEqual(texts.count(text), 1, text)

    def test_correlation_map_has_the_coefficients_of_the_table(self):
        texts = [text_of(text).strip().replace("\u2212", "-") for text in self.picture("correlations").iter("text")]
        for coefficient in ("-0.235", "0.656", "0.595", "-0.584", "-0.472", "0.871"):
            self.assertEqual(texts.count(coefficient), 2, coefficient)
        self.assertEqual(texts.count("1.000"), 4)

    def test_scree_plot_has_the_shares_of_the_table(self):
        texts = [text_of(text).strip() for text in self.picture("components").iter("text")]
        for share in ("68.8 %", "19.4 %", "9.1 %", "2.7 %"):
            self.assertEqual(texts.count(share), 1, share)

    def test_page_needs_no_other_file_and_has_each_name_once(self):
        self.assertEqual(self.html.declarations, ["DOCTYPE html"])
        names = [element.get("id") for element in self.html.root.iter() if element.get("id")]
        self.assertEqual(len(names), len(set(names)))
        for element in self.html.root.iter():
            self.assertNotIn(element.tag, ("script", "link", "img", "iframe", "object", "image"))
            for name, value in element.attrib.items():
                self.assertNotIn("://", value)
                if name.endswith("href"):
                    self.assertIn(value.removeprefix("#"), names)
        for style in self.html.all("style"):
            self.assertNotRegex(text_of(style), "url|@import")
            self.assertIn("prefers-color-scheme: dark", text_of(style))

    def test_data_files_name_every_row(self):
        moments = [line.split("\t") for line in (self.report / "data" / "moments.tsv").read_text().splitlines()]
        self.assertEqual(moments[0][:3], ["column", "species", "count"])
        chinstraps = "bill_length_mm Chinstrap 68 0 40.9 58.0 48.83 3.34 -0.091 0.036"
        self.assertEqual(moments[2], chinstraps.split())
        self.assertEqual(len(moments), 17)


class OfOtherTables(Report):
    def test_pictures_of_an_earlier_survey_are_removed(self):
        self.page_of("x,y\n1,1\n2,5\n3,2\n")
        self.assertEqual(self.pictures(), all_pictures(2))
        self.page_of("x\n1\n2\n")
        self.assertEqual(self.pictures(), ["distribution_1.svg"])

    def test_names_stand_as_they_are(self):
        names = ["a<b & \"c\"", "it's 100% {^_} \\n", "&lt;&#x41;<script>", "y"]
        groups = ["<A & B>", "say \"hi\"", "o'neil %d"]

        def quoted(text):
            return '"' + text.replace('"', '""') + '"'

        rows = [",".join(map(quoted, ["g <&> \"q\"", *names]))]
        rows += [f"{quoted(groups[i % 3])},{i},{i * i % 11},{i * 5 % 7},{i % 4}" for i in range(30)]
        html = self.page_of("\n".join(rows) + "\n", "g <&> \"q\"")
        cells = [text_of(cell) for cell in html.all("th")]
        for name in [*names, *groups, "g <&> \"q\""]:
            self.assertIn(name, cells)
        self.assertIn("Regression of y", [text_of(title) for title in html.all("h2")])
        self.assertEqual(html.all("script"), [])
        self.assertEqual(len(html.all("svg")), len(all_pictures(4)))
        places = ("correlations", "biplot")
        in_pictures = [text for place in places for text in self.in_section(html, place, "text")]
        in_pictures = [text_of(text).strip().replace("\u2060", "") for text in in_pictures]
        for name in names:
            self.assertEqual(in_pictures.count(name), 3, name)  # twice on the map
        for name in groups:
            self.assertEqual(in_pictures.count(name), 1, name)

    def test_column_that_does_not_vary_has_no_pictures(self):
        html = self.page_of("x\n2\n2\n2\n")
        self.assertEqual(html.all("svg"), [])
        self.assertEqual([text_of(title) for title in html.all("h2")], self.titles_on_terminal())
        self.assertFalse((self.report / "pictures").exists())

    def test_one_component_has_no_scree_plot_and_no_biplot(self):
        self.page_of("x,y\n1,2\n2,4\n3,6\n5,10\n")
        self.assertEqual([name for name in self.pictures() if name in ("biplot.svg", "scree.svg")], [])
        self.assertIn("correlation_map.svg", self.pictures())

    def test_columns_that_do_not_vary_have_no_correlation(self):
        html = self.page_of("x,c,y\n1,7,3\n2,7,1\n3,7,5\n4,7,2\n")
        texts = [text_of(text).strip() for text in self.in_section(html, "correlations", "text")]
        self.assertEqual(texts.count("\u2013"), 5)

    def test_many_groups_have_one_colour(self):
        rows = "".join(f"n{i % 9},{i},{i * i % 17}\n" for i in range(90))
        html = self.page_of("g,x,y\n" + rows, "g")
        self.assertEqual(len(of_class(self.in_section(html, "biplot", "use"), "color-group1")), 90)
        self.assertNotIn("n1", [text_of(text).strip() for text in self.in_section(html, "biplot", "text")])

    def test_whole_of_a_table_that_is_cut_is_beside_the_page_or_in_it(self):
        rows = "".join(f"n{i % 60},{i}\n" for i in range(120))
        html = self.page_of("g,x\n" + rows, "g")
        links = [link for link in self.in_section(html, "moments", "a")]
        self.assertEqual([link.get("href") for link in links], ["data/moments.csv"])
        self.assertEqual(text_of(links[0]), "all 61 rows as CSV")
        whole = (self.report / "data" / "moments.csv").read_bytes()
        self.assertEqual(whole.count(b"\n"), 62)
        self.assertEqual(len(self.in_section(html, "moments", "tr")), 12)
        self.assertEqual(self.run_program(MAKE_REPORT, "--single-file", self.report).returncode, 0)
        html = Page((self.report / "index.html").read_text())
        kind, _, content = self.in_section(html, "moments", "a")[0].get("href").partition(",")
        self.assertEqual(kind, "data:text/csv;charset=utf-8;base64")
        self.assertEqual(base64.b64decode(content), whole)

    def test_ten_thousand_groups_are_a_page_at_once(self):
        rows = "".join(f"n{i // 2},{i % 97},{i % 89}\n" for i in range(20000))
        started = time.monotonic()
        html = self.page_of("g,x,y\n" + rows, "g")
        self.assertLess(time.monotonic() - started, 30)  # a second or two; without end when it grew by their square
        self.assertLess((self.report / "index.html").stat().st_size, 3_000_000)
        self.assertEqual(len(self.in_section(html, "moments", "tr")), 23)

    def test_texts_in_another_encoding_are_read_and_that_is_told(self):
        html = self.page_of("gr\xf6\xdfe,x,y\n\xe4,1,5\nb,2,1\n\xe4,3,2\n".encode("latin-1"), "gr\xf6\xdfe")
        self.assertIn("gr\xf6\xdfe", [text_of(cell) for cell in html.all("th")])
        remarks = [text_of(remark) for remark in of_class(html.all("p"), "remark")]
        told = "The file is not in UTF-8 (line 1) and was read as Windows-1252; --encoding names another one."
        self.assertEqual(remarks, [told])

    def test_an_outlier_stays_inside(self):
        rows = "".join(f"{i % 7},{i % 5},{i % 3}\n" for i in range(400))
        html = self.page_of("x,y,z\n" + rows + "9000,-8000,5\n")
        svg = self.in_section(html, "biplot", "svg")[0]
        height, width = float(svg.get("height")), float(svg.get("width"))
        places = [re.match(r"translate\((.*?),(.*?)\)", use.get("transform", "")) for use in svg.iter("use")]
        places = [(float(place[1]), float(place[2])) for place in places if place]
        self.assertEqual(len(places), 401)
        self.assertTrue(all(0 < x < width and 0 < y < height for x, y in places))


class Failures(Report):
    def test_directory_that_cannot_be_written_is_told(self):
        (self.directory / "file").write_text("")
        survey = self.run_program(SURVEY, "--report", "file/report", PENGUINS)
        self.assertEqual(survey.returncode, 1)
        self.assertEqual(survey.stderr, "survey: file/report/data: Not a directory\n")

    def test_file_that_cannot_be_written_is_told(self):
        (self.report / "data" / "moments.tsv").mkdir(parents=True)
        survey = self.run_program(SURVEY, "--report", self.report, PENGUINS)
        self.assertEqual(survey.returncode, 1)
        self.assertEqual(survey.stderr, f"survey: {self.report / 'data' / 'moments.tsv'}: the file can't be written\n")

    def test_directory_without_a_survey_is_told(self):
        made = self.run_program(MAKE_REPORT, self.directory)
        self.assertEqual((made.returncode, made.stdout), (1, ""))
        self.assertRegex(made.stderr, "^make_report: .*No such file.*contents.tsv'\n$")

    def test_contents_that_cannot_be_read_are_told(self):
        (self.report / "data").mkdir(parents=True)
        (self.report / "data" / "contents.tsv").write_text("title\ta\tb\nsection\tc\n")
        made = self.run_program(MAKE_REPORT, self.report)
        self.assertEqual((made.returncode, made.stdout), (1, ""))
        self.assertRegex(made.stderr, "contents.tsv: a line of the kind 'section' can't be read\n$")

    def test_call_without_a_directory_shows_the_usage(self):
        made = self.run_program(MAKE_REPORT)
        self.assertEqual(made.returncode, 2)
        self.assertIn("usage: make_report", made.stderr)


if __name__ == "__main__":
    SURVEY, MAKE_REPORT, PENGUINS = [Path(argument).resolve() for argument in sys.argv[1:4]]
    unittest.main(argv=sys.argv[:1] + sys.argv[4:])
