"""Forms that LibreOffice wrote from texts of its own format and from web pages."""

import subprocess

SPACES = " ".join(
    f'xmlns:{prefix}="urn:oasis:names:tc:opendocument:xmlns:{name}:1.0"'
    for prefix, name in (("office", "office"), ("text", "text"), ("style", "style"), ("table", "table"),
                         ("draw", "drawing"), ("fo", "xsl-fo-compatible"), ("svg", "svg-compatible"))
) + ' xmlns:dc="http://purl.org/dc/elements/1.1/" xmlns:xlink="http://www.w3.org/1999/xlink"'
STYLES = (
    '<style:style style:name="Red" style:family="text"><style:text-properties fo:color="#a00000" fo:font-weight="bold"/>'
    '</style:style><style:style style:name="Mid" style:family="paragraph"><style:paragraph-properties '
    'fo:text-align="center" fo:margin-left="0.5in" fo:margin-top="0.2in"/></style:style>'
    '<style:style style:name="Wide" style:family="paragraph" style:master-page-name="Landscape"/>'
    '<style:style style:name="Cols" style:family="section"><style:section-properties><style:columns '
    'fo:column-count="2" fo:column-gap="0.3in"/></style:section-properties></style:style>'
    '<style:style style:name="Frame" style:family="graphic"><style:graphic-properties fo:border="0.5pt solid #000000" '
    'style:wrap="none"/></style:style>'
)
WHO = "<dc:creator>A. Clerk</dc:creator><dc:date>2024-03-01T10:00:00</dc:date>"


def flat(body, master="", layouts="", tracked=""):
    return (
        f'<?xml version="1.0" encoding="UTF-8"?><office:document {SPACES} office:version="1.3" office:mimetype="application/vnd.oasis.opendocument.text">'
        f"<office:automatic-styles>{STYLES}"
        '<style:page-layout style:name="Up"><style:page-layout-properties fo:page-width="8.5in" fo:page-height="11in" '
        'fo:margin="1in"/><style:header-style/><style:footer-style/></style:page-layout>'
        '<style:page-layout style:name="Across"><style:page-layout-properties fo:page-width="11in" '
        'fo:page-height="8.5in" style:print-orientation="landscape" fo:margin="0.7in"/></style:page-layout>'
        f'{layouts}</office:automatic-styles><office:master-styles><style:master-page style:name="Standard" '
        f'style:page-layout-name="Up">{master}</style:master-page><style:master-page style:name="Landscape" '
        f'style:page-layout-name="Across"/></office:master-styles><office:body><office:text>{tracked}{body}'
        "</office:text></office:body></office:document>"
    )


def p(content, style=""):
    style = f' text:style-name="{style}"' if style else ""
    return f"<text:p{style}>{content}</text:p>"


PARTIES = p("Between [seller 1 name] and [buyer 1 name], for [LOT FEE].")
cell = lambda content: f'<table:table-cell office:value-type="string">{p(content)}</table:table-cell>'
note = lambda kind: (f'<text:note text:note-class="{kind}"><text:note-citation>1</text:note-citation><text:note-body>'
                     + p("See [LOT FEE].") + "</text:note-body></text:note>")
change = lambda name, kind, content="": (f'<text:changed-region text:id="{name}"><text:{kind}><office:change-info>{WHO}'
                                         f"</office:change-info>{content}</text:{kind}></text:changed-region>")
FLAT = {
    "plain": flat(p("License", "Mid") + PARTIES + p('Fee <text:span text:style-name="Red">[LOT</text:span> FEE]')),
    "table": flat(PARTIES + '<table:table table:name="T"><table:table-column table:number-columns-repeated="2"/>'
                  f"<table:table-row>{cell('Owner')}{cell('[seller 1 name]')}</table:table-row><table:table-row>"
                  f"{cell('Fee')}{cell('[LOT FEE]')}</table:table-row></table:table>" + p("end")),
    "footnote": flat(p("[seller 1 name]" + note("footnote") + " sells.") + PARTIES),
    "endnote": flat(p("[seller 1 name]" + note("endnote") + " sells.") + PARTIES),
    "comment": flat(p(f'The <office:annotation office:name="c1">{WHO}{p("Check it.")}</office:annotation>owner [seller 1 name]'
                      '<office:annotation-end office:name="c1"/> sells.') + PARTIES),
    "changes": flat(p('The <text:change-start text:change-id="i1"/>owner [seller 1 name]<text:change-end text:change-id="i1"/>'
                      ' sells<text:change text:change-id="d1"/>.') + PARTIES,
                    tracked="<text:tracked-changes>" + change("i1", "insertion") + change("d1", "deletion", p(" nothing"))
                    + "</text:tracked-changes>"),
    "frame": flat(p('<draw:frame draw:style-name="Frame" svg:width="3in" text:anchor-type="paragraph"><draw:text-box '
                    'fo:min-height="0.5in">' + p("Box for [seller 1 name]") + "</draw:text-box></draw:frame>") + PARTIES),
    "header": flat(PARTIES, f"<style:header>{p('Head for [seller 1 name]')}</style:header><style:footer>"
                   f"{p('Page <text:page-number>1</text:page-number>')}</style:footer>"),
    "landscape": flat(PARTIES + p("Wide for [LOT FEE]", "Wide") + p("more")),
    "columns": flat(PARTIES + '<text:section text:name="S" text:style-name="Cols">' + PARTIES * 6 + "</text:section>" + p("end")),
    "bookmark": flat(p('<text:bookmark-start text:name="Fee"/>[LOT FEE]<text:bookmark-end text:name="Fee"/> and '
                       '<text:bookmark-ref text:reference-format="text" text:ref-name="Fee">[LOT FEE]</text:bookmark-ref>') + PARTIES),
}
WEB = {
    "web-page": "<h1>License</h1><p>Between <b>[seller 1</b> name] and <i>[buyer 1 name]</i>.</p><ul><li>fee [LOT FEE]<li>"
                "<a href='https://example.org/'>terms</a></ul><hr><ol><li>one<ol><li>two</ol></ol>",
    "web-table": "<table border=1 cellpadding=4><tr><th colspan=2>[seller 1 name]<tr><td rowspan=2>[buyer 1 name]<td>a<tr>"
                 "<td>[LOT FEE]</table><p>end",
}


def make(folder, scratch):
    for name, text in FLAT.items():
        (scratch / f"office-{name}.fodt").write_text(text, "utf-8")
    for name, text in WEB.items():
        (scratch / f"office-{name}.html").write_text(f"<html><body>{text}</body></html>", "utf-8")
    office = ["soffice", f"-env:UserInstallation=file://{scratch}/profile", "--headless"]
    writer = ["--convert-to", "docx:MS Word 2007 XML", "--outdir", str(folder)]
    subprocess.run(office + ["--infilter=OpenDocument Text Flat XML"] + writer +
                   [str(f) for f in sorted(scratch.glob("*.fodt"))], check=True)
    subprocess.run(office + ["--infilter=HTML (StarWriter)"] + writer + [str(f) for f in sorted(scratch.glob("*.html"))],
                   check=True)
