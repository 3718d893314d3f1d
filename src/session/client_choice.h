#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "session/firm.h"
#include "session/machine.h"
#include "session/state/screen_state.h"

namespace quillmark {

/// The list of law firms that an independent paralegal works for (Para-Pro mode): while it is open, the rest
/// of the screen waits. It changes the firm's clients and closes the ways in.
class ClientChoice {
 public:
    struct Surroundings {
        std::function<void()> startAnew;    ///< another client's jobs are worked on now
        std::function<void()> setDefaults;  ///< the firm's defaults are to be set
    };

    /// The arguments must outlive the object.
    ClientChoice(ScreenState& screen, Firm& firm, Machine& machine, Surroundings around)
        : screen_(screen), firm_(firm), machine_(machine), around_(std::move(around)) {}

    bool IsOpen() const { return open_; }
    void Open();
    void Select(std::string_view line);  ///< the first line adds a client
    void Delete(std::string_view name);

 private:
    void Serve(const std::string& name);
    void Add();

    ScreenState& screen_;
    Firm& firm_;
    Machine& machine_;
    Surroundings around_;
    bool open_ = false;
};

}  // namespace quillmark
