#include <algorithm>
#include <charconv>

#include "word/docx/read/story.h"

/// Pictures in line with the text.
namespace quillmark::word::docx::read {

namespace {

struct PictureKind {
    std::string_view ending;
    std::string_view extension;
};

// clang-format off
constexpr PictureKind kKinds[] = {
    {".png",  "png"},
    {".jpg",  "jpeg"},
    {".jpeg", "jpeg"},
    {".bmp",  "bmp"},
};
// clang-format on

constexpr std::int64_t kLargestEmu = 27'273'042'316'900;

std::int64_t EmuAttribute(pugi::xml_node node, const char* name) {
    const std::string_view text = xml::Attribute(node, name);
    std::int64_t value = 0;
    std::from_chars(text.data(), text.data() + text.size(), value);
    return std::clamp<std::int64_t>(value, 0, kLargestEmu);
}

bool HasOnlyChildren(pugi::xml_node node, std::initializer_list<std::string_view> names) {
    return std::ranges::all_of(node.children(), [&](pugi::xml_node child) {
        return child.type() != pugi::node_element || std::ranges::find(names, child.name()) != names.end();
    });
}

/// Whether the shape is the whole picture, upright and without a frame.
bool IsPlainShape(pugi::xml_node picture) {
    const pugi::xml_node fill = picture.child("pic:blipFill");
    const pugi::xml_node shape = picture.child("pic:spPr");
    const pugi::xml_node turn = shape.child("a:xfrm");
    const pugi::xml_node line = shape.child("a:ln");
    return HasOnlyChildren(picture.child("pic:nvPicPr").child("pic:cNvPr"), {"a:extLst"}) &&
           HasOnlyChildren(fill, {"a:blip", "a:stretch"}) &&
           HasOnlyChildren(fill.child("a:blip"), {"a:extLst"}) && !fill.child("a:blip").attribute("r:link") &&
           HasOnlyChildren(shape, {"a:xfrm", "a:prstGeom", "a:noFill", "a:ln"}) && !turn.first_attribute() &&
           xml::Attribute(shape.child("a:prstGeom"), "prst") == "rect" && (!line || line.child("a:noFill"));
}

}  // namespace

std::optional<Picture> ReadPlainPicture(const ReadPart& part, pugi::xml_node drawing) {
    const pugi::xml_node place = drawing.child("wp:inline");
    const pugi::xml_node properties = place.child("wp:docPr");
    const pugi::xml_node shape = place.child("a:graphic").child("a:graphicData").child("pic:pic");
    // A description for those who cannot see the picture is worth keeping.
    const bool isDescribed = !xml::Attribute(properties, "descr").empty() || properties.first_child();
    if (!shape || isDescribed || !IsPlainShape(shape)) return {};
    const std::string_view id = xml::Attribute(shape.child("pic:blipFill").child("a:blip"), "r:embed");
    const PackageLink* link = part.context.package.FindById(part.name, id);
    if (!link || link->external || !part.context.package.Has(link->target)) return {};
    const auto* kind = std::ranges::find_if(
        kKinds, [&](const PictureKind& candidate) { return link->target.ends_with(candidate.ending); });
    if (kind == std::end(kKinds)) return {};
    const pugi::xml_node extent = place.child("wp:extent");
    return Picture{part.context.package.Bytes(link->target), std::string(kind->extension),
                   std::max<std::int64_t>(EmuAttribute(extent, "cx"), 1),
                   std::max<std::int64_t>(EmuAttribute(extent, "cy"), 1)};
}

}  // namespace quillmark::word::docx::read
