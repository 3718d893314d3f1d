#pragma once

#include <cstdint>
#include <string>
#include <string_view>

/// What the system hands to the word processor outside its object model: a text or a picture that the next
/// `Selection.Paste`, or the code ^c in a replacement, puts into the document.
namespace quillmark::word {

class Clipboard {
 public:
    virtual ~Clipboard() = default;

    /// Texts are UTF-8; "\r" ends a paragraph, "\v" a line.
    virtual void SetText(std::string_view text) = 0;
    /// The bytes of a PNG, JPEG or BMP file, and what it shows for those who cannot see it, UTF-8.
    virtual void SetPicture(std::string bytes, std::string description) = 0;
    virtual void Clear() = 0;
};

/// A clipboard inside the program, which the embedded engine pastes from: a run neither disturbs nor reads
/// what the user has on the system's own.
class MemoryClipboard final : public Clipboard {
 public:
    void SetText(std::string_view text) override { Set(std::string(text), {}, {}); }
    void SetPicture(std::string bytes, std::string description) override {
        Set({}, std::move(bytes), std::move(description));
    }
    void Clear() override { Set({}, {}, {}); }

    /// Empty when there is none. At most one of the two is filled.
    const std::string& text() const { return text_; }
    const std::string& picture() const { return picture_; }
    /// The picture's.
    const std::string& description() const { return description_; }
    /// Grows with every change, so that the word processor can tell whether what it copied is still the
    /// latest.
    std::uint64_t changes() const { return changes_; }

 private:
    void Set(std::string text, std::string picture, std::string description) {
        text_ = std::move(text);
        picture_ = std::move(picture);
        description_ = std::move(description);
        ++changes_;
    }

    std::string text_;
    std::string picture_;
    std::string description_;
    std::uint64_t changes_ = 0;
};

}  // namespace quillmark::word
