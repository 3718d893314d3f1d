#pragma once

#include "platform/machine.h"

namespace quillmark::desktop {

/// While it waits for the answer the windows stay in use.
class QtHttpClient final : public HttpClient {
 public:
    std::optional<std::string> Get(const std::string& address, std::chrono::milliseconds limit) override;
};

}  // namespace quillmark::desktop
