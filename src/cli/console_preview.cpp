#include <map>

#include "cli/console_commands.h"
#include "platform/code_points.h"
#include "platform/paths.h"
#include "session/preview_command.h"

namespace quillmark::cli {

namespace {

using PlacesByText = std::map<std::string, Json>;

/// The words that each field gave the text, and where.
std::map<int, PlacesByText> PlacesByField(const Preview& made) {
    std::map<int, PlacesByText> fields;
    for (const ValuePlace& place : made.values) {
        Json& at = fields[place.n][Utf8Of(std::u32string_view(made.text).substr(place.at, place.length))];
        at.push_back(place.at);
    }
    return fields;
}

/// A value that stands in the text as it is, or else in the forms that it took there.
Json ValuesOf(const Preview& made) {
    Json values = Json::array();
    for (const auto& [n, forms] : PlacesByField(made)) {
        if (n == 0) continue;
        const auto asItIs = forms.find(made.texts[static_cast<std::size_t>(n)]);
        for (const auto& [text, at] : forms)
            if (asItIs == forms.end() || text == asItIs->first)
                values.push_back({{"n", n}, {"text", text}, {"at", at}});
    }
    return values;
}

}  // namespace

Json MakePreviewAt(ConsoleSession& session, const Request& request) {
    const std::filesystem::path to = std::filesystem::absolute(PathOf(request.Text("to")));
    const Preview made = MakePreview(OrderOfPreview(session.screen(), request.Text("document")), to);
    return {{"document", TextOf(to)}, {"values", ValuesOf(made)}};
}

Json Blanks(ConsoleSession& session, const Request&) {
    Json list = Json::array();
    for (const Blank& blank : OpenNow(session.screen()).blanks)
        list.push_back({{"n", blank.n},
                        {"marker", blank.marker},
                        {"required", blank.required},
                        {"documents", blank.documents}});
    return list;
}

}  // namespace quillmark::cli
