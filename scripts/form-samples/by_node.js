// Forms that a firm's web service made with the JavaScript library for .docx.
const fs = require("fs");
const path = require("path");
const d = require("docx");

const text = (words, look = {}) => new d.TextRun({ text: words, ...look });
const line = (...parts) => new d.Paragraph({ children: parts.map((p) => (typeof p === "string" ? text(p) : p)) });
const parties = () => line("Between [seller 1 name] and [buyer 1 name], for [LOT FEE].");
const date = new Date("2024-03-01T10:00:00Z");
const forms = {
  plain: { sections: [{ children: [new d.Paragraph({ text: "Notice", heading: d.HeadingLevel.HEADING_1 }), parties()] }] },
  comments: {
    comments: { children: [{ id: 0, author: "Clerk", date, children: [line("Check the name.")] }] },
    sections: [{ children: [new d.Paragraph({ children: [new d.CommentRangeStart(0), text("[seller 1 name]"),
      new d.CommentRangeEnd(0), new d.TextRun({ children: [new d.CommentReference(0)] })] }), parties()] }],
  },
  changes: {
    sections: [{ children: [new d.Paragraph({ children: [text("The owner "),
      new d.InsertedTextRun({ text: "[seller 1 name]", id: 0, author: "Clerk", date: "2024-03-01T10:00:00Z" }),
      new d.DeletedTextRun({ text: " nobody", id: 1, author: "Clerk", date: "2024-03-01T10:00:00Z" })] }), parties()] }],
  },
  footnotes: {
    footnotes: { 1: { children: [line("Fee [LOT FEE].")] } },
    sections: [{ children: [new d.Paragraph({ children: [text("[seller 1 name]"), new d.FootnoteReferenceRun(1)] }), parties()] }],
  },
  table: {
    sections: [{ children: [new d.Table({ rows: [1, 2].map((n) => new d.TableRow({ children: ["[seller 1 name]", `row ${n}`].map(
      (words) => new d.TableCell({ children: [line(words)], shading: { fill: "DDEEFF" } })) })) }), parties()] }],
  },
  numbering: {
    numbering: { config: [{ reference: "terms", levels: [0, 1].map((level) => ({ level, format: d.LevelFormat.UPPER_ROMAN,
      text: `%${level + 1}.`, alignment: d.AlignmentType.START })) }] },
    sections: [{ children: [0, 1, 0].map((level) => new d.Paragraph({ text: "[buyer 1 name] pays", numbering: { reference: "terms", level } }))
      .concat([parties()]) }],
  },
  header: {
    sections: [{ headers: { default: new d.Header({ children: [line("for [seller 1 name]")] }) },
      footers: { default: new d.Footer({ children: [new d.Paragraph({ children: [new d.TextRun({ children: ["Page ", d.PageNumber.CURRENT] })] })] }) },
      properties: { page: { size: { orientation: d.PageOrientation.LANDSCAPE } } }, children: [parties()] }],
  },
};

(async () => {
  for (const [name, options] of Object.entries(forms)) {
    const bytes = await d.Packer.toBuffer(new d.Document({ creator: "Clerk", ...options }));
    fs.writeFileSync(path.join(process.argv[2], `node-${name}.docx`), bytes);
  }
})();
