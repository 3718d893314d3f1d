// Reads arbitrary bytes as a request of the console, and takes its arguments as every kind that there is.

#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include <array>

#include "cli/console_request.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace quillmark::cli;
    const std::string_view line(reinterpret_cast<const char*>(data), size);
    try {
        const Request request(line);
        for (const ArgumentKind kind :
             {ArgumentKind::Text, ArgumentKind::Path, ArgumentKind::Number, ArgumentKind::Amount,
              ArgumentKind::Texts, ArgumentKind::Flag, ArgumentKind::Any}) {
            try {
                request.Check(std::array{Argument{"n", kind}});
            } catch (const BadRequest&) {
                continue;
            }
            if (kind == ArgumentKind::Number) request.Number("n");
            if (kind == ArgumentKind::Texts) request.Texts("n");
            if (kind == ArgumentKind::Text || kind == ArgumentKind::Amount) request.Text("n");
        }
    } catch (const BadRequest&) {
    }
    return 0;
}
