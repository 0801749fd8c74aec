# SPDX-FileCopyrightText: 2026 The Quillmark authors
# SPDX-License-Identifier: GPL-3.0-or-later

"""The pages of famous birthdays, as laid in the program's folder, opened in a browser.

    famous_pages_test.py FOLDER [TEST ...]
"""

import calendar
import pathlib
import sys
import unittest

from Browser import Browser
from StandIns import Feed, Proxy

FOLDER = pathlib.Path(sys.argv[1])
UNREACHABLE = "The list could not be fetched. This needs an internet connection."
UNUSABLE = "The list could not be fetched. The encyclopedia answered, but without the list."
NOBODY = "http://127.0.0.1:1/"


def born(year, text, *pages):
    return {"text": text, "year": year, "pages": [{"content_urls": {"desktop": {"page": page}}} for page in pages]}


PEOPLE = [
    born(1952, "Vesna Lark, botanist", "https://en.wikipedia.org/wiki/Vesna_Lark", "https://en.wikipedia.org/wiki/Botany"),
    born(1879, "Odo Brandt, maker of clocks (d. 1950)", "https://en.wikipedia.org/wiki/Odo_Brandt"),
    born(189, "Tullia", "https://en.wikipedia.org/wiki/Tullia"),
    born(-12, "Gaius Rufus, consul"),
]


class Pages(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.proxy = Proxy(FOLDER)
        cls.browser = Browser(f"127.0.0.1:{cls.proxy.server_port}")

    @classmethod
    def tearDownClass(cls):
        cls.browser.close()
        cls.proxy.stop()

    def setUp(self):
        self.feed = Feed()
        self.addCleanup(self.feed.stop)
        self.proxy.asked.clear()

    def open(self, name, anchor="", feed=None, **size):
        page = self.browser.open(f"{(FOLDER / name).as_uri()}?feed={feed or self.feed.address}{anchor}", **size)
        self.addCleanup(page.close)
        return page

    def text(self, page, day):
        return page.evaluate(f"document.getElementById('list-{day}').innerText")

    def rows(self, page, day):
        return page.evaluate(f"[...document.querySelectorAll('#list-{day} li')].map(row => row.textContent)")

    def links(self, page, day):
        return page.evaluate(
            f"[...document.querySelectorAll('#list-{day} a')].map(link => [link.textContent, link.getAttribute('href')])")

    def open_days(self, page):
        return page.evaluate("[...document.querySelectorAll('section')].filter("
                             "s => s.querySelector('[aria-expanded=true]')).map(s => s.id)")

    def wait_rows(self, page, day):
        page.wait(f"document.querySelector('#list-{day} li')")

    def wait_failure(self, page, day, message, seconds=20):
        page.wait(f"document.querySelector('#list-{day} .failed')", seconds)
        self.assertEqual(page.evaluate(f"document.querySelector('#list-{day} .failed').firstChild.data.trim()"), message)

    def asked(self, page):
        """What the page asked for since it was opened, but for itself."""
        return [address for address in page.requests if not address.startswith("file:")]

    def proxied_to_encyclopedia(self):
        return [line for line in self.proxy.asked if "wikipedia" in line]

    def test_every_day_has_its_anchor_and_its_link(self):
        for number in range(1, 13):
            month = calendar.month_name[number]
            with self.subTest(month):
                page = self.open(f"{month[:3].lower()}.html")
                days = calendar.monthrange(2024, number)[1]
                self.assertEqual(page.evaluate("[...document.querySelectorAll('section')].map(s => s.id)"),
                                 [f"{day:02}" for day in range(1, days + 1)])
                self.assertEqual(page.evaluate("[...document.querySelectorAll('h2')].map(h => h.textContent)"),
                                 [f"{month} {day}" for day in range(1, days + 1)])
                self.assertEqual(page.evaluate("[...document.querySelectorAll('.source')].map(a => a.href)"),
                                 [f"https://en.wikipedia.org/wiki/{month}_{day}#Births" for day in range(1, days + 1)])
                self.assertEqual(page.evaluate("document.title"), f"Famous birthdays in {month}")
                self.assertEqual(page.evaluate("new Set([...document.querySelectorAll('[id]')].map(e => e.id)).size"),
                                 2 * days)

    def test_every_page_leads_to_every_month(self):
        names = [calendar.month_abbr[number].lower() + ".html" for number in range(1, 13)]
        self.assertEqual(sorted(path.name for path in FOLDER.iterdir()), sorted(names))
        for name in names:
            with self.subTest(name):
                page = self.open(name)
                self.assertEqual(page.evaluate("[...document.querySelectorAll('nav a')].map(a => a.getAttribute('href'))"), names)
                self.assertEqual(page.evaluate("[...document.querySelectorAll('nav [aria-current]')].map("
                                               "a => a.getAttribute('href'))"), [name])
        page.click("nav a[href='feb.html']")
        page.wait("document.title === 'Famous birthdays in February'")

    def test_each_page_stands_alone(self):
        for path in FOLDER.iterdir():
            with self.subTest(path.name):
                text = path.read_text(encoding="utf-8")
                for outside in ("src=", "<link", "@import", "url(", "month_n", "@nonce"):
                    self.assertNotIn(outside, text)
                self.assertIn("SPDX-License-Identifier: GPL-3.0-or-later", text)

    def test_nothing_is_asked_for_before_a_day_is_opened(self):
        for anchor in ("", "#00", "#32", "#7", "#list-07", "#%00", "#%E0%A4%A"):
            with self.subTest(anchor):
                page = self.open("mar.html", anchor)
                # A later request is seen after an earlier one: what the page asked for by itself would stand before it.
                page.evaluate("fetch(new URLSearchParams(location.search).get('feed') + 'last')")
                self.assertEqual(self.asked(page), [self.feed.address + "last"])
                self.assertEqual(self.open_days(page), [])
        self.assertEqual(self.feed.asked, ["GET /last"] * 7)

    def test_the_anchor_names_the_day_that_is_shown(self):
        self.feed.days["03/07"] = (200, PEOPLE)
        page = self.open("mar.html", "#07")
        self.wait_rows(page, "07")
        self.assertEqual(self.rows(page, "07"),
                         ["12 BC Gaius Rufus, consul", "189 Tullia", "1879 Odo Brandt, maker of clocks (d. 1950)",
                          "1952 Vesna Lark, botanist"])
        self.assertEqual(self.links(page, "07"),
                         [["Tullia", "https://en.wikipedia.org/wiki/Tullia"],
                          ["Odo Brandt", "https://en.wikipedia.org/wiki/Odo_Brandt"],
                          ["Vesna Lark", "https://en.wikipedia.org/wiki/Vesna_Lark"]])
        self.assertTrue(self.text(page, "07").startswith("4 people, the earliest first"))
        self.assertEqual(self.open_days(page), ["07"])
        self.assertEqual(self.asked(page), [self.feed.address + "03/07"])
        self.assertEqual(self.feed.asked, ["GET /03/07"])
        self.assertEqual(self.proxied_to_encyclopedia(), [])

    def test_the_last_days_come_into_view(self):
        self.feed.days["02/29"] = (200, PEOPLE * 30)
        for width, strip in ((900, 40), (420, 0)):
            page = self.open("feb.html", "#29", width=width)
            self.wait_rows(page, "29")
            page.wait(f"Math.abs(document.getElementById('29').getBoundingClientRect().top - {strip}) < 2")

    def test_headings_open_and_close_their_days(self):
        self.feed.days["03/01"] = (200, PEOPLE[:1])
        self.feed.days["03/02"] = (200, PEOPLE[1:2])
        page = self.open("mar.html")
        page.click("[id='01'] h2 button")
        self.wait_rows(page, "01")
        self.assertTrue(self.text(page, "01").startswith("1 person\n"))
        page.click("[id='02'] h2 button")
        self.wait_rows(page, "02")
        self.assertEqual(self.open_days(page), ["01", "02"])
        self.assertEqual(page.evaluate("location.hash"), "#02")
        page.click("[id='02'] h2 button")
        self.assertEqual(self.open_days(page), ["01"])
        self.assertEqual(page.evaluate("location.hash"), "")
        page.click("[id='02'] h2 button")
        self.assertEqual(self.rows(page, "02"), ["1879 Odo Brandt, maker of clocks (d. 1950)"])
        self.assertEqual(self.feed.asked, ["GET /03/01", "GET /03/02"])

    def test_the_keyboard_opens_a_day(self):
        self.feed.days["03/01"] = (200, PEOPLE)
        page = self.open("mar.html")
        page.evaluate("document.querySelector('nav a:last-child').focus()")
        page.press("Tab", 9)
        self.assertEqual(page.evaluate("document.activeElement.textContent"), "March 1")
        self.assertEqual(page.evaluate("getComputedStyle(document.activeElement).outlineStyle"), "dotted")
        page.press("Enter", 13, "\r")
        self.wait_rows(page, "01")
        page.press("Tab", 9)
        self.assertEqual(page.evaluate("document.activeElement.className"), "source")
        page.press("Tab", 9)
        self.assertEqual(page.evaluate("document.activeElement.textContent"), "Tullia")

    def test_a_new_anchor_opens_its_day(self):
        self.feed.days["03/08"] = (200, PEOPLE)
        page = self.open("mar.html")
        page.evaluate("location.hash = '08'")
        self.wait_rows(page, "08")
        self.assertEqual(self.feed.asked, ["GET /03/08"])

    def test_coming_back_shows_the_day_again(self):
        self.feed.days["03/05"] = (200, PEOPLE)
        page = self.open("mar.html")
        page.click("[id='05'] h2 button")
        self.wait_rows(page, "05")
        page.go((FOLDER / "apr.html").as_uri())
        page.evaluate("history.back()")
        page.wait("document.title === 'Famous birthdays in March' && document.querySelector('#list-05 li')")

    def test_fetched_text_is_never_markup(self):
        hostile = [
            born(1900, "<script>alert(1)</script><img src=x onerror=alert(2)>, clown", "javascript:alert(3)"),
            born(1901, "Plain Http, traveller", "http://en.wikipedia.org/wiki/Plain"),
            born(1902, "Data, page", "data:text/html,<script>alert(4)</script>"),
            born(1903, "<b>Bold</b>, painter", "https://en.wikipedia.org/wiki/Bold\" onclick=\"alert(5)"),
            born(1904, "Relative, page", "//elsewhere.test/"),
            born("<i>1905</i>", "Year, unknown"),
            {"text": 7, "year": 1906}, {"year": 1907}, None, "text", [], {"text": "  ", "year": 1908},
            {"text": "No pages", "year": 1909, "pages": None},
            {"text": "Odd pages", "year": 1910, "pages": [{"content_urls": {"desktop": {"page": {"href": "https://x"}}}}]},
        ]
        self.feed.days["03/07"] = (200, hostile)
        page = self.open("mar.html", "#07")
        self.wait_rows(page, "07")
        self.assertEqual(self.rows(page, "07"),
                         ["1900 <script>alert(1)</script><img src=x onerror=alert(2)>, clown", "1901 Plain Http, traveller",
                          "1902 Data, page", "1903 <b>Bold</b>, painter", "1904 Relative, page", "1909 No pages",
                          "1910 Odd pages", " Year, unknown"])
        self.assertEqual(self.links(page, "07"),
                         [["<b>Bold</b>", "https://en.wikipedia.org/wiki/Bold%22%20onclick=%22alert(5)"]])
        self.assertEqual(page.evaluate("document.querySelectorAll('#list-07 :is(script, img, b, i, [onclick])').length"), 0)
        self.assertEqual(page.dialogs, [])
        self.assertEqual(self.asked(page), [self.feed.address + "03/07"])

    def test_no_other_script_runs_in_the_page(self):
        page = self.open("mar.html")
        page.evaluate("""{
          const script = document.createElement('script');
          script.textContent = 'window.ran = true';
          document.body.append(script);
          document.body.insertAdjacentHTML('beforeend', '<img src="x" onerror="window.ran = true">');
          const link = document.createElement('a');
          link.href = 'javascript:window.ran = true';
          document.body.append(link);
          link.click();
        }""")
        self.assertFalse(page.evaluate("new Promise(done => setTimeout(() => done(window.ran === true), 100))"))

    def test_without_a_connection_the_page_says_so_and_keeps_its_links(self):
        page = self.open("mar.html", "#07", NOBODY)
        self.wait_failure(page, "07", UNREACHABLE)
        self.assertEqual(page.evaluate("document.querySelector('[id=\"07\"] .source').href"),
                         "https://en.wikipedia.org/wiki/March_7#Births")

    def test_answers_without_a_list(self):
        answers = {
            "01": (500, b"oops"), "02": (404, b'{"births": []}'), "03": (200, b'{"births": ['), "04": (200, b""),
            "05": (200, b"<html>"), "06": (200, b"null"), "07": (200, b"{}"), "08": (200, b'{"births": {}}'),
            "09": (200, b'{"births": "people"}'), "10": (200, b"\xff\xfe\x00"), "11": (200, b"[]"),
        }
        for day, answer in answers.items():
            with self.subTest(answer=answer):
                self.feed.days[f"03/{day}"] = answer
                page = self.open("mar.html", f"#{day}")
                self.wait_failure(page, day, UNUSABLE)

    def test_an_empty_list(self):
        self.feed.days["03/07"] = (200, [])
        page = self.open("mar.html", "#07")
        page.wait("document.getElementById('list-07').innerText === 'The encyclopedia names nobody for this day.'")

    def test_patience_ends_after_ten_seconds(self):
        self.feed.days["03/01"] = None
        self.feed.days["03/02"] = 200
        page = self.open("mar.html", "#01")
        page.click("[id='02'] h2 button")
        started = page.evaluate("performance.now()")
        self.assertEqual(self.text(page, "01"), "Fetching the list\u2026")
        for day in ("01", "02"):
            self.wait_failure(page, day, UNREACHABLE, 30)
        waited = page.evaluate("performance.now()") - started
        self.assertGreater(waited, 8000)
        self.assertLess(waited, 20000)

    def test_a_day_that_is_closed_is_no_longer_waited_for(self):
        self.feed.days["03/07"] = None
        page = self.open("mar.html", "#07")
        page.click("[id='07'] h2 button")
        self.feed.days["03/07"] = (200, PEOPLE)
        page.click("[id='07'] h2 button")
        self.wait_rows(page, "07")
        self.assertEqual(len(self.rows(page, "07")), 4)

    def test_trying_again(self):
        self.feed.days["03/07"] = (500, b"")
        page = self.open("mar.html", "#07")
        self.wait_failure(page, "07", UNUSABLE)
        self.feed.days["03/07"] = (200, PEOPLE)
        page.click(".failed button")
        self.wait_rows(page, "07")
        self.assertEqual(page.evaluate("document.activeElement.textContent"), "March 7")
        self.assertEqual(self.feed.asked, ["GET /03/07"] * 2)

    def test_the_encyclopedia_itself_is_asked_for_the_day_alone(self):
        page = self.browser.open((FOLDER / "mar.html").as_uri() + "#07")
        self.addCleanup(page.close)
        self.wait_failure(page, "07", UNREACHABLE)
        self.assertEqual(self.asked(page), ["https://en.wikipedia.org/api/rest_v1/feed/onthisday/births/03/07"])
        self.assertEqual(set(self.proxied_to_encyclopedia()), {"CONNECT en.wikipedia.org:443"})

    def test_the_address_of_the_feed_is_kept_to_this_computer(self):
        for other in ("http://elsewhere.test/", "https://elsewhere.test/", "//elsewhere.test/", "javascript:alert(1)//",
                      "http://127.0.0.1.elsewhere.test/", "http://127.0.0.1@elsewhere.test/", "http://localhost:1@elsewhere.test/"):
            with self.subTest(other):
                page = self.open("mar.html", "#07", other)
                self.wait_failure(page, "07", UNREACHABLE)
                self.assertEqual(self.asked(page), ["https://en.wikipedia.org/api/rest_v1/feed/onthisday/births/03/07"])
        self.assertEqual([line for line in self.proxy.asked if "elsewhere" in line], [])

    def test_a_page_from_elsewhere_heeds_no_other_feed(self):
        self.feed.days["03/07"] = (200, PEOPLE)
        page = self.browser.open(f"http://pages.test/mar.html?feed={self.feed.address}#07")
        self.addCleanup(page.close)
        self.wait_failure(page, "07", UNREACHABLE)
        self.assertEqual(self.feed.asked, [])
        self.assertIn("https://en.wikipedia.org/api/rest_v1/feed/onthisday/births/03/07", page.requests)

    def test_nothing_is_told_about_the_reader(self):
        self.feed.days["03/07"] = (200, PEOPLE)
        page = self.open("mar.html", "#07")
        self.wait_rows(page, "07")
        self.assertNotIn("Referer", self.feed.headers[0])
        self.assertNotIn("Cookie", self.feed.headers[0])

    def test_large_letters_and_narrow_windows(self):
        self.feed.days["09/30"] = (200, PEOPLE + [born(1999, "Llan" + "fair" * 40 + ", village")])
        for width, size in ((900, 100), (900, 250), (420, 100), (420, 200), (320, 100), (320, 200)):
            with self.subTest(width=width, size=size):
                page = self.open("sep.html", "#30", width=width, height=800)
                page.evaluate(f"document.documentElement.style.fontSize = '{size}%'")
                self.wait_rows(page, "30")
                self.assertLessEqual(page.evaluate("document.documentElement.scrollWidth"), width)
                self.assertEqual(page.evaluate(
                    "[...document.querySelectorAll('nav a, h2 button, .source, .year')].filter("
                    "e => e.scrollWidth > e.clientWidth + 1 && getComputedStyle(e).display !== 'inline').map(e => e.textContent)"), [])

    def test_words_stand_out_from_what_is_behind_them(self):
        self.feed.days["03/07"] = (200, PEOPLE)
        page = self.open("mar.html", "#07")
        self.wait_rows(page, "07")
        page.evaluate("location.hash = '08'")
        self.wait_failure(page, "08", UNUSABLE)
        pale = page.evaluate("""(() => {
          const numbers = colour => colour.match(/[\\d.]+/g).map(Number);
          const light = colour => numbers(colour).slice(0, 3).map(v => v / 255).map(
            v => v <= 0.03928 ? v / 12.92 : ((v + 0.055) / 1.055) ** 2.4).reduce(
            (sum, v, i) => sum + v * [0.2126, 0.7152, 0.0722][i], 0);
          const behind = e => {
            const colour = getComputedStyle(e).backgroundColor;
            return numbers(colour)[3] === 0 && e.parentElement ? behind(e.parentElement) : colour;
          };
          const pale = new Set();
          for (const e of document.querySelectorAll('body *:not(script, style, noscript)')) {
            const [a, b] = [light(getComputedStyle(e).color), light(behind(e))].sort((x, y) => y - x);
            if ((a + 0.05) / (b + 0.05) < 4.5)
              pale.add(e.tagName + '.' + e.className + ' ' + (a + 0.05) / (b + 0.05));
          }
          return [...pale];
        })()""")
        self.assertEqual(pale, [])

    def test_open_days_alone_are_printed(self):
        self.feed.days["03/07"] = (200, PEOPLE)
        page = self.open("mar.html", "#07")
        self.wait_rows(page, "07")
        shown = ("[...document.querySelectorAll('section')].filter(s => s.getClientRects().length).map(s => s.id)")
        page.call("Emulation.setEmulatedMedia", media="print")
        self.assertEqual(page.evaluate(shown), ["07"])
        self.assertEqual(page.evaluate("document.querySelector('nav').getClientRects().length"), 0)
        page.evaluate("document.querySelector('[id=\"07\"] h2 button').click()")
        self.assertEqual(len(page.evaluate(shown)), 31)


if __name__ == "__main__":
    unittest.main(argv=[sys.argv[0], *sys.argv[2:]], verbosity=2)
