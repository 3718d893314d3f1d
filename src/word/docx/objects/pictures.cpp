#include "word/docx/objects/pictures.h"

#include <algorithm>
#include <fstream>
#include <iterator>

#include "word/docx/objects/engine_state.h"
#include "word/docx/objects/picture_size.h"
#include "word/docx/objects/range.h"
#include "word/docx/objects/section_objects.h"
#include "word/docx/objects/selection.h"
#include "word/docx/objects/table_objects.h"

namespace quillmark::word::docx::objects {
namespace {

constexpr double kEmuPerTwip = 635;

struct Room {
    int width;
    int height;
};

Room RoomAt(OpenDocument& document, const Place& place) {
    const SectionProperties* section = document.editor().SectionAt(place);
    if (!section) section = &document.model().lastSection;
    const int cellWidth = CellTextWidth(document, place);
    return {cellWidth > 0 ? cellWidth : ColumnWidth(*section), TextHeight(*section)};
}

}  // namespace

Picture MakePicture(std::string bytes) {
    const PictureSize size = ReadPictureSize(bytes);
    return {std::move(bytes), size.extension, size.WidthEmu(), size.HeightEmu(), size.description};
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
