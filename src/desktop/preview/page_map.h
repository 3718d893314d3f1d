#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quillmark::desktop {

/// Neighbouring characters of one page's text.
struct PageSpan {
    int page = 0;
    int index = 0;  ///< of the first character in the page's text
    int length = 0;

    bool operator==(const PageSpan&) const = default;
};

/// Which characters of a document's text stand where on its pages. The pages' texts have what the document's
/// has not (line ends, list numbers, footers), so the two are laid side by side, paragraph by paragraph.
class PageMap {
 public:
    PageMap() = default;
    /// The document's text, its paragraphs ended by '\r', and the texts of its pages as code points.
    PageMap(std::u32string_view text, const std::vector<std::u32string>& pages);

    /// Where so many characters of the document stand, one span for each piece of a line; empty for what was
    /// found on no page.
    std::vector<PageSpan> SpansOf(std::size_t at, std::size_t length) const;
    /// The character of the document that stands there.
    std::optional<std::size_t> PlaceOf(int page, int index) const;

 private:
    struct Letter {  ///< of the pages' texts, blanks left out
        int page = 0;
        int index = 0;
    };

    static constexpr std::size_t kNowhere = static_cast<std::size_t>(-1);

    std::vector<Letter> letters_;
    std::vector<std::size_t> letterOf_;  ///< by character of the document
};

}  // namespace quillmark::desktop
