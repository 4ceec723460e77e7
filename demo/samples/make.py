#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Makes the sample clippings and the advertisement that lie beside this script: make.py [FOLDER]

Run by hand after a change of a text, a page or a picture; the build takes the files as they are. Needs the Debian
packages python3-gi, python3-gi-cairo, gir1.2-pango-1.0, gir1.2-gdkpixbuf-2.0, fonts-gfs-didot, fonts-gfs-artemisia,
fonts-gfs-neohellenic, fonts-linuxlibertine, fonts-ebgaramond and fonts-roboto-unhinted.
"""
import pathlib
import sys
import unicodedata

import articles
import page
import pictures


def sample_of(day, number, row):
    paper, theme, lead, title, category, kind, picture = row
    name, language, authors = articles.PAPERS[paper]
    sentences = (articles.GREEK if language == "el" else articles.ENGLISH)
    own = sentences[theme][lead:] + sentences[theme][:lead]
    common = [sentences["general"][(number + i) % 6] for i in range(5)] + sentences["general"][6:]
    return {
        "paper": paper, "newspaper": name, "language": language, "author": authors[number % 2], "title": title,
        "category": category, "type": kind, "page": 1 + number * 5 % 23, "picture": picture,
        "caption": articles.CAPTIONS[picture][language == "en"] if picture else "", "lead": own[0],
        "paragraphs": [" ".join(part) for part in (own[1:4], own[4:], common[:3], common[3:])],
    }


def page_line(sample):
    return ("Σελίδα " if sample["language"] == "el" else "Page ") + str(sample["page"])


def capitals(text):
    """As Greek sets them: without the accent, with the diaeresis."""
    bare = unicodedata.normalize("NFD", text).replace("\u0301", "").upper()
    return unicodedata.normalize("NFC", bare)


def text_form(sample):
    parts = [f"{sample['newspaper']}\n{page_line(sample)}", capitals(sample["title"]), sample["author"], sample["lead"],
             *sample["paragraphs"]]
    return "\n\n".join(part for part in parts if part) + "\n"


# The service puts the name of the page's file and the day in front.
def companion_form(sample):
    rows = {"NEWSPAPER": sample["newspaper"], "PAGE": sample["page"], "TITLE": sample["title"],
            "CATEGORY": sample["category"], "TYPE": sample["type"], "LANGUAGE": sample["language"]}
    return "".join(f"{key}: {value}\n" for key, value in rows.items())


def write_text(path, text, encoding):
    path.write_bytes(text.replace("\r\n", "\n").replace("\n", "\r\n").encode(encoding))


def make_day(folder, day):
    rows, per_paper = ["file\tnewspaper\ttitle\tcategory\ttype"], {}
    for form in ("pdf", "txt", "mt"):
        (folder / form).mkdir(parents=True, exist_ok=True)
    for number, row in enumerate(articles.DAYS[day]):
        sample = sample_of(day, number, row)
        per_paper[row[0]] = per_paper.get(row[0], 0) + 1
        name = f"{row[0]}{per_paper[row[0]]:02}"
        page.draw(folder / f"pdf/{name}.PDF", sample, page_line(sample))
        write_text(folder / f"txt/{name}.TXT", text_form(sample), "cp1253")
        write_text(folder / f"mt/{name}.MT", companion_form(sample), "cp1253")
        rows.append("\t".join([f"{name}.PDF", sample["newspaper"], sample["title"], sample["category"], sample["type"]]))
    write_text(folder / "clippings.tsv", "\n".join(rows) + "\n", "utf-8")
    if day in articles.ALERTS:
        write_text(folder / "alert.txt", articles.ALERTS[day], "utf-8")


def main():
    target = pathlib.Path(sys.argv[1] if len(sys.argv) > 1 else pathlib.Path(__file__).parent)
    for day in articles.DAYS:
        make_day(target / day, day)
    (target / "ADVERTISMENT.JPG").write_bytes(pictures.advertisement())


if __name__ == "__main__":
    main()
