"""Forms with the XML that a word processor leaves behind after years of editing."""

import zipfile

OFFICE = "http://schemas.openxmlformats.org/officeDocument/2006/relationships"
TYPES = "application/vnd.openxmlformats-officedocument.wordprocessingml."
SPACES = (
    'xmlns:w="http://schemas.openxmlformats.org/wordprocessingml/2006/main" '
    f'xmlns:r="{OFFICE}" xmlns:v="urn:schemas-microsoft-com:vml" xmlns:o="urn:schemas-microsoft-com:office:office" '
    'xmlns:w10="urn:schemas-microsoft-com:office:word" '
    'xmlns:wp="http://schemas.openxmlformats.org/drawingml/2006/wordprocessingDrawing" '
    'xmlns:a="http://schemas.openxmlformats.org/drawingml/2006/main" '
    'xmlns:wps="http://schemas.microsoft.com/office/word/2010/wordprocessingShape" '
    'xmlns:w14="http://schemas.microsoft.com/office/word/2010/wordml" '
    'xmlns:w15="http://schemas.microsoft.com/office/word/2012/wordml" '
    'xmlns:mc="http://schemas.openxmlformats.org/markup-compatibility/2006" mc:Ignorable="w14 w15"'
)
STYLES = (
    '<w:docDefaults><w:rPrDefault><w:rPr><w:rFonts w:ascii="Liberation Sans" w:hAnsi="Liberation Sans"/>'
    '<w:sz w:val="22"/></w:rPr></w:rPrDefault><w:pPrDefault><w:pPr><w:spacing w:after="160" w:line="259" '
    'w:lineRule="auto"/></w:pPr></w:pPrDefault></w:docDefaults>'
    '<w:style w:type="paragraph" w:default="1" w:styleId="Normal"><w:name w:val="Normal"/></w:style>'
    '<w:style w:type="character" w:default="1" w:styleId="Letters"><w:name w:val="Default Paragraph Font"/></w:style>'
    '<w:style w:type="table" w:default="1" w:styleId="Plain"><w:name w:val="Normal Table"/><w:tblPr><w:tblCellMar>'
    '<w:left w:w="108" w:type="dxa"/><w:right w:w="108" w:type="dxa"/></w:tblCellMar></w:tblPr></w:style>'
    '<w:style w:type="paragraph" w:styleId="Heading1"><w:name w:val="heading 1"/><w:basedOn w:val="Normal"/>'
    '<w:pPr><w:keepNext/><w:spacing w:before="240"/><w:outlineLvl w:val="0"/></w:pPr><w:rPr><w:b/>'
    '<w:color w:val="7A1F1F"/><w:sz w:val="32"/></w:rPr></w:style>'
    '<w:style w:type="character" w:styleId="Hint"><w:name w:val="Placeholder Text"/><w:rPr><w:color w:val="808080"/>'
    '</w:rPr></w:style>'
    '<w:style w:type="character" w:styleId="Mark"><w:name w:val="annotation reference"/><w:rPr><w:sz w:val="16"/>'
    '</w:rPr></w:style>'
    '<w:style w:type="table" w:styleId="Lined"><w:name w:val="Table Grid"/><w:basedOn w:val="Plain"/><w:tblPr>'
    '<w:tblBorders><w:top w:val="single" w:sz="4" w:space="0" w:color="auto"/><w:left w:val="single" w:sz="4" '
    'w:space="0" w:color="auto"/><w:bottom w:val="single" w:sz="4" w:space="0" w:color="auto"/><w:right '
    'w:val="single" w:sz="4" w:space="0" w:color="auto"/><w:insideH w:val="single" w:sz="4" w:space="0" '
    'w:color="auto"/><w:insideV w:val="single" w:sz="4" w:space="0" w:color="auto"/></w:tblBorders></w:tblPr></w:style>'
)
SIZE = '<w:pgSz w:w="12240" w:h="15840"/><w:pgMar w:top="1440" w:right="1440" w:bottom="1440" w:left="1440" ' \
       'w:header="720" w:footer="720" w:gutter="0"/>'
WHEN = 'w:author="A. Clerk" w:date="2024-03-01T10:00:00Z"'


def run(text, look=""):
    look = f"<w:rPr>{look}</w:rPr>" if look else ""
    return f'<w:r w:rsidR="00AB12CD">{look}<w:t xml:space="preserve">{text}</w:t></w:r>'


def line(*content, look=""):
    inner = "".join(run(c) if not c.startswith("<") else c for c in content)
    look = f"<w:pPr>{look}</w:pPr>" if look else ""
    return f'<w:p w14:paraId="1A2B3C4D" w:rsidR="00AB12CD" w:rsidRDefault="00AB12CD">{look}{inner}</w:p>'


TITLE = line("AGREEMENT OF LICENSE", look='<w:pStyle w:val="Heading1"/>')
PARTIES = line("This agreement is between [seller 1 name], hereinafter called the owner, and [buyer 1 name].")
FEE = line("The fee is [LOT FEE] dollars, payable at the closing.")


class Form:
    """One package: the main text and whatever parts it leads to."""

    def __init__(self, body, section=SIZE):
        self.parts = {}
        self.links = []
        self.overrides = {"word/document.xml": TYPES + "document.main+xml"}
        self.add("styles", "styles", STYLES)
        self.body, self.section = body, section

    def add(self, kind, root, content, name=None, relation=None, attributes=""):
        name = name or f"{kind}.xml"
        self.parts[f"word/{name}"] = f"<w:{root} {SPACES}{attributes}>{content}</w:{root}>"
        self.overrides[f"word/{name}"] = TYPES + kind + "+xml"
        self.links.append((relation or f"rId{len(self.links) + 1}", f"{OFFICE}/{kind}", name, ""))
        return self

    def link(self, relation, kind, target, external=False):
        self.links.append((relation, f"{OFFICE}/{kind}", target, ' TargetMode="External"' if external else ""))
        return self

    def story(self, kind, content, pages="default"):
        relation = f"rId_{kind}_{pages}"
        self.add(kind, "hdr" if kind == "header" else "ftr", content, f"{kind}_{pages}.xml", relation)
        self.section = f'<w:{kind}Reference w:type="{pages}" r:id="{relation}"/>' + self.section
        return self

    def save(self, path):
        parts = dict(self.parts)
        parts["word/document.xml"] = (
            f"<w:document {SPACES}><w:body>{self.body}<w:sectPr w:rsidR=\"00AB12CD\">{self.section}</w:sectPr>"
            "</w:body></w:document>"
        )
        links = "".join(
            f'<Relationship Id="{i}" Type="{kind}" Target="{target}"{mode}/>' for i, kind, target, mode in self.links
        )
        space = "http://schemas.openxmlformats.org/package/2006"
        parts["word/_rels/document.xml.rels"] = f'<Relationships xmlns="{space}/relationships">{links}</Relationships>'
        parts["_rels/.rels"] = (
            f'<Relationships xmlns="{space}/relationships"><Relationship Id="rId1" Type="{OFFICE}/officeDocument" '
            'Target="word/document.xml"/></Relationships>'
        )
        overrides = "".join(f'<Override PartName="/{n}" ContentType="{t}"/>' for n, t in self.overrides.items())
        parts["[Content_Types].xml"] = (
            f'<Types xmlns="{space}/content-types"><Default Extension="rels" '
            'ContentType="application/vnd.openxmlformats-package.relationships+xml"/><Default Extension="xml" '
            f'ContentType="application/xml"/>{overrides}</Types>'
        )
        with zipfile.ZipFile(path, "w", zipfile.ZIP_DEFLATED) as package:
            for name in sorted(parts):
                info = zipfile.ZipInfo(name, (2024, 3, 1, 10, 0, 0))
                info.compress_type = zipfile.ZIP_DEFLATED
                package.writestr(info, '<?xml version="1.0" encoding="UTF-8" standalone="yes"?>' + parts[name])


def control(content, properties=""):
    return f"<w:sdt><w:sdtPr>{properties}</w:sdtPr><w:sdtContent>{content}</w:sdtContent></w:sdt>"


def table(*rows):
    grid = '<w:tblGrid><w:gridCol w:w="4675"/><w:gridCol w:w="4675"/></w:tblGrid>'
    return f'<w:tbl><w:tblPr><w:tblStyle w:val="Lined"/><w:tblW w:w="0" w:type="auto"/></w:tblPr>{grid}' + "".join(
        rows) + "</w:tbl>" + line("")


def cell(content):
    return f'<w:tc><w:tcPr><w:tcW w:w="4675" w:type="dxa"/></w:tcPr>{content}</w:tc>'


def field(code, result):
    mark = '<w:r><w:fldChar w:fldCharType="{}"/></w:r>'
    return (mark.format("begin") + f'<w:r><w:instrText xml:space="preserve"> {code} </w:instrText></w:r>' +
            mark.format("separate") + run(result, "<w:b/>") + mark.format("end"))


def comments(*texts):
    return "".join(
        f'<w:comment w:id="{n}" {WHEN} w:initials="AC"><w:p><w:r><w:rPr><w:rStyle w:val="Mark"/></w:rPr>'
        f"<w:annotationRef/></w:r>{run(text)}</w:p></w:comment>" for n, text in enumerate(texts))


def commented(number, content):
    return (f'<w:commentRangeStart w:id="{number}"/>{content}<w:commentRangeEnd w:id="{number}"/><w:r><w:rPr>'
            f'<w:rStyle w:val="Mark"/></w:rPr><w:commentReference w:id="{number}"/></w:r>')


def shape_box(text, name="s1"):
    return (f'<w:r><w:pict><v:shape id="{name}" style="width:200pt;height:40pt" stroked="t"><v:textbox><w:txbxContent>'
            f"{line(text)}</w:txbxContent></v:textbox></v:shape></w:pict></w:r>")


def drawn_box(text):
    inner = (f'<wp:inline distT="0" distB="0" distL="0" distR="0"><wp:extent cx="2540000" cy="508000"/><wp:docPr '
             f'id="1" name="Box 1"/><a:graphic><a:graphicData uri='
             f'"http://schemas.microsoft.com/office/word/2010/wordprocessingShape"><wps:wsp><wps:cNvSpPr/><wps:spPr>'
             f'<a:xfrm><a:off x="0" y="0"/><a:ext cx="2540000" cy="508000"/></a:xfrm><a:prstGeom prst="rect"><a:avLst/>'
             f'</a:prstGeom><a:ln w="9525"><a:solidFill><a:srgbClr val="000000"/></a:solidFill></a:ln></wps:spPr>'
             f"<wps:txbx><w:txbxContent>{line(text)}</w:txbxContent></wps:txbx><wps:bodyPr/></wps:wsp></a:graphicData>"
             "</a:graphic></wp:inline>")
    return (f'<w:r><mc:AlternateContent><mc:Choice Requires="wps"><w:drawing>{inner}</w:drawing></mc:Choice>'
            f'<mc:Fallback>{shape_box(text, "s2")[5:-6]}</mc:Fallback></mc:AlternateContent></w:r>')


def forms():
    ins = lambda text, n=1: f'<w:ins w:id="{n}" {WHEN}>{run(text)}</w:ins>'
    gone = lambda text, n=2: (f'<w:del w:id="{n}" {WHEN}><w:r><w:delText xml:space="preserve">{text}</w:delText></w:r>'
                              "</w:del>")
    split = line(run("[sel"), '<w:proofErr w:type="spellStart"/>', run("ler 1 ", "<w:b/>"), '<w:proofErr w:type="spellEnd"/>',
                 '<w:bookmarkStart w:id="0" w:name="_GoBack"/><w:bookmarkEnd w:id="0"/>', run("na"),
                 "<w:r><w:lastRenderedPageBreak/><w:t>me]</w:t></w:r>", " and ",
                 '<w:smartTag w:uri="urn:x" w:element="PersonName">' + run("[buyer 1 name]") + "</w:smartTag>")
    yield "split-runs", Form(TITLE + split + FEE)
    yield "marked-terms", Form(TITLE + line('<w:bookmarkStart w:id="3" w:name="Owner"/>', "[seller 1 name]",
                               '<w:bookmarkEnd w:id="3"/>', " sells; see ", field("REF Owner \\h", "[seller 1 name]")) + FEE)
    yield "comments", Form(TITLE + line(commented(0, run("[seller 1 name]")), " sells to ", commented(1, run("[buyer 1")),
                           " name].") + FEE).add("comments", "comments", comments("Ask him.", "Check the spelling."))
    yield "comment-over-lines", Form(TITLE + line('<w:commentRangeStart w:id="0"/>', "[seller 1 name] sells.") +
        line("[buyer 1 name] buys.", '<w:commentRangeEnd w:id="0"/><w:r><w:commentReference w:id="0"/></w:r>') + FEE
        ).add("comments", "comments", comments("Both sign."))
    yield "inserted", Form(TITLE + line("The owner, ", ins("[seller 1 name]"), ", sells.") +
        line(ins("A line put in for [buyer 1 name].", 5), look=f'<w:rPr><w:ins w:id="6" {WHEN}/></w:rPr>') + FEE)
    yield "deleted", Form(TITLE + line("The owner, [seller ", gone("2"), ins("1"), " name], sells ", gone("nothing ", 3), "today.") +
        line(gone("All of this goes.", 4), look=f'<w:rPr><w:del w:id="7" {WHEN}/></w:rPr>') + PARTIES + FEE)
    yield "moved", Form(TITLE + line(f'<w:moveFromRangeStart w:id="1" w:name="move1" {WHEN}/><w:moveFrom w:id="2" {WHEN}>'
        + run("Time is of the essence. ") + '</w:moveFrom><w:moveFromRangeEnd w:id="1"/>', "[seller 1 name] sells. ",
        f'<w:moveToRangeStart w:id="3" w:name="move1" {WHEN}/><w:moveTo w:id="4" {WHEN}>', run("Time is of the essence."),
        '</w:moveTo><w:moveToRangeEnd w:id="3"/>') + FEE)
    yield "reformatted", Form(TITLE + line(f'<w:r><w:rPr><w:i/><w:rPrChange w:id="1" {WHEN}><w:rPr><w:b/></w:rPr></w:rPrChange>'
        "</w:rPr><w:t>[seller 1 name]</w:t></w:r>", look=f'<w:jc w:val="center"/><w:pPrChange w:id="2" {WHEN}><w:pPr>'
        '<w:pStyle w:val="Heading1"/></w:pPr></w:pPrChange>') + FEE)
    yield "rows-in-review", Form(TITLE + table(
        f'<w:tr><w:trPr><w:ins w:id="1" {WHEN}/></w:trPr>{cell(line(ins("[seller 1 name]")))}{cell(line(ins("owner", 3)))}</w:tr>',
        f'<w:tr><w:trPr><w:del w:id="4" {WHEN}/></w:trPr>{cell(line(gone("former")))}{cell(line(gone("owner", 6)))}</w:tr>') + FEE)
    yield "text-controls", Form(TITLE + line("Owner: ", control(run("[seller 1 name]"),
        '<w:alias w:val="Owner"/><w:tag w:val="owner"/><w:id w:val="77"/><w:text/>'), ". Fee: ", control(run("[LOT FEE]", '<w:rStyle '
        'w:val="Hint"/>'), '<w:id w:val="78"/><w:placeholder><w:docPart w:val="DefaultPlaceholder_1"/></w:placeholder>'
        '<w:showingPlcHdr/><w:text/>')))
    yield "check-controls", Form(TITLE + line(control('<w:r><w:rPr><w:rFonts w:ascii="MS Gothic" w:hAnsi="MS Gothic"/></w:rPr>'
        '<w:t>\u2612</w:t></w:r>', '<w:id w:val="5"/><w14:checkbox><w14:checked w14:val="1"/><w14:checkedState w14:val="2612" '
        'w14:font="MS Gothic"/></w14:checkbox>'), " [seller 1 name] pays [LOT FEE].") + line("State: ", control(run("Connecticut"),
        '<w:dropDownList><w:listItem w:displayText="Connecticut" w:value="CT"/></w:dropDownList>')))
    yield "block-controls", Form(TITLE + control(PARTIES + FEE, '<w:alias w:val="Terms"/><w:id w:val="9"/>') + line("End."))
    yield "cell-controls", Form(TITLE + table("<w:tr>" + control(cell(line("[seller 1 name]")), "<w:id w:val='3'/>") +
        cell(control(line("[buyer 1 name]"), "<w:id w:val='4'/><w:text/>")) + "</w:tr>", control("<w:tr>" + cell(line("Fee")) +
        cell(line("[LOT FEE]")) + "</w:tr>", "<w15:repeatingSectionItem/>")))
    yield "bound-control", Form(TITLE + line(control(run("[seller 1 name]"), '<w:dataBinding w:xpath="/ns0:coreProperties[1]" '
        'w:storeItemID="{6C3C8BC8-F283-45AE-878A-BAB7291924A1}"/><w:text/>')) + FEE)
    yield "footnotes", Form(TITLE + line("[seller 1 name]", '<w:r><w:footnoteReference w:id="2"/></w:r>', " sells.") + FEE).add(
        "footnotes", "footnotes", '<w:footnote w:type="separator" w:id="0"><w:p><w:r><w:separator/></w:r></w:p></w:footnote>'
        '<w:footnote w:id="2"><w:p><w:r><w:footnoteRef/></w:r>' + run(" Known as [buyer 1 name].") + "</w:p></w:footnote>")
    yield "endnotes", Form(TITLE + line("[seller 1 name]", '<w:r><w:endnoteReference w:id="2"/></w:r>', " sells.") + FEE).add(
        "endnotes", "endnotes", '<w:endnote w:type="separator" w:id="0"><w:p><w:r><w:separator/></w:r></w:p></w:endnote>'
        '<w:endnote w:id="2"><w:p><w:r><w:endnoteRef/></w:r>' + run(" Fee [LOT FEE].") + "</w:p></w:endnote>")
    levels = "".join(f'<w:lvl w:ilvl="{n}"><w:start w:val="1"/><w:numFmt w:val="{kind}"/><w:lvlText w:val="{text}"/>'
                     f'<w:pPr><w:ind w:left="{720 * (n + 1)}" w:hanging="360"/></w:pPr></w:lvl>'
                     for n, (kind, text) in enumerate([("decimal", "Article %1."), ("lowerLetter", "(%2)"), ("lowerRoman", "%3.")]))
    item = lambda text, level=0, number=1: line(text, look=f'<w:numPr><w:ilvl w:val="{level}"/><w:numId w:val="{number}"/></w:numPr>')
    yield "numbered", Form(TITLE + item("[seller 1 name] sells.") + item("all fixtures", 1) + item("with keys", 2) +
        item("[buyer 1 name] pays [LOT FEE].") + item("Begins again.", 0, 2)).add("numbering", "numbering",
        f'<w:abstractNum w:abstractNumId="0"><w:multiLevelType w:val="multilevel"/>{levels}</w:abstractNum>'
        '<w:num w:numId="1"><w:abstractNumId w:val="0"/></w:num><w:num w:numId="2"><w:abstractNumId w:val="0"/>'
        '<w:lvlOverride w:ilvl="0"><w:startOverride w:val="1"/></w:lvlOverride></w:num>')
    yield "boxes", Form(TITLE + line(shape_box("Box for [seller 1 name]")) + line(drawn_box("Box for [buyer 1 name]")) + FEE)
    yield "landscape-inside", Form(TITLE + PARTIES + line("Wide page for [LOT FEE].", look='<w:sectPr><w:pgSz w:w="15840" '
        'w:h="12240" w:orient="landscape"/><w:pgMar w:top="720" w:right="720" w:bottom="720" w:left="720" w:header="360" '
        'w:footer="360" w:gutter="0"/></w:sectPr>') + line("Upright again."))
    yield "first-page", Form(TITLE + PARTIES + line('<w:r><w:br w:type="page"/></w:r>') + FEE, SIZE + "<w:titlePg/>").story(
        "header", line("Head for [seller 1 name]")).story("footer", line("Page ", field("PAGE", "2"))).story(
        "header", line("First page alone"), "first")
    yield "links-and-fields", Form(TITLE + line('<w:hyperlink r:id="rIdL"><w:r><w:t>[seller 1 name]</w:t></w:r></w:hyperlink>',
        " of ", '<w:fldSimple w:instr=" DOCPROPERTY Firm ">' + run("the firm") + "</w:fldSimple>", ", date ", field('DATE \\@ "d MMM"',
        "1 Mar")) + FEE).link("rIdL", "hyperlink", "https://example.org/", True)
    yield "form-fields", Form(TITLE + line("Owner ", '<w:bookmarkStart w:id="1" w:name="Text1"/><w:r><w:fldChar w:fldCharType="begin">'
        '<w:ffData><w:name w:val="Text1"/><w:enabled/><w:calcOnExit w:val="0"/><w:textInput/></w:ffData></w:fldChar></w:r><w:r>'
        '<w:instrText xml:space="preserve"> FORMTEXT </w:instrText></w:r><w:r><w:fldChar w:fldCharType="separate"/></w:r>',
        "[seller 1 name]", '<w:r><w:fldChar w:fldCharType="end"/></w:r><w:bookmarkEnd w:id="1"/>') + FEE)


def make(folder):
    for name, form in forms():
        form.save(folder / f"hand-{name}.docx")
