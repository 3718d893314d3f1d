#include "tools/op236/form_text.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <sstream>
#include <vector>

#include "platform/code_page.h"
#include "tools/op236/form_fields.h"

namespace quillmark::pdf {

namespace {

constexpr double kPadding = 2;
constexpr double kSmallest = 4, kLargest = 12;
constexpr double kAscent = 0.718, kDescent = 0.207;  ///< of Helvetica, for a size of 1
constexpr double kLeading = 1.15;
constexpr int kMultiline = 1 << 12, kComb = 1 << 24;

/// Widths of Helvetica's characters from blank to tilde in thousandths; all others are taken for 556.
constexpr std::array<int, 95> kHelvetica = {
    278, 278, 355, 556, 556, 889, 667, 191, 333, 333, 389, 584, 278, 333,  278, 278, 556, 556, 556,
    556, 556, 556, 556, 556, 556, 556, 278, 278, 584, 584, 584, 556, 1015, 667, 667, 722, 722, 667,
    611, 778, 722, 278, 500, 667, 556, 833, 722, 778, 667, 778, 722, 667,  611, 722, 667, 944, 667,
    667, 611, 278, 278, 278, 469, 556, 333, 556, 556, 500, 556, 556, 278,  556, 556, 222, 222, 500,
    222, 833, 556, 556, 556, 556, 333, 500, 278, 556, 500, 722, 500, 500,  500, 334, 260, 334, 584};

/// "/Helv 10 Tf 0 g" in its parts.
struct DefaultLook {
    std::string font = "/Helv";
    double size = 0;  ///< 0: the one that fits
    std::string colour = "0 g";
};

DefaultLook ReadLook(QPDFObjectHandle appearance) {
    DefaultLook look;
    if (!appearance.isString()) return look;
    std::istringstream words(appearance.getStringValue());
    std::vector<std::string> operands;
    for (std::string word; words >> word;) {
        if (word == "Tf" && operands.size() >= 2) {
            look.font = operands[operands.size() - 2];
            look.size = std::max(0.0, std::strtod(operands.back().c_str(), nullptr));
        } else if (word == "g" || word == "rg" || word == "k") {
            look.colour = fmt::format("{} {}", fmt::join(operands, " "), word);
        } else {
            operands.push_back(word);
            continue;
        }
        operands.clear();
    }
    return look;
}

/// Whether codes of windows-1252 show the right characters in this font.
bool ShowsWindows1252(QPDFObjectHandle font) {
    if (!font.isDictionary()) return false;
    QPDFObjectHandle kind = font.getKey("/Subtype");
    if (!kind.isName() || (kind.getName() != "/Type1" && kind.getName() != "/TrueType")) return false;
    QPDFObjectHandle encoding = font.getKey("/Encoding");
    return encoding.isName() && encoding.getName() == "/WinAnsiEncoding";
}

QPDFObjectHandle Helvetica() {
    return QPDFObjectHandle::parse(
        "<< /Type /Font /Subtype /Type1 /BaseFont /Helvetica /Encoding /WinAnsiEncoding >>");
}

class Typesetting {
 public:
    Typesetting(QPDF& pdf, QPDFObjectHandle field, QPDFObjectHandle widget, std::string_view text)
        : pdf_(pdf), field_(std::move(field)), widget_(std::move(widget)) {
        if (!FirstUnencodable(text)) text_ = ToWindows1252(text);
        std::erase(text_, '\r');
        QPDFObjectHandle box = widget_.getKey("/Rect");
        if (box.isRectangle()) {
            const auto rectangle = QPDFObjectHandle(box).getArrayAsRectangle();
            width_ = std::abs(rectangle.urx - rectangle.llx);
            height_ = std::abs(rectangle.ury - rectangle.lly);
        }
        QPDFObjectHandle flags = Inherited(field_, "/Ff");
        flags_ = flags.isInteger() ? flags.getIntValueAsInt() : 0;
        QPDFObjectHandle alignment = Inherited(field_, "/Q");
        alignment_ = alignment.isInteger() ? alignment.getIntValueAsInt() : 0;
        look_ = ReadLook(Inherited(field_, "/DA").isString() ? Inherited(field_, "/DA") : FormEntry("/DA"));
        FindFont();
    }

    void Show() {
        QPDFObjectHandle look = QPDFObjectHandle::newStream(&pdf_, Content());
        QPDFObjectHandle entries = look.getDict();
        entries.replaceKey("/Type", QPDFObjectHandle::newName("/XObject"));
        entries.replaceKey("/Subtype", QPDFObjectHandle::newName("/Form"));
        entries.replaceKey("/BBox", QPDFObjectHandle::newFromRectangle({0, 0, width_, height_}));
        QPDFObjectHandle fonts = QPDFObjectHandle::newDictionary();
        fonts.replaceKey(look_.font, font_);
        QPDFObjectHandle resources = QPDFObjectHandle::newDictionary();
        resources.replaceKey("/Font", fonts);
        entries.replaceKey("/Resources", resources);
        QPDFObjectHandle looks = QPDFObjectHandle::newDictionary();
        looks.replaceKey("/N", pdf_.makeIndirectObject(look));
        widget_.replaceKey("/AP", looks);
    }

 private:
    QPDFObjectHandle FormEntry(const std::string& key) {
        QPDFObjectHandle form = pdf_.getRoot().getKey("/AcroForm");
        return form.isDictionary() ? form.getKey(key) : QPDFObjectHandle::newNull();
    }

    void FindFont() {
        QPDFObjectHandle resources = FormEntry("/DR");
        if (resources.isDictionary()) resources = resources.getKey("/Font");
        font_ = resources.isDictionary() ? resources.getKey(look_.font) : QPDFObjectHandle::newNull();
        if (ShowsWindows1252(font_)) return;
        font_ = Helvetica();
        look_.font = "/QmHelv";
    }

    double WidthOf(unsigned char code) {
        QPDFObjectHandle widths = font_.getKey("/Widths");
        QPDFObjectHandle first = font_.getKey("/FirstChar");
        if (widths.isArray() && first.isInteger()) {
            const int at = code - first.getIntValueAsInt();
            if (at >= 0 && at < widths.getArrayNItems() && widths.getArrayItem(at).isNumber())
                return widths.getArrayItem(at).getNumericValue() / 1000;
        }
        const bool known = code >= ' ' && code - ' ' < static_cast<int>(kHelvetica.size());
        return (known ? kHelvetica[static_cast<std::size_t>(code - ' ')] : 556) / 1000.0;
    }
    double WidthOf(std::string_view line) {
        double width = 0;
        for (const char c : line) width += WidthOf(static_cast<unsigned char>(c));
        return width;
    }

    std::vector<std::string> Lines() const {
        std::vector<std::string> lines(1);
        for (const char c : text_) {
            if (c == '\n')
                lines.emplace_back();
            else
                lines.back() += c;
        }
        return lines;
    }

    /// The field's own size, or one by the height of the place; smaller for a text that would not fit in its
    /// width.
    double SizeFor(double widest, std::size_t lines) const {
        const double room = std::max(1.0, height_ - kPadding) / (static_cast<double>(lines) * kLeading);
        double size = look_.size > 0 ? look_.size : std::clamp(room, kSmallest, kLargest);
        const double across = std::max(1.0, width_ - 2 * kPadding);
        if (widest * size > across) size = std::max(kSmallest, across / widest);
        return size;
    }

    double StartOf(double lineWidth) const {
        if (alignment_ == 1) return std::max(kPadding, (width_ - lineWidth) / 2);
        if (alignment_ == 2) return std::max(kPadding, width_ - kPadding - lineWidth);
        return kPadding;
    }

    static std::string Literal(std::string_view text) {
        return QPDFObjectHandle::newString(std::string(text)).unparse();
    }

    std::string Content() {
        const std::string typed = IsComb() ? InCells() : InLines();
        return fmt::format("/Tx BMC\nq\n1 1 {:.2f} {:.2f} re W n\nBT\n{}\n{}ET\nQ\nEMC\n",
                           std::max(0.0, width_ - 2), std::max(0.0, height_ - 2), look_.colour, typed);
    }

    std::string InLines() {
        const bool isMultiline = flags_ & kMultiline;
        std::vector<std::string> lines = Lines();
        if (!isMultiline && lines.size() > 1) lines.resize(1);
        double widest = 0;
        for (const std::string& line : lines) widest = std::max(widest, WidthOf(line));
        const double size = SizeFor(widest, lines.size());
        double down = isMultiline ? height_ - kPadding - kAscent * size
                                  : (height_ - (kAscent + kDescent) * size) / 2 + kDescent * size;
        std::string typed = fmt::format("{} {:.2f} Tf\n", look_.font, size);
        for (const std::string& line : lines) {
            typed += fmt::format("1 0 0 1 {:.2f} {:.2f} Tm\n{} Tj\n", StartOf(WidthOf(line) * size), down,
                                 Literal(line));
            down -= size * kLeading;
        }
        return typed;
    }

    int Cells() {
        QPDFObjectHandle most = Inherited(field_, "/MaxLen");
        return most.isInteger() ? most.getIntValueAsInt() : 0;
    }
    bool IsComb() { return (flags_ & kComb) && Cells() > 0; }

    std::string InCells() {
        const double cell = width_ / Cells();
        const double size = SizeFor(0, 1);
        const double down = (height_ - (kAscent + kDescent) * size) / 2 + kDescent * size;
        std::string typed = fmt::format("{} {:.2f} Tf\n", look_.font, size);
        double across = 0;
        for (const char c : text_) {
            const double left = across + (cell - WidthOf(static_cast<unsigned char>(c)) * size) / 2;
            typed += fmt::format("1 0 0 1 {:.2f} {:.2f} Tm\n{} Tj\n", left, down, Literal({&c, 1}));
            across += cell;
        }
        return typed;
    }

    QPDF& pdf_;
    QPDFObjectHandle field_, widget_, font_;
    std::string text_;  ///< windows-1252
    double width_ = 0, height_ = 0;
    int flags_ = 0, alignment_ = 0;
    DefaultLook look_;
};

}  // namespace

void ShowText(QPDF& pdf, QPDFObjectHandle field, QPDFObjectHandle widget, std::string_view text) {
    Typesetting(pdf, std::move(field), std::move(widget), text).Show();
}

}  // namespace quillmark::pdf
