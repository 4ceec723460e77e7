# SPDX-License-Identifier: MIT
"""The site: days with their lists, as the service has them, each file once by its HTTP and once by its FTP address."""
import os
import pathlib

SITE = pathlib.Path("/tmp/site")
TODAY = pathlib.Path("/tmp/today.asp")  # what the list's script answers
# Words in lines, as an article has them: the window shows the text of the selected clipping.
TEXT = (b"The minister said on Tuesday that the budget would be discussed once more.\r\n" * 200)[:8000]
ADVERTISEMENT = "ADVERTISMENT.JPG"


class Day:
    def __init__(self, name, clippings, pdf_size):
        self.name, self.clippings, self.pdf_size = name, clippings, pdf_size
        self.digits = name.replace("/", "")
        self.http_folder = "archive/" + "/".join(reversed(name.split("/")))

    def titles(self):
        return [f"N{number:05}{self.http_folder[8:].replace('/', '')}" for number in range(1, self.clippings + 1)]

    def files(self):
        return [f"{title}.{form}" for title in self.titles() for form in ("PDF", "TXT", "MT")]

    def make(self):
        folder = SITE / self.http_folder
        folder.mkdir(parents=True)
        for name in self.files():
            # TXT and MT are small, as in real life.
            content = {"PDF": lambda: os.urandom(self.pdf_size), "TXT": lambda: TEXT, "MT": lambda: b"y" * 2000}
            (folder / name).write_bytes(content[name.rsplit(".", 1)[1]]())
            os.link(folder / name, SITE / "torvoarchive" / name)

    def be_today(self):
        TODAY.write_text("".join(
            f"{title}.PDF||NEWSPAPER {number % 7}||TITLE OF CLIPPING {number}||POLITICS|ECONOMY||ARTICLE||1||-"
            f"||{self.pdf_size}||8000||2000<br>" for number, title in enumerate(self.titles())))


SMALL = Day("01/01/2004", 100, 216_000)
LARGE = Day("02/01/2004", 1000, 216_000)
ONE_FILE = Day("03/01/2004", 1, 209_715_200)


def make_all():
    (SITE / "torvoarchive").mkdir(parents=True)
    (SITE / "sources.asp").write_text("An alert.")
    nonsense = SITE / "archive/RTIS/ME/NT"  # where the service keeps the advertisement
    nonsense.mkdir(parents=True)
    (nonsense / ADVERTISEMENT).write_bytes(os.urandom(17_855))
    os.link(nonsense / ADVERTISEMENT, SITE / "torvoarchive" / ADVERTISEMENT)
    for day in (SMALL, LARGE, ONE_FILE):
        day.make()
