#include "production/kit/typing.h"

#include "core/text_conversions.h"

namespace quillmark {

using word::InchesToPoints;

namespace {

// A value of several lines has CR LF between them; the word processor's paragraph end is the CR alone.
void AppendLines(std::string& text, std::string_view part) {
    if (part.find('\n') == std::string_view::npos) {
        text += part;
        return;
    }
    for (std::size_t i = 0; i < part.size(); ++i) {
        if (part[i] != '\n') {
            text += part[i];
        } else if (i == 0 || part[i - 1] != '\r') {
            text += '\r';
        }
    }
}

}  // namespace

std::string SignatureRule() {
    return RepeatUnderscore(41);
}

void Typist::TypeText(std::initializer_list<std::string_view> parts) {
    std::string text;
    for (const std::string_view part : parts) AppendLines(text, part);
    WordSel.TypeText(text);
}

void Typist::Font(std::string_view name, double points) {
    WordSel.Font.Name = name;
    WordSel.Font.Size = points;
}

void Typist::Indents(double inches) {
    indent_ = inches;
    WordSel.Paragraphs.LeftIndent = InchesToPoints(inches);
    WordSel.Paragraphs.RightIndent = InchesToPoints(inches);
}

void Typist::Role(word::Role role) {
    role_ = role;
    if (session_.hints) session_.hints->SetRole(role);
}

void Typist::EndList() {
    WordSel.ListFormat().RemoveNumbers();
    Indents(indent_);
}

void Typist::NumberedList(std::initializer_list<std::string_view> items) {
    BeginList();
    for (const std::string_view item : items) Text(item, "\v\r");
    EndList();
}

void Typist::BulletedList(std::initializer_list<std::string_view> items) {
    WordSel.ListFormat().ApplyBulletDefault();
    for (const std::string_view item : items) Text(item, "\v\r");
    EndList();
}

void Typist::BeginColumns(int count, double spacingInches) {
    WordSel.InsertBreak(word::SectionBreakContinuous);
    WordSel.PageSetup.TextColumns.SetCount(count);
    WordSel.PageSetup.TextColumns.Spacing = InchesToPoints(spacingInches);
}

void Typist::EndColumns() {
    WordSel.InsertBreak(word::SectionBreakContinuous);
    WordSel.PageSetup.TextColumns.SetCount(1);
}

void Typist::CheckBox(const word::Range& place, bool ticked) {
    session_.WordDoc.FormFields.Add(place, word::FieldFormCheckBox).CheckBox.Value = ticked;
}

void Typist::TextField(std::string_view result) {
    session_.WordDoc.FormFields.Add(WordSel.Range(), word::FieldFormTextInput).Result = result;
}

word::Table Typist::Table(int rows, int columns) {
    const word::Range place = WordSel.Range();
    Text("\r");
    return session_.WordDoc.Tables.Add(place, rows, columns);
}

void Typist::Picture(const std::string& bytes, const std::string& description) {
    session_.clipboard->SetPicture(bytes, description);
    WordSel.Paste();
    session_.clipboard->Clear();
}

}  // namespace quillmark
