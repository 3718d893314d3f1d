"""Forms that a firm's scripts made with the Python library for .docx."""

import datetime
import io
import struct
import zlib

import docx
from docx.enum.section import WD_ORIENT, WD_SECTION
from docx.enum.text import WD_ALIGN_PARAGRAPH, WD_BREAK
from docx.oxml import OxmlElement
from docx.oxml.ns import qn
from docx.shared import Inches, Pt, RGBColor


def picture():
    """A small square of one colour."""
    rows = b"".join(b"\0" + b"\x20\x60\xa0" * 16 for _ in range(16))
    part = lambda kind, data: struct.pack(">I", len(data)) + kind + data + struct.pack(">I", zlib.crc32(kind + data))
    return io.BytesIO(b"\x89PNG\r\n\x1a\n" + part(b"IHDR", struct.pack(">IIBBBBB", 16, 16, 8, 2, 0, 0, 0)) +
                      part(b"IDAT", zlib.compress(rows)) + part(b"IEND", b""))


def start():
    form = docx.Document()
    form.add_heading("Rider to Contract", 1)
    form.add_paragraph("Between [seller 1 name] and [buyer 1 name].")
    return form


def headings():
    form = start()
    for level in (2, 3):
        form.add_heading(f"Terms for [seller 1 name], level {level}", level)
        form.add_paragraph("The fee is [LOT FEE].", style="Intense Quote")
    return form


def lists():
    form = start()
    for style in ("List Bullet", "List Number", "List Number 2", "List Bullet 2"):
        for text in ("[seller 1 name] delivers", "[buyer 1 name] accepts"):
            form.add_paragraph(text, style=style)
    return form


def styled_table():
    form = start()
    table = form.add_table(rows=3, cols=3, style="Light Grid Accent 1")
    for row, marker in zip(table.rows, ("[seller 1 name]", "[buyer 1 name]", "[LOT FEE]")):
        row.cells[0].text, row.cells[2].text = "Item", marker
    table.cell(0, 0).merge(table.cell(0, 1))
    return form


def nested_table():
    form = start()
    outer = form.add_table(rows=1, cols=2, style="Table Grid")
    inner = outer.cell(0, 1).add_table(rows=2, cols=2)
    inner.style = "Table Grid"
    inner.cell(1, 1).text = "deep [LOT FEE]"
    return form


def headers():
    form = start()
    section = form.sections[0]
    section.header.paragraphs[0].text = "Left\tfor [seller 1 name]\tRight"
    section.footer.paragraphs[0].text = "Fee [LOT FEE]"
    section.different_first_page_header_footer = True
    section.first_page_footer.paragraphs[0].text = "First page"
    form.add_paragraph().add_run().add_break(WD_BREAK.PAGE)
    form.add_paragraph("Second page")
    return form


def wide_pages():
    form = start()
    section = form.add_section(WD_SECTION.NEW_PAGE)
    section.orientation, section.page_width, section.page_height = WD_ORIENT.LANDSCAPE, Inches(11), Inches(8.5)
    form.add_paragraph("Wide for [LOT FEE]")
    return form


def pictures():
    form = start()
    form.add_picture(picture(), width=Inches(1))
    form.add_paragraph("beside ").add_run().add_picture(picture(), width=Inches(0.3))
    return form


def looks():
    form = start()
    form.styles["Normal"].font.name, form.styles["Normal"].font.size = "Liberation Serif", Pt(15)
    paragraph = form.add_paragraph("Fee ")
    for part, size in (("[LOT", 8), (" FE", 24), ("E]", 12)):
        run = paragraph.add_run(part)
        run.font.size, run.bold, run.font.color.rgb = Pt(size), True, RGBColor(0xA0, 0, 0)
    paragraph.alignment = WD_ALIGN_PARAGRAPH.RIGHT
    paragraph.paragraph_format.left_indent, paragraph.paragraph_format.line_spacing = Inches(1), 2.0
    return form


def page_fields():
    form = start()
    paragraph = form.sections[0].footer.paragraphs[0]
    for kind, text in (("begin", ""), ("", "NUMPAGES"), ("separate", ""), (None, "1"), ("end", "")):
        run = paragraph.add_run(text if kind is None else "")
        if kind:
            mark = OxmlElement("w:fldChar")
            mark.set(qn("w:fldCharType"), kind)
            run._r.append(mark)
        if kind == "":
            code = OxmlElement("w:instrText")
            code.text = text
            run._r.append(code)
    form.add_paragraph("[LOT FEE]")
    return form


def bookmarks():
    form = start()
    paragraph = form.add_paragraph("Fee [LOT FEE]")
    for tag, place in (("w:bookmarkStart", 0), ("w:bookmarkEnd", 2)):
        mark = OxmlElement(tag)
        mark.set(qn("w:id"), "7")
        if place == 0:
            mark.set(qn("w:name"), "Fee")
        paragraph._p.insert(place, mark)
    return form


def two_columns():
    form = start()
    columns = form.sections[0]._sectPr.xpath("./w:cols")[0]
    columns.set(qn("w:num"), "2")
    for n in range(12):
        form.add_paragraph(f"Term {n}: [seller 1 name] and [buyer 1 name] agree on [LOT FEE].")
    return form


MAKERS = (headings, lists, styled_table, nested_table, headers, wide_pages, pictures, looks, page_fields, bookmarks,
          two_columns)


def make(folder):
    for maker in MAKERS:
        form = maker()
        form.core_properties.created = form.core_properties.modified = datetime.datetime(2024, 3, 1)
        form.save(folder / f"python-{maker.__name__.replace('_', '-')}.docx")
