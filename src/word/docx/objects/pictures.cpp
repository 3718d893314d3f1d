#include "word/docx/objects/pictures.h"

#include <algorithm>
#include <cmath>
#include <fstream>
#include <iterator>

#include "word/docx/model/style_look.h"
#include "word/docx/objects/bitmap.h"
#include "word/docx/objects/engine_state.h"
#include "word/docx/objects/picture_size.h"
#include "word/docx/objects/range.h"
#include "word/docx/objects/section_objects.h"
#include "word/docx/objects/selection.h"
#include "word/docx/objects/table_objects.h"
#include "word/seam/letter_widths.h"

namespace quillmark::word::docx::objects {
namespace {

constexpr double kEmuPerTwip = 635;

struct Room {
    int width;
    int height;
};

double HeightOf(const Document& document, const Paragraph& paragraph) {
    const FormatId letters = paragraph.spans.empty() ? paragraph.markFormat : paragraph.spans.front().format;
    const CharFormat font =
        EffectiveFont(document, document.paraFormats[paragraph.format], document.charFormats[letters]);
    const auto lines = 1 + std::ranges::count(paragraph.text, character::kLineBreak);
    return static_cast<double>(lines) * LineHeight(font.font, *font.halfPoints / 2.0);
}

/// What the heading directly above takes from the page, and the line of the picture itself, in twips; only
/// the latter where the heading is so long that the picture had better have a page of its own.
int TakenAbove(const Document& document, const Place& place, int textHeight) {
    constexpr double kTwips = 20;
    const double line = HeightOf(document, std::get<Paragraph>(*place.block));
    double heading = 0;
    for (auto block = place.block; block != place.blocks->begin();) {
        const auto* paragraph = std::get_if<Paragraph>(&*--block);
        if (!paragraph || !IsHeading(document.paraFormats[paragraph->format].role)) break;
        heading += HeightOf(document, *paragraph);
    }
    const double most = textHeight / kTwips / 4;
    return static_cast<int>(std::ceil((heading > most ? line : heading + line) * kTwips));
}

Room RoomAt(OpenDocument& document, const Place& place) {
    const SectionProperties* section = document.editor().SectionAt(place);
    if (!section) section = &document.model().lastSection;
    const int cellWidth = CellTextWidth(document, place);
    const Paragraph& paragraph = edit::Editor::ParagraphAt(place);
    const ParaFormat look =
        EffectiveParagraph(document.model(), document.model().paraFormats[paragraph.format]);
    const int width =
        (cellWidth > 0 ? cellWidth : ColumnWidth(*section)) - *look.leftIndent - *look.rightIndent;
    const int height = TextHeight(*section);
    return {width, height - TakenAbove(document.model(), place, height)};
}

}  // namespace

Picture MakePicture(std::string bytes, std::string description) {
    PictureSize size = ReadPictureSize(bytes);
    if (description.empty()) description = std::move(size.description);
    if (std::optional<std::string> png = PngOfBitmap(bytes)) {
        bytes = *std::move(png);
        size.extension = "png";
    }
    return {std::move(bytes), size.extension, size.WidthEmu(), size.HeightEmu(), std::move(description)};
}

Picture LoadPicture(const std::filesystem::path& file) {
    std::ifstream in(file, std::ios::binary);
    std::string bytes{std::istreambuf_iterator<char>(in), {}};
    if (!in.is_open() || in.bad() || bytes.empty())
        throw AutomationError(error::kNoSuchPicture, "This is not a valid file name: " + file.string());
    return MakePicture(std::move(bytes));
}

void FitPicture(Picture& picture, int width, int height) {
    const auto naturalWidth = static_cast<double>(picture.widthEmu);
    const auto naturalHeight = static_cast<double>(picture.heightEmu);
    const double across = std::max(width, 1) * kEmuPerTwip / naturalWidth;
    const double down = std::max(height, 1) * kEmuPerTwip / naturalHeight;
    const double scale = std::min({across, down, 1.0});
    picture.widthEmu = std::max<std::int64_t>(std::llround(scale * naturalWidth), 1);
    picture.heightEmu = std::max<std::int64_t>(std::llround(scale * naturalHeight), 1);
}

Place InsertPicture(OpenDocument& document, const Place& place, Picture picture, FormatId format) {
    const Room room = RoomAt(document, place);
    FitPicture(picture, room.width, room.height);
    const Place behind = document.editor().InsertObject(place, std::move(picture), format);
    document.Changed();
    return behind;
}

const MemberTable<InlineShapesObject>& InlineShapesObject::Members() {
    static const MemberTable<InlineShapesObject> members = {
        {"AddPicture", nullptr, nullptr,
         [](InlineShapesObject& shapes, Arguments arguments) {
             shapes.AddPicture(arguments);
             return Value();
         }},
    };
    return members;
}

void InlineShapesObject::AddPicture(Arguments arguments) {
    const ArgumentReader reader(arguments, {"FileName", "LinkToFile", "SaveWithDocument", "Range"});
    Picture picture = LoadPicture(document_.engine().PathOf(StringOf(reader["FileName"])));
    if (const Value* given = reader.Find("Range")) {
        const auto range = ObjectOf<RangeObject>(*given);
        const Place place = range->BeginInsertion();
        InsertPicture(document_, place, std::move(picture), range->InsertionFormat());
    } else {
        SelectionObject& selection = document_.selection();
        const Place place = selection.BeginInsertion();
        InsertPicture(document_, place, std::move(picture), selection.InsertionFormat());
    }
}

}  // namespace quillmark::word::docx::objects
